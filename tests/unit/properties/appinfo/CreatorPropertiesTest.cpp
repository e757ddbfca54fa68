// The two creator properties out of whole files.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "properties/appinfo/CreatorProperties.h"
#include "support/appinfo/AppInfoFile.h"
#include "support/scripted/ScriptedTest.h"
#include "unit/properties/Outages.h"
#include "unit/properties/Shown.h"

using appinfo::kOtherId;
using appinfo::kSummaryId;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const std::u16string kName = u"<prop id=\"258\"><string>Program 2018</string></prop>";
const std::u16string kVersion = u"<prop id=\"259\"><string>O.48</string></prop>";

class CreatorProperties : public scripted::ScriptedTest {
 protected:
  void GiveFile(const std::string& bytes) { world.files.contents[L"a.dwg"] = bytes; }
  std::vector<std::string> Collected() {
    ZDXEngine::CollectCreatorProperties(properties, L"a.dwg");
    return expected::Shown(properties);
  }
  std::vector<std::string> Collected(const std::u16string& summary) {
    GiveFile(appinfo::FileWithSummary(summary));
    return Collected();
  }

  std::vector<ZDXEngine::_PropData> properties;
};

TEST_F(CreatorProperties, AreTheNameAndBehindItTheVersion) {
  EXPECT_THAT(Collected(kName + kVersion),
              ElementsAre("DWG Creator Name=Program 2018", "DWG Creator Version=O.48"));
}

TEST_F(CreatorProperties, TheOrderInTheFileDoesNotMatter) {
  EXPECT_THAT(Collected(kVersion + kName),
              ElementsAre("DWG Creator Name=Program 2018", "DWG Creator Version=O.48"));
}

TEST_F(CreatorProperties, AreTextsOfTheEnginesOwnSet) {
  Collected(kName + kVersion);
  ASSERT_EQ(properties.size(), 2u);
  for (const auto& property : properties) {
    EXPECT_EQ(property.formatId, expected::kStorageSet);
    EXPECT_EQ(property.typeCode, 2);
    EXPECT_EQ(property.value.vt, VT_BSTR);
  }
}

TEST_F(CreatorProperties, OtherPropertiesOfTheSetDoNotMatter) {
  EXPECT_THAT(Collected(u"<prop id=\"8\"><string>editor</string></prop>"
                        u"<prop id=\"10\"><datetime>2018-06-18T09:09:32</datetime></prop>" +
                        kName + kVersion +
                        u"<prop id=\"12\"><datetime>2018-07-24T07:36:51</datetime></prop>"),
              ElementsAre("DWG Creator Name=Program 2018", "DWG Creator Version=O.48"));
}

TEST_F(CreatorProperties, EachIsLookedForOnItsOwn) {
  EXPECT_THAT(Collected(kVersion), ElementsAre("DWG Creator Version=O.48"));
  properties.clear();
  EXPECT_THAT(Collected(kName), ElementsAre("DWG Creator Name=Program 2018"));
}

TEST_F(CreatorProperties, AreAppended) {
  Collected(kName);
  EXPECT_THAT(Collected(kName),
              ElementsAre("DWG Creator Name=Program 2018", "DWG Creator Name=Program 2018"));
}

TEST_F(CreatorProperties, AFileWithoutABlockHasNone) {
  GiveFile(appinfo::Bytes(appinfo::Header{.magic = "AC1032", .first = 0x80}));
  EXPECT_THAT(Collected(), IsEmpty());
}

TEST_F(CreatorProperties, AFileThatIsNotThereHasNone) { EXPECT_THAT(Collected(), IsEmpty()); }

TEST_F(CreatorProperties, AWalkThatFailsPartWayGivesNone) {
  const appinfo::Block block = {
      .entries = {{kSummaryId, appinfo::kSummaryHead + kName + kVersion}}};
  GiveFile(appinfo::Bytes(appinfo::Header{.first = 0x80}) + appinfo::Bytes(block, 2));
  EXPECT_THAT(Collected(), IsEmpty());
}

TEST_F(CreatorProperties, OfTwoSummarySetsTheFirstIsUsed) {
  GiveFile(appinfo::File({.entries = {{kSummaryId, appinfo::kSummaryHead + kName},
                                      {kSummaryId, appinfo::kSummaryHead + kVersion}}}));
  EXPECT_THAT(Collected(), ElementsAre("DWG Creator Name=Program 2018"));
}

