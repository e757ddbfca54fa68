// The metafiles that stand in for the system's elsewhere are the system's, byte for byte.
#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>
#include <tuple>

#include "backends/System.h"
#include "backends/posix/graphics/PosixGraphics.h"
#include "contract/Bitmaps.h"

namespace {

using contract::Info;
using contract::Palette;

constexpr int kHeight = 5;
constexpr std::uint16_t kColours = 7;

std::uint8_t Level(std::size_t i) { return static_cast<std::uint8_t>(i * 37 + 11); }

Info Description(int width, int bits, bool topDown) {
  Info info(width, topDown ? -kHeight : kHeight, static_cast<std::uint16_t>(bits));
  for (std::size_t i = 0; i < 256; ++i) {
    info.colours[i] = {Level(i), Level(i + 1), Level(2 * i), 0};
  }
  return info;
}

Palette SomePalette() {
  Palette palette(kColours);
  for (std::size_t i = 0; i < kColours; ++i) {
    palette.entries[i] = {Level(i), Level(3 * i), Level(5 * i), 0};
  }
  return palette;
}

// What is drawn of a bitmap.
struct Part {
  int x;
  int y;
  int width;
  int height;
};

// What a row holds behind its last pixel is 0: the system keeps it or not as it likes.
os::HBITMAP Bitmap(os::GraphicsProvider& os, const Info& info) {
  void* bits = nullptr;
  const os::HBITMAP bitmap =
      os.CreateDIBSection(nullptr, info.get(), os::kRgbColors, &bits, nullptr, 0);
  const auto rowBits = static_cast<std::size_t>(info.head.biWidth * info.head.biBitCount);
  const std::size_t rowSize = contract::RowSize(info.head.biWidth, info.head.biBitCount);
  for (std::size_t i = 0; bits != nullptr && i < rowBits / 8 * kHeight; ++i) {
    const std::size_t row = i / (rowBits / 8);
    static_cast<std::uint8_t*>(bits)[row * rowSize + i % (rowBits / 8)] = Level(i);
  }
  return bitmap;
}

std::string Metafile(os::GraphicsProvider& os, const Info& info, bool withPalette,
                     const Part& part) {
  const os::HBITMAP bitmap = Bitmap(os, info);
  const os::HPALETTE palette = os.CreatePalette(SomePalette().get());
  const os::HDC target = os.CreateMetaFileW(nullptr);
  const os::HDC source = os.CreateCompatibleDC(nullptr);
  const os::HGDIOBJ before = os.SelectObject(source, bitmap);
  os.SelectPalette(target, withPalette ? palette : nullptr, 1);
  os.RealizePalette(target);
  os.BitBlt(target, 0, 0, part.width, part.height, source, part.x, part.y, os::kSourceCopy);
  const os::HMETAFILE metafile = os.CloseMetaFile(target);
  std::string bytes(os.GetMetaFileBitsEx(metafile, 0, nullptr), '\0');
  os.GetMetaFileBitsEx(metafile, static_cast<std::uint32_t>(bytes.size()), bytes.data());
  os.DeleteMetaFile(metafile);
  os.SelectObject(source, before);
  os.DeleteDC(source);
  os.DeleteObject(palette);
  os.DeleteObject(bitmap);
  return bytes;
}

// Bits, top-down, width, with a palette.
class MetafileAgreement : public testing::TestWithParam<std::tuple<int, bool, int, bool>> {
 protected:
  void ExpectAgreement(const Part& part) {
    const auto [bits, topDown, width, withPalette] = GetParam();
    const Info info = Description(width, bits, topDown);
    const auto system = zdx::MakeSystemGraphics();
    zdx::PosixGraphics own;
    const std::string expected = Metafile(*system, info, withPalette, part);
    const std::string actual = Metafile(own, info, withPalette, part);
    ASSERT_GT(expected.size(), 18u + 22 + 40 + 6);
    ASSERT_EQ(actual.size(), expected.size());
    EXPECT_EQ(actual, expected);
  }
};

TEST_P(MetafileAgreement, HoldsForAWholeBitmap) {
  ExpectAgreement({0, 0, std::get<2>(GetParam()), kHeight});
}

TEST_P(MetafileAgreement, HoldsForAPartOfABitmap) { ExpectAgreement({2, 1, 3, 2}); }

std::string NameOfCase(const testing::TestParamInfo<MetafileAgreement::ParamType>& info) {
  const auto [bits, topDown, width, withPalette] = info.param;
  return "Bits" + std::to_string(bits) + (topDown ? "TopDown" : "") + "Width" +
         std::to_string(width) + (withPalette ? "Palette" : "");
}

INSTANTIATE_TEST_SUITE_P(Of, MetafileAgreement,
                         testing::Combine(testing::Values(1, 4, 8, 16, 24, 32), testing::Bool(),
                                          testing::Values(9, 32), testing::Bool()),
                         NameOfCase);

}  // namespace
