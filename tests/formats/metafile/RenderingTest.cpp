// Programs that others wrote see in a metafile the pixels that were put into the bitmap.
//
// The metafile's reader there takes no colour masks, so of a metafile with masks its bitmap alone
// is shown, as a file, to a program for those.
#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <filesystem>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "backends/posix/graphics/PosixGraphics.h"
#include "support/Process.h"
#include "support/Scratch.h"

namespace {

using Pixel = std::array<int, 3>;
using Pixels = std::vector<Pixel>;

constexpr int kWidth = 7;
constexpr int kHeight = 5;
constexpr const char* kMetafileViewer = "/usr/bin/gm";
constexpr const char* kBitmapViewer = "/usr/bin/bmptopnm";

// A value for each place that no shift and no other order of rows leads to.
unsigned ValueAt(int x, int y, unsigned step) {
  return static_cast<unsigned>(x + y * kWidth + 1) * step;
}

os::RGBQUAD ColourOf(unsigned index) {
  return {static_cast<std::uint8_t>(index * 37), static_cast<std::uint8_t>(index * 101 + 3),
          static_cast<std::uint8_t>(255 - index * 59), 0};
}

// A bitmap with what it must look like, from the top.
struct Picture {
  struct Info {
    os::BITMAPINFOHEADER head{};
    os::RGBQUAD colours[256]{};
  } info;
  std::string rows;
  Pixels pixels;
};

// Sets the pixel in its row; gives how it looks.
Pixel Put(std::string& row, int x, int y, int bits) {
  const auto at = static_cast<std::size_t>(x * bits / 8);
  const auto byte = [&](std::size_t i) -> char& { return row[at + i]; };
  if (bits <= 8) {
    const unsigned index = ValueAt(x, y, 5) & ((1u << bits) - 1);
    const int shift = 8 - bits - x * bits % 8;
    byte(0) = static_cast<char>(byte(0) | static_cast<char>(index << shift));
    const os::RGBQUAD colour = ColourOf(index);
    return {colour.rgbRed, colour.rgbGreen, colour.rgbBlue};
  }
  if (bits == 16) {
    const unsigned value = ValueAt(x, y, 937) & 0x7FFF;
    byte(0) = static_cast<char>(value & 0xFF);
    byte(1) = static_cast<char>(value >> 8);
    return {static_cast<int>(value >> 10), static_cast<int>(value >> 5 & 31),
            static_cast<int>(value & 31)};
  }
  const os::RGBQUAD colour = ColourOf(ValueAt(x, y, 1));
  byte(0) = static_cast<char>(colour.rgbBlue);
  byte(1) = static_cast<char>(colour.rgbGreen);
  byte(2) = static_cast<char>(colour.rgbRed);
  return {colour.rgbRed, colour.rgbGreen, colour.rgbBlue};
}

Picture Draw(int bits, bool topDown) {
  Picture picture;
  picture.info.head = {sizeof(os::BITMAPINFOHEADER),
                       kWidth,
                       topDown ? -kHeight : kHeight,
                       1,
                       static_cast<std::uint16_t>(bits),
                       os::kRgb,
                       0,
                       0,
                       0,
                       0,
                       0};
  for (unsigned i = 0; i < 256; ++i) picture.info.colours[i] = ColourOf(i);
  for (int y = 0; y < kHeight; ++y) {
    std::string row(static_cast<std::size_t>((kWidth * bits + 31) / 32 * 4), '\0');
    for (int x = 0; x < kWidth; ++x) picture.pixels.push_back(Put(row, x, y, bits));
    picture.rows = topDown ? picture.rows + row : row + picture.rows;
  }
  return picture;
}

std::string MetafileOf(const Picture& picture) {
  const auto os = std::make_unique<zdx::PosixGraphics>();
  void* bits = nullptr;
  const os::HBITMAP bitmap =
      os->CreateDIBSection(nullptr, reinterpret_cast<const os::BITMAPINFO*>(&picture.info),
                           os::kRgbColors, &bits, nullptr, 0);
  if (bitmap == nullptr) return {};
  std::memcpy(bits, picture.rows.data(), picture.rows.size());
  const os::HDC target = os->CreateMetaFileW(nullptr);
  const os::HDC source = os->CreateCompatibleDC(nullptr);
  os->SelectObject(source, bitmap);
  os->BitBlt(target, 0, 0, kWidth, kHeight, source, 0, 0, os::kSourceCopy);
  const os::HMETAFILE metafile = os->CloseMetaFile(target);
  std::string bytes(os->GetMetaFileBitsEx(metafile, 0, nullptr), '\0');
  os->GetMetaFileBitsEx(metafile, static_cast<std::uint32_t>(bytes.size()), bytes.data());
  return bytes;
}

std::string Words(std::initializer_list<unsigned> words) {
  std::string bytes;
  for (const unsigned word : words) {
    bytes.push_back(static_cast<char>(word & 0xFF));
    bytes.push_back(static_cast<char>(word >> 8));
  }
  return bytes;
}

// The head that tells a viewer the size: 72 units an inch, so that it draws a pixel for each.
std::string PlaceableHead() {
  unsigned sum = 0;
  const std::initializer_list<unsigned> words = {0xCDD7, 0x9AC6,  0,  0, 0,
                                                 kWidth, kHeight, 72, 0, 0};
  for (const unsigned word : words) sum ^= word;
  return Words(words) + Words({sum});
}

// The head of a bitmap's own file, with the head's 40 bytes and three masks before its rows.
std::string BitmapFileHead(std::size_t size) {
  return "BM" + Words({static_cast<unsigned>(14 + size), 0, 0, 0, 14 + 40 + 12, 0});
}

class Rendering : public testing::TestWithParam<std::tuple<int, bool>> {
 protected:
  int bits() const { return std::get<0>(GetParam()); }
  bool masked() const { return bits() == 16 || bits() == 32; }

