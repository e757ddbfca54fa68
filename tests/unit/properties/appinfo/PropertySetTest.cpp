// Look-ups in the texts of property sets, shape by shape.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "properties/appinfo/PropertySet.h"
#include "properties/appinfo/TypedValue.h"
#include "support/appinfo/AppInfoFile.h"
#include "support/scripted/ScriptedTest.h"

using appinfo::kOtherId;
using appinfo::kSummaryId;
using testing::ElementsAre;

namespace {

const std::wstring kHead = L"<prop_set fmt_id=\"{F29F85E0-4FF9-1068-AB91-08002B27B3D9}\">";
const std::wstring kOtherHead = L"<prop_set fmt_id=\"{01020304-0506-0708-090A-0B0C0D0E0F10}\">";

PROPSPEC ByNumber(std::uint32_t number) {
  PROPSPEC wanted = {};
  wanted.ulKind = 1;
  wanted.propid = number;
  return wanted;
}

PROPSPEC ByName(wchar_t* name, std::uint32_t kind = 0) {
  PROPSPEC wanted = {};
  wanted.ulKind = kind;
  wanted.lpwstr = name;
  return wanted;
}

class PropertySet : public scripted::ScriptedTest {
 protected:
  ~PropertySet() override { ZDXEngine::ReleaseTypedValue(value); }

  bool Read(const std::wstring& text, const PROPSPEC& wanted) {
    ZDXEngine::ReleaseTypedValue(value);
    return ZDXEngine::ReadPropertySetValue(text, wanted, value);
  }
  // The string that property 258 or another has in `text`; "(none)" if it has none.
  std::wstring String(const std::wstring& text, const PROPSPEC& wanted) {
    return Read(text, wanted) ? value.pwszVal : L"(none)";
  }
  std::wstring String(const std::wstring& text) { return String(text, ByNumber(258)); }

