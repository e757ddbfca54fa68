#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <utility>
#include <vector>

#include "ZDXEngine/PropData.h"
#include "platform/os/Os.h"
#include "support/scripted/ScriptedTest.h"
#include "unit/properties/Shown.h"

using testing::ElementsAre;
using ZDXEngine::_PropData;

namespace {

class PropData : public scripted::ScriptedTest {
 protected:
  // A record "set/Layer Name" that holds the text `text`.
  static _PropData Holding(const wchar_t* text) {
    _PropData record;
    record.formatId = L"set";
    record.name = L"Layer Name";
    record.typeCode = ZDXEngine::kTypeText;
    record.value.bstrVal = os::SysAllocString(text);
    record.value.vt = VT_BSTR;
    return record;
  }
  std::vector<std::string> VariantCalls() const {
    return world.Calls({"VariantInit", "VariantCopy", "VariantClear"});
  }
};

TEST_F(PropData, ANewRecordInitialisesAnEmptyValue) {
  const auto record = std::make_unique<_PropData>();
  EXPECT_EQ(record->value.vt, VT_EMPTY);
  EXPECT_EQ(record->formatId, L"");
  EXPECT_EQ(record->name, L"");
  EXPECT_THAT(world.Calls(), ElementsAre("VariantInit()"));
}

TEST_F(PropData, ItsFieldsStandInTheirOrder) {
  const _PropData record;
  EXPECT_EQ(static_cast<const void*>(&record), &record.formatId);
  EXPECT_LT(&record.formatId, &record.name);
  EXPECT_LT(static_cast<const void*>(&record.name), &record.value);
  EXPECT_LT(static_cast<const void*>(&record.value), &record.typeCode);
}

TEST_F(PropData, TheTypeCodesHaveTheirValues) {
  EXPECT_EQ(ZDXEngine::kTypeFlag, 0);
  EXPECT_EQ(ZDXEngine::kTypeNumber, 1);
  EXPECT_EQ(ZDXEngine::kTypeText, 2);
  EXPECT_EQ(ZDXEngine::kTypeBinary, 4);
  static_assert(sizeof(_PropData::typeCode) == 4);
}

TEST_F(PropData, DestroyingARecordClearsItsValue) {
  auto record = std::make_unique<_PropData>(Holding(L"Walls"));
  world.ForgetCalls();
  record.reset();
  EXPECT_THAT(world.Calls(), ElementsAre("VariantClear(text Walls)"));
}

TEST_F(PropData, CopyingInitialisesAndThenCopiesTheValue) {
  const _PropData record = Holding(L"Walls");
  world.ForgetCalls();
  const _PropData copy(record);
  EXPECT_THAT(VariantCalls(), ElementsAre("VariantInit()", "VariantCopy(text Walls)"));
}

TEST_F(PropData, ACopyHasEveryField) {
  const _PropData record = Holding(L"Walls");
  const _PropData copy(record);
  EXPECT_EQ(copy.formatId, L"set");
  EXPECT_EQ(copy.typeCode, 2);
  EXPECT_EQ(expected::Shown(copy), "Layer Name=Walls");
}

TEST_F(PropData, ACopyHasATextOfItsOwn) {
  const _PropData record = Holding(L"Walls");
  const _PropData copy(record);
  EXPECT_NE(copy.value.bstrVal, record.value.bstrVal);
}

TEST_F(PropData, ACopyOutlivesItsOriginal) {
  auto record = std::make_unique<_PropData>(Holding(L"Walls"));
  const _PropData copy(*record);
  record.reset();
  EXPECT_EQ(expected::Shown(copy), "Layer Name=Walls");
}

TEST_F(PropData, ACopyThatFailsRaisesItsComErrorAndLeaksNothing) {
  const _PropData record = Holding(L"Walls");
  world.Fail("VariantCopy", DISP_E_BADVARTYPE);
  try {
    const _PropData copy(record);
    FAIL() << "nothing was thrown";
  } catch (const _com_error& error) {
    EXPECT_EQ(error.Error(), DISP_E_BADVARTYPE);
  }
}

TEST_F(PropData, AssignmentReplacesEveryField) {
  const _PropData record = Holding(L"Walls");
  _PropData target = Holding(L"Doors");
  target.formatId = L"other";
  target.typeCode = 0;
  target = record;
  EXPECT_EQ(target.formatId, L"set");
  EXPECT_EQ(target.typeCode, 2);
  EXPECT_EQ(expected::Shown(target), "Layer Name=Walls");
}

TEST_F(PropData, AssignmentToItselfKeepsTheValue) {
  _PropData record = Holding(L"Walls");
  _PropData& same = record;
  record = same;
  EXPECT_EQ(expected::Shown(record), "Layer Name=Walls");
}

TEST_F(PropData, AnAssignmentThatFailsRaisesItsComErrorAndLeaksNothing) {
  const _PropData record = Holding(L"Walls");
  _PropData target = Holding(L"Doors");
  world.Fail("VariantCopy", E_OUTOFMEMORY);
  EXPECT_THROW(target = record, _com_error);
}

TEST_F(PropData, AFlagANumberAndBytesAreCopiedToo) {
  std::uint8_t bytes[] = {1, 2, 3};
  SAFEARRAY array{1, 0, 1, 0, bytes, {{3, 0}}};
  VARIANT source{};
  source.vt = VT_ARRAY | VT_UI1;
  source.parray = &array;
  _PropData picture;
  ASSERT_EQ(os::VariantCopy(&picture.value, &source), S_OK);
  _PropData flag;
  flag.value.vt = VT_BOOL;
  flag.value.boolVal = VARIANT_TRUE;
  _PropData number;
  number.value.vt = VT_R8;
  number.value.dblVal = 1.5;

  const _PropData pictureCopy(picture), flagCopy(flag), numberCopy(number);
  EXPECT_NE(pictureCopy.value.parray, picture.value.parray);
  EXPECT_EQ(static_cast<std::uint8_t*>(pictureCopy.value.parray->pvData)[2], 3);
  EXPECT_EQ(flagCopy.value.boolVal, VARIANT_TRUE);
  EXPECT_EQ(numberCopy.value.dblVal, 1.5);
}

TEST_F(PropData, AMovedRecordTakesItsValueAlong) {
  _PropData record = Holding(L"Walls");
  world.ForgetCalls();
  const _PropData moved(std::move(record));
  EXPECT_EQ(world.Count("VariantCopy"), 0);
  EXPECT_EQ(moved.formatId, L"set");
  EXPECT_EQ(moved.typeCode, 2);
  EXPECT_EQ(expected::Shown(moved), "Layer Name=Walls");
  EXPECT_EQ(record.value.vt, VT_EMPTY);  // NOLINT(bugprone-use-after-move)
}

TEST_F(PropData, AListThatGrowsCopiesNoneOfItsValues) {
  std::vector<_PropData> list;
  list.push_back(Holding(L"Walls"));
  world.ForgetCalls();
  list.reserve(list.capacity() + 1);
  EXPECT_EQ(world.Count("VariantCopy"), 0);
  EXPECT_THAT(expected::Shown(list), ElementsAre("Layer Name=Walls"));
}

TEST_F(PropData, AListThatCannotTakeARecordKeepsWhatItHolds) {
  std::vector<_PropData> list;
  list.reserve(2);
  list.push_back(Holding(L"Walls"));
  list.push_back(Holding(L"Doors"));
  const _PropData third = Holding(L"Windows");
  world.Fail("VariantCopy", E_OUTOFMEMORY, 1);
  EXPECT_THROW(list.push_back(third), _com_error);
  EXPECT_THAT(expected::Shown(list), ElementsAre("Layer Name=Walls", "Layer Name=Doors"));
}

}  // namespace
