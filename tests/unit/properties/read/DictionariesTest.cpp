// The entries of the standard dictionaries.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "properties/read/NamedObjects.h"
#include "unit/properties/Outages.h"
#include "unit/properties/read/CollectorTest.h"

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using ZDXEngine::ListDictionaries;

namespace {

void FillDictionaries(scripted::World& world) {
  world.drawing.groups.Add(L"g");
  world.drawing.mlineStyles.Add(L"m");
  world.drawing.layouts.Add(L"Model");
  world.drawing.layouts.Add(L"Sheet 1");
  world.drawing.namedObjects.Add(L"n");
  world.drawing.plotSettings.Add(L"p");
}

class Dictionaries : public scripted::CollectorTest {
 protected:
  std::vector<std::string> Listed() { return Collected(ListDictionaries); }
};

TEST_F(Dictionaries, AllFiveComeInOrderUnderTheirNames) {
  FillDictionaries(world);
  EXPECT_THAT(Listed(),
              ElementsAre("Group Name=g", "MultiLine Style Name=m", "Layout Name=Model",
                          "Layout Name=Sheet 1", "Named Object Name=n", "Plot Settings Name=p"));
}

TEST_F(Dictionaries, AllAreTextsOfTheEnginesSet) {
  FillDictionaries(world);
  Listed();
  for (const auto& property : properties) {
    EXPECT_EQ(property.formatId, expected::kStorageSet);
    EXPECT_EQ(property.typeCode, 2);
    EXPECT_EQ(property.value.vt, VT_BSTR);
  }
}

TEST_F(Dictionaries, EachIsOpenedForReadAndClosedBeforeTheNext) {
  Listed();
  EXPECT_THAT(world.Calls({"getGroupDictionary", "getMLStyleDictionary", "getLayoutDictionary",
                           "getNamedObjectsDictionary", "getPlotSettingsDictionary", "close"}),
              ElementsAre("getGroupDictionary(0)", "groups.close()", "getMLStyleDictionary(0)",
                          "mline styles.close()", "getLayoutDictionary(0)", "layouts.close()",
                          "getNamedObjectsDictionary(0)", "named objects.close()",
                          "getPlotSettingsDictionary(0)", "plot settings.close()"));
}

TEST_F(Dictionaries, EachIsClosedWithoutAskingForItsId) {
  Listed();
  EXPECT_EQ(world.Count("objectId"), 0);
}

TEST_F(Dictionaries, EachThatDoesNotOpenCostsOnlyItsOwnNames) {
  FillDictionaries(world);
  const std::pair<const char*, const char*> getters[] = {
      {"getGroupDictionary", "Group"},
      {"getMLStyleDictionary", "MultiLine Style"},
      {"getLayoutDictionary", "Layout"},
      {"getNamedObjectsDictionary", "Named Object"},
      {"getPlotSettingsDictionary", "Plot Settings"}};
  for (const auto& [getter, prefix] : getters) {
    world.Fail(getter, 5, 1);
    properties.clear();
    std::vector<std::string> rest = {"Group Name=g",        "MultiLine Style Name=m",
                                     "Layout Name=Model",   "Layout Name=Sheet 1",
                                     "Named Object Name=n", "Plot Settings Name=p"};
    std::erase_if(rest, [&](const std::string& name) {
      return name.starts_with(std::string(prefix) + " Name=");
    });
    EXPECT_THAT(Listed(), ElementsAreArray(rest)) << getter;
  }
}

TEST_F(Dictionaries, AnEmptyDictionaryAddsNothingAndItsIteratorIsDeleted) {
  EXPECT_THAT(Listed(), IsEmpty());
  EXPECT_THAT(world.Calls({"delete"}),
              ElementsAre("groups iterator.delete()", "mline styles iterator.delete()",
                          "layouts iterator.delete()", "named objects iterator.delete()",
                          "plot settings iterator.delete()"));
}

TEST_F(Dictionaries, OneWithoutAnIteratorAddsNothingAndIsClosed) {
  FillDictionaries(world);
  world.ReturnNull("layouts.newIterator");
  EXPECT_THAT(Listed(), ElementsAre("Group Name=g", "MultiLine Style Name=m", "Named Object Name=n",
                                    "Plot Settings Name=p"));
  EXPECT_THAT(world.Calls({"close"}), testing::Contains("layouts.close()"));
}

TEST_F(Dictionaries, TheEntriesAreNotOpened) {
  FillDictionaries(world);
  Listed();
  EXPECT_EQ(world.Count("zndbOpenObject"), 0);
}

TEST_F(Dictionaries, TheWalkAsksForANameAndStepsOn) {
  world.drawing.groups.Add(L"a");
  world.drawing.groups.Add(L"b");
  ZnDbDictionary* groups = nullptr;
  ASSERT_EQ(database.getGroupDictionary(groups, 0), 0);
  world.ForgetCalls();
  ZDXEngine::ListDictionary(properties, groups, L"Group");
  EXPECT_THAT(world.Calls({"newIterator", "done", "name", "next", "delete"}),
              ElementsAre("groups.newIterator()",  //
                          "groups iterator.done()", "groups iterator.name()",
                          "groups iterator.next()",  //
                          "groups iterator.done()", "groups iterator.name()",
                          "groups iterator.next()",  //
                          "groups iterator.done()", "groups iterator.delete()"));
  groups->close();
}

TEST_F(Dictionaries, AnyPrefixNamesTheProperties) {
  world.drawing.groups.Add(L"a");
  ZnDbDictionary* groups = nullptr;
  ASSERT_EQ(database.getGroupDictionary(groups, 0), 0);
  ZDXEngine::ListDictionary(properties, groups, L"Odd");
  EXPECT_THAT(expected::Shown(properties), ElementsAre("Odd Name=a"));
  groups->close();
}

TEST(DictionariesWithoutMemory, RaiseTheComErrorAndLeakNothing) {
  outages::FailEachAllocation(FillDictionaries, [] {
    ZnDbDatabase database(false, true);
    std::vector<ZDXEngine::_PropData> properties;
    ListDictionaries(properties, &database);
  });
}

}  // namespace
