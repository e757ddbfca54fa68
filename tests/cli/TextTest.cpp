#include <gmock/gmock.h>

#include "cli/CliTest.h"
#include "cli/SmallDrawing.h"

namespace zdx_test {

namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

class Text : public CliTest {};

TEST_F(Text, ADrawingIsToldInGroupsWithItsValuesInColumns) {
  Write("plan.dxf", DxfText());
  const Outcome outcome = Zdx({"info", "plan.dxf"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.err, IsEmpty());
  EXPECT_EQ(outcome.out,
            "plan.dxf\n"
            "  Zent drawing, DXF (text), AC1032, code page ANSI_1252\n"
            "\n"
            "  Summary\n"
            "    Title           Ground floor\n"
            "    Subject         (empty)\n"
            "    Author          Ada\n"
            "    Keywords        (empty)\n"
            "    Comments        (empty)\n"
            "    LastSavedBy     Grace\n"
            "    RevisionNumber  7\n"
            "\n"
            "  Custom\n"
            "    Client  Harbour Trust\n"
            "\n"
            "  Settings\n"
            "    Menu           site\n"
            "    ProjectName    Quay\n"
            "    HyperlinkBase  (empty)\n"
            "    StyleSheet     (empty)\n"
            "    Dimpost        (empty)\n"
            "    Dimapost       (empty)\n"
            "    Dimblk         (empty)\n"
            "    Dimblk1        (empty)\n"
            "    Dimblk2        (empty)\n"
            "\n"
            "  Layers (2)\n"
            "    0\n"
            "    Walls\n"
            "\n"
            "  Line types (2)\n"
            "    Continuous  Solid line\n"
            "    Dashed\n"
            "\n"
            "  Named objects (1)\n"
            "    SITE_DATA\n");
}

TEST_F(Text, IsWhatOutputTextAsksFor) {
  Write("plan.dxf", DxfText());
  const std::string byDefault = Zdx({"info", "plan.dxf"}).out;
  EXPECT_THAT(byDefault, StartsWith("plan.dxf\n"));
  EXPECT_EQ(Zdx({"info", "-o", "text", "plan.dxf"}).out, byDefault);
  EXPECT_EQ(Zdx({"info", "--output=text", "plan.dxf"}).out, byDefault);
}

TEST_F(Text, SeveralDrawingsAreSetApartByAnEmptyLine) {
  Write("a.dxf", DxfText());
  Write("b.dxf", DxfText());
  const Outcome outcome = Zdx({"info", "--select", "flavour", "a.dxf", "b.dxf"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.out,
            "a.dxf\n  Zent drawing, DXF (text), AC1032, code page ANSI_1252\n"
            "\n"
            "b.dxf\n  Zent drawing, DXF (text), AC1032, code page ANSI_1252\n");
}

TEST_F(Text, EscapeSequencesInADrawingDoNotReachTheTerminal) {
  SmallDrawing drawing;
  drawing.title = "a\033[31mb";
  drawing.layers = {
      "c\xC2\x9B"
      "2Jd"};
  Write("plan.dxf", DxfText(drawing));
  const std::string text = Zdx({"info", "plan.dxf"}).out;
  EXPECT_THAT(text, HasSubstr("a\\x1b[31mb"));
  EXPECT_THAT(text, HasSubstr("c\\u009b2Jd"));
  EXPECT_THAT(text, Not(HasSubstr("\033")));
}

TEST_F(Text, CharactersThatTurnTheDirectionOfWritingAreShownByNumber) {
  SmallDrawing drawing;
  drawing.author = "x\xE2\x80\xAEy\xE2\x81\xA6z";
  Write("plan.dxf", DxfText(drawing));
  EXPECT_THAT(Zdx({"info", "plan.dxf"}).out, HasSubstr("x\\u202ey\\u2066z"));
}

TEST_F(Text, WideCharactersDoNotBreakTheColumns) {
  SmallDrawing drawing;
  drawing.custom = {{"\xE6\x96\xBD\xE4\xB8\xBB", "one"}, {"Site", "two"}};
  Write("plan.dxf", DxfText(drawing));
  EXPECT_THAT(Zdx({"info", "--select", "custom", "plan.dxf"}).out,
              HasSubstr("    \xE6\x96\xBD\xE4\xB8\xBB  one\n    Site  two\n"));
}

}  // namespace

}  // namespace zdx_test
