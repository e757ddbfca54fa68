// The pictures in real drawings, where a collection of them lies beside the project: each is shown
// in the size that the drawing's truth file tells.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>

#include "formats/preview/Shown.h"
#include "support/pictures/Pictures.h"

namespace {

using nlohmann::json;
using Kind = zdx::model::StoredPicture::Kind;

const std::filesystem::path kSamples = std::filesystem::path(ZDX_SOURCE_DIR) / "../shared/samples";

std::vector<std::string> SampleNames() {
  std::vector<std::string> names;
  std::error_code none;
  for (const auto& entry : std::filesystem::directory_iterator(kSamples, none)) {
    if (entry.path().extension() == ".dwg") names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string Contents(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// How the picture begins: pictures stand in the files as they are.
std::string BeginOf(const json& picture) {
  if (picture.at("kind") == "PNG") return "\x89PNG\r\n\x1A\n";
  return pictures::Number(40, 4) + pictures::Number(picture.at("width").get<std::uint32_t>(), 4) +
         pictures::Number(picture.at("height").get<std::uint32_t>(), 4);
}

class PreviewSamples : public testing::TestWithParam<std::string> {};

TEST_P(PreviewSamples, AreShownInTheirSize) {
  const json truth = json::parse(Contents(kSamples / "truth" / (GetParam() + ".json")));
  const std::string file = Contents(kSamples / GetParam());
  for (const json& picture : truth.at("preview")) {
    const std::size_t at = file.find(BeginOf(picture));
    ASSERT_NE(at, std::string::npos);
    const Kind kind = picture.at("kind") == "PNG" ? Kind::kPng : Kind::kBitmap;
    const auto shown =
        preview_test::Show(kind, file.substr(at, picture.at("bytes").get<std::size_t>()));
    EXPECT_EQ(preview_test::RefusalOf(shown), L"");
    EXPECT_EQ(preview_test::DibOf(shown).head().biWidth, picture.at("width").get<int>());
    EXPECT_EQ(preview_test::DibOf(shown).head().biHeight, picture.at("height").get<int>());
  }
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(PreviewSamples);
INSTANTIATE_TEST_SUITE_P(
    Each, PreviewSamples, testing::ValuesIn(SampleNames()), [](const auto& info) {
      std::string name = info.param;
      std::replace_if(
          name.begin(), name.end(),
          [](char c) { return std::isalnum(static_cast<unsigned char>(c)) == 0; }, '_');
      return name;
    });

TEST(PreviewSampleFolder, IsReadWhereItLies) {
  if (SampleNames().empty()) {
    GTEST_SKIP() << "no collection of real drawings at " << kSamples << ": its tests are left out";
  }
  SUCCEED();
}

}  // namespace
