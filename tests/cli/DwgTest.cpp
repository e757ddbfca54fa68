// What people see of DWG drawings: the same as of others, and clear words where one can't be read.
#include <gmock/gmock.h>

#include "cli/CliTest.h"
#include "cli/SmallDrawing.h"
#include "support/dwg/DwgMaker.h"

namespace zdx_test {

namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::MatchesRegex;
using ::testing::SizeIs;
using ::testing::StartsWith;

constexpr std::size_t kCodePageAt = 0x13;
constexpr std::size_t kProtectionAt = 0x18;

std::string Dwg(const std::string& version) {
  drawing::DrawingSpec spec;
  spec.version = version;
  spec.codePage = "ANSI_1251";
  spec.layers = {"0", "WALLS"};
  return dwg::Make(spec);
}

class DwgFile : public CliTest {
 protected:
  // The "error" of the one document about the file "plan.dwg" of those bytes.
  nlohmann::json ErrorOf(const std::string& bytes) const {
    Write("plan.dwg", bytes);
    const Outcome outcome = Zdx({"info", "-o", "json", "plan.dwg"});
    EXPECT_EQ(outcome.exitCode, kFileFailed);
    const std::vector<nlohmann::json> documents = Documents(outcome.out);
    EXPECT_THAT(documents, SizeIs(1));
    return documents.size() == 1 ? documents[0].value("error", nlohmann::json::object())
                                 : nlohmann::json::object();
  }
  std::string ReasonOf(const std::string& bytes) const {
    return ErrorOf(bytes).value("reason", "");
  }
};

TEST_F(DwgFile, OfEachVersionIsToldWithItsVersionAndCodePage) {
  for (const char* const version :
       {"AC1014", "AC1015", "AC1018", "AC1021", "AC1024", "AC1027", "AC1032"}) {
    Write("plan.dwg", Dwg(version));
    const Outcome text = Zdx({"info", "plan.dwg"});
    EXPECT_EQ(text.exitCode, 0);
    EXPECT_THAT(text.err, IsEmpty());
    EXPECT_THAT(text.out, StartsWith("plan.dwg\n  Zent drawing, DWG, " + std::string(version) +
                                     ", code page ANSI_1251\n"));
    EXPECT_THAT(text.out, HasSubstr("\n  Layers (2)\n    0\n    WALLS\n"));
    const auto documents = Documents(Zdx({"info", "-o", "json", "plan.dwg"}).out);
    ASSERT_THAT(documents, SizeIs(1));
    EXPECT_EQ(documents[0].at("format"), "DWG");
    EXPECT_EQ(documents[0].at("signature"), version);
    EXPECT_EQ(documents[0].at("codePage"), "ANSI_1251");
    EXPECT_THAT(documents[0].at("warnings"), IsEmpty());
  }
}

TEST_F(DwgFile, MayHaveTheNameOfATemplateOrOfAStandard) {
  for (const char* const name : {"plan.dwt", "plan.dws", "PLAN.DWG"}) {
    Write(name, Dwg("AC1032"));
    const Outcome outcome = Zdx({"info", name});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
    EXPECT_THAT(outcome.out, HasSubstr("DWG, AC1032"));
  }
}

TEST_F(DwgFile, WithAnUnknownCodePageIsToldWithAWarningAtItsPlace) {
  std::string bytes = Dwg("AC1015");
  bytes[kCodePageAt] = '\x7F';
  Write("plan.dwg", bytes);
  const Outcome outcome = Zdx({"info", "plan.dwg"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.out, StartsWith("plan.dwg\n  Zent drawing, DWG, AC1015\n"));
  EXPECT_THAT(outcome.err, StartsWith("zdx: plan.dwg: offset 19: warning: The code page "));
}

TEST_F(DwgFile, OfAnotherVersionIsAReadErrorThatNamesTheVersion) {
  for (const char* const version : {"AC1009", "AC1012", "AC1035"}) {
    const nlohmann::json error = ErrorOf(version + std::string(1000, '\0'));
    EXPECT_EQ(error.at("class"), "ReadError");
    EXPECT_EQ(error.at("code"), 101);
    EXPECT_THAT(error.at("reason").get<std::string>(), HasSubstr(version));
  }
}

TEST_F(DwgFile, ThatIsEncryptedIsASecurityError) {
  std::string bytes = Dwg("AC1032");
  bytes[kProtectionAt] = 1;
  const nlohmann::json error = ErrorOf(bytes);
  EXPECT_EQ(error.at("class"), "SecurityError");
  EXPECT_EQ(error.at("code"), 104);
  EXPECT_EQ(error.at("reason"), "The drawing is encrypted.");
}

TEST_F(DwgFile, ThatEndsWithinItsHeadIsToldSo) {
  EXPECT_EQ(ReasonOf(Dwg("AC1032").substr(0, 10)), "The file ends within its head.");
}

TEST_F(DwgFile, ThatIsADxfDrawingIsToldSo) {
  const std::string reason = "The file is a DXF drawing, whatever its name says.";
  EXPECT_EQ(ReasonOf(DxfText()), reason);
  EXPECT_EQ(ErrorOf(DxfText()).at("class"), "InvalidFormat");
}

TEST_F(DwgFile, NamedDxfIsToldToBeOne) {
  Write("plan.dxf", Dwg("AC1032"));
  const Outcome outcome = Zdx({"info", "plan.dxf"});
  EXPECT_EQ(outcome.exitCode, kFileFailed);
  EXPECT_THAT(outcome.err, MatchesRegex("zdx: plan\\.dxf: .*DWG drawing \\(AC1032\\).*\n"));
}

}  // namespace

}  // namespace zdx_test
