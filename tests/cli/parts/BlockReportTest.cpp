#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "BlockReport.h"

namespace zdx {

namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;

BlockReport ReportOfTitle() {
  BlockReport report;
  report.diagnostics.format = L"DWG";
  report.diagnostics.version = L"AC1032";
  report.blocks = {{L"TITLE",
                    {{L"SCALE", L"Scale?", L"1:50", false},
                     {L"NO", L"", L"", false},
                     {L"CHECKED", L"Checked?", L"", false},
                     {L"OFFICE", L"", L"Drawing office", true},
                     {L"NOTES", L"Notes?", L"one\ntwo", false}},
                    1,
                    0}};
  return report;
}

TEST(TextOfBlocks, TellsTagsPromptsAndTexts) {
  EXPECT_EQ(TextOf(L"a.dwg", ReportOfTitle()),
            "a.dwg\n"
            "  Drawing, DWG, AC1032\n"
            "\n"
            "  TITLE (1 reference)\n"
            "    SCALE    Scale?\n"
            "             default: 1:50\n"
            "    NO\n"
            "    CHECKED  Checked?\n"
            "    OFFICE   constant: Drawing office\n"
            "    NOTES    Notes?\n"
            "             default: one\n"
            "             two\n");
}

TEST(TextOfBlocks, TellsHowManyReferencesThereAre) {
  BlockReport report = ReportOfTitle();
  report.blocks[0].references = 0;
  EXPECT_THAT(TextOf(L"a", report), HasSubstr("  TITLE (no references)\n"));
  report.blocks[0].references = 44;
  EXPECT_THAT(TextOf(L"a", report), HasSubstr("  TITLE (44 references)\n"));
  report.blocks[0].variations = 3;
  EXPECT_THAT(TextOf(L"a", report), HasSubstr("  TITLE (44 references, 3 to its variations)\n"));
}

TEST(TextOfBlocks, TellsAConstantWithoutText) {
  BlockReport report;
  report.blocks = {{L"TITLE", {{L"OFFICE", L"", L"", true}}, 0, 0}};
  EXPECT_THAT(TextOf(L"a", report), EndsWith("    OFFICE  constant: (empty)\n"));
}

TEST(TextOfBlocks, SaysThatThereAreNone) {
  EXPECT_EQ(TextOf(L"a", BlockReport()), "a\n  Drawing\n\n  No block has attributes.\n");
}

TEST(TextOfBlocks, HasNoEscapeSequences) {
  BlockReport report;
  report.blocks = {{L"T\033", {{L"A\033", L"p\nq\033", L"t\033", false}}, 0, 0}};
  const std::string text = TextOf(L"a", report);
  EXPECT_THAT(text, Not(HasSubstr("\033")));
  EXPECT_THAT(text, HasSubstr("  T\\x1b (no references)\n    A\\x1b  p\\x0aq\\x1b\n"));
}

TEST(JsonOfBlocks, IsOneDocumentWithItsKeysInOrder) {
  BlockReport report = ReportOfTitle();
  report.blocks[0].definitions.resize(1);
  report.blocks[0].variations = 2;
  report.diagnostics.warnings = {{L"odd", {std::nullopt, std::nullopt, 0x2A}}};
  report.diagnostics.warningCount = 3;
  EXPECT_EQ(JsonOf(L"a.dwg", report),
            "{\"schema\":\"zdx/1\",\"file\":\"a.dwg\",\"status\":\"ok\",\"format\":\"DWG\","
            "\"signature\":\"AC1032\",\"codePage\":null,\"blocks\":[{\"name\":\"TITLE\","
            "\"references\":1,\"variations\":2,\"attributes\":[{\"tag\":\"SCALE\","
            "\"prompt\":\"Scale?\",\"text\":\"1:50\",\"constant\":false}]}],"
            "\"warnings\":[{\"message\":\"odd\",\"handle\":\"2A\"}],\"warningsLeftOut\":2}\n");
}

TEST(JsonOfBlocks, IsAnEmptyListWhereThereAreNone) {
  EXPECT_EQ(nlohmann::json::parse(JsonOf(L"a", BlockReport())).at("blocks"),
            nlohmann::json::array());
}

TEST(JsonOfBlocks, KeepsTextsAsTheyAre) {
  BlockReport report;
  report.blocks = {{L"T\"\033", {{L"\u0416", L"p\nq", L"\\", true}}, 0, 0}};
  const nlohmann::json block = nlohmann::json::parse(JsonOf(L"a", report)).at("blocks").at(0);
  EXPECT_EQ(block.at("name"), "T\"\033");
  EXPECT_EQ(block.at("attributes").at(0).at("tag"), "\xD0\x96");
  EXPECT_EQ(block.at("attributes").at(0).at("prompt"), "p\nq");
  EXPECT_EQ(block.at("attributes").at(0).at("text"), "\\");
  EXPECT_EQ(block.at("attributes").at(0).at("constant"), true);
}

}  // namespace

}  // namespace zdx
