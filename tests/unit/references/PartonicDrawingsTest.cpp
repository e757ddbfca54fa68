// Drawings that are embedded in drawings.
#include "unit/references/ReferencesTest.h"

using references::Catch;
using references::Manager;
using testing::ElementsAre;

namespace {

using Embedded = references::ReferencesTest;

class Redirections : public references::ReferencesTest {
 protected:
  Redirections() { world.InstallServices(); }
};

TEST_F(Embedded, IsUnpackedAndItsFileTold) {
  world.modelDocuments.unpacked = L"C:\\Temp\\part.idw";
  std::wstring unpacked = L"before";
  EXPECT_TRUE(Manager().UnpackPartonicDrawingFile(L"C:\\a.dwg", unpacked));
  EXPECT_EQ(unpacked, L"C:\\Temp\\part.idw");
  EXPECT_THAT(
      world.Calls({"ZnDbDatabase", "readDwgFile", "unpackPartonicDrawingFile", "~ZnDbDatabase"}),
      ElementsAre("ZnDbDatabase(false, true)", "readDwgFile(C:\\a.dwg, 4, false, null)",
                  "unpackPartonicDrawingFile(database 1, empty)", "~ZnDbDatabase(database 1)"));
}

TEST_F(Embedded, ThatIsNotThereLeavesTheTextAsItWas) {
  world.modelDocuments.unpacked = L"C:\\Temp\\part.idw";
  for (const int status : {1, -1, 76}) {
    world.ForgetScripts();
    world.Fail("unpackPartonicDrawingFile", status);
    std::wstring unpacked = L"before";
    EXPECT_FALSE(Manager().UnpackPartonicDrawingFile(L"C:\\a.dwg", unpacked));
    EXPECT_EQ(unpacked, L"before");
  }
}

TEST_F(Embedded, InADrawingThatDoesNotOpenThrows) {
  world.Fail("readDwgFile", 76);
  std::wstring unpacked = L"before";
  EXPECT_EQ(Catch([&] { Manager().UnpackPartonicDrawingFile(L"C:\\a.dwg", unpacked); }).type,
            typeid(ZDXEngine::NotFound));
  EXPECT_EQ(unpacked, L"before");
  EXPECT_EQ(world.Count("unpackPartonicDrawingFile"), 0);
}

TEST_F(Redirections, AreStoredAndTheDrawingSavedUnderItsPath) {
  world.drawing.lastSavedAsVersion = 33;
  EXPECT_TRUE(Manager().SetPartonicRedirectionsInfo(L"C:\\a.dwg", L"from=to"));
  EXPECT_THAT(world.Calls({"ZnDbDatabase", "readDwgFile", "setRedirectionsInfo", "saveAs",
                           "~ZnDbDatabase"}),
              ElementsAre("ZnDbDatabase(false, true)", "readDwgFile(C:\\a.dwg, 3, false, null)",
                          "setRedirectionsInfo(database 1, from=to)",
                          "saveAs(C:\\a.dwg, true, 33, null)", "~ZnDbDatabase(database 1)"));
}

TEST_F(Redirections, ThatAreEmptyAreStoredAsSuch) {
  world.drawing.lastSavedAsVersion = 33;
  EXPECT_TRUE(Manager().SetPartonicRedirectionsInfo(L"C:\\a.dwg", L""));
  EXPECT_THAT(world.Calls({"setRedirectionsInfo"}),
              ElementsAre("setRedirectionsInfo(database 1, )"));
}

TEST_F(Redirections, ThatAreNotTakenAreNotSaved) {
  world.drawing.lastSavedAsVersion = 33;
  world.Fail("setRedirectionsInfo", 3);
  EXPECT_FALSE(Manager().SetPartonicRedirectionsInfo(L"C:\\a.dwg", L"from=to"));
  EXPECT_EQ(world.Count("saveAs"), 0);
}

TEST_F(Redirections, ThatCannotBeSavedAreToldAsFailed) {
  world.drawing.lastSavedAsVersion = 33;
  world.Fail("saveAs", 3);
  EXPECT_FALSE(Manager().SetPartonicRedirectionsInfo(L"C:\\a.dwg", L"from=to"));
}

TEST_F(Redirections, InADrawingThatDoesNotOpenThrow) {
  world.Fail("readDwgFile", 314);
  EXPECT_EQ(Catch([] { Manager().SetPartonicRedirectionsInfo(L"C:\\a.dwg", L"from=to"); }).type,
            typeid(ZDXEngine::InvalidFormat));
  EXPECT_EQ(world.Count("setRedirectionsInfo"), 0);
  EXPECT_EQ(world.Count("saveAs"), 0);
}

TEST(RefIdPattern, IsAsClientsKnowIt) {
  const std::wstring pattern = Manager().GetTandemixPartonicRefIdPattern();
  EXPECT_EQ(pattern, L"TDX_PRT:IDW:(?<PartonicRefId>[\\w\\W]+)");
  EXPECT_EQ(pattern.size(), 37u);
}

}  // namespace
