#include <gmock/gmock.h>

#include "cli/CliTest.h"
#include "cli/SmallDrawing.h"
#include "cli/TitleDrawing.h"
#include "support/dxf/DxfMaker.h"

namespace zdx_test {

namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

constexpr int kNotThere = 1;

class Get : public CliTest {
 protected:
  Get() { Write("plan.dxf", DxfText()); }

  void ExpectGiven(const std::string& key, const std::string& text,
                   const std::string& file = "plan.dxf") const {
    const Outcome outcome = Zdx({"get", key, file});
    EXPECT_EQ(outcome.exitCode, 0) << key;
    EXPECT_EQ(outcome.out, text) << key;
    EXPECT_THAT(outcome.err, IsEmpty()) << key;
  }

  void ExpectNone(const std::string& key, const std::string& file = "plan.dxf") const {
    const Outcome outcome = Zdx({"get", key, file});
    EXPECT_EQ(outcome.exitCode, kNotThere) << key;
    EXPECT_THAT(outcome.out, IsEmpty()) << key;
    EXPECT_EQ(outcome.err, "zdx: " + file + ": There is no " + key + ".\n");
  }
};

TEST_F(Get, PrintsAFieldOfTheSummary) {
  ExpectGiven("Title", "Ground floor\n");
  ExpectGiven("Author", "Ada\n");
  ExpectGiven("LastSavedBy", "Grace\n");
  ExpectGiven("RevisionNumber", "7\n");
  ExpectGiven("title", "Ground floor\n");
}

TEST_F(Get, PrintsACustomEntryASettingAndTheType) {
  ExpectGiven("custom:Client", "Harbour Trust\n");
  ExpectGiven("custom:CLIENT", "Harbour Trust\n");
  ExpectGiven("settings:ProjectName", "Quay\n");
  ExpectGiven("settings:menu", "site\n");
  ExpectGiven("type", "Zent\n");
}

TEST_F(Get, PrintsAListOneNameALine) {
  ExpectGiven("layers", "0\nWalls\n");
  ExpectGiven("linetypes", "Continuous\nDashed\n");
  ExpectGiven("namedobjects", "SITE_DATA\n");
}

TEST_F(Get, PrintsAnEmptyLineForAnEmptyValue) {
  ExpectGiven("Subject", "\n");
  ExpectGiven("settings:Dimblk", "\n");
}

TEST_F(Get, PrintsAnAttributeOfABlock) {
  Write("title.dxf", dxf::Make(TitleDrawing()));
  ExpectGiven("block:TITLE:SCALE", "1:50\n", "title.dxf");
  ExpectGiven("block:title:scale", "1:50\n", "title.dxf");
  ExpectGiven("block:TITLE:OFFICE", "Drawing office\n", "title.dxf");
  ExpectNone("block:TITLE:Scale?", "title.dxf");
  ExpectNone("block:STAMP:SCALE", "title.dxf");
}

TEST_F(Get, PrintsNothingWhereThereIsNoSuchValue) {
  ExpectNone("custom:Architect");
  ExpectNone("views");
  ExpectNone("geo:designPoint");
  ExpectNone("creator:Name");
  ExpectNone("block:TITLE:SCALE");
}

TEST_F(Get, PrintsTheBytesOfAValueAsTheyAre) {
  SmallDrawing drawing;
  drawing.title = "a\033[31mb \xE2\x80\xAE \"q\" \\n \xF0\x9F\x8F\x97";
  drawing.custom = {{"odd \033 key", "v"}, {"[a,b]", "w"}, {"x:y=z", "x"}};
  Write("plan.dxf", DxfText(drawing));
  ExpectGiven("Title", drawing.title + "\n");
  ExpectGiven("custom:[a,b]", "w\n");
  ExpectGiven("custom:x:y=z", "x\n");
}

TEST_F(Get, PrintsTheLinesOfAValueAsTheyAre) {
  drawing::DrawingSpec spec;
  spec.summary.comments = "one\n\ntwo\n";
  Write("lines.dxf", dxf::Make(spec));
  ExpectGiven("Comments", "one\n\ntwo\n\n", "lines.dxf");
}

TEST_F(Get, PrintsTheValueOfEachFileInTheOrderGiven) {
  SmallDrawing other;
  other.title = "Roof";
  Write("roof.dxf", DxfText(other));
  const Outcome outcome = Zdx({"get", "Title", "roof.dxf", "plan.dxf", "roof.dxf"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.out, "Roof\nGround floor\nRoof\n");
}

TEST_F(Get, TellsByItsExitCodeThatSomeFileDoesNotHaveTheValue) {
  SmallDrawing other;
  other.custom = {};
  Write("other.dxf", DxfText(other));
  const Outcome outcome = Zdx({"get", "custom:Client", "other.dxf", "plan.dxf"});
  EXPECT_EQ(outcome.exitCode, kNotThere);
  EXPECT_EQ(outcome.out, "Harbour Trust\n");
  EXPECT_EQ(outcome.err, "zdx: other.dxf: There is no custom:Client.\n");
}

TEST_F(Get, TellsThatAFileFailedAndGoesOn) {
  const Outcome outcome = Zdx({"get", "Title", "missing.dxf", "plan.dxf"});
  EXPECT_EQ(outcome.exitCode, kFileFailed);
  EXPECT_EQ(outcome.out, "Ground floor\n");
  EXPECT_THAT(outcome.err, StartsWith("zdx: missing.dxf: Unable to find file 'missing.dxf'"));
  EXPECT_EQ(Zdx({"get", "views", "plan.dxf", "missing.dxf", "plan.dxf"}).exitCode, kFileFailed);
}

TEST_F(Get, RefusesAKeyThatIsNoneAndTellsThoseThatAre) {
  for (const char* const key : {"titel", "", "[a]", "custom:", "block:TITLE"}) {
    const Outcome outcome = Zdx({"get", key, "plan.dxf"});
    EXPECT_EQ(outcome.exitCode, 64) << key;
    EXPECT_THAT(outcome.out, IsEmpty());
    EXPECT_THAT(outcome.err, AllOf(HasSubstr("'" + std::string(key) + "'"), HasSubstr("Title"),
                                   HasSubstr("custom:NAME"), HasSubstr("layers")));
  }
  EXPECT_THAT(Zdx({"get", "settings:Title", "plan.dxf"}).err, HasSubstr("Dimblk2"));
}

TEST_F(Get, TakesNamesThatBeginWithADashBehindTwoDashes) {
  Write("-o.dxf", DxfText());
  EXPECT_EQ(Zdx({"get", "Title", "--", "-o.dxf"}).out, "Ground floor\n");
  EXPECT_EQ(Zdx({"get", "--", "Title", "-o.dxf"}).out, "Ground floor\n");
}

TEST_F(Get, TellsWarningsOnStandardErrorAlone) {
  SmallDrawing drawing;
  drawing.title = "bad \xFF byte";
  Write("plan.dxf", DxfText(drawing));
  const Outcome outcome = Zdx({"get", "Title", "plan.dxf"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.out, "bad \xC3\xBF byte\n");
  EXPECT_THAT(outcome.err, HasSubstr("warning: "));
}

}  // namespace

}  // namespace zdx_test
