// What every provider of the utility library does.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>

#include "ZDXEngine/FormatIds.h"
#include "ZDXEngine/Utf8.h"
#include "backends/common/CommonProvider.h"
#include "support/scripted/Utilities.h"

namespace utilities_contract {
namespace {

constexpr unsigned int kKnownText = 102;
constexpr wchar_t kText[] = L"Unable to find file '%1!s!' \n";

class ScriptedUtilities : public scripted::Utilities {
 public:
  ScriptedUtilities() : Utilities(log_) { texts[kKnownText] = kText; }

 private:
  scripted::CallLog log_;
};

std::wstring LoadKnownText(os::ModuleHandle /*module*/, unsigned int id) {
  return id == kKnownText ? kText : L"";
}

struct Subject {
  const char* name;
  std::unique_ptr<Common::Provider> (*make)();
};

// How a failing test names its subject.
void PrintTo(const Subject& subject, std::ostream* out) { *out << subject.name; }

const Subject kSubjects[] = {
    {"Common",
     []() -> std::unique_ptr<Common::Provider> {
       return std::make_unique<zdx::CommonProvider>(LoadKnownText);
     }},
    {"Scripted",
     []() -> std::unique_ptr<Common::Provider> { return std::make_unique<ScriptedUtilities>(); }},
};

class Utilities : public testing::TestWithParam<Subject> {
 protected:
  std::wstring Format(const std::wstring& format, const std::wstring& argument) {
    std::wstring out = L"what was there before";
    common->FormatMsg1(out, format, argument);
    return out;
  }
  int Order(const std::string& a, const std::string& b) {
    return common->Order(ZDXEngine::WideFromUtf8(a), ZDXEngine::WideFromUtf8(b),
                         Common::StringOrder::kCodePoint, Common::StringCase::kIgnore);
  }

