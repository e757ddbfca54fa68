#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "properties/read/DatabaseProperties.h"
#include "unit/properties/Outages.h"
#include "unit/properties/read/CollectorTest.h"

using testing::ElementsAre;
using testing::ElementsAreArray;
using ZDXEngine::CollectDatabaseProperties;

namespace {

void FillSettings(scripted::World& world) {
  world.drawing.settings = {.menu = L"m",
                            .projectName = L"p",
                            .hyperlinkBase = L"h",
                            .styleSheet = L"s",
                            .dimpost = L"<> mm",
                            .dimapost = L"[]",
                            .dimblk = L"_Dot",
                            .dimblk1 = L"_Open",
                            .dimblk2 = L"_Oblique"};
}

const std::vector<std::string> kAllSettings = {"Menu=m",       "ProjectName=p", "HyperlinkBase=h",
                                               "StyleSheet=s", "Dimpost=<> mm", "Dimapost=[]",
                                               "Dimblk=_Dot",  "Dimblk1=_Open", "Dimblk2=_Oblique"};

class DatabaseProperties : public scripted::CollectorTest {
 protected:
  DatabaseProperties() { FillSettings(world); }
  std::vector<std::string> Settings() { return Collected(CollectDatabaseProperties); }
};

TEST_F(DatabaseProperties, TheNineSettingsComeInOrderUnderTheirNames) {
  EXPECT_THAT(Settings(), ElementsAreArray(kAllSettings));
}

TEST_F(DatabaseProperties, AllAreTextsOfTheEnginesSet) {
  Settings();
  for (const auto& property : properties) {
    EXPECT_EQ(property.formatId, expected::kStorageSet);
    EXPECT_EQ(property.typeCode, 2);
    EXPECT_EQ(property.value.vt, VT_BSTR);
  }
}

TEST_F(DatabaseProperties, AnEmptySettingIsAnEmptyText) {
  world.drawing.settings = {};
  EXPECT_THAT(Settings(), ElementsAre("Menu=", "ProjectName=", "HyperlinkBase=", "StyleSheet=",
                                      "Dimpost=", "Dimapost=", "Dimblk=", "Dimblk1=", "Dimblk2="));
}

TEST_F(DatabaseProperties, EachOfTheSevenThatCanFailFailsForItself) {
  const std::pair<const char*, const char*> getters[] = {{"getMenu", "Menu=m"},
                                                         {"getProjectName", "ProjectName=p"},
                                                         {"getHyperlinkBase", "HyperlinkBase=h"},
                                                         {"getStyleSheet", "StyleSheet=s"},
                                                         {"getDimblk", "Dimblk=_Dot"},
                                                         {"getDimblk1", "Dimblk1=_Open"},
                                                         {"getDimblk2", "Dimblk2=_Oblique"}};
  for (const auto& [getter, missing] : getters) {
    world.Fail(getter, 2, 1);
    properties.clear();
    std::vector<std::string> rest = kAllSettings;
    std::erase(rest, missing);
    EXPECT_THAT(Settings(), ElementsAreArray(rest)) << getter;
  }
}

TEST_F(DatabaseProperties, ASettingWhoseTextCannotBeCopiedIsLeftOut) {
  for (int nth = 1; nth <= 9; ++nth) {
    world.Fail("znutNewString", 40, nth);
    properties.clear();
    std::vector<std::string> rest = kAllSettings;
    rest.erase(rest.begin() + nth - 1);
    EXPECT_THAT(Settings(), ElementsAreArray(rest)) << nth;
    // Each script sees the calls of its own round alone.
    world.ForgetCalls();
    world.ForgetScripts();
  }
}

TEST_F(DatabaseProperties, EachSettingIsDoneBeforeTheNextIsAsked) {
  Settings();
  std::vector<std::string> calls = world.Calls(
      {"getMenu", "znutNewString", "SysAllocString", "znutDelBuffer", "getProjectName"});
  calls.resize(5);
  EXPECT_THAT(calls, ElementsAre("getMenu()", "znutNewString(m)", "SysAllocString(m)",
                                 "znutDelBuffer()", "getProjectName()"));
}

TEST(SettingsWithoutMemory, RaiseTheComErrorAndLeakNothing) {
  outages::FailEachAllocation(FillSettings, [] {
    ZnDbDatabase database(false, true);
    std::vector<ZDXEngine::_PropData> properties;
    CollectDatabaseProperties(properties, &database);
  });
}

}  // namespace