  PROPVARIANT value = {};
};

constexpr wchar_t kNameProperty[] = L"<prop id=\"258\"><string>X</string></prop>";
constexpr wchar_t kVersionProperty[] = L"<prop id=\"259\"><string>Y</string></prop>";

TEST_F(PropertySet, AValueIsFoundByItsNumber) { EXPECT_EQ(String(kHead + kNameProperty), L"X"); }

TEST_F(PropertySet, BothOrdersOfTwoPropertiesGiveTheSame) {
  for (const std::wstring& text :
       {kHead + kNameProperty + kVersionProperty, kHead + kVersionProperty + kNameProperty}) {
    EXPECT_EQ(String(text, ByNumber(258)), L"X");
    EXPECT_EQ(String(text, ByNumber(259)), L"Y");
  }
}

TEST_F(PropertySet, OfTwoPropertiesOfOneNumberTheFirstIsFound) {
  EXPECT_EQ(String(kHead + kNameProperty + L"<prop id=\"258\"><string>Z</string></prop>"), L"X");
}

TEST_F(PropertySet, TheNumberIsDecimalAndWhole) {
  EXPECT_EQ(String(kHead + L"<prop id=\"0x102\"><string>X</string></prop>"), L"(none)");
  EXPECT_EQ(String(kHead + L"<prop id=\"0258\"><string>X</string></prop>"), L"(none)");
  EXPECT_EQ(String(kHead + L"<prop id=\"2580\"><string>X</string></prop>"), L"(none)");
  EXPECT_EQ(String(kHead + L"<prop id=\"1258\"><string>X</string></prop>"), L"(none)");
}

TEST_F(PropertySet, NumbersOfEveryLengthAreFound) {
  EXPECT_EQ(String(kHead + L"<prop id=\"0\"><string>X</string></prop>", ByNumber(0)), L"X");
  EXPECT_EQ(
      String(kHead + L"<prop id=\"2147483647\"><string>X</string></prop>", ByNumber(0x7FFFFFFF)),
      L"X");
}

TEST_F(PropertySet, ANumberWithItsTopBitSetIsRefusedBeforeTheTextIsLookedAt) {
  EXPECT_FALSE(Read(L"short", ByNumber(0x80000000)));
  EXPECT_FALSE(Read(L"short", ByNumber(0xFFFFFFFF)));
  EXPECT_EQ(world.Count("CLSIDFromString"), 0);
}

TEST_F(PropertySet, AnEmptyOrNullNameIsRefusedBeforeTheTextIsLookedAt) {
  wchar_t empty[] = L"";
  EXPECT_FALSE(Read(L"short", ByName(empty)));
  EXPECT_FALSE(Read(L"short", ByName(nullptr)));
  EXPECT_EQ(world.Count("CLSIDFromString"), 0);
}

TEST_F(PropertySet, AValueIsFoundByItsName) {
  wchar_t name[] = L"Client";
  const std::wstring text = kHead + L"<prop id_str=\"Client\"><string>X</string></prop>";
  EXPECT_EQ(String(text, ByName(name)), L"X");
  wchar_t otherCase[] = L"client";
  EXPECT_EQ(String(text, ByName(otherCase)), L"(none)");
}

TEST_F(PropertySet, EveryKindButOneLooksByName) {
  wchar_t name[] = L"258";
  const std::wstring text =
      kHead + L"<prop id_str=\"258\"><string>N</string></prop>" + kNameProperty;
  for (const std::uint32_t kind : {0u, 2u, 0xFFFFFFFFu}) {
    EXPECT_EQ(String(text, ByName(name, kind)), L"N") << kind;
  }
}

TEST_F(PropertySet, ANumberDoesNotFindAName) {
  EXPECT_EQ(String(kHead + L"<prop id_str=\"258\"><string>N</string></prop>"), L"(none)");
}

TEST_F(PropertySet, AnOpeningTagWithMoreInItIsNotFound) {
  EXPECT_EQ(String(kHead + L"<prop id=\"258\" x=\"1\"><string>X</string></prop>"), L"(none)");
  EXPECT_EQ(String(kHead + L"<prop  id=\"258\"><string>X</string></prop>"), L"(none)");
  EXPECT_EQ(String(kHead + L"<prop id='258'><string>X</string></prop>"), L"(none)");
  EXPECT_EQ(String(kHead + L"<prop id=\"258\" ><string>X</string></prop>"), L"(none)");
}

TEST_F(PropertySet, AValueElementWithoutItsOpeningTagIsNotFound) {
  for (std::size_t place = 0; place < 20; ++place) {
    EXPECT_EQ(String(std::wstring(place, L'x') + L"<string>X</string></prop>" + kHead), L"(none)");
  }
}

TEST_F(PropertySet, ABlankBeforeTheValueElementHidesIt) {
  EXPECT_EQ(String(kHead + L"<prop id=\"258\"> <string>X</string></prop>"), L"(none)");
}

TEST_F(PropertySet, WithoutAnyEndOfAPropertyNothingIsFound) {
  EXPECT_EQ(String(kHead + L"<prop id=\"258\"><string>X</string>"), L"(none)");
  EXPECT_EQ(String(kHead + L"<prop id=\"258\"><string>X</string></PROP></prop_set>"), L"(none)");
}

TEST_F(PropertySet, TheFirstPropertyEndsAtItsEnd) {
  EXPECT_EQ(String(kHead + L"<prop id=\"258\"><string>X</prop></string>"), L"(none)");
}

TEST_F(PropertySet, ALaterPropertyRunsToTheEndOfTheText) {
  const std::wstring first = L"<prop id=\"8\"><string>S</string></prop>";
  EXPECT_EQ(String(kHead + first + L"<prop id=\"258\"><string>X</string>"), L"X");
  EXPECT_EQ(String(kHead + first + L"<prop id=\"258\"><string>X</prop></string>"), L"X</prop>");
}

TEST_F(PropertySet, AnEndBeforeEverythingCountsAsTheFirst) {
  EXPECT_EQ(String(L"</prop>" + kHead + L"<prop id=\"258\"><string>X</prop></string>"),
            L"X</prop>");
}

TEST_F(PropertySet, AnElementAtTheVeryEndIsEmpty) {
  EXPECT_EQ(String(L"</prop>" + kHead + L"<prop id=\"258\">"), L"(none)");
}

TEST_F(PropertySet, ADateIsReachedOnlyIfItIsAskedFor) {
  const std::wstring text =
      kHead + L"<prop id=\"10\"><datetime>2020-01-01T00:00:00</datetime></prop>" + kNameProperty;
  EXPECT_EQ(String(text), L"X");
  EXPECT_THROW(Read(text, ByNumber(10)), ATL::CAtlException);
}

TEST_F(PropertySet, TheHeadMustNameTheSummarySet) {
  EXPECT_EQ(String(kOtherHead + kNameProperty), L"(none)");
}

TEST_F(PropertySet, TheHeadsIdIsOfAnyCase) {
  EXPECT_EQ(String(L"<prop_set fmt_id=\"{f29f85e0-4ff9-1068-ab91-08002b27b3d9}\">" +
                   std::wstring(kNameProperty)),
            L"X");
}

TEST_F(PropertySet, AHeadThatNamesNothingFindsNothing) {
  EXPECT_EQ(String(L"<prop_set fmt_id=\"rubbish\">" + std::wstring(kNameProperty)), L"(none)");
}

TEST_F(PropertySet, AHeadThatCannotBeConvertedFindsNothing) {
  world.Fail("CLSIDFromString", 1);
  EXPECT_EQ(String(kHead + kNameProperty), L"(none)");
}

TEST_F(PropertySet, WhatStandsAroundTheHeadIsPassedOver) {
  EXPECT_EQ(String(L"rubbish <prop_set fmt_id=\"{F29F85E0-4FF9-1068-AB91-08002B27B3D9}\" x=\"1\" " +
                   std::wstring(kNameProperty)),
            L"X");
}

TEST_F(PropertySet, APropertyMayStandBeforeTheHead) {
  EXPECT_EQ(String(kNameProperty + kHead), L"X");
}

class FormatId : public PropertySet {
 protected:
  bool ReadId(const std::wstring& text) { return ZDXEngine::ReadPropertySetFormatId(text, id); }

