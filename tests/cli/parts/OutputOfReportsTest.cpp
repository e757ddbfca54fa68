// Values that no drawing gives today, in both outputs.
#include <gmock/gmock.h>

#include <array>
#include <limits>
#include <nlohmann/json.hpp>

#include "JsonOutput.h"
#include "TextOutput.h"

namespace zdx {

namespace {

using ::testing::HasSubstr;
using ZDXEngine::_PropData;

constexpr const wchar_t* kSummarySet = L"{F29F85E0-4FF9-1068-AB91-08002B27B3D9}";
constexpr const wchar_t* kStorageSet = L"{B725F130-47EF-101A-A5F1-02608C9EEBAC}";

// A report whose values stay the test's: none of them may be released by a record.
class OutputOfReports : public ::testing::Test {
 protected:
  ~OutputOfReports() override {
    for (_PropData& property : report_.properties) property.value.vt = VT_EMPTY;
  }

  VARIANT& Add(const wchar_t* set, const wchar_t* name, std::int32_t typeCode) {
    // Only records that hold nothing are copied as the list grows.
    report_.properties.reserve(kMostProperties);
    _PropData& property = report_.properties.emplace_back();
    property.formatId = set;
    property.name = name;
    property.typeCode = typeCode;
    return property.value;
  }

  void AddNumber(const wchar_t* name, double number) {
    VARIANT& value = Add(kStorageSet, name, ZDXEngine::kTypeNumber);
    value.vt = VT_R8;
    value.dblVal = number;
  }

  void AddFlag(const wchar_t* name, bool flag) {
    VARIANT& value = Add(kStorageSet, name, ZDXEngine::kTypeFlag);
    value.vt = VT_BOOL;
    value.boolVal = flag ? VARIANT_TRUE : VARIANT_FALSE;
  }

  // `text`, which may be null, must outlive the test.
  void AddText(const wchar_t* set, const wchar_t* name, wchar_t* text) {
    VARIANT& value = Add(set, name, ZDXEngine::kTypeText);
    value.vt = VT_BSTR;
    value.bstrVal = text;
  }

  void AddPicture() {
    array_.cDims = 1;
    array_.cbElements = 1;
    array_.pvData = bytes_.data();
    array_.rgsabound[0].cElements = static_cast<std::uint32_t>(bytes_.size());
    VARIANT& value = Add(kSummarySet, L"17", ZDXEngine::kTypeBinary);
    value.vt = VT_ARRAY | VT_UI1;
    value.parray = &array_;
  }

  nlohmann::json Value(std::size_t at) const {
    return nlohmann::json::parse(JsonOf(L"a", report_)).at("properties").at(at).at("value");
  }

  DrawingReport report_;

 private:
  static constexpr std::size_t kMostProperties = 8;
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
  std::array<wchar_t, 1> empty = {};
  AddText(kSummarySet, L"2", nullptr);
  AddText(kSummarySet, L"3", empty.data());
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
  std::array<wchar_t, 2> text = {L'x', 0};
  AddText(kSummarySet, L"99", text.data());
  AddText(kStorageSet, L"Novelty", text.data());
  AddText(L"{0}", L"Tag", text.data());
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
  std::array<wchar_t, 2> name = {L'n', 0};
  std::array<wchar_t, 2> comments = {L'c', 0};
  AddText(kStorageSet, L"LineType Comments", comments.data());
  AddText(kStorageSet, L"LineType Name", name.data());
  AddText(kStorageSet, L"LineType Name", name.data());
  AddText(kStorageSet, L"LineType Comments", comments.data());
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