  std::unique_ptr<Common::Provider> common = GetParam().make();
};

TEST_P(Utilities, ATextComesByItsNumber) { EXPECT_EQ(common->LoadStrW(nullptr, 102), kText); }

TEST_P(Utilities, ATextThatIsMissingIsEmpty) { EXPECT_EQ(common->LoadStrW(nullptr, 105), L""); }

TEST_P(Utilities, ThePlaceholderIsReplacedAndTheTargetOverwritten) {
  EXPECT_EQ(Format(kText, L"C:\\a.dwg"), L"Unable to find file 'C:\\a.dwg' \n");
}

TEST_P(Utilities, AFormatWithoutAPlaceholderComesOutUnchanged) {
  EXPECT_EQ(Format(L"Unable to get vertical dependencies \n", L"A"),
            L"Unable to get vertical dependencies \n");
}

TEST_P(Utilities, AnEmptyFormatGivesAnEmptyText) { EXPECT_EQ(Format(L"", L"A"), L""); }

TEST_P(Utilities, AnEmptyArgumentLeavesNothingInItsPlace) {
  EXPECT_EQ(Format(L"'%1!s!'", L""), L"''");
}

TEST_P(Utilities, AnArgumentIsNotLookedInto) {
  for (const wchar_t* path : {L"%1!s!", L"a%1!s!b%1!s!", L"100%", L"%", L"%n%t%0", L"%s"}) {
    EXPECT_EQ(Format(L"<%1!s!>", path), L"<" + std::wstring(path) + L">");
  }
}

TEST_P(Utilities, AnArgumentOfAnyLengthFits) {
  const std::wstring path(100000, L'x');
  EXPECT_EQ(Format(L"<%1!s!>", path), L"<" + path + L">");
}

TEST_P(Utilities, EqualTextsAreInNoOrder) {
  EXPECT_EQ(Order("", ""), 0);
  EXPECT_EQ(Order("Walls", "Walls"), 0);
}

TEST_P(Utilities, CaseIsIgnoredInLatin) {
  EXPECT_EQ(Order("walls", "WALLS"), 0);
  EXPECT_EQ(Order(".DwG", ".dWg"), 0);
  EXPECT_EQ(Order("\u00C4\u00D8\u00DE", "\u00E4\u00F8\u00FE"), 0);  // letters with marks
}

TEST_P(Utilities, CaseIsIgnoredInGreek) {
  EXPECT_EQ(Order("\u0391\u0394\u03A9", "\u03B1\u03B4\u03C9"), 0);
}

TEST_P(Utilities, CaseIsIgnoredInCyrillic) {
  EXPECT_EQ(Order("\u0416\u042F\u0401", "\u0436\u044F\u0451"), 0);
}

TEST_P(Utilities, CaseIsIgnoredOutsideTheBasicPlane) {
  EXPECT_EQ(Order("\U00010400\U00010427", "\U00010428\U0001044F"), 0);  // Deseret
}

TEST_P(Utilities, NeighboursOfLettersAreNotLetters) {
  EXPECT_NE(Order("@", "`"), 0);
  EXPECT_NE(Order("[", "{"), 0);
  EXPECT_NE(Order("\u00D7", "\u00F7"), 0);  // times and divided by
}

TEST_P(Utilities, OneCharacterIsNotTwo) { EXPECT_NE(Order("stra\u00DFe", "STRASSE"), 0); }

TEST_P(Utilities, LettersOfOneLookInTwoScriptsDiffer) {
  EXPECT_NE(Order("A", "\u0410"), 0);
  EXPECT_NE(Order("A", "\u0391"), 0);
}

TEST_P(Utilities, TheOrderIsNegativeBeforeAndPositiveBehind) {
  EXPECT_LT(Order("a", "B"), 0);
  EXPECT_GT(Order("B", "a"), 0);
  EXPECT_LT(Order("A", "b"), 0);
  EXPECT_LT(Order("wall", "walls"), 0);
  EXPECT_GT(Order("walls", "wall"), 0);
  EXPECT_LT(Order("", "a"), 0);
}

TEST_P(Utilities, AnIdIsBracedUpperCaseText) {
  EXPECT_EQ(common->GuidToString(ZDXEngine::FMTID_SummaryInformation),
            L"{F29F85E0-4FF9-1068-AB91-08002B27B3D9}");
  EXPECT_EQ(common->GuidToString(ZDXEngine::FMTID_Storage),
            L"{B725F130-47EF-101A-A5F1-02608C9EEBAC}");
}

TEST_P(Utilities, AnIdKeepsItsLeadingZeros) {
  EXPECT_EQ(common->GuidToString({1, 2, 3, {4, 5, 6, 7, 8, 9, 10, 11}}),
            L"{00000001-0002-0003-0405-060708090A0B}");
  EXPECT_EQ(common->GuidToString({}), L"{00000000-0000-0000-0000-000000000000}");
}

TEST_P(Utilities, APropertyNumberIsPlainDecimal) {
  EXPECT_EQ(common->PropIdToString(0), L"0");
  EXPECT_EQ(common->PropIdToString(2), L"2");
  EXPECT_EQ(common->PropIdToString(0x13), L"19");
  EXPECT_EQ(common->PropIdToString(1000), L"1000");
  EXPECT_EQ(common->PropIdToString(4294967295ul), L"4294967295");
}

TEST_P(Utilities, ADecimalTextIsItsNumber) {
  EXPECT_EQ(common->StringToPropId(L"0"), 0u);
  EXPECT_EQ(common->StringToPropId(L"2"), 2u);
  EXPECT_EQ(common->StringToPropId(L"19"), 19u);
  EXPECT_EQ(common->StringToPropId(L"0019"), 19u);
  EXPECT_EQ(common->StringToPropId(L"4294967295"), 4294967295u);
}

TEST_P(Utilities, AnyOtherTextIsZero) {
  for (const wchar_t* text : {L"", L" 2", L"2 ", L"+2", L"-1", L"0x13", L"Title", L"2a", L"2.0",
                              L"1,000", L"\uFF11\uFF12", L"\u0661"}) {
    EXPECT_EQ(common->StringToPropId(text), 0u) << ZDXEngine::Utf8FromWide(text);
  }
}

TEST_P(Utilities, ATerminatorWithinATextIsNoDigit) {
  EXPECT_EQ(common->StringToPropId(std::wstring(L"2\0", 2)), 0u);
}

TEST_P(Utilities, ANumberBeyondThirtyTwoBitsIsZero) {
  EXPECT_EQ(common->StringToPropId(L"4294967296"), 0u);
  EXPECT_EQ(common->StringToPropId(L"18446744073709551618"), 0u);  // 2 after 64 bits wrap
  EXPECT_EQ(common->StringToPropId(L"340282366920938463463374607431768211458"), 0u);
}

INSTANTIATE_TEST_SUITE_P(Of, Utilities, testing::ValuesIn(kSubjects),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace utilities_contract