  // What the program tells of `bytes`, a file of that name: "P6", width, height, 255, pixels.
  Pixels Seen(const char* program, std::vector<std::string> arguments, const std::string& name,
              const std::string& bytes) const {
    folder_.Write(name, bytes);
    const auto outcome = zdx_test::RunCommand({program, std::move(arguments), {}, folder_.path()});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
    std::istringstream stream(outcome.out);
    std::string magic;
    int width = 0;
    int height = 0;
    int most = 0;
    stream >> magic >> width >> height >> most;
    stream.get();
    EXPECT_EQ(magic, "P6");
    EXPECT_EQ(width, kWidth);
    EXPECT_EQ(height, kHeight);
    EXPECT_EQ(most, 255);
    Pixels pixels(static_cast<std::size_t>(kWidth * kHeight));
    for (Pixel& pixel : pixels) {
      for (int& part : pixel) part = stream.get();
    }
    return pixels;
  }

 private:
  zdx_test::ScratchFolder folder_;
};

TEST_P(Rendering, ShowsThePixelsOfTheBitmap) {
  const char* const program = masked() ? kBitmapViewer : kMetafileViewer;
  if (!zdx_test::CanRun(program)) GTEST_SKIP() << program << " isn't here";
  const Picture picture = Draw(bits(), std::get<1>(GetParam()));
  const std::string metafile = MetafileOf(picture);
  ASSERT_GT(metafile.size(), 18u + 22u + 6u);
  if (!masked()) {
    EXPECT_EQ(Seen(program, {"convert", "a.wmf", "-depth", "8", "ppm:-"}, "a.wmf",
                   PlaceableHead() + metafile),
              picture.pixels);
    return;
  }
  const std::string bitmap = metafile.substr(18 + 22, metafile.size() - 18 - 22 - 6);
  Pixels seen = Seen(program, {"a.bmp"}, "a.bmp", BitmapFileHead(bitmap.size()) + bitmap);
  // Back to the five bits that were there.
  for (Pixel& pixel : seen) {
    for (int& part : pixel) part = bits() == 16 ? (part * 31 + 127) / 255 : part;
  }
  EXPECT_EQ(seen, picture.pixels);
}

INSTANTIATE_TEST_SUITE_P(Bits, Rendering,
                         testing::Combine(testing::Values(1, 4, 8, 16, 24, 32), testing::Bool()),
                         [](const auto& info) {
                           return std::to_string(std::get<0>(info.param)) +
                                  (std::get<1>(info.param) ? "TopDown" : "BottomUp");
                         });

}  // namespace
