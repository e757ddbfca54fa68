#include <gtest/gtest.h>

#include "ZDXEngine/Utf8.h"
#include "backends/database/modeldoc/SafeLeafName.h"

namespace zdx::database {
namespace {

TEST(SafeLeafName, IsTheNameThatTheDrawingTellsIfItIsPlain) {
  EXPECT_EQ(SafeLeafName(L"Model 1.dwg"), L"Model 1.dwg");
  EXPECT_EQ(SafeLeafName(L"m\u00FChle \u6A21.dwg"), L"m\u00FChle \u6A21.dwg");
}

TEST(SafeLeafName, LeadsToNoOtherFolder) {
  EXPECT_EQ(SafeLeafName(L"../../home/a.dwg"), L"a.dwg");
  EXPECT_EQ(SafeLeafName(L"C:\\windows\\a.dwg"), L"a.dwg");
  EXPECT_EQ(SafeLeafName(L"C:a.dwg"), L"Ca.dwg");
  EXPECT_EQ(SafeLeafName(L"a.dwg:stream"), L"a.dwgstream");
  for (const wchar_t* const name : {L"", L".", L"..", L"a/..", L"a\\.. ", L"a/", L" . ", L"?*"}) {
    EXPECT_EQ(SafeLeafName(name), L"model.dwg");
  }
}

TEST(SafeLeafName, HasNoCharactersThatNamesCannotHave) {
  EXPECT_EQ(SafeLeafName(std::wstring(L"a\0b\n\x7F\x9F<>\"|.dwg", 14)), L"ab.dwg");
  if (sizeof(wchar_t) > 2) {
    EXPECT_EQ(SafeLeafName(std::wstring{L'a', static_cast<wchar_t>(0xDCAF), L'b'}), L"ab");
  }
}

TEST(SafeLeafName, EndsAndBeginsWithWhatEverySystemKeeps) {
  EXPECT_EQ(SafeLeafName(L" ..a.dwg. . "), L"a.dwg");
}

TEST(SafeLeafName, IsNoDevice) {
  EXPECT_EQ(SafeLeafName(L"NUL"), L"_NUL");
  EXPECT_EQ(SafeLeafName(L"con.dwg"), L"_con.dwg");
  EXPECT_EQ(SafeLeafName(L"Aux .x.dwg"), L"_Aux .x.dwg");
  EXPECT_EQ(SafeLeafName(L"LPT1.dwg"), L"_LPT1.dwg");
  EXPECT_EQ(SafeLeafName(L"com\u00B2"), L"_com\u00B2");
  EXPECT_EQ(SafeLeafName(L"com12.dwg"), L"com12.dwg");
  EXPECT_EQ(SafeLeafName(L"console.dwg"), L"console.dwg");
}

TEST(SafeLeafName, IsShortAndKeepsItsExtension) {
  for (const wchar_t letter : {L'a', L'\u6A21'}) {
    const std::wstring name = SafeLeafName(std::wstring(1'000'000, letter) + L".dwg");
    EXPECT_TRUE(name.ends_with(std::wstring(1, letter) + L".dwg"));
    EXPECT_LE(ZDXEngine::Utf8FromWide(name).size(), 100u);
    EXPECT_GT(ZDXEngine::Utf8FromWide(name).size(), 90u);
  }
  const std::wstring noExtension = SafeLeafName(L"a." + std::wstring(500, L'b'));
  EXPECT_LE(noExtension.size(), 100u);
  EXPECT_TRUE(noExtension.starts_with(L"a.bbb"));
}

}  // namespace
}  // namespace zdx::database
