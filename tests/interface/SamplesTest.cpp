// Real drawings, where a collection of them lies beside the project: each tells what its truth file
// says that it holds.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>

#include "ZDXEngine/Utf8.h"
#include "support/Paths.h"
#include "support/PublicRead.h"
#include "support/Samples.h"

namespace {

using nlohmann::json;
using zdx_test::kSummary;
using zdx_test::Reading;

class Samples : public testing::TestWithParam<std::string> {
 protected:
  Samples() {
    std::ifstream(zdx_test::TruthOf(GetParam())) >> truth;
    const auto path = zdx_test::SampleFolder() / GetParam();
    reading = zdx_test::ReadFile(zdx_test::NameOf(path));
    isDwg = path.extension() == ".dwg";
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
  bool isDwg = false;
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
    const bool arrow = !isDwg && name.starts_with("Dimblk") && value.is_string();
    if (arrow && value.get<std::string>() != "") expected = "_" + value.get<std::string>();
    ExpectField(reading.Texts(ZDXEngine::WideFromUtf8(name)), expected, name);
  }
}

TEST_P(Samples, ListsItsTables) {
  ExpectList(reading.Texts(L"Layer Name"), truth, "layers");
  ExpectList(reading.Texts(L"View Name"), truth, "views");
  std::vector<std::string> names;
  std::vector<std::string> comments;
  // The truth of a DWG file tells the two that aren't in the table's list apart.
  for (const char* const list : {"linetypesApart", "linetypes"}) {
    for (const json& linetype : truth.value(list, json::array())) {
      names.push_back(linetype[0]);
      comments.push_back(linetype[1]);
    }
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

// The picture's size stands in the head of the value, as two numbers of two bytes.
TEST_P(Samples, ShowsItsPreview) {
  const json& previews = truth["preview"];
  const auto thumbnail = std::find_if(
      reading.properties.begin(), reading.properties.end(),
      [](const auto& record) { return record.formatId == kSummary && record.name == L"17"; });
  ASSERT_EQ(thumbnail != reading.properties.end(), !previews.empty());
  if (previews.empty()) return;
  ASSERT_EQ(thumbnail->value.vt, VT_ARRAY | VT_UI1);
  ASSERT_GT(thumbnail->value.parray->rgsabound[0].cElements, 12u);
  const auto* const bytes = static_cast<const unsigned char*>(thumbnail->value.parray->pvData);
  EXPECT_EQ(bytes[6] | bytes[7] << 8, previews[0]["width"]);
  EXPECT_EQ(bytes[8] | bytes[9] << 8, previews[0]["height"]);
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(Samples);
INSTANTIATE_TEST_SUITE_P(Dxf, Samples, testing::ValuesIn(zdx_test::SampleNames(".dxf")),
                         [](const auto& info) { return zdx_test::SampleTestName(info.param); });
INSTANTIATE_TEST_SUITE_P(Dwg, Samples, testing::ValuesIn(zdx_test::SampleNames(".dwg")),
                         [](const auto& info) { return zdx_test::SampleTestName(info.param); });

TEST(SampleFolder, IsReadWhereItLies) {
  if (zdx_test::SampleNames(".dwg").empty()) {
    GTEST_SKIP() << "no collection of real drawings at " << zdx_test::SampleFolder()
                 << ": its tests are left out";
  }
  SUCCEED();
}

}  // namespace
