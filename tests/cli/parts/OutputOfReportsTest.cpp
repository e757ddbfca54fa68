// Values that no drawing gives today, in both outputs.
#include <gmock/gmock.h>

#include <array>
#include <limits>
#include <nlohmann/json.hpp>

#include "JsonFailure.h"
#include "JsonOutput.h"
#include "TextOutput.h"
#include "cli/parts/MadeUpReport.h"

namespace zdx {

namespace {

using ::testing::HasSubstr;

class OutputOfReports : public ::testing::Test {
 protected:
  void AddNumber(const wchar_t* name, double number) {
    VARIANT& value = made_.Add(kStorageSet, name, ZDXEngine::kTypeNumber);
    value.vt = VT_R8;
    value.dblVal = number;
  }

  void AddFlag(const wchar_t* name, bool flag) {
    VARIANT& value = made_.Add(kStorageSet, name, ZDXEngine::kTypeFlag);
    value.vt = VT_BOOL;
    value.boolVal = flag ? VARIANT_TRUE : VARIANT_FALSE;
  }

  void AddText(const wchar_t* set, const wchar_t* name, const wchar_t* text) {
    made_.AddText(set, name, text);
  }

  void AddPicture() {
    array_.cDims = 1;
    array_.cbElements = 1;
    array_.pvData = bytes_.data();
    array_.rgsabound[0].cElements = static_cast<std::uint32_t>(bytes_.size());
    VARIANT& value = made_.Add(kSummarySet, L"17", ZDXEngine::kTypeBinary);
    value.vt = VT_ARRAY | VT_UI1;
    value.parray = &array_;
  }

  nlohmann::json Value(std::size_t at) const {
    return nlohmann::json::parse(JsonOf(L"a", report_)).at("properties").at(at).at("value");
  }

  MadeUpReport made_;
  DrawingReport& report_ = made_.Report();

 private:
  std::array<std::uint8_t, 4> bytes_ = {3, 0, 0, 0xFF};
  SAFEARRAY array_ = {};
};

TEST_F(OutputOfReports, ANumberIsANumber) {
  AddNumber(L"scaleFactor", 0.1);
  EXPECT_EQ(Value(0), 0.1);
  EXPECT_THAT(TextOf(L"a", report_), HasSubstr("  Geographic location\n    scaleFactor  0.1\n"));
}

TEST_F(OutputOfReports, ANumberThatIsNotFiniteIsNullInJson) {
  AddNumber(L"scaleFactor", std::numeric_limits<double>::infinity());
  EXPECT_TRUE(Value(0).is_null());
  EXPECT_THAT(TextOf(L"a", report_), HasSubstr("scaleFactor  inf\n"));
}

TEST_F(OutputOfReports, AFlagIsAFlag) {
  AddFlag(L"doSeaLevelCorrection", true);
  AddFlag(L"doSeaLevelCorrection", false);
  EXPECT_EQ(Value(0), true);
  EXPECT_EQ(Value(1), false);
  const std::string text = TextOf(L"a", report_);
  EXPECT_THAT(text, HasSubstr("doSeaLevelCorrection  yes\n"));
  EXPECT_THAT(text, HasSubstr("doSeaLevelCorrection  no\n"));
}

TEST_F(OutputOfReports, ANullTextIsNullAndAnEmptyOneEmpty) {
  AddText(kSummarySet, L"2", nullptr);
  AddText(kSummarySet, L"3", L"");
  EXPECT_TRUE(Value(0).is_null());
  EXPECT_EQ(Value(1), "");
  EXPECT_THAT(TextOf(L"a", report_), HasSubstr("    Title    (none)\n    Subject  (empty)\n"));
}

TEST_F(OutputOfReports, ALoneSurrogateIsReplacedInJson) {
  std::array<wchar_t, 2> lone = {static_cast<wchar_t>(0xDC41), 0};
  AddText(kSummarySet, L"2", lone.data());
  EXPECT_EQ(Value(0), "\xEF\xBF\xBD");
}

TEST_F(OutputOfReports, BytesThatAreNoPictureAreBase64InJsonAndASizeInText) {
  AddPicture();
  EXPECT_EQ(Value(0), "AwAA/w==");
  EXPECT_THAT(TextOf(L"a", report_), HasSubstr("  Summary\n    Thumbnail  (4 bytes)\n"));
}

TEST_F(OutputOfReports, AnUnknownPropertyIsStillShown) {
  AddText(kSummarySet, L"99", L"x");
  AddText(kStorageSet, L"Novelty", L"x");
  AddText(L"{0}", L"Tag", L"x");
  EXPECT_EQ(TextOf(L"a", report_),
            "a\n"
            "  Drawing\n"
            "\n"
            "  Summary\n"
            "    Property 99  x\n"
            "\n"
            "  Other\n"
            "    Novelty  x\n"
            "    {0} Tag  x\n");
}

TEST_F(OutputOfReports, CommentsWithoutALineTypeNameGetARowOfTheirOwn) {
  AddText(kStorageSet, L"LineType Comments", L"c");
  AddText(kStorageSet, L"LineType Name", L"n");
  AddText(kStorageSet, L"LineType Name", L"n");
  AddText(kStorageSet, L"LineType Comments", L"c");
  EXPECT_THAT(TextOf(L"a", report_), HasSubstr("  Line types (3)\n"
                                               "    (no name)  c\n"
                                               "    n\n"
                                               "    n          c\n"));
}

TEST_F(OutputOfReports, WarningsCarryTheirPlaces) {
  report_.diagnostics.warnings = {{L"odd", {std::nullopt, 3, 0x2A}}, {L"bad", {64, {}, {}}}};
  report_.diagnostics.warningCount = 2;
  const nlohmann::json document = nlohmann::json::parse(JsonOf(L"a", report_));
  EXPECT_EQ(document.at("warnings"),
            nlohmann::json::parse(R"([{"message":"odd","line":3,"handle":"2A"},
                                      {"message":"bad","offset":64}])"));
  EXPECT_FALSE(document.contains("warningsLeftOut"));
}

TEST_F(OutputOfReports, WarningsThatTheEngineDidNotKeepAreCounted) {
  report_.diagnostics.warnings = {{L"odd", {}}};
  report_.diagnostics.warningCount = 41;
  EXPECT_EQ(nlohmann::json::parse(JsonOf(L"a", report_)).at("warningsLeftOut"), 40);
}

TEST(OutputOfFailures, TellsPlaceAndReason) {
  Failure failure;
  failure.className = "InvalidFormat";
  failure.code = 103;
  failure.message = "not a drawing";
  failure.reason = "no group code";
  failure.place.offset = 77;
  EXPECT_EQ(JsonOf(L"a", failure),
            "{\"schema\":\"zdx/1\",\"file\":\"a\",\"status\":\"error\",\"error\":"
            "{\"class\":\"InvalidFormat\",\"code\":103,\"message\":\"not a drawing\","
            "\"place\":{\"offset\":77},\"reason\":\"no group code\"}}\n");
}

}  // namespace

}  // namespace zdx
