// The front door: which steps run, in which order, and how a call ends.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <type_traits>

#include "ZDXEngine/FilePropertyMgr.h"
#include "ZDXEngine/ZdxEngineException.h"
#include "support/appinfo/AppInfoFile.h"
#include "support/scripted/ScriptedTest.h"
#include "unit/properties/Outages.h"
#include "unit/properties/Shown.h"
#include "unit/properties/read/Location.h"

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;
using ZDXEngine::_PropData;
using ZDXEngine::BlockFilterParam;
using ZDXEngine::DwgFileType;
using ZDXEngine::FilePropertyMgr;

namespace {

using Set = FilePropertyMgr::FilePropertiesSet;

// A drawing with something for each step but the thumbnail's, which owns handles.
void FillDrawing(scripted::World& world) {
  world.files.contents[L"C:\\a.dwg"] =
      appinfo::FileWithSummary(u"<prop id=\"258\"><string>Program</string></prop>");
  world.drawing.summary.title = L"House";
  world.drawing.summary.custom = {{L"Client", L"Smith"}};
  world.drawing.settings.menu = L"m";
  world.drawing.layouts.Add(L"Model");
  world.drawing.layers.Add(L"0");
  world.drawing.linetypes.Add(L"DASHED", L"- - -");
  world.drawing.views.Add(L"Front");
  location::GiveTexts(world);
  world.drawing.location = location::Somewhere();
  scripted::Record& modelSpace = world.drawing.blocks.Add(L"*Model_Space");
  modelSpace.layout = true;
  scripted::Record& door = world.drawing.blocks.Add(L"Door");
  door.AddConstant(L"MAKER", L"Made by", L"Smith");
  door.AddReference(&modelSpace).AddAttribute(L"WIDTH", L"90");
}

// A filter for the block of that drawing.
std::vector<BlockFilterParam> Door() {
  std::vector<BlockFilterParam> filters(1);
  filters[0].blockName = L"door";
  return filters;
}

std::vector<_PropData> Get(int selection, std::vector<BlockFilterParam> filters = {}) {
  return FilePropertyMgr::Instance().GetProperties(L"C:\\a.dwg", filters,
                                                   static_cast<Set>(selection));
}

class GetProperties : public scripted::ScriptedTest {
 protected:
  GetProperties() {
    FillDrawing(world);
    world.drawing.filename = L"C:\\a.dwg";
    world.GivePreview();
  }
  // Makes the file's summary set hold this text.
  void GiveSummary(const std::u16string& text) {
    world.files.contents[L"C:\\a.dwg"] = appinfo::File({.entries = {{appinfo::kSummaryId, text}}});
  }
};

TEST(Instance, IsOneObject) {
  EXPECT_EQ(&FilePropertyMgr::Instance(), &FilePropertyMgr::Instance());
}

// The type traits also ask for a destructor; these ask for the constructor alone.
template <class T>
concept CanBeMade = requires {
  new T();
};
template <class T>
concept CanBeCopied = requires(const T& original) {
  new T(original);
};

TEST(Instance, IsMadeAndEndedByItsClassAlone) {
  static_assert(!CanBeMade<FilePropertyMgr>);
  static_assert(!CanBeCopied<FilePropertyMgr>);
  static_assert(!std::is_destructible_v<FilePropertyMgr>);
}

TEST(Instance, AnAssignmentGivesTheObjectItself) {
  FilePropertyMgr& manager = FilePropertyMgr::Instance();
  EXPECT_EQ(&(manager = FilePropertyMgr::Instance()), &manager);
}

TEST(BlockFilter, ItsFieldsStandInTheirOrder) {
  const BlockFilterParam filter;
  EXPECT_EQ(static_cast<const void*>(&filter), &filter.blockName);
  EXPECT_LT(static_cast<const void*>(&filter.blockName), &filter.formatId);
  EXPECT_LT(static_cast<const void*>(&filter.formatId), &filter.matched);
  EXPECT_LT(&filter.matched, &filter.usePrompt);
  static_assert(sizeof filter.formatId == 16);
  static_assert(sizeof filter.matched == 1 && sizeof filter.usePrompt == 1);
}

TEST(BlockFilter, AFreshOneHasItsDefaults) {
  const BlockFilterParam filter;
  EXPECT_EQ(filter.blockName, L"");
  EXPECT_EQ(filter.formatId, GUID{});
  EXPECT_FALSE(filter.matched);
  EXPECT_TRUE(filter.usePrompt);
}

TEST(Selection, ItAndTheFlavourAreOfThirtyTwoBits) {
  static_assert(sizeof(Set) == 4);
  static_assert(sizeof(DwgFileType) == 4);
}

TEST(Selection, EveryBitHasItsValue) {
  EXPECT_EQ(static_cast<int>(FilePropertyMgr::AllProperties), 0);
  EXPECT_EQ(static_cast<int>(FilePropertyMgr::BlockAttributes), 0x001);
  EXPECT_EQ(static_cast<int>(FilePropertyMgr::NamedObjects), 0x002);
  EXPECT_EQ(static_cast<int>(FilePropertyMgr::CreatorInfo), 0x004);
  EXPECT_EQ(static_cast<int>(FilePropertyMgr::DrawingFlavour), 0x008);
  EXPECT_EQ(static_cast<int>(FilePropertyMgr::DatabaseSettings), 0x010);
  EXPECT_EQ(static_cast<int>(FilePropertyMgr::GeoLocation), 0x020);
  EXPECT_EQ(static_cast<int>(FilePropertyMgr::SummaryInfo), 0x040);
  EXPECT_EQ(static_cast<int>(FilePropertyMgr::Thumbnail), 0x080);
  EXPECT_EQ(static_cast<int>(FilePropertyMgr::SymbolTables), 0x100);
  EXPECT_EQ(static_cast<int>(FilePropertyMgr::CustomSummary), 0x200);
}

TEST(Selection, TwoBitsAreNamedByTheirUnion) {
  EXPECT_EQ(FilePropertyMgr::SummaryInfo | FilePropertyMgr::CustomSummary, Set{0x240});
}

TEST(Selection, EveryFlavourHasItsValue) {
  EXPECT_EQ(static_cast<int>(DwgFileType::Unrecognized), 0);
  EXPECT_EQ(static_cast<int>(DwgFileType::Zent), 1);
  EXPECT_EQ(static_cast<int>(DwgFileType::ZentVariant), 2);
  EXPECT_EQ(static_cast<int>(DwgFileType::Zne), 3);
  EXPECT_EQ(static_cast<int>(DwgFileType::Partonic), 4);
  EXPECT_EQ(static_cast<int>(DwgFileType::Znm), 5);
  EXPECT_EQ(static_cast<int>(DwgFileType::Zmt), 6);
  EXPECT_EQ(static_cast<int>(DwgFileType::Terrane3D), 7);
}

// The steps of the row, each told by the first call that only it makes.
std::vector<std::string> StepsOf(const scripted::World& world) {
  return world.Calls({"getTitle", "numCustomInfo", "getFilename", "SetFilePointer",
                      "namedObjectsDictionaryId", "getMenu", "zndbGetGeoDataObjId",
                      "getGroupDictionary", "newBlockReferenceIdIterator"});
}

TEST_F(GetProperties, SummaryAloneGivesTheSevenFields) {
  EXPECT_THAT(expected::Shown(Get(0x040)),
              ElementsAre("2=House", "3=", "4=", "5=", "6=", "8=", "9="));
}

TEST_F(GetProperties, CustomAloneGivesTheEntries) {
  EXPECT_THAT(expected::Shown(Get(0x200)), ElementsAre("Client=Smith"));
}

TEST_F(GetProperties, ThumbnailAloneGivesThePicture) {
  const std::vector<_PropData> properties = Get(0x080);
  EXPECT_THAT(expected::Shown(properties), ElementsAre("17=(no text)"));
  EXPECT_EQ(properties.at(0).typeCode, 4);
}

TEST_F(GetProperties, CreatorAloneGivesWhatTheFileTells) {
  EXPECT_THAT(expected::Shown(Get(0x004)), ElementsAre("DWG Creator Name=Program"));
}

TEST_F(GetProperties, FlavourAloneGivesTheDwgType) {
  EXPECT_THAT(expected::Shown(Get(0x008)), ElementsAre("DWG Type=Zent"));
}

TEST_F(GetProperties, SettingsAloneGiveTheNineTexts) {
  EXPECT_THAT(expected::Shown(Get(0x010)),
              ElementsAre("Menu=m", "ProjectName=", "HyperlinkBase=", "StyleSheet=", "Dimpost=",
                          "Dimapost=", "Dimblk=", "Dimblk1=", "Dimblk2="));
}

TEST_F(GetProperties, NamedObjectsAloneGiveTheDictionaries) {
  EXPECT_THAT(expected::Shown(Get(0x002)), ElementsAre("Layout Name=Model"));
}

TEST_F(GetProperties, SymbolTablesAloneGiveTheThreeTables) {
  EXPECT_THAT(expected::Shown(Get(0x100)),
              ElementsAre("Layer Name=0", "LineType Name=DASHED", "LineType Comments=- - -",
                          "View Name=Front"));
}

TEST_F(GetProperties, LocationAloneGivesTheNineteenValues) {
  const std::vector<_PropData> properties = Get(0x020);
  ASSERT_THAT(properties, SizeIs(19));
  EXPECT_EQ(properties.front().name, L"CoordinateProjectionRadius");
  EXPECT_EQ(properties.back().name, L"verticalUnitScale");
}

TEST_F(GetProperties, BlocksAloneGiveWhatTheFiltersName) {
  EXPECT_THAT(expected::Shown(Get(0x001, Door())),
              ElementsAre("Made by=Smith", "Made by=Smith", "WIDTH=90", "WIDTH=90"));
}

TEST_F(GetProperties, EverythingWithoutFiltersRunsTheStepsInTheirOrderButForTheBlocks) {
  Get(0);
  EXPECT_THAT(StepsOf(world),
              ElementsAre("getTitle()", "numCustomInfo()", "getFilename()",
                          "SetFilePointer(file 2, 128, null, 0)", "namedObjectsDictionaryId()",
                          "getMenu()", "zndbGetGeoDataObjId(database 1)", "getGroupDictionary(0)"));
  EXPECT_THAT(
      world.Calls({"getGroupDictionary", "getSymbolTable"}),
      ElementsAre("getSymbolTable(ZnDbBlockTable, 0)", "getGroupDictionary(0)",
                  "getSymbolTable(ZnDbLayerTable, 0)", "getSymbolTable(ZnDbLinetypeTable, 0)",
                  "getSymbolTable(ZnDbViewTable, 0)"));
}

TEST_F(GetProperties, EverythingWithFiltersRunsTheBlocksLast) {
  Get(0, Door());
  EXPECT_THAT(StepsOf(world),
              ElementsAre("getTitle()", "numCustomInfo()", "getFilename()",
                          "SetFilePointer(file 2, 128, null, 0)", "namedObjectsDictionaryId()",
                          "getMenu()", "zndbGetGeoDataObjId(database 1)", "getGroupDictionary(0)",
                          "block Door.newBlockReferenceIdIterator()"));
  EXPECT_THAT(world.Calls({"getGroupDictionary", "getSymbolTable", "zndbGetGeoDataObjId"}),
              ElementsAre("getSymbolTable(ZnDbBlockTable, 0)", "zndbGetGeoDataObjId(database 1)",
                          "getGroupDictionary(0)", "getSymbolTable(ZnDbLayerTable, 0)",
                          "getSymbolTable(ZnDbLinetypeTable, 0)",
                          "getSymbolTable(ZnDbViewTable, 0)", "getSymbolTable(ZnDbBlockTable, 0)"));
}

TEST_F(GetProperties, EveryBitSetRunsTheSameStepsWithFilters) {
  const std::vector<std::string> all = expected::Shown(Get(0, Door()));
  EXPECT_EQ(all.back(), "WIDTH=90");
  EXPECT_EQ(expected::Shown(Get(0x3FF, Door())), all);
}

TEST_F(GetProperties, TheRecordsOfAllTenStepsStandInTheirOrder) {
  std::vector<std::string> firsts;
  for (const std::string& shown : expected::Shown(Get(0, Door()))) {
    for (const char* first : {"2=", "Client=", "17=", "DWG Creator", "DWG Type",
                              "Menu=", "CoordinateProj", "Layout Name", "Layer Name", "WIDTH="}) {
      if (shown.starts_with(first)) firsts.push_back(first);
    }
  }
  EXPECT_THAT(firsts, ElementsAre("2=", "Client=", "17=", "DWG Creator", "DWG Type",
                                  "Menu=", "CoordinateProj", "Layout Name", "Layer Name",
                                  "WIDTH=", "WIDTH="));
}

TEST_F(GetProperties, FiltersWithoutTheBlocksBitAreNotLookedAt) {
  EXPECT_THAT(expected::Shown(Get(0x200, Door())), ElementsAre("Client=Smith"));
  EXPECT_EQ(world.Count("getSymbolTable"), 0);
}

TEST_F(GetProperties, TheFiltersOfTheClientStayAsTheyAre) {
  std::vector<BlockFilterParam> filters = Door();
  FilePropertyMgr::Instance().GetProperties(L"C:\\a.dwg", filters, Set{0x001});
  ASSERT_THAT(filters, SizeIs(1));
  EXPECT_EQ(filters[0].blockName, L"door");
  EXPECT_FALSE(filters[0].matched);
}

TEST_F(GetProperties, ADrawingThatLiesNowhereCostsOnlyItsLocation) {
  world.drawing.location = std::nullopt;
  EXPECT_THAT(expected::Shown(Get(0x020 | 0x002)), ElementsAre("Layout Name=Model"));
}

TEST_F(GetProperties, EveryBitSetRunsTheSameStepsInTheSameOrder) {
  const std::vector<std::string> all = expected::Shown(Get(0));
  EXPECT_EQ(expected::Shown(Get(0x3FF)), all);
}

TEST_F(GetProperties, TheOrderIsTheRowsWhateverTheBits) {
  EXPECT_THAT(expected::Shown(Get(0x008 | 0x002 | 0x004 | 0x080 | 0x200)),
              ElementsAre("Client=Smith", "17=(no text)", "DWG Creator Name=Program",
                          "DWG Type=Zent", "Layout Name=Model"));
}

TEST_F(GetProperties, OnlyTheStepsNamedRun) {
  Get(0x010);
  EXPECT_THAT(StepsOf(world), ElementsAre("getMenu()"));
  EXPECT_EQ(world.Count("getSymbolTable"), 0);
}

TEST_F(GetProperties, AnUnknownBitOpensTheFileAndGivesNothing) {
  EXPECT_THAT(Get(0x400), IsEmpty());
  EXPECT_EQ(world.Count("readDwgFile"), 1);
}

TEST_F(GetProperties, BlockAttributesWithoutFiltersOpenTheFileAndGiveNothing) {
  EXPECT_THAT(Get(0x001), IsEmpty());
  EXPECT_EQ(world.Count("readDwgFile"), 1);
  EXPECT_EQ(world.Count("getSymbolTable"), 0);
}

TEST_F(GetProperties, SummaryComesBeforeTheBlocksWhateverTheirBits) {
  EXPECT_THAT(expected::Shown(Get(0x041, Door())),
              ElementsAre("2=House", "3=", "4=", "5=", "6=", "8=", "9=", "Made by=Smith",
                          "Made by=Smith", "WIDTH=90", "WIDTH=90"));
}

TEST_F(GetProperties, SummaryAndBlocksWithoutFiltersGiveTheSummaryAlone) {
  EXPECT_THAT(expected::Shown(Get(0x041)),
              ElementsAre("2=House", "3=", "4=", "5=", "6=", "8=", "9="));
}

TEST_F(GetProperties, ReadsTheFileForReadingAloneIntoADatabaseOfItsOwn) {
  Get(0x400);
  EXPECT_THAT(world.Calls({"ZnDbDatabase", "readDwgFile", "~ZnDbDatabase"}),
              ElementsAre("ZnDbDatabase(false, true)", "readDwgFile(C:\\a.dwg, 4, false, null)",
                          "~ZnDbDatabase(database 1)"));
}

TEST_F(GetProperties, ReadsTheFileAnewForEachCall) {
  Get(0x400);
  Get(0x400);
  EXPECT_EQ(world.Count("readDwgFile"), 2);
  EXPECT_THAT(world.Calls({"~ZnDbDatabase"}),
              ElementsAre("~ZnDbDatabase(database 1)", "~ZnDbDatabase(database 2)"));
}

TEST_F(GetProperties, ASecondCallGivesTheSameList) {
  EXPECT_EQ(expected::Shown(Get(0)), expected::Shown(Get(0)));
}

TEST_F(GetProperties, TheResultOutlivesTheDatabase) {
  const std::vector<_PropData> properties = Get(0x200);
  EXPECT_EQ(world.Count("~ZnDbDatabase"), 1);
  EXPECT_THAT(expected::Shown(properties), ElementsAre("Client=Smith"));
}

TEST_F(GetProperties, AFileThatIsNotThereThrowsNotFoundAndRunsNoStep) {
  world.Fail("readDwgFile", 76);
  EXPECT_THROW(Get(0), ZDXEngine::NotFound);
  EXPECT_THAT(StepsOf(world), IsEmpty());
  EXPECT_EQ(world.Count("~ZnDbDatabase"), 1);
}

TEST_F(GetProperties, TheSentenceOfAFailedOpenNamesTheFile) {
  world.utilities.texts[103] = L"<%1!s!>";
  world.Fail("readDwgFile", 314);
  try {
    Get(0);
    FAIL() << "nothing was thrown";
  } catch (const ZDXEngine::InvalidFormat& error) {
    EXPECT_EQ(error.errorMessage, L"<C:\\a.dwg>");
  }
}

TEST_F(GetProperties, WhatTheFlavourStepThrowsReachesTheClient) {
  world.utilities.texts[101] = L"<%1!s!>";
  world.Fail("getSymbolTable(ZnDbBlockTable, 0)", 5);
  try {
    Get(0);
    FAIL() << "nothing was thrown";
  } catch (const ZDXEngine::ReadError& error) {
    EXPECT_EQ(error.errorMessage, L"<>");
  }
  EXPECT_EQ(world.Count("~ZnDbDatabase"), 1);
}

TEST_F(GetProperties, AFileWithoutAPreviewCostsOnlyThePicture) {
  world.library.preview = nullptr;
  EXPECT_THAT(expected::Shown(Get(0x080 | 0x004)), ElementsAre("DWG Creator Name=Program"));
}

TEST_F(GetProperties, AFileWithoutPropertySetsCostsOnlyTheCreator) {
  world.files.contents.clear();
  EXPECT_THAT(expected::Shown(Get(0x004 | 0x008)), ElementsAre("DWG Type=Zent"));
}

TEST_F(GetProperties, ADateAsTheCreatorReachesTheClient) {
  GiveSummary(appinfo::kSummaryHead +
              std::u16string(u"<prop id=\"258\"><datetime>2020-01-01T00:00:00</datetime></prop>"));
  try {
    Get(0);
    FAIL() << "nothing was thrown";
  } catch (const ATL::CAtlException& error) {
    EXPECT_EQ(error.m_hr, E_FAIL);
  }
  EXPECT_EQ(world.Count("~ZnDbDatabase"), 1);
}

TEST_F(GetProperties, AShortPropertySetReachesTheClientAsOutOfRange) {
  GiveSummary(u"short");
  EXPECT_THROW(Get(0), std::out_of_range);
  EXPECT_EQ(world.Count("~ZnDbDatabase"), 1);
}

TEST_F(GetProperties, ACreatorThatCannotBeCopiedReachesTheClient) {
  world.ReturnNull("SysAllocString(Program)");
  try {
    Get(0);
    FAIL() << "nothing was thrown";
  } catch (const _com_error& error) {
    EXPECT_EQ(error.Error(), E_OUTOFMEMORY);
  }
  EXPECT_EQ(world.Count("~ZnDbDatabase"), 1);
}

TEST_F(GetProperties, WhatTheCreatorRaisesDoesNotHappenUnselected) {
  GiveSummary(u"short");
  EXPECT_THAT(expected::Shown(Get(0x3FF & ~0x004)), Contains("DWG Type=Zent"));
}

TEST(GetPropertiesOfAPicture, RaisesWhatItsCopyRaises) {
  scripted::World world;
  world.drawing.filename = L"C:\\a.dwg";
  world.GivePreview();
  world.Fail("VariantCopy(bytes)", E_OUTOFMEMORY);
  try {
    Get(0x080);
    FAIL() << "nothing was thrown";
  } catch (const _com_error& error) {
    EXPECT_EQ(error.Error(), E_OUTOFMEMORY);
  }
  EXPECT_EQ(world.Count("~ZnDbDatabase"), 1);
}

TEST_F(GetProperties, ATableThatDoesNotOpenCostsOnlyItsOwnNames) {
  world.Fail("getSymbolTable(ZnDbLinetypeTable, 0)", 5);
  EXPECT_THAT(expected::Shown(Get(0x100)), ElementsAre("Layer Name=0", "View Name=Front"));
}

TEST_F(GetProperties, TheWorkingDatabaseIsLeftAlone) {
  Get(0);
  EXPECT_EQ(world.Count("setWorkingDatabase"), 0);
}

TEST(GetPropertiesWithoutMemory, RaisesTheComErrorAndLeaksNothing) {
  outages::FailEachAllocation(FillDrawing, [] { Get(0, Door()); });
}

class GetFileType : public scripted::ScriptedTest {
 protected:
  DwgFileType Type() { return FilePropertyMgr::Instance().GetFileType(L"C:\\a.dwg"); }
};

TEST_F(GetFileType, IsTheFlavourOfTheDrawing) {
  world.drawing.namedObjects.Add(L"IDW_DICT_ROOT");
  EXPECT_EQ(Type(), DwgFileType::Partonic);
}

TEST_F(GetFileType, ReadsTheFileForReadingAloneIntoADatabaseOfItsOwn) {
  Type();
  EXPECT_THAT(world.Calls({"ZnDbDatabase", "readDwgFile", "~ZnDbDatabase"}),
              ElementsAre("ZnDbDatabase(false, true)", "readDwgFile(C:\\a.dwg, 4, false, null)",
                          "~ZnDbDatabase(database 1)"));
}

TEST_F(GetFileType, AFileThatIsNotThereThrowsNotFound) {
  world.Fail("readDwgFile", 76);
  EXPECT_THROW(Type(), ZDXEngine::NotFound);
  EXPECT_EQ(world.Count("~ZnDbDatabase"), 1);
}

TEST_F(GetFileType, WhatTheDetectionThrowsReachesTheClient) {
  world.Fail("getSymbolTable", 314);
  EXPECT_THROW(Type(), ZDXEngine::InvalidFormat);
  EXPECT_EQ(world.Count("~ZnDbDatabase"), 1);
}

}  // namespace
