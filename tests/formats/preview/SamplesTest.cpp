// The pictures in real drawings, where a collection of them lies beside the project: those that the
// drawing's truth file tells, byte for byte, and each is shown in its size.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <nlohmann/json.hpp>
#include <variant>

#include "backends/database/dwg/DwgDrawing.h"
#include "formats/preview/Shown.h"
#include "support/Paths.h"
#include "support/Samples.h"
#include "support/Sha256.h"

namespace {

using nlohmann::json;
using Kind = zdx::model::StoredPicture::Kind;

std::vector<zdx::model::StoredPicture> PicturesOf(const std::string& name) {
  const auto path = zdx_test::SampleFolder() / name;
  auto file = zdx::file::MappedFile::Open(zdx_test::NameOf(path));
  auto opened = zdx::dwg::DwgDrawing::Open(std::move(std::get<zdx::file::MappedFile>(file)),
                                           std::make_shared<zdx::model::Report>());
  return std::get<std::unique_ptr<zdx::model::Drawing>>(opened)->PreviewPictures();
}

class PreviewSamples : public testing::TestWithParam<std::string> {};

TEST_P(PreviewSamples, AreThoseOfTheDrawing) {
  json truth;
  std::ifstream(zdx_test::TruthOf(GetParam())) >> truth;
  const json& expected = truth.at("preview");
  const std::vector<zdx::model::StoredPicture> pictures = PicturesOf(GetParam());
  ASSERT_EQ(pictures.size(), expected.size());
  for (std::size_t i = 0; i < pictures.size(); ++i) {
    EXPECT_EQ(pictures[i].kind, expected[i].at("kind") == "PNG" ? Kind::kPng : Kind::kBitmap);
    EXPECT_EQ(pictures[i].bytes.size(), expected[i].at("bytes").get<std::size_t>());
    EXPECT_EQ(zdx_test::Sha256(pictures[i].bytes), expected[i].at("sha256"));
    const auto shown = preview_test::Show(pictures[i].kind, pictures[i].bytes);
    EXPECT_EQ(preview_test::RefusalOf(shown), L"");
    EXPECT_EQ(preview_test::DibOf(shown).head().biWidth, expected[i].at("width").get<int>());
    EXPECT_EQ(preview_test::DibOf(shown).head().biHeight, expected[i].at("height").get<int>());
  }
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(PreviewSamples);
INSTANTIATE_TEST_SUITE_P(Dwg, PreviewSamples, testing::ValuesIn(zdx_test::SampleNames(".dwg")),
                         [](const auto& info) { return zdx_test::SampleTestName(info.param); });

TEST(PreviewSampleFolder, IsReadWhereItLies) {
  if (zdx_test::SampleNames(".dwg").empty()) {
    GTEST_SKIP() << "no collection of real drawings at " << zdx_test::SampleFolder()
                 << ": its tests are left out";
  }
  SUCCEED();
}

}  // namespace
