// What every provider of the operating system's operations does with variants and texts.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "backends/System.h"
#include "support/scripted/System.h"

namespace variant_contract {
namespace {

// The stand-in with what it writes into, which must end up even.
class ScriptedSystem : public scripted::System {
 public:
  ScriptedSystem() : System(log_, ledger_) {}
  ~ScriptedSystem() override { EXPECT_THAT(ledger_.Leftovers(), testing::IsEmpty()); }

 private:
  scripted::CallLog log_;
  scripted::Ledger ledger_;
};

struct Subject {
  const char* name;
  std::unique_ptr<os::Provider> (*make)();
};

// How a failing test names its subject.
void PrintTo(const Subject& subject, std::ostream* out) { *out << subject.name; }

const Subject kSubjects[] = {
    {"System", zdx::MakeSystem},
    {"Scripted",
     []() -> std::unique_ptr<os::Provider> { return std::make_unique<ScriptedSystem>(); }},
};

std::uint32_t LengthPrefixOf(const wchar_t* text) {
  std::uint32_t length = 0;
  std::memcpy(&length, reinterpret_cast<const char*>(text) - sizeof length, sizeof length);
  return length;
}

// A text that may hold terminators, laid out as an automation string is; lives as long as this.
class RawText {
 public:
  explicit RawText(const std::wstring& characters) : block_(kPrefixUnits + characters.size() + 1) {
    const auto length = static_cast<std::uint32_t>(characters.size() * sizeof(wchar_t));
    std::memcpy(reinterpret_cast<char*>(Text()) - sizeof length, &length, sizeof length);
    std::memcpy(Text(), characters.data(), length);
  }
  wchar_t* Text() { return block_.data() + kPrefixUnits; }

