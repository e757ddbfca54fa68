#include <gmock/gmock.h>

#include "cli/CliTest.h"
#include "cli/SmallDrawing.h"
#include "support/Paths.h"

namespace zdx_test {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::SizeIs;
using ::testing::StartsWith;

class Wildcards : public CliTest {
 protected:
  Wildcards() {
    std::filesystem::create_directory(Folder() / "plans");
    std::filesystem::create_directory(Folder() / "plans" / "folder.dxf");
    for (const char* const name : {"plans/c.dxf", "plans/B.DXF", "plans/a.dxf", "plans/-o.dxf",
                                   "plans/a.dxfx", "plans/\xD1\x87.dxf"}) {
      Write(name, DxfText());
    }
  }

  // The names of the files that are told of, in their order.
  std::vector<std::string> Told(const std::string& pattern) const {
    std::vector<std::string> names;
    for (const nlohmann::json& document : Documents(Zdx({"info", "-o", "json", pattern}).out)) {
      names.push_back(document.at("file").get<std::string>());
    }
    return names;
  }
};

TEST_F(Wildcards, StandForTheFilesThatMatchInTheOrderOfTheirNames) {
  EXPECT_THAT(Told("plans\\*.dxf"), ElementsAre("plans\\-o.dxf", "plans\\a.dxf", "plans\\B.DXF",
                                                "plans\\c.dxf", "plans\\\xD1\x87.dxf"));
}

TEST_F(Wildcards, LeaveTheFolderAsItIsWritten) {
  EXPECT_THAT(Told("./plans/?.dxf"), ElementsAre("./plans/a.dxf", "./plans/B.DXF", "./plans/c.dxf",
                                                 "./plans/\xD1\x87.dxf"));
}

TEST_F(Wildcards, InThisFolderGiveNamesAlone) {
  Write("x1.dxf", DxfText());
  Write("x2.dxf", DxfText());
  EXPECT_THAT(Told("x?.dxf"), ElementsAre("x1.dxf", "x2.dxf"));
}

TEST_F(Wildcards, BehindADriveAloneLookIntoItsCurrentFolder) {
  Write("x1.dxf", DxfText());
  const std::string drive = BytesOf(Folder().root_name());
  EXPECT_THAT(Told(drive + "x?.dxf"), ElementsAre(drive + "x1.dxf"));
}

TEST_F(Wildcards, BehindAnExtendedPathWork) {
  const std::string folder = "\\\\?\\" + BytesOf(Folder()) + "\\plans\\";
  EXPECT_THAT(Told(folder + "a*.dxf"), ElementsAre(folder + "a.dxf"));
}

TEST_F(Wildcards, ThatNothingMatchesStandForThemselves) {
  EXPECT_THAT(Told("plans\\z*.dxf"), ElementsAre("plans\\z*.dxf"));
  EXPECT_THAT(Told("missing\\*.dxf"), ElementsAre("missing\\*.dxf"));
}

TEST_F(Wildcards, StandForDrawingsWhoseBlocksOrValuesAreAskedFor) {
  const Outcome blocks = Zdx({"blocks", "-o", "json", "plans\\?.dxf"});
  EXPECT_THAT(Documents(blocks.out), SizeIs(4));
  EXPECT_EQ(Zdx({"get", "custom:Client", "plans\\a*.dxf"}).out, "Harbour Trust\n");
}

TEST_F(Wildcards, AreNoPatternsInBlocksAndKeys) {
  EXPECT_THAT(Zdx({"info", "--block", "*.dxf", "plans\\a.dxf"}).out,
              HasSubstr("Block *.dxf (none)"));
  EXPECT_EQ(Zdx({"get", "custom:*", "plans\\a.dxf"}).exitCode, 1);
}

TEST_F(Wildcards, OfOneFileAreTheDrawingWhosePictureIsAskedFor) {
  EXPECT_THAT(Zdx({"thumb", "-O", "a.png", "plans\\a*.dxf"}).err,
              StartsWith("zdx: plans\\a.dxf: There is no preview picture."));
}

TEST_F(Wildcards, OfSeveralFilesAreNoDrawingWhosePictureIsAskedFor) {
  const Outcome outcome = Zdx({"thumb", "-O", "a.png", "plans\\*.dxf"});
  EXPECT_EQ(outcome.exitCode, 64);
  EXPECT_THAT(outcome.err, HasSubstr("'plans\\*.dxf' stands for several files"));
}

}  // namespace

}  // namespace zdx_test
