#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ZDXEngine/ZdxEngineException.h"
#include "properties/read/DrawingFlavour.h"
#include "unit/properties/Outages.h"
#include "unit/properties/read/CollectorTest.h"

using testing::ElementsAre;
using testing::IsEmpty;
using ZDXEngine::CollectDrawingFlavour;
using ZDXEngine::DrawingFlavourText;
using ZDXEngine::DwgFileType;
using ZDXEngine::GetDrawingFlavour;

namespace {

class Flavour : public scripted::CollectorTest {
 protected:
  // Puts entries into the root dictionary.
  void Entries(std::initializer_list<const wchar_t*> names) {
    for (const wchar_t* name : names) world.drawing.namedObjects.Add(name);
  }
  void RootOfClass(const wchar_t* className) { world.drawing.namedObjects.Add(L"Root", className); }
  scripted::PlainObject& RootProxyFor(const wchar_t* className) {
    scripted::PlainObject& root = world.drawing.namedObjects.Add(L"Root", className);
    root.proxy = true;
    return root;
  }
  DwgFileType Found() { return GetDrawingFlavour(&database); }
};

TEST_F(Flavour, OfAPlainDrawingIsZent) { EXPECT_EQ(Found(), DwgFileType::Zent); }

TEST_F(Flavour, WithTheBlockIsZne) {
  world.drawing.blocks.Add(L"wd_m");
  EXPECT_EQ(Found(), DwgFileType::Zne);
}

TEST_F(Flavour, WithAnyOtherBlockIsZent) {
  world.drawing.blocks.Add(L"wd_m2");
  EXPECT_EQ(Found(), DwgFileType::Zent);
}

TEST_F(Flavour, WithTheRootOfPartsIsPartonic) {
  Entries({L"IDW_DICT_ROOT"});
  EXPECT_EQ(Found(), DwgFileType::Partonic);
}

TEST_F(Flavour, WithTheScopeAloneIsZnm) {
  Entries({L"ZNME_SCOPE_NAME"});
  EXPECT_EQ(Found(), DwgFileType::Znm);
}

TEST_F(Flavour, WithTheScopeAndTheMasterIsZmt) {
  Entries({L"ZNME_SCOPE_NAME", L"ZNASGREF_MASTER"});
  EXPECT_EQ(Found(), DwgFileType::Zmt);
}

TEST_F(Flavour, WithATreeNodeAtTheRootIsTerrane3D) {
  RootOfClass(L"TerrDbTreeNode");
  EXPECT_EQ(Found(), DwgFileType::Terrane3D);
}

TEST_F(Flavour, TheBlockComesBeforeTheRootOfParts) {
  world.drawing.blocks.Add(L"wd_m");
  Entries({L"IDW_DICT_ROOT"});
  EXPECT_EQ(Found(), DwgFileType::Zne);
}

TEST_F(Flavour, TheRootOfPartsComesBeforeTheScope) {
  Entries({L"IDW_DICT_ROOT", L"ZNME_SCOPE_NAME"});
  EXPECT_EQ(Found(), DwgFileType::Partonic);
}

TEST_F(Flavour, TheScopeComesBeforeTheRoot) {
  Entries({L"ZNME_SCOPE_NAME"});
  RootOfClass(L"TerrDbTreeNode");
  EXPECT_EQ(Found(), DwgFileType::Znm);
}

TEST_F(Flavour, ScopeAndMasterComeBeforeTheRoot) {
  Entries({L"ZNME_SCOPE_NAME", L"ZNASGREF_MASTER"});
  RootOfClass(L"TerrDbTreeNode");
  EXPECT_EQ(Found(), DwgFileType::Zmt);
}

TEST_F(Flavour, TheMasterWithoutTheScopeIsNotLookedAt) {
  Entries({L"ZNASGREF_MASTER"});
  EXPECT_EQ(Found(), DwgFileType::Zent);
  EXPECT_THAT(world.Calls({"getAt"}),
              ElementsAre("named objects.getAt(IDW_DICT_ROOT)",
                          "named objects.getAt(ZNME_SCOPE_NAME)", "named objects.getAt(Root)"));
}

TEST_F(Flavour, TheMasterWithoutTheScopeLeavesTheRootToDecide) {
  Entries({L"ZNASGREF_MASTER"});
  RootOfClass(L"TerrDbTreeNode");
  EXPECT_EQ(Found(), DwgFileType::Terrane3D);
}

TEST_F(Flavour, TheRootIsNotLookedAtWhereTheScopeIs) {
  Entries({L"ZNME_SCOPE_NAME"});
  RootOfClass(L"TerrDbTreeNode");
  Found();
  EXPECT_THAT(world.Calls({"getAt"}), ElementsAre("named objects.getAt(IDW_DICT_ROOT)",
                                                  "named objects.getAt(ZNME_SCOPE_NAME)",
                                                  "named objects.getAt(ZNASGREF_MASTER)"));
}

TEST_F(Flavour, AProxyAtTheRootCountsAsWhatItStandsFor) {
  RootProxyFor(L"TerrDbTreeNode");
  EXPECT_EQ(Found(), DwgFileType::Terrane3D);
}

TEST_F(Flavour, TheClassOfAProxyIsComparedIgnoringCase) {
  RootProxyFor(L"tErRdBtReEnOdE");
  EXPECT_EQ(Found(), DwgFileType::Terrane3D);
}

TEST_F(Flavour, TheClassOfARealObjectIsComparedIgnoringCase) {
  RootOfClass(L"TERRDBTREENODE");
  EXPECT_EQ(Found(), DwgFileType::Terrane3D);
}

TEST_F(Flavour, AnyOtherClassAtTheRootIsZent) {
  RootOfClass(L"TerrDbTree");
  EXPECT_EQ(Found(), DwgFileType::Zent);
}

TEST_F(Flavour, AProxyForAnyOtherClassIsZent) {
  RootProxyFor(L"ZnDbXrecord");
  EXPECT_EQ(Found(), DwgFileType::Zent);
}

TEST_F(Flavour, AnObjectOfNoKnownClassAtTheRootIsZentAndReleased) {
  world.drawing.namedObjects.Add(L"Root").hasClass = false;
  EXPECT_EQ(Found(), DwgFileType::Zent);
  EXPECT_THAT(world.Calls({"close"}).back(), "object Root.close()");
}

TEST_F(Flavour, ARootThatDoesNotOpenIsZent) {
  RootOfClass(L"TerrDbTreeNode");
  world.Fail("zndbOpenObject(object Root, any, 0, false)", 32);
  EXPECT_EQ(Found(), DwgFileType::Zent);
}

TEST_F(Flavour, TheClassIsComparedByOrderIgnoringCase) {
  RootOfClass(L"Other");
  Found();
  EXPECT_THAT(world.Calls({"Order"}),
              testing::AnyOf(ElementsAre("Order(Other, TerrDbTreeNode, 0, 1)"),
                             ElementsAre("Order(TerrDbTreeNode, Other, 0, 1)")));
}

TEST_F(Flavour, TheBlockTableIsOpenedCheckedAskedAndClosed) {
  world.drawing.blocks.Add(L"wd_m");
  Found();
  EXPECT_THAT(world.Calls(),
              ElementsAre("getSymbolTable(ZnDbBlockTable, 0)", "blocks.assertReadEnabled()",
                          "blocks.getIdAt(wd_m, false)", "blocks.objectId()", "blocks.close()"));
}

TEST_F(Flavour, ABlockTableWithoutAnIdIsDeleted) {
  world.drawing.blocks.inDatabase = false;
  Found();
  EXPECT_THAT(world.Calls({"delete"}), ElementsAre("blocks.delete()"));
}

TEST_F(Flavour, ARootObjectWithoutAnIdIsDeleted) {
  RootOfClass(L"TerrDbTreeNode");
  world.drawing.namedObjects.entries.back().object.inDatabase = false;
  EXPECT_EQ(Found(), DwgFileType::Terrane3D);
  EXPECT_THAT(world.Calls({"delete"}), ElementsAre("object Root.delete()"));
}

TEST_F(Flavour, TheBlockTableIsReleasedWhenAnExceptionPasses) {
  world.Throw("getIdAt");
  EXPECT_THROW(Found(), scripted::Fault);
  EXPECT_THAT(world.Calls({"close"}), ElementsAre("blocks.close()"));
}

TEST_F(Flavour, TheRootObjectIsReleasedWhenAnExceptionPasses) {
  RootProxyFor(L"TerrDbTreeNode");
  world.Throw("proxiedClassName");
  EXPECT_THROW(Found(), scripted::Fault);
  EXPECT_THAT(world.Calls({"close"}).back(), "object Root.close()");
}

TEST_F(Flavour, ADictionaryIsClosedBeforeItIsOpenedAnew) {
  Found();
  EXPECT_THAT(world.Calls({"zndbOpenObject", "getAt", "close"}),
              ElementsAre("blocks.close()",  //
                          "zndbOpenObject(named objects, ZnDbDictionary, 0, false)",
                          "named objects.getAt(IDW_DICT_ROOT)", "named objects.close()",
                          "zndbOpenObject(named objects, ZnDbDictionary, 0, false)",
                          "named objects.getAt(ZNME_SCOPE_NAME)", "named objects.close()",
                          "zndbOpenObject(named objects, ZnDbDictionary, 0, false)",
                          "named objects.getAt(Root)", "named objects.close()"));
}

TEST_F(Flavour, ADictionaryIsClosedWithoutAskingForItsId) {
  Found();
  EXPECT_THAT(world.Calls({"objectId"}), ElementsAre("blocks.objectId()"));
}

constexpr char kOpenRoot[] = "zndbOpenObject(named objects, ZnDbDictionary, 0, false)";

TEST_F(Flavour, WithoutADictionaryIsZent) {
  world.Fail(kOpenRoot, 32);
  Entries({L"IDW_DICT_ROOT", L"ZNME_SCOPE_NAME"});
  RootOfClass(L"TerrDbTreeNode");
  EXPECT_EQ(Found(), DwgFileType::Zent);
}

TEST_F(Flavour, WithoutADictionaryIdIsZent) {
  world.ReturnNull("namedObjectsDictionaryId");
  EXPECT_EQ(Found(), DwgFileType::Zent);
}

TEST_F(Flavour, AFirstOpenThatFailsOnlyHidesTheRootOfParts) {
  Entries({L"IDW_DICT_ROOT", L"ZNME_SCOPE_NAME"});
  world.Fail(kOpenRoot, 32, 1);
  EXPECT_EQ(Found(), DwgFileType::Znm);
}

TEST_F(Flavour, ASecondOpenThatFailsHidesTheScope) {
  Entries({L"ZNME_SCOPE_NAME"});
  RootOfClass(L"TerrDbTreeNode");
  world.Fail(kOpenRoot, 32, 2);
  EXPECT_EQ(Found(), DwgFileType::Terrane3D);
}

TEST_F(Flavour, AThirdOpenThatFailsWithTheScopeIsZnm) {
  Entries({L"ZNME_SCOPE_NAME", L"ZNASGREF_MASTER"});
  world.Fail(kOpenRoot, 32, 3);
  EXPECT_EQ(Found(), DwgFileType::Znm);
}

TEST_F(Flavour, AThirdOpenThatFailsWithoutTheScopeIsZent) {
  RootOfClass(L"TerrDbTreeNode");
  world.Fail(kOpenRoot, 32, 3);
  EXPECT_EQ(Found(), DwgFileType::Zent);
}

class FlavourWithMessages : public Flavour {
 protected:
  FlavourWithMessages() {
    world.utilities.texts = {{101, L"read <%1!s!>"}, {102, L"missing <%1!s!>"}};
  }
  template <class Error>
  std::wstring MessageOf(ZnDbDatabase* from) {
    try {
      GetDrawingFlavour(from);
    } catch (const Error& error) {
      return error.errorMessage;
    }
    return L"nothing was thrown";
  }
};

TEST_F(FlavourWithMessages, ANullDatabaseThrowsReadErrorWithoutAFileName) {
  EXPECT_EQ(MessageOf<ZDXEngine::ReadError>(nullptr), L"read <>");
  EXPECT_THAT(world.Calls({"getSymbolTable"}), IsEmpty());
}

TEST_F(FlavourWithMessages, ABlockTableThatDoesNotOpenThrowsForItsStatusWithoutAFileName) {
  world.Fail("getSymbolTable", 76);
  EXPECT_EQ(MessageOf<ZDXEngine::NotFound>(&database), L"missing <>");
}

TEST(FlavourText, EachFlavourHasItsText) {
  EXPECT_STREQ(DrawingFlavourText(DwgFileType::Unrecognized), L"eUnrecognized");
  EXPECT_STREQ(DrawingFlavourText(DwgFileType::Zent), L"Zent");
  EXPECT_STREQ(DrawingFlavourText(DwgFileType::ZentVariant), L"Zent");
  EXPECT_STREQ(DrawingFlavourText(DwgFileType::Zne), L"Zne");
  EXPECT_STREQ(DrawingFlavourText(DwgFileType::Partonic), L"Partonic");
  EXPECT_STREQ(DrawingFlavourText(DwgFileType::Znm), L"Znm");
  EXPECT_STREQ(DrawingFlavourText(DwgFileType::Zmt), L"Zmt");
  EXPECT_STREQ(DrawingFlavourText(DwgFileType::Terrane3D), L"Terrane3D");
}

TEST(FlavourText, AnyOtherValueIsUnrecognized) {
  for (const int value : {-1, 8, 1000}) {
    EXPECT_STREQ(DrawingFlavourText(static_cast<DwgFileType>(value)), L"eUnrecognized") << value;
  }
}

TEST_F(Flavour, IsReportedAsTheDwgType) {
  Entries({L"IDW_DICT_ROOT"});
  EXPECT_THAT(Collected(CollectDrawingFlavour), ElementsAre("DWG Type=Partonic"));
}

TEST_F(Flavour, IsReportedAsATextOfTheEnginesSet) {
  Collected(CollectDrawingFlavour);
  EXPECT_EQ(properties.back().formatId, expected::kStorageSet);
  EXPECT_EQ(properties.back().typeCode, 2);
}

TEST_F(Flavour, OfAPlainDrawingIsReportedAsZent) {
  EXPECT_THAT(Collected(CollectDrawingFlavour), ElementsAre("DWG Type=Zent"));
}

TEST(FlavourWithoutMemory, RaisesTheComErrorAndLeaksNothing) {
  outages::FailEachAllocation([](scripted::World&) {},
                              [] {
                                ZnDbDatabase database(false, true);
                                std::vector<ZDXEngine::_PropData> properties;
                                CollectDrawingFlavour(properties, &database);
                              });
}

}  // namespace
