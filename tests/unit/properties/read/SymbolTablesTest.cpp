// The names of layers, line types and views.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>

#include "properties/read/NamedObjects.h"
#include "unit/properties/Outages.h"
#include "unit/properties/read/CollectorTest.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using ZDXEngine::ListSymbolTables;

namespace {

class SymbolTables : public scripted::CollectorTest {
 protected:
  std::vector<std::string> Listed() { return Collected(ListSymbolTables); }
};

TEST_F(SymbolTables, LayersComeThenLineTypesThenViews) {
  world.drawing.layers.Add(L"0");
  world.drawing.linetypes.Add(L"DASHED", L"- - -");
  world.drawing.views.Add(L"Front");
  EXPECT_THAT(Listed(), ElementsAre("Layer Name=0", "LineType Name=DASHED",
                                    "LineType Comments=- - -", "View Name=Front"));
}

TEST_F(SymbolTables, TheTablesAreOpenedAndClosedOneAfterTheOther) {
  Listed();
  EXPECT_THAT(world.Calls({"getSymbolTable", "close"}),
              ElementsAre("getSymbolTable(ZnDbLayerTable, 0)", "layers.close()",
                          "getSymbolTable(ZnDbLinetypeTable, 0)", "linetypes.close()",
                          "getSymbolTable(ZnDbViewTable, 0)", "views.close()"));
}

TEST_F(SymbolTables, ATableThatDoesNotOpenCostsOnlyItsOwnNames) {
  world.drawing.layers.Add(L"0");
  world.drawing.linetypes.Add(L"DASHED", L"- - -");
  world.drawing.views.Add(L"Front");
  world.Fail("getSymbolTable(ZnDbLayerTable, 0)", 5);
  EXPECT_THAT(Listed(),
              ElementsAre("LineType Name=DASHED", "LineType Comments=- - -", "View Name=Front"));
  properties.clear();
  world.Fail("getSymbolTable(ZnDbLinetypeTable, 0)", 5);
  EXPECT_THAT(Listed(), ElementsAre("View Name=Front"));
  properties.clear();
  world.Fail("getSymbolTable(ZnDbViewTable, 0)", 5);
  EXPECT_THAT(Listed(), IsEmpty());
}

TEST_F(SymbolTables, AllAreTextsOfTheEnginesSet) {
  world.drawing.layers.Add(L"0");
  world.drawing.linetypes.Add(L"DASHED", L"- - -");
  world.drawing.views.Add(L"Front");
  Listed();
  for (const auto& property : properties) {
    EXPECT_EQ(property.formatId, expected::kStorageSet);
    EXPECT_EQ(property.typeCode, 2);
    EXPECT_EQ(property.value.vt, VT_BSTR);
  }
}

// What holds for each of the three listings.
struct Listing {
  const char* label;
  scripted::Table scripted::Drawing::*table;
  const char* iterator;
  const char* recordClass;
  const char* record;
  const char* property;
};

// How a failing test names its subject.
void PrintTo(const Listing& listing, std::ostream* out) { *out << listing.label; }

const Listing kListings[] = {
    {"Layers", &scripted::Drawing::layers, "layers iterator", "ZnDbLayerTableRecord", "layer",
     "Layer Name"},
    {"LineTypes", &scripted::Drawing::linetypes, "linetypes iterator", "ZnDbLinetypeTableRecord",
     "linetype", "LineType Name"},
    {"Views", &scripted::Drawing::views, "views iterator", "ZnDbViewTableRecord", "view",
     "View Name"},
};

class EachListing : public SymbolTables, public testing::WithParamInterface<Listing> {
 protected:
  scripted::Table& Table() { return world.drawing.*GetParam().table; }
  // "Layer Name=..." of each; a line type's comments are told by their own test.
  std::vector<std::string> Names() {
    std::vector<std::string> names = Listed();
    std::erase_if(names, [](const std::string& name) { return name.starts_with("LineType C"); });
    return names;
  }
  std::string Named(const std::string& name) const {
    return std::string(GetParam().property) + "=" + name;
  }
  std::string OnRecord(const std::string& name, const std::string& call) const {
    return std::string(GetParam().record) + " " + name + "." + call;
  }
  std::string OnIterator(const std::string& call) const {
    return std::string(GetParam().iterator) + "." + call;
  }
  std::string Opening(const std::string& name) const {
    return "zndbOpenObject(" + std::string(GetParam().record) + " " + name + ", " +
           GetParam().recordClass + ", 0, false)";
  }
};

TEST_P(EachListing, EachRecordGivesItsNameInTheIteratorsOrder) {
  Table().Add(L"Walls");
  Table().Add(L"0");
  EXPECT_THAT(Names(), ElementsAre(Named("Walls"), Named("0")));
}

TEST_P(EachListing, AnEmptyTableAddsNothing) { EXPECT_THAT(Names(), IsEmpty()); }

TEST_P(EachListing, AnEmptyNameIsAnEmptyText) {
  Table().Add(L"");
  EXPECT_THAT(Names(), ElementsAre(Named("")));
}

TEST_P(EachListing, TheIteratorStartsAtTheBeginningSkipsDeletedRecordsAndIsDeleted) {
  Table().Add(L"0");
  Listed();
  EXPECT_THAT(world.Calls({"newIterator"}), Contains(Table().label + ".newIterator(true, true)"));
  EXPECT_THAT(world.Calls({"step"}), ElementsAre(OnIterator("step(true, true)")));
  EXPECT_THAT(world.Calls({"delete"}), Contains(OnIterator("delete()")));
}

TEST_P(EachListing, DeletedRecordsAreNotListed) {
  Table().Add(L"a").erased = true;
  Table().Add(L"b");
  Table().Add(L"c").erased = true;
  EXPECT_THAT(Names(), ElementsAre(Named("b")));
}

TEST_P(EachListing, WithoutAnIteratorThereIsNothing) {
  Table().Add(L"0");
  world.FailWithNull(Table().label + ".newIterator", 5);
  EXPECT_THAT(Names(), IsEmpty());
}

TEST_P(EachListing, AnIteratorThatComesWithAFailureIsDeletedUnused) {
  Table().Add(L"0");
  world.Fail(Table().label + ".newIterator", 5);
  EXPECT_THAT(Names(), IsEmpty());
  EXPECT_THAT(world.Calls({"delete"}), Contains(OnIterator("delete()")));
  EXPECT_THAT(world.Calls({"zndbOpenObject"}), IsEmpty());
}

TEST_P(EachListing, ARecordIsOpenedForReadAsItsClass) {
  Table().Add(L"0");
  Listed();
  EXPECT_THAT(world.Calls({"zndbOpenObject"}), ElementsAre(Opening("0")));
}

TEST_P(EachListing, ARecordThatDoesNotOpenIsSteppedOver) {
  Table().Add(L"a");
  Table().Add(L"b");
  Table().Add(L"c");
  world.Fail(Opening("b"), 32);
  EXPECT_THAT(Names(), ElementsAre(Named("a"), Named("c")));
}

TEST_P(EachListing, ARecordWhoseNameFailsIsLeftOutAndClosed) {
  Table().Add(L"a");
  Table().Add(L"b");
  world.Fail(OnRecord("a", "getName"), 5);
  EXPECT_THAT(Names(), ElementsAre(Named("b")));
  EXPECT_THAT(world.Calls({"close"}), Contains(OnRecord("a", "close()")));
}

TEST_P(EachListing, ARecordWhoseNameCannotBeCopiedIsLeftOutAndClosed) {
  Table().Add(L"a");
  Table().Add(L"b");
  world.Fail("znutNewString(a)", 40);
  EXPECT_THAT(Names(), ElementsAre(Named("b")));
  EXPECT_THAT(world.Calls({"close"}), Contains(OnRecord("a", "close()")));
}

TEST_P(EachListing, ANameWhoseCopyIsNullIsANullText) {
  Table().Add(L"a");
  world.ReturnNull("znutNewString(a)");
  EXPECT_THAT(Names(), ElementsAre(Named("(null)")));
}

TEST_P(EachListing, OneRecordIsOpenAtATime) {
  Table().Add(L"a");
  Table().Add(L"b");
  Listed();
  std::vector<std::string> calls = world.Calls({"zndbOpenObject", "close"});
  std::erase_if(calls, [](const std::string& call) { return call.ends_with("s.close()"); });
  EXPECT_THAT(calls, ElementsAre(Opening("a"), OnRecord("a", "close()"), Opening("b"),
                                 OnRecord("b", "close()")));
}

INSTANTIATE_TEST_SUITE_P(Of, EachListing, testing::ValuesIn(kListings),
                         [](const auto& info) { return std::string(info.param.label); });

// Layers and line types release a record by its id; views don't ask.
class LayersAndLineTypes : public EachListing {};
class Views : public SymbolTables {};

TEST_P(LayersAndLineTypes, TheStatusOfTheRecordsIdIsNotLookedAt) {
  Table().Add(L"a");
  Table().Add(L"b");
  world.Fail(OnIterator("getRecordId"), 5, 1);
  EXPECT_THAT(Names(), ElementsAre(Named("a"), Named("b")));
}

TEST_P(LayersAndLineTypes, ARecordIsReleasedByItsIdAfterTheStep) {
  Table().Add(L"a");
  Listed();
  std::vector<std::string> calls = world.Calls({"step", "objectId", "close"});
  calls.erase(std::ranges::find(calls, OnRecord("a", "close()")) + 1, calls.end());
  std::erase(calls, "layers.close()");
  EXPECT_THAT(calls, ElementsAre(OnIterator("step(true, true)"), OnRecord("a", "objectId()"),
                                 OnRecord("a", "close()")));
}

TEST_P(LayersAndLineTypes, ARecordWithoutAnIdIsDeleted) {
  Table().Add(L"a").inDatabase = false;
  EXPECT_THAT(Names(), ElementsAre(Named("a")));
  EXPECT_THAT(world.Calls({"delete"}), Contains(OnRecord("a", "delete()")));
}

INSTANTIATE_TEST_SUITE_P(Of, LayersAndLineTypes, testing::Values(kListings[0], kListings[1]),
                         [](const auto& info) { return std::string(info.param.label); });

TEST_F(Views, ARecordWhoseIdFailsIsSkipped) {
  world.drawing.views.Add(L"a");
  world.drawing.views.Add(L"b");
  world.Fail("views iterator.getRecordId", 5, 1);
  EXPECT_THAT(Listed(), ElementsAre("View Name=b"));
}

TEST_F(Views, ARecordWhoseIdFailsIsNotOpened) {
  world.drawing.views.Add(L"a");
  world.Fail("views iterator.getRecordId", 5);
  Listed();
  EXPECT_THAT(world.Calls({"zndbOpenObject"}), IsEmpty());
}

TEST_F(Views, ARecordIsClosedBeforeTheStepWithoutAskingForItsId) {
  world.drawing.views.Add(L"a");
  Listed();
  std::vector<std::string> calls = world.Calls({"getName", "step", "objectId", "close"});
  calls.erase(calls.begin(), std::ranges::find(calls, "view a.getName()"));
  EXPECT_THAT(calls, ElementsAre("view a.getName()", "view a.close()",
                                 "views iterator.step(true, true)", "views.close()"));
}

// Each line type's comments stand behind its name.
class LineTypes : public SymbolTables {};

TEST_F(LineTypes, EachGivesItsNameAndThenItsComments) {
  world.drawing.linetypes.Add(L"a", L"one");
  world.drawing.linetypes.Add(L"b", L"two");
  EXPECT_THAT(Listed(), ElementsAre("LineType Name=a", "LineType Comments=one", "LineType Name=b",
                                    "LineType Comments=two"));
}

TEST_F(LineTypes, EmptyCommentsAreListed) {
  world.drawing.linetypes.Add(L"a", L"");
  EXPECT_THAT(Listed(), ElementsAre("LineType Name=a", "LineType Comments="));
}

TEST_F(LineTypes, CommentsWhoseCopyIsNullAreLeftOut) {
  world.drawing.linetypes.Add(L"a", L"one");
  world.ReturnNull("znutNewString(one)");
  EXPECT_THAT(Listed(), ElementsAre("LineType Name=a"));
}

TEST_F(LineTypes, CommentsThatCannotBeCopiedAreLeftOut) {
  world.drawing.linetypes.Add(L"a", L"one");
  world.Fail("znutNewString(one)", 40);
  EXPECT_THAT(Listed(), ElementsAre("LineType Name=a"));
}

TEST_F(LineTypes, CommentsThatFailDoNotCostTheName) {
  world.drawing.linetypes.Add(L"a", L"one");
  world.Fail("comments", 5);
  EXPECT_THAT(Listed(), ElementsAre("LineType Name=a"));
}

TEST_F(LineTypes, ANameThatFailsDoesNotCostTheComments) {
  world.drawing.linetypes.Add(L"a", L"one");
  world.Fail("getName", 5);
  EXPECT_THAT(Listed(), ElementsAre("LineType Comments=one"));
}

TEST_F(LineTypes, ANameThatCannotBeCopiedDoesNotCostTheComments) {
  world.drawing.linetypes.Add(L"a", L"one");
  world.Fail("znutNewString(a)", 40);
  EXPECT_THAT(Listed(), ElementsAre("LineType Comments=one"));
}

TEST_F(LineTypes, NameAndCommentsAreReadBeforeTheStep) {
  world.drawing.linetypes.Add(L"a", L"one");
  Listed();
  std::vector<std::string> calls = world.Calls({"getName", "comments", "step"});
  EXPECT_THAT(calls, ElementsAre("linetype a.getName()", "linetype a.comments()",
                                 "linetypes iterator.step(true, true)"));
}

TEST(SymbolTablesWithoutMemory, RaiseTheComErrorAndLeakNothing) {
  outages::FailEachAllocation(
      [](scripted::World& world) {
        world.drawing.layers.Add(L"0");
        world.drawing.layers.Add(L"loose").inDatabase = false;
        world.drawing.linetypes.Add(L"a", L"one");
        world.drawing.linetypes.Add(L"loose", L"two").inDatabase = false;
        world.drawing.views.Add(L"Front");
      },
      [] {
        ZnDbDatabase database(false, true);
        std::vector<ZDXEngine::_PropData> properties;
        ListSymbolTables(properties, &database);
      });
}

}  // namespace
