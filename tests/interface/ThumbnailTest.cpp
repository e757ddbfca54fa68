// A drawing's preview picture arrives as the thumbnail property, whatever version and form the
// drawing has.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tuple>

#include "support/PublicRead.h"
#include "support/dwg/DwgMaker.h"
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

using Kind = drawing::PreviewKind;

// Before a bitmap's rows stand the heads of the property and of the metafile, the record that a
// palette is realized, and the heads of the transfer and of the bitmap.
constexpr std::size_t kRowsPlace = 12 + 18 + 6 + 22 + 40;

struct PictureWriting {
  const char* name;
  const char* suffix;
  std::string (*make)(const drawing::DrawingSpec& spec);
};

constexpr PictureWriting kText = {"Text", ".dxf",
                                  [](const drawing::DrawingSpec& spec) { return dxf::Make(spec); }};
constexpr PictureWriting kBinary = {"Binary", ".dxf", [](const drawing::DrawingSpec& spec) {
                                      return dxf::Make(spec, {.form = dxf::Form::Binary});
                                    }};
constexpr PictureWriting kDwg = {"Dwg", ".dwg",
                                 [](const drawing::DrawingSpec& spec) { return dwg::Make(spec); }};

class Thumbnail : public testing::TestWithParam<std::tuple<const char*, PictureWriting>> {
 protected:
  Reading Read(std::vector<drawing::PreviewSpec> previews) const {
    drawing::DrawingSpec spec;
    spec.version = std::get<0>(GetParam());
    spec.previews = std::move(previews);
    const PictureWriting& writing = std::get<1>(GetParam());
    return zdx_test::ReadBytes(writing.make(spec), writing.suffix);
  }
};

TEST_P(Thumbnail, DrawsThePictureOfTheDrawing) {
  const Reading reading = Read({{Kind::Bitmap, LargeBitmap()}});
  const std::vector<std::string> found = Thumbnails(reading);
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(found[0].size(), kRowsPlace + 15000u + 6u);
  EXPECT_EQ(found[0].substr(0, 12), "\3\0\0\0\x8\0\x64\0\x32\0\0\0"s);
  EXPECT_EQ(found[0].substr(kRowsPlace, 15000), LargeBitmap().substr(40));
  EXPECT_EQ(reading.diagnostics.warningCount, 0u);
}

TEST_P(Thumbnail, IsNotThereWithoutAPicture) {
  const Reading reading = Read({});
  EXPECT_THAT(Thumbnails(reading), testing::IsEmpty());
  EXPECT_EQ(reading.diagnostics.warningCount, 0u);
}

std::string PictureTestName(const testing::TestParamInfo<Thumbnail::ParamType>& info) {
  return std::string(std::get<0>(info.param)) + std::get<1>(info.param).name;
}

INSTANTIATE_TEST_SUITE_P(Dxf, Thumbnail,
                         testing::Combine(testing::Values("AC1009", "AC1015", "AC1018", "AC1032"),
                                          testing::Values(kText, kBinary)),
                         PictureTestName);
INSTANTIATE_TEST_SUITE_P(Dwg, Thumbnail,
                         testing::Combine(testing::Values("AC1014", "AC1015", "AC1018", "AC1021",
                                                          "AC1024", "AC1027", "AC1032"),
                                          testing::Values(kDwg)),
                         PictureTestName);

// What is told of a drawing of the newest version with one picture.
std::vector<std::string> ThumbnailsOf(const PictureWriting& writing, Kind kind,
                                      std::string picture) {
  drawing::DrawingSpec spec;
  spec.previews = {{kind, std::move(picture)}};
  return Thumbnails(zdx_test::ReadBytes(writing.make(spec), writing.suffix));
}

TEST(ThumbnailOfAPicture, WithATableHasItsPaletteToo) {
  const pictures::BitmapHead head{.width = 100, .height = 50, .bits = 8};
  const std::string picture = head.Bytes() + std::string(1024, '\7') + std::string(5000, '\1');
  for (const PictureWriting& writing : {kText, kDwg}) {
    const std::vector<std::string> found = ThumbnailsOf(writing, Kind::Bitmap, picture);
    ASSERT_EQ(found.size(), 1u) << writing.name;
    EXPECT_EQ(found[0].size(), 12u + 7158u) << writing.name;
  }
}

TEST(ThumbnailOfAPicture, InPngIsDrawnToo) {
  const std::string png = pictures::Png({.width = 2, .height = 1, .rows = "\1\2\3\4\5\6"});
  // A DXF file doesn't tell the kind.
  for (const auto& [writing, kind] : {std::pair(kText, Kind::Bitmap), std::pair(kDwg, Kind::Png)}) {
    const std::vector<std::string> found = ThumbnailsOf(writing, kind, png);
    ASSERT_EQ(found.size(), 1u) << writing.name;
    EXPECT_EQ(found[0].substr(kRowsPlace, 8), "\3\2\1\6\5\4\0\0"s) << writing.name;
  }
}

TEST(ThumbnailOfAPicture, IsTheFirstThatCanBeShown) {
  drawing::DrawingSpec spec;
  spec.previews = {{Kind::Metafile, "no metafile"}, {Kind::Bitmap, LargeBitmap()}};
  const Reading reading = zdx_test::ReadBytes(dwg::Make(spec), ".dwg");
  EXPECT_EQ(Thumbnails(reading).size(), 1u);
  EXPECT_EQ(reading.diagnostics.warningCount, 1u);
}

}  // namespace