 private:
  static constexpr std::size_t kPrefixUnits = 8 / sizeof(wchar_t);
  std::vector<wchar_t> block_;
};

VARIANT Text(wchar_t* text) {
  VARIANT variant{};
  variant.vt = VT_BSTR;
  variant.bstrVal = text;
  return variant;
}

VARIANT Bytes(SAFEARRAY* array) {
  VARIANT variant{};
  variant.vt = VT_ARRAY | VT_UI1;
  variant.parray = array;
  return variant;
}

class Variants : public testing::TestWithParam<Subject> {
 protected:
  std::unique_ptr<os::Provider> os = GetParam().make();
};

TEST_P(Variants, InitMakesEmptyWithoutLookingAtWhatWasThere) {
  VARIANT variant;
  std::memset(static_cast<void*>(&variant), 0xFF, sizeof variant);
  os->VariantInit(&variant);
  EXPECT_EQ(variant.vt, VT_EMPTY);
}

TEST_P(Variants, ANewTextHasItsLengthInBytesBeforeIt) {
  VARIANT variant = Text(os->SysAllocString(L"Walls"));
  EXPECT_EQ(LengthPrefixOf(variant.bstrVal), 5 * sizeof(wchar_t));
  os->VariantClear(&variant);
}

TEST_P(Variants, ANewTextIsATerminatedCopy) {
  const std::wstring original = L"Walls";
  VARIANT variant = Text(os->SysAllocString(original.c_str()));
  EXPECT_NE(variant.bstrVal, original.c_str());
  EXPECT_EQ(std::wstring(variant.bstrVal), original);
  os->VariantClear(&variant);
}

TEST_P(Variants, ANewTextOfAnEmptyTextIsEmptyAndNotNull) {
  VARIANT variant = Text(os->SysAllocString(L""));
  ASSERT_NE(variant.bstrVal, nullptr);
  EXPECT_EQ(LengthPrefixOf(variant.bstrVal), 0u);
  EXPECT_EQ(variant.bstrVal[0], L'\0');
  os->VariantClear(&variant);
}

TEST_P(Variants, ANewTextOfNullIsNull) { EXPECT_EQ(os->SysAllocString(nullptr), nullptr); }

TEST_P(Variants, ClearingATextMakesEmpty) {
  VARIANT variant = Text(os->SysAllocString(L"Walls"));
  EXPECT_EQ(os->VariantClear(&variant), S_OK);
  EXPECT_EQ(variant.vt, VT_EMPTY);
}

TEST_P(Variants, ClearingANullTextMakesEmpty) {
  VARIANT variant = Text(nullptr);
  EXPECT_EQ(os->VariantClear(&variant), S_OK);
  EXPECT_EQ(variant.vt, VT_EMPTY);
}

TEST_P(Variants, ClearingANumberOrAFlagMakesEmpty) {
  for (const VARTYPE type : {VT_R8, VT_BOOL}) {
    VARIANT variant{};
    variant.vt = type;
    EXPECT_EQ(os->VariantClear(&variant), S_OK) << type;
    EXPECT_EQ(variant.vt, VT_EMPTY) << type;
  }
}

TEST_P(Variants, ClearingTwiceIsFine) {
  VARIANT variant = Text(os->SysAllocString(L"Walls"));
  os->VariantClear(&variant);
  EXPECT_EQ(os->VariantClear(&variant), S_OK);
  EXPECT_EQ(variant.vt, VT_EMPTY);
}

TEST_P(Variants, ACopiedTextIsEqualAndItsOwn) {
  VARIANT source = Text(os->SysAllocString(L"Walls"));
  VARIANT target{};
  EXPECT_EQ(os->VariantCopy(&target, &source), S_OK);
  EXPECT_EQ(target.vt, VT_BSTR);
  EXPECT_NE(target.bstrVal, source.bstrVal);
  EXPECT_EQ(std::wstring(target.bstrVal), L"Walls");
  os->VariantClear(&source);
  EXPECT_EQ(std::wstring(target.bstrVal), L"Walls");
  os->VariantClear(&target);
}

TEST_P(Variants, TheSourceOfACopyKeepsItsValue) {
  VARIANT source = Text(os->SysAllocString(L"Walls"));
  VARIANT target{};
  os->VariantCopy(&target, &source);
  EXPECT_EQ(source.vt, VT_BSTR);
  EXPECT_EQ(std::wstring(source.bstrVal), L"Walls");
  os->VariantClear(&source);
  os->VariantClear(&target);
}

TEST_P(Variants, ACopiedTextKeepsWhatStandsBehindATerminator) {
  const std::wstring characters(L"a\0b\0", 4);
  RawText raw(characters);
  VARIANT source = Text(raw.Text());
  VARIANT target{};
  ASSERT_EQ(os->VariantCopy(&target, &source), S_OK);
  ASSERT_EQ(LengthPrefixOf(target.bstrVal), 4 * sizeof(wchar_t));
  EXPECT_EQ(std::wstring(target.bstrVal, 4), characters);
  EXPECT_EQ(target.bstrVal[4], L'\0');
  os->VariantClear(&target);
}

TEST_P(Variants, ACopiedNullTextIsNullOrEmpty) {
  VARIANT source = Text(nullptr);
  VARIANT target{};
  EXPECT_EQ(os->VariantCopy(&target, &source), S_OK);
  EXPECT_EQ(target.vt, VT_BSTR);
  EXPECT_TRUE(target.bstrVal == nullptr || LengthPrefixOf(target.bstrVal) == 0u);
  os->VariantClear(&target);
}

TEST_P(Variants, ACopiedEmptyTextIsEmptyAndNotNull) {
  VARIANT source = Text(os->SysAllocString(L""));
  VARIANT target{};
  EXPECT_EQ(os->VariantCopy(&target, &source), S_OK);
  ASSERT_NE(target.bstrVal, nullptr);
  EXPECT_EQ(LengthPrefixOf(target.bstrVal), 0u);
  os->VariantClear(&source);
  os->VariantClear(&target);
}

TEST_P(Variants, ACopyReleasesWhatTheTargetHeld) {
  VARIANT source{};
  source.vt = VT_R8;
  source.dblVal = 1.5;
  VARIANT target = Text(os->SysAllocString(L"Walls"));
  EXPECT_EQ(os->VariantCopy(&target, &source), S_OK);
  EXPECT_EQ(target.vt, VT_R8);
  EXPECT_EQ(target.dblVal, 1.5);
}

TEST_P(Variants, AFlagIsCopied) {
  VARIANT source{};
  source.vt = VT_BOOL;
  source.boolVal = VARIANT_TRUE;
  VARIANT target{};
  EXPECT_EQ(os->VariantCopy(&target, &source), S_OK);
  EXPECT_EQ(target.vt, VT_BOOL);
  EXPECT_EQ(target.boolVal, VARIANT_TRUE);
}

TEST_P(Variants, CopyingFromEmptyMakesEmpty) {
  const VARIANT source{};
  VARIANT target = Text(os->SysAllocString(L"Walls"));
  EXPECT_EQ(os->VariantCopy(&target, &source), S_OK);
  EXPECT_EQ(target.vt, VT_EMPTY);
}

TEST_P(Variants, CopiedBytesAreEqualAndTheirOwn) {
  std::uint8_t bytes[] = {1, 0, 255};
  SAFEARRAY array{1, 0, 1, 0, bytes, {{3, 0}}};
  const VARIANT source = Bytes(&array);
  VARIANT target{};
  ASSERT_EQ(os->VariantCopy(&target, &source), S_OK);
  ASSERT_EQ(target.vt, VT_ARRAY | VT_UI1);
  ASSERT_NE(target.parray, source.parray);
  ASSERT_NE(target.parray->pvData, source.parray->pvData);
  EXPECT_EQ(target.parray->cDims, 1);
  EXPECT_EQ(target.parray->cbElements, 1u);
  ASSERT_EQ(target.parray->rgsabound[0].cElements, 3u);
  EXPECT_EQ(std::memcmp(target.parray->pvData, bytes, 3), 0);
  EXPECT_EQ(os->VariantClear(&target), S_OK);
  EXPECT_EQ(target.vt, VT_EMPTY);
}

TEST_P(Variants, NoBytesAreCopiedAsNoBytes) {
  SAFEARRAY array{1, 0, 1, 0, nullptr, {{0, 0}}};
  const VARIANT source = Bytes(&array);
  VARIANT target{};
  ASSERT_EQ(os->VariantCopy(&target, &source), S_OK);
  EXPECT_EQ(target.parray->rgsabound[0].cElements, 0u);
  os->VariantClear(&target);
}

TEST_P(Variants, ATypeThatNoVariantHasIsRefusedAndLeavesAnEmptyTargetEmpty) {
  constexpr VARTYPE kVoid = 24;
  VARIANT source{};
  source.vt = kVoid;
  VARIANT target{};
  EXPECT_EQ(os->VariantCopy(&target, &source), DISP_E_BADVARTYPE);
  EXPECT_EQ(target.vt, VT_EMPTY);
}

TEST_P(Variants, BytesAreCopiedIntoAnArray) {
  std::uint8_t bytes[] = {1, 0, 255};
  VARIANT variant;
  ASSERT_EQ(os->InitVariantFromBuffer(bytes, 3, &variant), S_OK);
  bytes[0] = 9;
  ASSERT_EQ(variant.vt, VT_ARRAY | VT_UI1);
  EXPECT_EQ(variant.parray->cDims, 1);
  EXPECT_EQ(variant.parray->cbElements, 1u);
  EXPECT_EQ(variant.parray->rgsabound[0].cElements, 3u);
  EXPECT_EQ(variant.parray->rgsabound[0].lLbound, 0);
  const std::uint8_t before[] = {1, 0, 255};
  EXPECT_EQ(std::memcmp(variant.parray->pvData, before, 3), 0);
  EXPECT_EQ(os->VariantClear(&variant), S_OK);
}

TEST_P(Variants, NoBytesMakeAnArrayOfNone) {
  VARIANT variant{};
  ASSERT_EQ(os->InitVariantFromBuffer(nullptr, 0, &variant), S_OK);
  ASSERT_EQ(variant.vt, VT_ARRAY | VT_UI1);
  EXPECT_EQ(variant.parray->rgsabound[0].cElements, 0u);
  os->VariantClear(&variant);
}

TEST_P(Variants, AnArrayIsMadeWithoutLookingAtWhatWasThere) {
  VARIANT variant;
  std::memset(static_cast<void*>(&variant), 0xFF, sizeof variant);
  ASSERT_EQ(os->InitVariantFromBuffer("x", 1, &variant), S_OK);
  EXPECT_EQ(variant.vt, VT_ARRAY | VT_UI1);
  os->VariantClear(&variant);
}

TEST_P(Variants, AnArrayMadeOfBytesCanBeCopied) {
  VARIANT variant{};
  ASSERT_EQ(os->InitVariantFromBuffer("xyz", 3, &variant), S_OK);
  VARIANT copy{};
  ASSERT_EQ(os->VariantCopy(&copy, &variant), S_OK);
  os->VariantClear(&variant);
  ASSERT_EQ(copy.parray->rgsabound[0].cElements, 3u);
  EXPECT_EQ(std::memcmp(copy.parray->pvData, "xyz", 3), 0);
  os->VariantClear(&copy);
}

TEST_P(Variants, ABracedTextIsAnIdInAnyCase) {
  const GUID expected = {
      0xF29F85E0, 0x4FF9, 0x1068, {0xAB, 0x91, 0x08, 0x00, 0x2B, 0x27, 0xB3, 0xD9}};
  for (const wchar_t* text :
       {L"{F29F85E0-4FF9-1068-AB91-08002B27B3D9}", L"{f29f85e0-4ff9-1068-ab91-08002b27b3d9}",
        L"{f29F85e0-4Ff9-1068-aB91-08002b27B3d9}"}) {
    GUID id = {};
    EXPECT_EQ(os->CLSIDFromString(text, &id), S_OK);
    EXPECT_EQ(id, expected);
  }
}

TEST_P(Variants, EveryDigitOfAnIdHasItsPlace) {
  GUID id = {};
  ASSERT_EQ(os->CLSIDFromString(L"{01234567-89AB-CDEF-FEDC-BA9876543210}", &id), S_OK);
  EXPECT_EQ(id,
            (GUID{0x01234567, 0x89AB, 0xCDEF, {0xFE, 0xDC, 0xBA, 0x98, 0x76, 0x54, 0x32, 0x10}}));
}

TEST_P(Variants, AnyOtherTextIsNoId) {
  for (const wchar_t* text :
       {L"F29F85E0-4FF9-1068-AB91-08002B27B3D9", L"{F29F85E0-4FF9-1068-AB91-08002B27B3D9",
        L"{F29F85E0-4FF9-1068-AB91-08002B27B3D9} ", L" {F29F85E0-4FF9-1068-AB91-08002B27B3D9}",
        L"{F29F85E0-4FF9-1068-AB91-08002B27B3D}", L"{F29F85E0-4FF9-1068-AB91-08002B27B3D9F}",
        L"{F29F85E0-4FF9-1068-AB9108002B27B3D9-}", L"{F29F85E04-FF9-1068-AB91-08002B27B3D9}",
        L"{G29F85E0-4FF9-1068-AB91-08002B27B3D9}", L"{g29f85e0-4ff9-1068-ab91-08002b27b3d9}",
        L"(F29F85E0-4FF9-1068-AB91-08002B27B3D9)", L"{+29F85E0-4FF9-1068-AB91-08002B27B3D9}",
        L"{F29F85E0 4FF9 1068 AB91 08002B27B3D9}", L"{\uFF1129F85E0-4FF9-1068-AB91-08002B27B3D}"}) {
    GUID id = {};
    EXPECT_EQ(os->CLSIDFromString(text, &id), CO_E_CLASSSTRING);
  }
}

INSTANTIATE_TEST_SUITE_P(Of, Variants, testing::ValuesIn(kSubjects),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace variant_contract
