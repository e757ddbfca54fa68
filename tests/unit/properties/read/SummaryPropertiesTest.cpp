#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "properties/read/SummaryProperties.h"
#include "unit/properties/Outages.h"
#include "unit/properties/read/CollectorTest.h"

using testing::ElementsAre;
using testing::IsEmpty;
using ZDXEngine::CollectCustomSummaryProperties;
using ZDXEngine::CollectSummaryProperties;

namespace {

void FillSummary(scripted::World& world) {
  world.drawing.summary = {.title = L"House",
                           .subject = L"Plan",
                           .author = L"Ada",
                           .keywords = L"wall door",
                           .comments = L"Draft",
                           .lastSavedBy = L"Bob",
                           .revisionNumber = L"7",
                           .custom = {{L"Client", L"Smith"}, {L"Site", L"Hill"}},
                           .customCount = {}};
}

class SummaryProperties : public scripted::CollectorTest {
 protected:
  SummaryProperties() { FillSummary(world); }
  std::vector<std::string> Fields() { return Collected(CollectSummaryProperties); }
};

TEST_F(SummaryProperties, TheSevenFieldsComeInOrderUnderTheirNumbers) {
  EXPECT_THAT(Fields(),
              ElementsAre("2=House", "3=Plan", "4=Ada", "5=wall door", "6=Draft", "8=Bob", "9=7"));
}

TEST_F(SummaryProperties, AllAreTextsOfTheSummarySet) {
  Fields();
  for (const auto& property : properties) {
    EXPECT_EQ(property.formatId, expected::kSummarySet);
    EXPECT_EQ(property.typeCode, 2);
    EXPECT_EQ(property.value.vt, VT_BSTR);
  }
}

TEST_F(SummaryProperties, AnEmptyFieldIsAnEmptyText) {
  world.drawing.summary = {};
  EXPECT_THAT(Fields(), ElementsAre("2=", "3=", "4=", "5=", "6=", "8=", "9="));
}

TEST_F(SummaryProperties, WithoutASummaryThereIsNothing) {
  world.Fail("zndbGetSummaryInfo", 5);
  EXPECT_THAT(Fields(), IsEmpty());
}

TEST_F(SummaryProperties, AFieldThatFailsLeavesTheOthersInOrder) {
  world.Fail("getKeywords", 5);
  EXPECT_THAT(Fields(), ElementsAre("2=House", "3=Plan", "4=Ada", "6=Draft", "8=Bob", "9=7"));
}

TEST_F(SummaryProperties, EachFieldFailsForItself) {
  const std::pair<const char*, const char*> fields[] = {
      {"getTitle", "2=House"},        {"getSubject", "3=Plan"},   {"getAuthor", "4=Ada"},
      {"getKeywords", "5=wall door"}, {"getComments", "6=Draft"}, {"getLastSavedBy", "8=Bob"},
      {"getRevisionNumber", "9=7"}};
  for (const auto& [getter, missing] : fields) {
    world.Fail(getter, 5, 1);
    properties.clear();
    std::vector<std::string> rest = {"2=House", "3=Plan", "4=Ada", "5=wall door",
                                     "6=Draft", "8=Bob",  "9=7"};
    std::erase(rest, missing);
    EXPECT_EQ(Fields(), rest) << getter;
  }
}

TEST_F(SummaryProperties, AFieldThatFailsIsNotCopied) {
  world.Fail("getKeywords", 5);
  Fields();
  EXPECT_THAT(world.Calls({"znutNewString"}),
              ElementsAre("znutNewString(House)", "znutNewString(Plan)", "znutNewString(Ada)",
                          "znutNewString(Draft)", "znutNewString(Bob)", "znutNewString(7)"));
}

TEST_F(SummaryProperties, ABufferThatIsNullIsNotFreed) {
  world.FailWithNull("znutNewString", 5, 2);
  Collected(CollectSummaryProperties);
  EXPECT_EQ(world.Count("znutDelBuffer"), 6);
}

TEST_F(SummaryProperties, AFieldWhoseTextCannotBeCopiedIsAddedWithANullText) {
  world.Fail("znutNewString", 40, 1);
  EXPECT_THAT(Fields(),
              ElementsAre("2=(null)", "3=Plan", "4=Ada", "5=wall door", "6=Draft", "8=Bob", "9=7"));
}

TEST_F(SummaryProperties, TheSummaryIsDeletedAfterTheLastField) {
  Fields();
  const std::vector<std::string> calls = world.Calls({"getRevisionNumber", "delete"});
  EXPECT_THAT(calls, ElementsAre("getRevisionNumber()", "summary.delete()"));
}

TEST_F(SummaryProperties, EachFieldIsDoneBeforeTheNextIsAsked) {
  Fields();
  std::vector<std::string> calls =
      world.Calls({"getTitle", "znutNewString", "SysAllocString", "znutDelBuffer", "getSubject"});
  calls.resize(5);
  EXPECT_THAT(calls, ElementsAre("getTitle()", "znutNewString(House)", "SysAllocString(House)",
                                 "znutDelBuffer()", "getSubject()"));
}

TEST(SummaryWithoutMemory, RaisesTheComErrorAndLeaksNothing) {
  outages::FailEachAllocation(FillSummary, [] {
    ZnDbDatabase database(false, true);
    std::vector<ZDXEngine::_PropData> properties;
    CollectSummaryProperties(properties, &database);
  });
}

class CustomProperties : public SummaryProperties {
 protected:
  std::vector<std::string> Entries() { return Collected(CollectCustomSummaryProperties); }
};

TEST_F(CustomProperties, TheEntriesComeInOrderUnderTheirKeys) {
  EXPECT_THAT(Entries(), ElementsAre("Client=Smith", "Site=Hill"));
}

TEST_F(CustomProperties, AllAreTextsOfTheCustomSet) {
  Entries();
  for (const auto& property : properties) {
    EXPECT_EQ(property.formatId, expected::kCustomSet);
    EXPECT_EQ(property.typeCode, 2);
    EXPECT_EQ(property.value.vt, VT_BSTR);
  }
}

TEST_F(CustomProperties, TwoEntriesOfOneKeyGiveTwoProperties) {
  world.drawing.summary.custom = {{L"Client", L"Smith"}, {L"Client", L"Jones"}};
  EXPECT_THAT(Entries(), ElementsAre("Client=Smith", "Client=Jones"));
}

TEST_F(CustomProperties, AnEmptyValueIsAnEmptyText) {
  world.drawing.summary.custom = {{L"Client", L""}};
  EXPECT_THAT(Entries(), ElementsAre("Client="));
}

TEST_F(CustomProperties, AnEmptyKeyIsReplacedByTheNumber) {
  world.drawing.summary.custom = {{L"", L"Smith"}};
  EXPECT_THAT(Entries(), ElementsAre("19=Smith"));
}

TEST_F(CustomProperties, WithoutASummaryThereIsNothing) {
  world.Fail("zndbGetSummaryInfo", 5);
  EXPECT_THAT(Entries(), IsEmpty());
}

TEST_F(CustomProperties, WithoutEntriesNoneIsAskedFor) {
  world.drawing.summary.custom.clear();
  EXPECT_THAT(Entries(), IsEmpty());
  EXPECT_EQ(world.Count("getCustomSummaryInfo"), 0);
}

TEST_F(CustomProperties, ANegativeCountAsksForNone) {
  world.drawing.summary.customCount = -1;
  EXPECT_THAT(Entries(), IsEmpty());
  EXPECT_EQ(world.Count("getCustomSummaryInfo"), 0);
}

TEST_F(CustomProperties, AnEntryThatFailsIsLeftOutAndThoseBehindItCome) {
  world.drawing.summary.custom = {{L"a", L"1"}, {L"b", L"2"}, {L"c", L"3"}};
  world.Fail("getCustomSummaryInfo(1)", 5);
  EXPECT_THAT(Entries(), ElementsAre("a=1", "c=3"));
}

TEST_F(CustomProperties, AnEntryThatFailsIsNotCopied) {
  world.drawing.summary.custom = {{L"a", L"1"}};
  world.Fail("getCustomSummaryInfo", 5);
  Entries();
  EXPECT_EQ(world.Count("znutNewString"), 0);
}

TEST_F(CustomProperties, TheKeyIsCopiedBeforeTheValue) {
  world.drawing.summary.custom = {{L"a", L"1"}};
  Entries();
  EXPECT_THAT(world.Calls({"znutNewString"}), ElementsAre("znutNewString(a)", "znutNewString(1)"));
}

TEST_F(CustomProperties, AnEntryWhoseKeyCannotBeCopiedIsLeftOut) {
  world.Fail("znutNewString(Client)", 40);
  EXPECT_THAT(Entries(), ElementsAre("Site=Hill"));
}

TEST_F(CustomProperties, AnEntryWhoseValueCannotBeCopiedHasANullText) {
  world.Fail("znutNewString(Smith)", 40);
  EXPECT_THAT(Entries(), ElementsAre("Client=(null)", "Site=Hill"));
}

TEST(CustomWithoutMemory, RaisesTheComErrorAndLeaksNothing) {
  outages::FailEachAllocation(FillSummary, [] {
    ZnDbDatabase database(false, true);
    std::vector<ZDXEngine::_PropData> properties;
    CollectCustomSummaryProperties(properties, &database);
  });
}

}  // namespace
