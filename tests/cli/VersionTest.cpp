// The versions of the tool and of drawings.
#include <gmock/gmock.h>

#include "cli/CliTest.h"
#include "cli/SmallDrawing.h"
#include "support/dwg/DwgMaker.h"

namespace zdx_test {

namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;

class Version : public CliTest {};

TEST_F(Version, OfTheToolIsToldWithoutAFile) {
  const Outcome outcome = Zdx({"version"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.err, IsEmpty());
  EXPECT_EQ(outcome.out, Zdx({"--version"}).out + "  Current  kDHL_1032\n");
  const auto documents = Documents(Zdx({"version", "-o", "json"}).out);
  ASSERT_THAT(documents, SizeIs(1));
  EXPECT_EQ(documents[0].at("schema"), "zdx/1");
  EXPECT_EQ(documents[0].at("currentVersion"), "kDHL_1032");
  EXPECT_EQ("zdx " + documents[0].at("zdx").get<std::string>() + "\n", Zdx({"--version"}).out);
}

TEST_F(Version, OfADrawingIsToldInThreeWays) {
  drawing::DrawingSpec spec;
  spec.version = "AC1015";
  Write("plan.dwg", dwg::Make(spec));
  const Outcome outcome = Zdx({"version", "plan.dwg"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.err, IsEmpty());
  EXPECT_EQ(outcome.out,
            "plan.dwg\n"
            "  LastSavedAs  kDHL_1015\n"
            "  Signature    kDHL_1015\n"
            "  Current      kDHL_1032\n");
}

TEST_F(Version, OfADxfDrawingHasNoSignature) {
  Write("plan.dxf", DxfText());
  const auto documents = Documents(Zdx({"version", "-o", "json", "plan.dxf"}).out);
  ASSERT_THAT(documents, SizeIs(1));
  EXPECT_EQ(documents[0].at("status"), "ok");
  EXPECT_EQ(documents[0].at("lastSavedAsFileVersion"), "kDHL_1032");
  EXPECT_EQ(documents[0].at("terrane3DVersion"), "kDHL_Unknown");
  EXPECT_EQ(documents[0].at("currentVersion"), "kDHL_1032");
}

TEST_F(Version, OfAFileThatCannotBeOpenedIsThatOfItsFirstBytes) {
  Write("plan.dwg", "AC1027 and nothing that belongs behind it");
  const Outcome text = Zdx({"version", "plan.dwg"});
  EXPECT_EQ(text.exitCode, kFileFailed);
  EXPECT_THAT(text.err, StartsWith("zdx: plan.dwg: "));
  EXPECT_THAT(text.out, HasSubstr("  LastSavedAs  (none)\n  Signature    kDHL_1027\n"));
  const auto documents = Documents(Zdx({"version", "-o", "json", "plan.dwg"}).out);
  ASSERT_THAT(documents, SizeIs(1));
  EXPECT_EQ(documents[0].at("status"), "error");
  EXPECT_EQ(documents[0].at("terrane3DVersion"), "kDHL_1027");
  EXPECT_TRUE(documents[0].at("lastSavedAsFileVersion").is_null());
  EXPECT_TRUE(documents[0].at("error").at("class").is_string());
}

TEST_F(Version, OfOneFileThatFailsDoesNotStopTheOthers) {
  Write("plan.dwg", dwg::Make({}));
  const Outcome outcome = Zdx({"version", "nowhere.dwg", "plan.dwg"});
  EXPECT_EQ(outcome.exitCode, kFileFailed);
  EXPECT_THAT(outcome.err, StartsWith("zdx: nowhere.dwg: Unable to find file"));
  EXPECT_THAT(outcome.out, StartsWith("nowhere.dwg\n  LastSavedAs  (none)\n  Signature    "
                                      "kDHL_Unknown\n  Current      kDHL_1032\nplan.dwg\n"));
}

TEST_F(Version, ThatCannotBeWrittenIsTold) {
  EXPECT_EQ(Zdx({"version"}, OutputTo::kFullDevice).exitCode, kOutputFailed);
  EXPECT_EQ(Zdx({"version", "nowhere.dwg"}, OutputTo::kFullDevice).exitCode, kOutputFailed);
}

}  // namespace

}  // namespace zdx_test