  GUID id = {};
};

TEST_F(FormatId, IsWhatStandsBetweenTheHeadsQuotes) {
  EXPECT_TRUE(ReadId(kOtherHead));
  EXPECT_EQ(id, kOtherId);
  EXPECT_THAT(world.Calls(),
              ElementsAre("CLSIDFromString({01020304-0506-0708-090A-0B0C0D0E0F10})"));
}

TEST_F(FormatId, OfTwoHeadsTheFirstCounts) {
  EXPECT_TRUE(ReadId(kOtherHead + kHead));
  EXPECT_EQ(id, kOtherId);
}

TEST_F(FormatId, AHeadWithoutItsLastQuoteRunsToTheEnd) {
  EXPECT_TRUE(ReadId(L"<prop_set fmt_id=\"{01020304-0506-0708-090A-0B0C0D0E0F10}"));
  EXPECT_FALSE(ReadId(L"<prop_set fmt_id=\"{01020304-0506-0708-090A-0B0C0D0E0F10}>"));
}

TEST_F(FormatId, AHeadOfOtherSpellingIsNone) {
  EXPECT_FALSE(ReadId(L"<PROP_SET fmt_id=\"{01020304-0506-0708-090A-0B0C0D0E0F10}\">"));
  EXPECT_FALSE(ReadId(L"<prop_set  fmt_id=\"{01020304-0506-0708-090A-0B0C0D0E0F10}\">"));
}

TEST_F(FormatId, FailsForAnyAnswerOfTheConversionButZero) {
  world.Fail("CLSIDFromString", 1);
  EXPECT_FALSE(ReadId(kOtherHead));
}

TEST_F(FormatId, WithoutAHeadTheIdIsTakenFromTheSeventeenthCharacterOn) {
  EXPECT_TRUE(ReadId(L"0123456789ABCDEF={01020304-0506-0708-090A-0B0C0D0E0F10}\" and more"));
  EXPECT_EQ(id, kOtherId);
  EXPECT_FALSE(ReadId(L"0123456789ABCDEF{01020304-0506-0708-090A-0B0C0D0E0F10}\""));
}

TEST_F(FormatId, ATextOfSeventeenCharactersWithoutAHeadNamesNothing) {
  EXPECT_FALSE(ReadId(std::wstring(17, L'x')));
  EXPECT_THAT(world.Calls(), ElementsAre("CLSIDFromString()"));
}

TEST_F(FormatId, AShorterTextWithoutAHeadIsOutOfRange) {
  for (const std::size_t size : {0u, 1u, 16u}) {
    try {
      ReadId(std::wstring(size, L'x'));
      FAIL() << "nothing was thrown";
    } catch (const std::out_of_range& error) {
      EXPECT_STREQ(error.what(), "invalid string position");
    }
  }
  EXPECT_EQ(world.Count("CLSIDFromString"), 0);
}

TEST_F(FormatId, AHeadWithNothingBehindItNamesNothing) {
  EXPECT_FALSE(ReadId(L"<prop_set fmt_id=\""));
}

class SummarySet : public PropertySet {
 protected:
  ZDXEngine::PropertySetMap sets;
};

TEST_F(SummarySet, IsTheTextUnderItsId) {
  sets[kOtherId] = L"other";
  sets[kSummaryId] = L"summary";
  std::wstring text = L"before";
  EXPECT_TRUE(ZDXEngine::GetSummaryPropertySet(sets, text));
  EXPECT_EQ(text, L"summary");
  EXPECT_EQ(sets[kSummaryId], L"summary");
}

TEST_F(SummarySet, ThatIsMissingLeavesTheResultAlone) {
  sets[kOtherId] = L"other";
  std::wstring text = L"before";
  EXPECT_FALSE(ZDXEngine::GetSummaryPropertySet(sets, text));
  EXPECT_EQ(text, L"before");
}

TEST_F(SummarySet, IsWhereAValueIsLookedFor) {
  sets[kOtherId] = kHead + kVersionProperty;
  sets[kSummaryId] = kHead + kNameProperty;
  EXPECT_TRUE(ZDXEngine::FindPropertyValue(sets, ByNumber(258), value));
  EXPECT_STREQ(value.pwszVal, L"X");
  PROPVARIANT none = {};
  EXPECT_FALSE(ZDXEngine::FindPropertyValue(sets, ByNumber(259), none));
}

TEST_F(SummarySet, ThatIsMissingHasNoValue) {
  sets[kOtherId] = kHead + kNameProperty;
  EXPECT_FALSE(ZDXEngine::FindPropertyValue(sets, ByNumber(258), value));
}

}  // namespace