TEST_F(CreatorProperties, ASetUnderAnotherIdIsNeverRead) {
  GiveFile(appinfo::File({.entries = {{kOtherId, appinfo::kSummaryHead + kName + kVersion}}}));
  EXPECT_THAT(Collected(), IsEmpty());
  GiveFile(appinfo::File({.entries = {{kOtherId, u"short"}}}));
  EXPECT_THAT(Collected(), IsEmpty());
}

TEST_F(CreatorProperties, ASetWhoseHeadNamesAnotherIdGivesNone) {
  const std::u16string head = u"<prop_set fmt_id=\"{01020304-0506-0708-090A-0B0C0D0E0F10}\">";
  GiveFile(appinfo::File({.entries = {{kSummaryId, head + kName + kVersion}}}));
  EXPECT_THAT(Collected(), IsEmpty());
}

TEST_F(CreatorProperties, AnEmptyTextIsEmptyAndNotNull) {
  EXPECT_THAT(Collected(u"<prop id=\"258\"><string></string></prop>"),
              ElementsAre("DWG Creator Name="));
}

TEST_F(CreatorProperties, EntitiesAreNotReplaced) {
  EXPECT_THAT(Collected(u"<prop id=\"258\"><string>a&amp;b</string></prop>"),
              ElementsAre("DWG Creator Name=a&amp;b"));
}

TEST_F(CreatorProperties, CharactersOutsideTheBasicPlaneSurvive) {
  EXPECT_THAT(Collected(u"<prop id=\"258\"><string>\U0001F600</string></prop>"),
              ElementsAre("DWG Creator Name=\U0001F600"));
}

TEST_F(CreatorProperties, AValueThatIsNoTextIsAddedWithANullText) {
  for (const char16_t* element :
       {u"<int>0</int>", u"<int>7</int>", u"<uint>7</uint>", u"<double>1.5</double>",
        u"<boolval>true</boolval>", u"<boolval>false</boolval>"}) {
    properties.clear();
    EXPECT_THAT(Collected(u"<prop id=\"258\">" + std::u16string(element) + u"</prop>" + kVersion),
                ElementsAre("DWG Creator Name=(null)", "DWG Creator Version=O.48"));
  }
}

TEST_F(CreatorProperties, AnUnknownElementCostsOnlyItsOwnProperty) {
  EXPECT_THAT(Collected(u"<prop id=\"258\"><text>X</text></prop>" + kVersion),
              ElementsAre("DWG Creator Version=O.48"));
}

TEST_F(CreatorProperties, ADateIsRaised) {
  try {
    Collected(kName + u"<prop id=\"259\"><datetime>2020-01-01T00:00:00</datetime></prop>");
    FAIL() << "nothing was thrown";
  } catch (const ATL::CAtlException& error) {
    EXPECT_EQ(error.m_hr, E_FAIL);
  }
}

TEST_F(CreatorProperties, AShortTextWithoutAHeadIsRaised) {
  GiveFile(appinfo::File({.entries = {{kSummaryId, u"short"}}}));
  EXPECT_THROW(Collected(), std::out_of_range);
}

TEST_F(CreatorProperties, TheFileIsClosedBeforeTheSetsAreRead) {
  Collected(kName);
  const std::vector<std::string> calls = world.Calls({"CloseHandle", "CLSIDFromString"});
  ASSERT_EQ(calls.size(), 4u);
  EXPECT_EQ(calls[1], "CloseHandle(file 2)");
  EXPECT_EQ(world.Count("CreateFileW"), 2);
}

TEST_F(CreatorProperties, EachTextIsCopiedOnceAndThenTaken) {
  Collected(kName + kVersion);
  EXPECT_THAT(world.Calls({"SysAllocString"}),
              ElementsAre("SysAllocString(Program 2018)", "SysAllocString(O.48)"));
}

TEST(CreatorWithoutMemory, RaisesTheComErrorAndLeaksNothing) {
  outages::FailEachAllocation(
      [](scripted::World& world) {
        world.files.contents[L"a.dwg"] = appinfo::FileWithSummary(kName + kVersion);
      },
      [] {
        std::vector<ZDXEngine::_PropData> properties;
        ZDXEngine::CollectCreatorProperties(properties, L"a.dwg");
      });
}

}  // namespace
