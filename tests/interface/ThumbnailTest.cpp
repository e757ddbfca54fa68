// A drawing's preview picture arrives as the thumbnail property, whatever version and form the
// drawing has.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tuple>

#include "support/PublicRead.h"
#include "support/dxf/DxfMaker.h"
#include "support/pictures/Pictures.h"

namespace {

using namespace std::string_literals;
using pictures::Number;
using zdx_test::Reading;

// The bytes of the thumbnail properties.
std::vector<std::string> Thumbnails(const Reading& reading) {
  std::vector<std::string> found;
  for (const ZDXEngine::_PropData& property : reading.properties) {
    if (property.formatId != zdx_test::kSummary || property.name != L"17") continue;
    EXPECT_EQ(property.typeCode, ZDXEngine::kTypeBinary);
    EXPECT_EQ(property.value.vt, VT_ARRAY | VT_UI1);
    const SAFEARRAY& array = *property.value.parray;
    found.emplace_back(static_cast<const char*>(array.pvData), array.rgsabound[0].cElements);
  }
  return found;
}

// A bitmap of 100 by 50 pixels, large enough for many chunks.
std::string LargeBitmap() {
  const pictures::BitmapHead head{.width = 100, .height = 50};
  std::string bytes = head.Bytes();
  for (std::size_t i = 0; i < std::size_t{300} * 50; ++i) {
    bytes.push_back(static_cast<char>(i * 7 % 251));
  }
  return bytes;
}

class Thumbnail : public testing::TestWithParam<std::tuple<const char*, dxf::Form>> {
 protected:
  Reading Read(const std::string& picture) const {
    dxf::DrawingSpec spec;
    spec.version = std::get<0>(GetParam());
    spec.form = std::get<1>(GetParam());
    spec.thumbnail = picture;
    return zdx_test::ReadBytes(dxf::Make(spec));
  }
};

TEST_P(Thumbnail, DrawsThePictureOfTheDrawing) {
  const Reading reading = Read(LargeBitmap());
  const std::vector<std::string> found = Thumbnails(reading);
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(found[0].size(), 12u + 15086u);
  EXPECT_EQ(found[0].substr(0, 12), "\3\0\0\0\x8\0\x64\0\x32\0\0\0"s);
  EXPECT_EQ(found[0].substr(12 + 18 + 22 + 40, 15000), LargeBitmap().substr(40));
  EXPECT_EQ(reading.diagnostics.warningCount, 0u);
}

TEST_P(Thumbnail, IsNotThereWithoutAPicture) {
  const Reading reading = Read("");
  EXPECT_THAT(Thumbnails(reading), testing::IsEmpty());
  EXPECT_EQ(reading.diagnostics.warningCount, 0u);
}

INSTANTIATE_TEST_SUITE_P(Dxf, Thumbnail,
                         testing::Combine(testing::Values("AC1009", "AC1015", "AC1018", "AC1032"),
                                          testing::Values(dxf::Form::Ascii, dxf::Form::Binary)),
                         [](const auto& info) {
                           return std::string(std::get<0>(info.param)) +
                                  (std::get<1>(info.param) == dxf::Form::Ascii ? "Text" : "Binary");
                         });

TEST(ThumbnailOfAPicture, WithATableHasItsPaletteToo) {
  dxf::DrawingSpec spec;
  const pictures::BitmapHead head{.width = 100, .height = 50, .bits = 8};
  spec.thumbnail = head.Bytes() + std::string(1024, '\7') + std::string(5000, '\1');
  const std::vector<std::string> found = Thumbnails(zdx_test::ReadBytes(dxf::Make(spec)));
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(found[0].size(), 12u + 7158u);
}

TEST(ThumbnailOfAPicture, InPngIsDrawnToo) {
  dxf::DrawingSpec spec;
  spec.thumbnail = pictures::Png({.width = 2, .height = 1, .rows = "\1\2\3\4\5\6"});
  const std::vector<std::string> found = Thumbnails(zdx_test::ReadBytes(dxf::Make(spec)));
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(found[0].substr(12 + 18 + 22 + 40, 8), "\3\2\1\6\5\4\0\0"s);
}

}  // namespace
