#include <gmock/gmock.h>

#include "cli/CliTest.h"
#include "cli/SmallDrawing.h"

namespace zdx_test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Select : public CliTest {
 protected:
  // The names of the properties that a selection gives.
  std::vector<std::string> Selected(const std::string& list) const {
    Write("plan.dxf", DxfText());
    const Outcome outcome = Zdx({"info", "-o", "json", "--select", list, "plan.dxf"});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
    const std::vector<nlohmann::json> documents = Documents(outcome.out);
    if (documents.size() != 1) return {"not one document"};
    EXPECT_EQ(documents[0].at("drawingType"), "Zent");
    return Names(documents[0]);
  }
};

TEST_F(Select, SummaryGivesTheSevenFieldsAndNoDrawingType) {
  EXPECT_THAT(Selected("summary"), ElementsAre("2", "3", "4", "5", "6", "8", "9"));
}

TEST_F(Select, CustomGivesTheCustomEntries) {
  EXPECT_THAT(Selected("custom"), ElementsAre("Client"));
}

TEST_F(Select, FlavourGivesTheDrawingType) {
  EXPECT_THAT(Selected("flavour"), ElementsAre("DWG Type"));
}

TEST_F(Select, SettingsGivesTheNineSettings) {
  EXPECT_THAT(Selected("settings"),
              ElementsAre("Menu", "ProjectName", "HyperlinkBase", "StyleSheet", "Dimpost",
                          "Dimapost", "Dimblk", "Dimblk1", "Dimblk2"));
}

TEST_F(Select, DictionariesGivesNamedObjects) {
  EXPECT_THAT(Selected("dictionaries"), ElementsAre("Named Object Name"));
}

TEST_F(Select, TablesGivesLayersAndLineTypes) {
  EXPECT_THAT(Selected("tables"),
              ElementsAre("Layer Name", "Layer Name", "LineType Name", "LineType Comments",
                          "LineType Name", "LineType Comments"));
}

TEST_F(Select, BlocksWithoutABlockToAskForGivesNothing) {
  EXPECT_THAT(Selected("blocks"), IsEmpty());
}

TEST_F(Select, TheOrderOfTheNamesDoesNotMatter) {
  const auto both = ElementsAre("Client", "DWG Type", "Named Object Name");
  EXPECT_THAT(Selected("custom,flavour,dictionaries"), both);
  EXPECT_THAT(Selected("dictionaries,custom,flavour,custom"), both);
}

TEST_F(Select, AllIsTheSameAsNoSelection) {
  Write("plan.dxf", DxfText());
  const std::string unselected = Zdx({"info", "-o", "json", "plan.dxf"}).out;
  EXPECT_THAT(unselected, ::testing::Not(IsEmpty()));
  EXPECT_EQ(Zdx({"info", "-o", "json", "--select", "all", "plan.dxf"}).out, unselected);
  EXPECT_EQ(Zdx({"info", "-o", "json", "--select", "custom,all", "plan.dxf"}).out, unselected);
  EXPECT_EQ(Zdx({"info", "-o", "json", "plan.dxf", "--select=all"}).out, unselected);
}

TEST_F(Select, HoldsForTextAsWellAndTheHeadStillTellsTheDrawingType) {
  Write("plan.dxf", DxfText());
  EXPECT_EQ(Zdx({"info", "--select", "custom", "plan.dxf"}).out,
            "plan.dxf\n"
            "  Zent drawing, DXF (text), AC1032, code page ANSI_1252\n"
            "\n"
            "  Custom\n"
            "    Client  Harbour Trust\n");
}

}  // namespace

}  // namespace zdx_test
