// Value elements: their shape, their types and what is scanned.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>

#include "properties/appinfo/TypedValue.h"

namespace {

class TypedValue : public testing::Test {
 protected:
  ~TypedValue() override { ZDXEngine::ReleaseTypedValue(value); }

  bool Read(const std::wstring& element) {
    ZDXEngine::ReleaseTypedValue(value);
    return ZDXEngine::ReadTypedValue(element, value);
  }
  std::wstring ReadString(const std::wstring& element) {
    EXPECT_TRUE(Read(element));
    EXPECT_EQ(value.vt, VT_LPWSTR);
    return value.pwszVal;
  }
  std::int32_t ReadInt(const std::wstring& text) {
    EXPECT_TRUE(Read(L"<int>" + text + L"</int>"));
    EXPECT_EQ(value.vt, VT_INT);
    return value.intVal;
  }
  std::uint32_t ReadUint(const std::wstring& text) {
    EXPECT_TRUE(Read(L"<uint>" + text + L"</uint>"));
    EXPECT_EQ(value.vt, VT_UINT);
    return value.uintVal;
  }
  double ReadDouble(const std::wstring& text) {
    EXPECT_TRUE(Read(L"<double>" + text + L"</double>"));
    EXPECT_EQ(value.vt, VT_R8);
    return value.dblVal;
  }
  VARIANT_BOOL ReadFlag(const std::wstring& text) {
    EXPECT_TRUE(Read(L"<boolval>" + text + L"</boolval>"));
    EXPECT_EQ(value.vt, VT_BOOL);
    return value.boolVal;
  }

