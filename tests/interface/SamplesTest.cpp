// Real drawings, where a collection of them lies beside the project: each tells what its truth file
// says that it holds.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>

#include "ZDXEngine/Utf8.h"
#include "support/PublicRead.h"

namespace {

using nlohmann::json;
using zdx_test::kSummary;
using zdx_test::Reading;

const std::filesystem::path kSamples = std::filesystem::path(ZDX_SOURCE_DIR) / "../shared/samples";

std::vector<std::string> SampleNames() {
  std::vector<std::string> names;
  std::error_code none;
  for (const auto& entry : std::filesystem::directory_iterator(kSamples, none)) {
    if (entry.path().extension() == ".dxf") names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

class Samples : public testing::TestWithParam<std::string> {
 protected:
  Samples() {
    std::ifstream(kSamples / "truth" / (GetParam() + ".json")) >> truth;
    reading = zdx_test::ReadFile(ZDXEngine::WideFromUtf8((kSamples / GetParam()).string()));
  }

  // A field that the file doesn't hold may be told as empty or not at all.
  static void ExpectField(const std::vector<std::string>& told, const json& expected,
                          const std::string& what) {
    if (expected.is_null() && told.empty()) return;
    const std::string text = expected.is_null() ? "" : expected.get<std::string>();
    EXPECT_EQ(told, std::vector<std::string>{text}) << what;
  }

  // A list that the truth leaves out is unknown; one that it tells as null is absent.
  static void ExpectList(const std::vector<std::string>& told, const json& holder,
                         const std::string& key) {
    if (!holder.contains(key)) return;
    const json& expected = holder[key];
    EXPECT_EQ(told, expected.is_null() ? std::vector<std::string>{}
                                       : expected.get<std::vector<std::string>>())
        << key;
  }

  json truth;
  Reading reading;
};

TEST_P(Samples, TellsItsVersion) {
  EXPECT_EQ(ZDXEngine::Utf8FromWide(reading.diagnostics.version), truth["magic"]);
}

TEST_P(Samples, OpensWithoutAWarning) { EXPECT_EQ(reading.diagnostics.warningCount, 0u); }

TEST_P(Samples, TellsItsSummary) {
  const std::pair<const wchar_t*, const char*> fields[] = {
      {L"2", "title"},    {L"3", "subject"},     {L"4", "author"},        {L"5", "keywords"},
      {L"6", "comments"}, {L"8", "lastSavedBy"}, {L"9", "revisionNumber"}};
  for (const auto& [number, key] : fields) {
    ExpectField(reading.Texts(kSummary, number), truth["summary"][key], key);
  }
  EXPECT_EQ(reading.Custom().size(), truth["summary"]["custom"].size());
}

TEST_P(Samples, TellsItsSettings) {
  for (const auto& [name, value] : truth["settings"].items()) {
    json expected = value;
    // The truth of a DXF file leaves out the underscore of the arrow's block, as the file does.
    const bool arrow = name.starts_with("Dimblk") && value.is_string() && !value.empty();
    if (arrow && value.get<std::string>() != "") expected = "_" + value.get<std::string>();
    ExpectField(reading.Texts(ZDXEngine::WideFromUtf8(name)), expected, name);
  }
}

TEST_P(Samples, ListsItsTables) {
  ExpectList(reading.Texts(L"Layer Name"), truth, "layers");
  ExpectList(reading.Texts(L"View Name"), truth, "views");
  std::vector<std::string> names;
  std::vector<std::string> comments;
  for (const json& linetype : truth["linetypes"]) {
    names.push_back(linetype[0]);
    comments.push_back(linetype[1]);
  }
  EXPECT_EQ(reading.Texts(L"LineType Name"), names);
  EXPECT_EQ(reading.Texts(L"LineType Comments"), comments);
}

TEST_P(Samples, ListsItsDictionaries) {
  const json& dictionaries = truth["dictionaries"];
  ExpectList(reading.Texts(L"Group Name"), dictionaries, "groups");
  ExpectList(reading.Texts(L"MultiLine Style Name"), dictionaries, "mlineStyles");
  ExpectList(reading.Texts(L"Layout Name"), dictionaries, "layouts");
  ExpectList(reading.Texts(L"Named Object Name"), dictionaries, "namedObjects");
  ExpectList(reading.Texts(L"Plot Settings Name"), dictionaries, "plotSettings");
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(Samples);
INSTANTIATE_TEST_SUITE_P(Dxf, Samples, testing::ValuesIn(SampleNames()), [](const auto& info) {
  std::string name = info.param.substr(0, info.param.find('.'));
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
});

TEST(SampleFolder, IsReadWhereItLies) {
  if (SampleNames().empty()) {
    GTEST_SKIP() << "no collection of real drawings at " << kSamples << ": its tests are left out";
  }
  SUCCEED();
}

}  // namespace
