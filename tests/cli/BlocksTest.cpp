// The list of blocks that have attributes.
#include <gmock/gmock.h>

#include "cli/CliTest.h"
#include "cli/SmallDrawing.h"
#include "cli/TitleDrawing.h"
#include "support/dwg/DwgMaker.h"
#include "support/dxf/DxfMaker.h"

namespace zdx_test {

namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::MatchesRegex;
using ::testing::SizeIs;
using ::testing::StartsWith;

class Blocks : public CliTest {};

TEST_F(Blocks, AreListedWithTagsPromptsAndTexts) {
  Write("plan.dxf", dxf::Make(TitleDrawing()));
  const Outcome outcome = Zdx({"blocks", "plan.dxf"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.err, IsEmpty());
  EXPECT_EQ(outcome.out,
            "plan.dxf\n"
            "  Drawing, DXF (text), AC1032, code page ANSI_1252\n"
            "\n"
            "  TITLE (1 reference)\n"
            "    SCALE   Scale?\n"
            "            default: 1:1\n"
            "    NO\n"
            "    NOTES   Notes?\n"
            "    OFFICE  constant: Drawing office\n");
}

TEST_F(Blocks, AreListedInJson) {
  drawing::DrawingSpec spec;
  spec.blocks = {{.name = "GATE",
                  .definitions = {{.tag = "MARK", .value = "G", .prompt = "Mark?"},
                                  {.tag = "MAKER", .value = "me", .flags = drawing::kConstant}},
                  .isDynamic = true},
                 {.name = "*U5", .definitions = {{.tag = "MARK"}}, .copyOf = "GATE"},
                 {.name = "PLAIN"}};
  spec.entities = {drawing::Insert("*U5"), drawing::Insert("GATE"), drawing::Insert("*U5")};
  Write("plan.dxf", dxf::Make(spec));
  const Outcome outcome = Zdx({"blocks", "-o", "json", "plan.dxf"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.err, IsEmpty());
  EXPECT_EQ(outcome.out,
            "{\"schema\":\"zdx/1\",\"file\":\"plan.dxf\",\"status\":\"ok\","
            "\"format\":\"DXF (text)\",\"signature\":\"AC1032\",\"codePage\":\"ANSI_1252\","
            "\"blocks\":[{\"name\":\"GATE\",\"references\":1,\"variations\":2,\"attributes\":["
            "{\"tag\":\"MARK\",\"prompt\":\"Mark?\",\"text\":\"G\",\"constant\":false},"
            "{\"tag\":\"MAKER\",\"prompt\":\"\",\"text\":\"me\",\"constant\":true}]}],"
            "\"warnings\":[]}\n");
}

TEST_F(Blocks, AreListedOfDwgDrawingsAlike) {
  const auto listed = [&](const std::string& file) {
    const auto documents = Documents(Zdx({"blocks", "-o", "json", file}).out);
    return documents.size() == 1 ? documents[0].value("blocks", nlohmann::json()) : nullptr;
  };
  Write("plan.dxf", dxf::Make(TitleDrawing()));
  Write("plan.dwg", dwg::Make(TitleDrawing()));
  EXPECT_THAT(listed("plan.dxf"), SizeIs(1));
  EXPECT_EQ(listed("plan.dwg"), listed("plan.dxf"));
}

TEST_F(Blocks, ThatAreNotThereAreToldSo) {
  Write("plan.dxf", DxfText());
  const Outcome text = Zdx({"blocks", "plan.dxf"});
  EXPECT_EQ(text.exitCode, 0);
  EXPECT_EQ(text.out,
            "plan.dxf\n"
            "  Drawing, DXF (text), AC1032, code page ANSI_1252\n"
            "\n"
            "  No block has attributes.\n");
  const auto documents = Documents(Zdx({"blocks", "-o", "json", "plan.dxf"}).out);
  ASSERT_THAT(documents, SizeIs(1));
  EXPECT_EQ(documents[0].at("blocks"), nlohmann::json::array());
}

TEST_F(Blocks, OfSeveralFilesAreToldInTheOrderGivenAndAFailureStopsNone) {
  Write("a.dxf", DxfText());
  Write("b.dxf", dxf::Make(TitleDrawing()));
  const Outcome text = Zdx({"blocks", "b.dxf", "missing.dxf", "a.dxf"});
  EXPECT_EQ(text.exitCode, kFileFailed);
  EXPECT_THAT(text.err, MatchesRegex("zdx: missing\\.dxf: Unable to find .*\n"));
  EXPECT_THAT(text.out, StartsWith("b.dxf\n"));
  EXPECT_THAT(text.out, HasSubstr("office\n\na.dxf\n"));
  EXPECT_THAT(text.out, EndsWith("attributes.\n"));
  const auto documents = Documents(Zdx({"blocks", "-o", "json", "missing.dxf", "b.dxf"}).out);
  ASSERT_THAT(documents, SizeIs(2));
  EXPECT_EQ(documents[0].at("status"), "error");
  EXPECT_EQ(documents[0].at("error").at("class"), "NotFound");
  EXPECT_EQ(documents[1].at("status"), "ok");
}

TEST_F(Blocks, FailAsInfoDoes) {
  Write("plan.dxf", "no drawing");
  const Outcome info = Zdx({"info", "-o", "json", "plan.dxf"});
  const Outcome blocks = Zdx({"blocks", "-o", "json", "plan.dxf"});
  EXPECT_EQ(blocks.exitCode, kFileFailed);
  EXPECT_THAT(blocks.out, StartsWith("{\"schema\":\"zdx/1\""));
  EXPECT_EQ(blocks.out, info.out);
  EXPECT_EQ(blocks.err, info.err);
}

}  // namespace

}  // namespace zdx_test