  PROPVARIANT value = {};
};

TEST_F(TypedValue, EveryTypeHasItsNumber) {
  EXPECT_EQ(VT_R8, 5);
  EXPECT_EQ(VT_BOOL, 11);
  EXPECT_EQ(VT_INT, 22);
  EXPECT_EQ(VT_UINT, 23);
  EXPECT_EQ(VT_LPWSTR, 31);
  EXPECT_EQ(VT_FILETIME, 64);
}

TEST_F(TypedValue, AStringIsTakenLiterally) {
  EXPECT_EQ(ReadString(L"<string>Program 2018</string>"), L"Program 2018");
  EXPECT_EQ(ReadString(L"<string>a&amp;b</string>"), L"a&amp;b");
  EXPECT_EQ(ReadString(L"<string>  a\n b </string>"), L"  a\n b ");
  EXPECT_EQ(ReadString(L"<string>a<b>c</b></string>"), L"a<b>c</b>");
}

TEST_F(TypedValue, AnEmptyStringIsEmptyAndNotNull) {
  ASSERT_TRUE(Read(L"<string></string>"));
  ASSERT_NE(value.pwszVal, nullptr);
  EXPECT_STREQ(value.pwszVal, L"");
}

TEST_F(TypedValue, AStringEndsAtTheFirstClosingTag) {
  EXPECT_EQ(ReadString(L"<string>X</string></prop><string>Y</string>"), L"X");
}

TEST_F(TypedValue, WhatStandsBehindTheClosingTagDoesNotMatter) {
  EXPECT_EQ(ReadString(L"<string>X</string>rubbish"), L"X");
}

TEST_F(TypedValue, AnElementMustBeginAtOnce) {
  for (const wchar_t* element : {L"", L" <string>X</string>", L"X", L"a<string>X</string>",
                                 L"xstring>X</string>", L" string>X</string><"}) {
    EXPECT_FALSE(Read(element));
    EXPECT_EQ(value.vt, VT_EMPTY);
  }
}

TEST_F(TypedValue, ATagMustEnd) {
  for (const wchar_t* element : {L"<string", L"<"}) {
    EXPECT_FALSE(Read(element));
    EXPECT_EQ(value.vt, VT_EMPTY);
  }
}

TEST_F(TypedValue, AnUnknownTagIsRefusedAndSetsNoType) {
  for (const wchar_t* tag : {L"String", L"STRING", L"strin", L"strings", L"string ", L" string",
                             L"", L"bool", L"date", L"float", L"string/"}) {
    const std::wstring name = tag;
    EXPECT_FALSE(Read(L"<" + name + L">1</" + name + L">"));
    EXPECT_EQ(value.vt, VT_EMPTY);
  }
}

TEST_F(TypedValue, WithoutAClosingTagTheTypeIsSetAndNothingElse) {
  const std::pair<const wchar_t*, VARTYPE> tags[] = {
      {L"string", VT_LPWSTR}, {L"double", VT_R8},         {L"int", VT_INT},
      {L"uint", VT_UINT},     {L"datetime", VT_FILETIME}, {L"boolval", VT_BOOL}};
  for (const auto& [tag, type] : tags) {
    PROPVARIANT untouched = {};
    EXPECT_FALSE(ZDXEngine::ReadTypedValue(L"<" + std::wstring(tag) + L">1</", untouched));
    EXPECT_EQ(untouched.vt, type);
    const PROPVARIANT zero = {};
    EXPECT_EQ(std::memcmp(&untouched.dblVal, &zero.dblVal, sizeof zero.dblVal), 0);
  }
}

TEST_F(TypedValue, TheClosingTagMustBeTheSame) {
  EXPECT_FALSE(Read(L"<int>1</uint>"));
  EXPECT_FALSE(Read(L"<int>1</INT>"));
  EXPECT_FALSE(Read(L"<int>1</int >"));
}

TEST_F(TypedValue, AnIntIsDecimalOctalOrHexadecimal) {
  EXPECT_EQ(ReadInt(L"16"), 16);
  EXPECT_EQ(ReadInt(L"0x10"), 16);
  EXPECT_EQ(ReadInt(L"0X1f"), 31);
  EXPECT_EQ(ReadInt(L"010"), 8);
  EXPECT_EQ(ReadInt(L"-5"), -5);
}

TEST_F(TypedValue, AnIntThatDoesNotScanIsZero) {
  EXPECT_EQ(ReadInt(L"abc"), 0);
  EXPECT_EQ(ReadInt(L""), 0);
}

TEST_F(TypedValue, AScanSkipsBlanksAndStopsAtTheRest) {
  EXPECT_EQ(ReadInt(L" 12abc"), 12);
  EXPECT_EQ(ReadUint(L"\n7.5"), 7u);
  EXPECT_EQ(ReadDouble(L" 2 and more"), 2);
}

TEST_F(TypedValue, AUintIsDecimal) {
  EXPECT_EQ(ReadUint(L"4294967295"), 4294967295u);
  EXPECT_EQ(ReadUint(L"010"), 10u);
  EXPECT_EQ(ReadUint(L"0x10"), 0u);
  EXPECT_EQ(ReadUint(L"abc"), 0u);
}

TEST_F(TypedValue, ADoubleIsScanned) {
  EXPECT_EQ(ReadDouble(L"1.5"), 1.5);
  EXPECT_EQ(ReadDouble(L"-2e3"), -2000);
  EXPECT_EQ(ReadDouble(L"x"), 0);
}

TEST_F(TypedValue, AScanWritesNoMoreThanItsValue) {
  PROPVARIANT filled;
  std::memset(static_cast<void*>(&filled), 0xFF, sizeof filled);
  unsigned char bytes[8];
  for (const wchar_t* element : {L"<uint>1</uint>", L"<int>1</int>"}) {
    ASSERT_TRUE(ZDXEngine::ReadTypedValue(element, filled));
    std::memcpy(bytes, &filled.dblVal, sizeof bytes);
    EXPECT_EQ(bytes[0], 1);
    EXPECT_EQ(bytes[4], 0xFF);
  }
  ASSERT_TRUE(ZDXEngine::ReadTypedValue(L"<boolval>true</boolval>", filled));
  std::memcpy(bytes, &filled.dblVal, sizeof bytes);
  EXPECT_EQ(bytes[0], 1);
  EXPECT_EQ(bytes[1], 0);
  EXPECT_EQ(bytes[2], 0);  // of the int before it
  filled = {};
}

TEST_F(TypedValue, AFlagIsTrueForOneTextAlone) {
  EXPECT_EQ(ReadFlag(L"true"), 1);
  for (const wchar_t* text : {L"false", L"TRUE", L"True", L" true", L"true ", L"1", L""}) {
    EXPECT_EQ(ReadFlag(text), 0);
  }
}

TEST_F(TypedValue, ADateIsRefusedWhateverItsText) {
  for (const wchar_t* text : {L"2020-01-01T00:00:00", L"1800-13-99T99:99:99", L"", L"soon"}) {
    try {
      Read(L"<datetime>" + std::wstring(text) + L"</datetime>");
      FAIL() << "nothing was thrown";
    } catch (const ATL::CAtlException& error) {
      EXPECT_EQ(error.m_hr, E_FAIL);
    }
    EXPECT_EQ(value.vt, VT_FILETIME);
  }
}

TEST_F(TypedValue, ReleasingFreesAStringAndClears) {
  ASSERT_TRUE(Read(L"<string>X</string>"));
  ZDXEngine::ReleaseTypedValue(value);
  EXPECT_EQ(value.vt, VT_EMPTY);
  EXPECT_EQ(value.pwszVal, nullptr);
}

}  // namespace
