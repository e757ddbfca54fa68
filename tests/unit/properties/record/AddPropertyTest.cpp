#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/os/Os.h"
#include "properties/record/AddProperty.h"
#include "support/scripted/ScriptedTest.h"
#include "unit/properties/Outages.h"
#include "unit/properties/Shown.h"

using namespace ZDXEngine;  // NOLINT: records throughout
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

constexpr GUID kForeignSet = {0x01234567, 0x89AB, 0xCDEF, {1, 2, 3, 4, 5, 6, 7, 8}};

VARIANT TextOf(const wchar_t* text) {
  VARIANT value{};
  value.vt = VT_BSTR;
  value.bstrVal = os::SysAllocString(text);
  return value;
}

class Adding : public scripted::ScriptedTest {
 protected:
  // The name under which a property is stored.
  std::wstring NameOf(const std::wstring& propertyName, const GUID& set, unsigned long number) {
    VARIANT value = TextOf(L"x");
    AddProperty(properties, value, kTypeText, propertyName, set, number);
    return properties.back().name;
  }

  std::vector<_PropData> properties;
};

TEST_F(Adding, ASummaryPropertyIsNamedByItsNumberWhateverItsName) {
  EXPECT_EQ(NameOf(L"Title", ZDXEngine::FMTID_SummaryInformation, 2), L"2");
}

TEST_F(Adding, ADocumentSummaryPropertyIsNamedByItsNumberWhateverItsName) {
  EXPECT_EQ(NameOf(L"Category", ZDXEngine::FMTID_DocSummaryInformation, 15), L"15");
}

TEST_F(Adding, ASummaryPropertyWithoutANameIsNamedByItsNumber) {
  EXPECT_EQ(NameOf(L"", ZDXEngine::FMTID_SummaryInformation, 9), L"9");
}

TEST_F(Adding, AnEnginePropertyIsNamedByItsName) {
  EXPECT_EQ(NameOf(L"DWG Type", ZDXEngine::FMTID_Storage, 0x13), L"DWG Type");
}

TEST_F(Adding, AnEnginePropertyWithoutANameIsNamedByItsNumber) {
  EXPECT_EQ(NameOf(L"", ZDXEngine::FMTID_Storage, 0x13), L"19");
}

TEST_F(Adding, ACustomPropertyIsNamedByItsName) {
  EXPECT_EQ(NameOf(L"Client", ZDXEngine::FMTID_UserDefinedProperties, 0x13), L"Client");
}

TEST_F(Adding, APropertyOfAnyOtherSetIsNamedByItsName) {
  EXPECT_EQ(NameOf(L"Client", kForeignSet, 2), L"Client");
  EXPECT_EQ(NameOf(L"", kForeignSet, 2), L"2");
}

TEST_F(Adding, TheSetIsStoredAsTheTextOfItsId) {
  NameOf(L"a", ZDXEngine::FMTID_SummaryInformation, 2);
  NameOf(L"a", ZDXEngine::FMTID_DocSummaryInformation, 2);
  NameOf(L"a", ZDXEngine::FMTID_UserDefinedProperties, 2);
  NameOf(L"a", ZDXEngine::FMTID_Storage, 2);
  EXPECT_EQ(properties[0].formatId, expected::kSummarySet);
  EXPECT_EQ(properties[1].formatId, expected::kDocSummarySet);
  EXPECT_EQ(properties[2].formatId, expected::kCustomSet);
  EXPECT_EQ(properties[3].formatId, expected::kStorageSet);
}

TEST_F(Adding, TheTypeCodeIsStoredAsItIsGiven) {
  VARIANT value{};
  value.vt = VT_R8;
  AddProperty(properties, value, kTypeNumber, L"a", ZDXEngine::FMTID_Storage, 0x13);
  EXPECT_EQ(properties.back().typeCode, 1);
  EXPECT_EQ(properties.back().value.vt, VT_R8);
}

TEST_F(Adding, TheCallersVariantIsEmptyAfterwards) {
  VARIANT value = TextOf(L"Walls");
  AddProperty(properties, value, kTypeText, L"Layer Name", ZDXEngine::FMTID_Storage, 0x13);
  EXPECT_EQ(value.vt, VT_EMPTY);
}

TEST_F(Adding, TheRecordGoesInBehindTheOthers) {
  NameOf(L"a", ZDXEngine::FMTID_Storage, 0x13);
  NameOf(L"b", ZDXEngine::FMTID_Storage, 0x13);
  EXPECT_THAT(expected::Shown(properties), ElementsAre("a=x", "b=x"));
}

TEST_F(Adding, TheSameNameMayComeTwice) {
  NameOf(L"a", ZDXEngine::FMTID_Storage, 0x13);
  NameOf(L"a", ZDXEngine::FMTID_Storage, 0x13);
  EXPECT_THAT(properties, SizeIs(2));
}

TEST_F(Adding, TheValueIsCopiedIntoARecordAndTheRecordIntoTheList) {
  VARIANT value = TextOf(L"Walls");
  world.ForgetCalls();
  AddProperty(properties, value, kTypeText, L"Layer Name", ZDXEngine::FMTID_Storage, 0x13);
  std::vector<std::string> calls =
      world.Calls({"VariantInit", "VariantCopy", "VariantClear", "SysAllocString"});
  // Clearing what is empty already changes nothing.
  std::erase(calls, "VariantClear(empty)");
  EXPECT_THAT(calls, ElementsAre("VariantInit()", "VariantCopy(text Walls)",  // the record
                                 "VariantInit()", "VariantCopy(text Walls)",  // the list's own
                                 "VariantClear(text Walls)", "VariantClear(text Walls)"));
}

TEST_F(Adding, AValueThatCannotBeCopiedLeavesTheListAsItWas) {
  NameOf(L"a", ZDXEngine::FMTID_Storage, 0x13);
  for (const int nth : {1, 2}) {
    VARIANT value = TextOf(L"Walls");
    world.Fail("VariantCopy", E_OUTOFMEMORY, nth);
    EXPECT_THROW(AddProperty(properties, value, kTypeText, L"b", ZDXEngine::FMTID_Storage, 0x13),
                 _com_error)
        << nth;
    EXPECT_THAT(expected::Shown(properties), ElementsAre("a=x")) << nth;
    os::VariantClear(&value);
  }
}

TEST_F(Adding, TheComErrorIsThatOfTheFailedCopy) {
  VARIANT value{};
  world.Fail("VariantCopy", DISP_E_BADVARTYPE);
  try {
    AddProperty(properties, value, kTypeText, L"b", ZDXEngine::FMTID_Storage, 0x13);
    FAIL() << "nothing was thrown";
  } catch (const _com_error& error) {
    EXPECT_EQ(error.Error(), DISP_E_BADVARTYPE);
  }
}

TEST_F(Adding, ATextIsAddedWithTheTypeCodeOfTexts) {
  AddText(properties, L"Walls", L"Layer Name", ZDXEngine::FMTID_Storage, 0x13);
  EXPECT_THAT(expected::Shown(properties), ElementsAre("Layer Name=Walls"));
  EXPECT_EQ(properties.back().typeCode, 2);
}

TEST_F(Adding, ANullTextIsAddedAsANullText) {
  AddText(properties, nullptr, L"Title", ZDXEngine::FMTID_Storage, 0x13);
  EXPECT_THAT(expected::Shown(properties), ElementsAre("Title=(null)"));
}

TEST_F(Adding, AnEmptyTextIsAddedAsAnEmptyText) {
  AddText(properties, L"", L"Title", ZDXEngine::FMTID_Storage, 0x13);
  EXPECT_THAT(expected::Shown(properties), ElementsAre("Title="));
}

TEST(AddingText, WithoutMemoryRaisesTheComErrorAndLeaksNothing) {
  outages::FailEachAllocation([](scripted::World&) {},
                              [] {
                                std::vector<_PropData> properties;
                                AddText(properties, L"a", L"A", ZDXEngine::FMTID_Storage, 0x13);
                                AddText(properties, L"b", L"B", ZDXEngine::FMTID_Storage, 0x13);
                                AddText(properties, L"c", L"C", ZDXEngine::FMTID_Storage, 0x13);
                              });
}

}  // namespace
