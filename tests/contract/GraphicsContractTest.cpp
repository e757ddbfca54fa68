// What every provider of bitmaps, palettes and metafiles does.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "backends/System.h"
#include "backends/posix/graphics/PosixGraphics.h"
#include "contract/Bitmaps.h"

namespace graphics_contract {
namespace {

using namespace std::string_literals;
using contract::Info;
using contract::Palette;
using contract::RowSize;
using testing::Each;

struct Subject {
  const char* name;
  std::unique_ptr<os::GraphicsProvider> (*make)();
};

// How a failing test names its subject.
void PrintTo(const Subject& subject, std::ostream* out) { *out << subject.name; }

std::unique_ptr<os::GraphicsProvider> MakeOwn() { return std::make_unique<zdx::PosixGraphics>(); }

// The system's; where it has such calls, also those that stand in for them elsewhere.
std::vector<Subject> Subjects() {
  std::vector<Subject> subjects = {{"System", zdx::MakeSystemGraphics}};
  const auto system = zdx::MakeSystemGraphics();
  if (dynamic_cast<zdx::PosixGraphics*>(system.get()) == nullptr) {
    subjects.push_back({"Own", MakeOwn});
  }
  return subjects;
}

class Graphics : public testing::TestWithParam<Subject> {
 protected:
  std::unique_ptr<os::GraphicsProvider> os = GetParam().make();

  os::HBITMAP Make(const Info& info, void** bits = nullptr) {
    return os->CreateDIBSection(nullptr, info.get(), os::kRgbColors, bits, nullptr, 0);
  }

  // A bitmap whose stored rows are `rows`, one after the other.
  os::HBITMAP Make(const Info& info, const std::string& rows) {
    void* bits = nullptr;
    const os::HBITMAP bitmap = Make(info, &bits);
    if (bits != nullptr) std::memcpy(bits, rows.data(), rows.size());
    return bitmap;
  }

  std::string BitsOf(os::HMETAFILE metafile) {
    std::string bytes(os->GetMetaFileBitsEx(metafile, 0, nullptr), '\0');
    EXPECT_EQ(
        os->GetMetaFileBitsEx(metafile, static_cast<std::uint32_t>(bytes.size()), bytes.data()),
        bytes.size());
    return bytes;
  }

  // The metafile that draws the whole of `bitmap`, which ends, with `palette` unless it is null.
  std::string Metafile(os::HBITMAP bitmap, os::HPALETTE palette = nullptr) {
    os::BITMAP told{};
    EXPECT_EQ(os->GetObjectW(bitmap, sizeof told, &told), 32);
    const os::HDC target = os->CreateMetaFileW(nullptr);
    const os::HDC source = os->CreateCompatibleDC(nullptr);
    EXPECT_NE(os->SelectObject(source, bitmap), nullptr);
    if (palette != nullptr) {
      EXPECT_NE(os->SelectPalette(target, palette, 1), nullptr);
      os->RealizePalette(target);
    }
    EXPECT_NE(os->BitBlt(target, 0, 0, told.bmWidth, told.bmHeight, source, 0, 0, os::kSourceCopy),
              0);
    EXPECT_NE(os->DeleteDC(source), 0);
    const os::HMETAFILE metafile = os->CloseMetaFile(target);
    EXPECT_NE(metafile, nullptr);
    std::string bytes = BitsOf(metafile);
    EXPECT_NE(os->DeleteMetaFile(metafile), 0);
    EXPECT_NE(os->DeleteObject(bitmap), 0);
    return bytes;
  }
};

// Two rows of four pixels, bottom-up.
const std::string kRows =
    "\x00\x01\x02\x03\x04\x05\x06\x07\x08\x09\x0A\x0B"
    "\x03\x04\x05\x06\x07\x08\x09\x0A\x0B\x0C\x0D\x0E"s;

const std::string kSmallestMetafile =
    "\x01\x00\x09\x00\x00\x03\x37\x00\x00\x00\x00\x00\x2b\x00\x00\x00\x00\x00"
    "\x2b\x00\x00\x00\x40\x09\x20\x00\xcc\x00\x00\x00\x00\x00\x02\x00\x04\x00\x00\x00\x00\x00"
    "\x28\x00\x00\x00\x04\x00\x00\x00\x02\x00\x00\x00\x01\x00\x18\x00\x00\x00\x00\x00"
    "\x18\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00"
    "\x00\x01\x02\x03\x04\x05\x06\x07\x08\x09\x0a\x0b\x03\x04\x05\x06\x07\x08\x09\x0a\x0b\x0c\x0d"
    "\x0e\x03\x00\x00\x00\x00\x00"s;

TEST_P(Graphics, TheMetafileOfASmallBitmapHasTheseBytes) {
  EXPECT_EQ(Metafile(Make(Info(4, 2, 24), kRows)), kSmallestMetafile);
}

TEST_P(Graphics, ATopDownBitmapComesOutBottomUp) {
  const std::string topDown = kRows.substr(12) + kRows.substr(0, 12);
  EXPECT_EQ(Metafile(Make(Info(4, -2, 24), topDown)), kSmallestMetafile);
}

TEST_P(Graphics, AMetafileOfEachDepthHasItsSize) {
  const struct {
    int width;
    std::uint16_t bits;
    std::size_t size;
  } kSizes[] = {{100, 24, 15086}, {100, 8, 6110},   {100, 4, 2750},  {100, 1, 894},
                {100, 16, 10098}, {100, 32, 20098}, {101, 24, 15286}};
  for (const auto& row : kSizes) {
    EXPECT_EQ(Metafile(Make(Info(row.width, 50, row.bits))).size(), row.size)
        << row.width << " by 50, " << row.bits << " bits";
  }
}

TEST_P(Graphics, TheHeaderCountsWordsOfTheWholeAndOfTheLargestRecord) {
  const std::string bytes = Metafile(Make(Info(100, 50, 24)));
  EXPECT_EQ(bytes.substr(0, 18),
            "\x01\x00\x09\x00\x00\x03\x77\x1D\x00\x00\x00\x00\x6B\x1D\x00\x00\x00\x00"s);
}

TEST_P(Graphics, TheColourTableFollowsTheHead) {
  Info info(4, 1, 8);
  for (int i = 0; i < 256; ++i) {
    const auto level = static_cast<std::uint8_t>(i);
    info.colours[i] = {level, static_cast<std::uint8_t>(255 - i), 7, 0};
  }
  const std::string bytes = Metafile(Make(info, "\x01\x02\x03\xFF"s));
  const std::string table(reinterpret_cast<const char*>(info.colours), sizeof info.colours);
  EXPECT_EQ(bytes.substr(18 + 22 + 40, 1024), table);
  EXPECT_EQ(bytes.substr(18 + 22 + 40 + 1024, 4), "\x01\x02\x03\xFF"s);
}

TEST_P(Graphics, AShortColourTableIsFilledUpWithBlack) {
  Info info(4, 1, 4);
  info.head.biClrUsed = 2;
  std::fill(std::begin(info.colours), std::end(info.colours), os::RGBQUAD{9, 8, 7, 0});
  const std::string table = Metafile(Make(info)).substr(18 + 22 + 40, 64);
  EXPECT_EQ(table.substr(0, 8), "\x09\x08\x07\x00\x09\x08\x07\x00"s);
  EXPECT_THAT(table.substr(8), Each('\0'));
}

TEST_P(Graphics, SixteenBitsComeWithTheirMasks) {
  const std::string bytes = Metafile(Make(Info(2, 1, 16), "\x11\x22\x33\x44"s));
  EXPECT_EQ(bytes.substr(18 + 22 + 14, 6), "\x10\x00\x03\x00\x00\x00"s);
  EXPECT_EQ(bytes.substr(18 + 22 + 40, 16),
            "\x00\x7C\x00\x00\xE0\x03\x00\x00\x1F\x00\x00\x00\x11\x22\x33\x44"s);
}

TEST_P(Graphics, ThirtyTwoBitsComeWithTheirMasks) {
  const std::string bytes = Metafile(Make(Info(1, 1, 32), "\x11\x22\x33\x44"s));
  EXPECT_EQ(bytes.substr(18 + 22 + 14, 6), "\x20\x00\x03\x00\x00\x00"s);
  EXPECT_EQ(bytes.substr(18 + 22 + 40, 16),
            "\x00\x00\xFF\x00\x00\xFF\x00\x00\xFF\x00\x00\x00\x11\x22\x33\x44"s);
}

TEST_P(Graphics, MasksThatWereGivenAreKept) {
  Info info(2, 1, 16);
  info.head.biCompression = os::kBitFields;
  const std::string masks = "\x00\xF8\x00\x00\xE0\x07\x00\x00\x1F\x00\x00\x00"s;
  std::memcpy(info.colours, masks.data(), masks.size());
  EXPECT_EQ(Metafile(Make(info)).substr(18 + 22 + 40, 12), masks);
}

TEST_P(Graphics, AMaskKeepsItsTopBits) {
  Info info(1, 1, 32);
  info.head.biCompression = os::kBitFields;
  const std::string masks = "\x00\x00\x00\xFF\x00\x00\xFF\x00\x00\xFF\x00\x00"s;
  std::memcpy(info.colours, masks.data(), masks.size());
  EXPECT_EQ(Metafile(Make(info)).substr(18 + 22 + 40, 12), masks);
}

TEST_P(Graphics, TheColourTableStandsBehindALongerHead) {
  Info info(4, 1, 1);
  info.head.biSize = sizeof info.head + sizeof(os::RGBQUAD);
  info.colours[0] = {9, 9, 9, 0};
  info.colours[1] = {1, 2, 3, 0};
  info.colours[2] = {4, 5, 6, 0};
  EXPECT_EQ(Metafile(Make(info)).substr(18 + 22 + 40, 8), "\x01\x02\x03\x00\x04\x05\x06\x00"s);
}

TEST_P(Graphics, AColourTableLongerThanItsBitsIsCut) {
  Info info(4, 1, 1);
  info.head.biClrUsed = 256;
  info.colours[1] = {4, 5, 6, 0};
  const std::string bytes = Metafile(Make(info));
  EXPECT_EQ(bytes.size(), 18u + 22 + 40 + 8 + 4 + 6);
  EXPECT_EQ(bytes.substr(18 + 22 + 40, 8), "\x00\x00\x00\x00\x04\x05\x06\x00"s);
}

TEST_P(Graphics, ANewBitmapIsBlackEvenWhereAnotherWas) {
  const Info info(64, 8, 24);
  const std::string white(RowSize(64, 24) * 8, '\xFF');
  ASSERT_NE(os->DeleteObject(Make(info, white)), 0);
  void* rows = nullptr;
  ASSERT_NE(Make(info, &rows), nullptr);
  EXPECT_THAT(std::string(static_cast<char*>(rows), white.size()), Each('\0'));
}

TEST_P(Graphics, ARealizedPaletteStandsBeforeTheBitmap) {
  Palette palette(256);
  palette.entries[0] = {1, 2, 3, 0};
  palette.entries[255] = {4, 5, 6, 0};
  const os::HPALETTE handle = os->CreatePalette(palette.get());
  const std::string bytes = Metafile(Make(Info(100, 50, 8)), handle);
  EXPECT_EQ(bytes.size(), 7158u);
  EXPECT_EQ(bytes.substr(10, 2), "\x01\x00"s) << "objects";
  EXPECT_EQ(bytes.substr(18, 14), "\x05\x02\x00\x00\xF7\x00\x00\x03\x00\x01\x01\x02\x03\x00"s);
  EXPECT_EQ(bytes.substr(18 + 1030, 18),
            "\x04\x05\x06\x00\x04\x00\x00\x00\x34\x02\x00\x00\x03\x00\x00\x00\x35\x00"s);
  EXPECT_EQ(bytes.substr(18 + 1034 + 8 + 6 + 4, 2), "\x40\x09"s);
  EXPECT_NE(os->DeleteObject(handle), 0);
}

TEST_P(Graphics, APaletteIsRealizedThoughNoneWasSelected) {
  const os::HDC metafile = os->CreateMetaFileW(nullptr);
  os->SelectPalette(metafile, nullptr, 1);
  os->RealizePalette(metafile);
  const std::string bytes = BitsOf(os->CloseMetaFile(metafile));
  EXPECT_EQ(bytes.substr(10, 6), "\x00\x00\x03\x00\x00\x00"s) << "no object, three words at most";
  EXPECT_EQ(bytes.substr(18), "\x03\x00\x00\x00\x35\x00\x03\x00\x00\x00\x00\x00"s);
}

TEST_P(Graphics, APartOfABitmapIsItsWholeWithThePlaceOfThePart) {
  const os::HDC target = os->CreateMetaFileW(nullptr);
  const os::HDC source = os->CreateCompatibleDC(nullptr);
  ASSERT_NE(os->SelectObject(source, Make(Info(4, 2, 24), kRows)), nullptr);
  EXPECT_NE(os->BitBlt(target, 5, 6, 2, 1, source, 3, 4, os::kSourceCopy), 0);
  const std::string bytes = BitsOf(os->CloseMetaFile(target));
  ASSERT_EQ(bytes.size(), kSmallestMetafile.size());
  EXPECT_EQ(bytes.substr(18 + 10, 12), "\x04\x00\x03\x00\x01\x00\x02\x00\x06\x00\x05\x00"s);
  EXPECT_EQ(bytes.substr(18 + 22), kSmallestMetafile.substr(18 + 22));
}

TEST_P(Graphics, AWidthBeyond16BitsIsWholeInTheBitmapsOwnHead) {
  const std::string bytes = Metafile(Make(Info(65537, 1, 1)));
  EXPECT_EQ(bytes.substr(18 + 14, 4), "\x01\x00\x01\x00"s) << "height and width of the transfer";
  EXPECT_EQ(bytes.substr(18 + 22 + 4, 4), "\x01\x00\x01\x00"s) << "65537 in 32 bits";
  EXPECT_EQ(bytes.size(), 18 + 22 + 40 + 8 + RowSize(65537, 1) + 6);
}

TEST_P(Graphics, AMetafileOfNothingIsItsHeaderAndItsEnd) {
  EXPECT_EQ(BitsOf(os->CloseMetaFile(os->CreateMetaFileW(nullptr))),
            "\x01\x00\x09\x00\x00\x03\x0C\x00\x00\x00\x00\x00\x03\x00\x00\x00\x00\x00"
            "\x03\x00\x00\x00\x00\x00"s);
}

TEST_P(Graphics, ABitmapIsToldByItsSize) {
  void* rows = nullptr;
  const os::HBITMAP bitmap = Make(Info(101, -50, 24), &rows);
  os::BITMAP told{};
  ASSERT_EQ(os->GetObjectW(bitmap, sizeof told, &told), 32);
  EXPECT_EQ(told.bmType, 0);
  EXPECT_EQ(told.bmWidth, 101);
  EXPECT_EQ(told.bmHeight, 50);
  EXPECT_EQ(told.bmWidthBytes, 304);
  EXPECT_EQ(told.bmPlanes, 1);
  EXPECT_EQ(told.bmBitsPixel, 24);
  EXPECT_EQ(told.bmBits, rows);
}

TEST_P(Graphics, ABufferTooSmallForABitmapIsNotWritten) {
  char buffer[31] = {};
  EXPECT_EQ(os->GetObjectW(Make(Info(4, 2, 24)), sizeof buffer, buffer), 0);
  EXPECT_THAT(std::string(buffer, sizeof buffer), Each('\0'));
}

TEST_P(Graphics, WithoutABufferTheSizeOfWhatIsToldIsGiven) {
  EXPECT_EQ(os->GetObjectW(Make(Info(4, 2, 24)), 0, nullptr), 32);
}

TEST_P(Graphics, ABitmapOutlivesItsContextAndIsDeletedOnce) {
  const os::HBITMAP bitmap = Make(Info(4, 2, 24));
  const os::HDC context = os->CreateCompatibleDC(nullptr);
  ASSERT_NE(os->SelectObject(context, bitmap), nullptr);
  EXPECT_NE(os->DeleteDC(context), 0);
  EXPECT_NE(os->DeleteObject(bitmap), 0);
  EXPECT_EQ(os->DeleteObject(bitmap), 0);
}

TEST_P(Graphics, ASelectionTellsTheOneBefore) {
  const os::HDC context = os->CreateCompatibleDC(nullptr);
  const os::HBITMAP first = Make(Info(4, 2, 24));
  const os::HBITMAP second = Make(Info(4, 2, 24));
  const os::HGDIOBJ original = os->SelectObject(context, first);
  EXPECT_NE(original, nullptr);
  EXPECT_EQ(os->SelectObject(context, second), first);
  EXPECT_NE(os->DeleteObject(first), 0);
  EXPECT_EQ(os->SelectObject(context, original), second);
  EXPECT_NE(os->DeleteObject(second), 0);
}

TEST_P(Graphics, ABitmapIsSelectedAgainIntoItsContext) {
  const os::HDC context = os->CreateCompatibleDC(nullptr);
  const os::HBITMAP bitmap = Make(Info(4, 2, 24));
  ASSERT_NE(os->SelectObject(context, bitmap), nullptr);
  EXPECT_EQ(os->SelectObject(context, bitmap), bitmap);
}

TEST_P(Graphics, TheFirstBitmapOfAContextIsEveryContextsAndStays) {
  const os::HDC first = os->CreateCompatibleDC(nullptr);
  const os::HDC second = os->CreateCompatibleDC(nullptr);
  const os::HBITMAP bitmap = Make(Info(4, 2, 24));
  const os::HGDIOBJ stock = os->SelectObject(first, bitmap);
  EXPECT_NE(os->DeleteObject(stock), 0);
  EXPECT_EQ(os->SelectObject(second, stock), stock);
  EXPECT_EQ(os->SelectObject(first, stock), bitmap);
}

TEST_P(Graphics, ABitmapIsSelectedIntoOneContextAtATime) {
  const os::HBITMAP bitmap = Make(Info(4, 2, 24));
  const os::HDC first = os->CreateCompatibleDC(nullptr);
  const os::HDC second = os->CreateCompatibleDC(nullptr);
  ASSERT_NE(os->SelectObject(first, bitmap), nullptr);
  EXPECT_EQ(os->SelectObject(second, bitmap), nullptr);
}

TEST_P(Graphics, ANewContextsUnitsArePixels) {
  const os::HDC metafile = os->CreateMetaFileW(nullptr);
  const os::HDC memory = os->CreateCompatibleDC(nullptr);
  for (const os::HDC context : {metafile, memory}) {
    os::POINT points[] = {{640, 480}, {-1, 70000}};
    EXPECT_TRUE(os->DPtoLP(context, points, 2) != 0 || context == metafile);
    EXPECT_EQ(points[0].x, 640);
    EXPECT_EQ(points[0].y, 480);
    EXPECT_EQ(points[1].x, -1);
    EXPECT_EQ(points[1].y, 70000);
  }
  EXPECT_EQ(os->SetMapMode(memory, os::kMapModeText), os::kMapModeText);
  os->SetMapMode(memory, os->GetMapMode(metafile));
  EXPECT_EQ(os->GetMapMode(memory), os::kMapModeText);
}

TEST_P(Graphics, TheScreenIsReleasedOnce) {
  const os::HDC screen = os->GetDC(nullptr);
  ASSERT_NE(screen, nullptr);
  const os::HDC memory = os->CreateCompatibleDC(screen);
  EXPECT_NE(memory, nullptr);
  EXPECT_EQ(os->ReleaseDC(nullptr, screen), 1);
  EXPECT_EQ(os->ReleaseDC(nullptr, screen), 0);
  EXPECT_NE(os->DeleteDC(memory), 0);
}

TEST_P(Graphics, PartOfAMetafileIsGivenIfThereIsNoMoreRoom) {
  const os::HMETAFILE metafile = os->CloseMetaFile(os->CreateMetaFileW(nullptr));
  char buffer[6] = {};
  EXPECT_EQ(os->GetMetaFileBitsEx(metafile, 4, buffer), 4u);
  EXPECT_EQ(std::string(buffer, sizeof buffer), "\x01\x00\x09\x00\x00\x00"s);
}

TEST_P(Graphics, AMetafilesContextEndsWithIt) {
  const os::HDC context = os->CreateMetaFileW(nullptr);
  const os::HMETAFILE metafile = os->CloseMetaFile(context);
  ASSERT_NE(metafile, nullptr);
  EXPECT_EQ(os->CloseMetaFile(context), nullptr);
  EXPECT_NE(os->DeleteMetaFile(metafile), 0);
  EXPECT_EQ(os->GetMetaFileBitsEx(metafile, 0, nullptr), 0u);
  EXPECT_EQ(os->DeleteMetaFile(metafile), 0);
}

TEST_P(Graphics, ABitmapOfNoUseIsRefused) {
  constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
  constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
  for (const Info& info :
       {Info(0, 2, 24), Info(-4, 2, 24), Info(4, 0, 24), Info(4, kLeast, 24), Info(4, 2, 2),
        Info(4, 2, 0), Info(kMost, 2, 32), Info(kMost, kMost, 32), Info(65536, 32768, 32)}) {
    void* bits = this;
    EXPECT_EQ(Make(info, &bits), nullptr)
        << info.head.biWidth << " by " << info.head.biHeight << ", " << info.head.biBitCount;
    EXPECT_EQ(bits, nullptr);
  }
}

TEST_P(Graphics, ACompressedBitmapIsRefused) {
  Info info(4, 2, 8);
  info.head.biCompression = 1;
  EXPECT_EQ(Make(info), nullptr);
  info.head.biCompression = os::kBitFields;
  EXPECT_EQ(Make(info), nullptr) << "masks need 16 or 32 bits";
}

TEST_P(Graphics, ABitmapOfAnotherNumberOfPlanesIsRefused) {
  for (const std::uint16_t planes : {std::uint16_t{0}, std::uint16_t{2}}) {
    Info info(4, 2, 24);
    info.head.biPlanes = planes;
    EXPECT_EQ(Make(info), nullptr) << planes;
  }
}

TEST_P(Graphics, AHeadCutShortIsRefused) {
  Info info(4, 2, 24);
  info.head.biSize = sizeof info.head - 1;
  EXPECT_EQ(Make(info), nullptr);
}

TEST_P(Graphics, NullIsRefused) {
  EXPECT_EQ(os->CreateDIBSection(nullptr, nullptr, os::kRgbColors, nullptr, nullptr, 0), nullptr);
  EXPECT_EQ(os->CreatePalette(nullptr), nullptr);
  EXPECT_EQ(os->ReleaseDC(nullptr, nullptr), 0);
  EXPECT_EQ(os->SelectObject(nullptr, nullptr), nullptr);
  EXPECT_EQ(os->SelectObject(os->CreateCompatibleDC(nullptr), nullptr), nullptr);
  EXPECT_EQ(os->GetMapMode(nullptr), 0);
  EXPECT_EQ(os->SetMapMode(nullptr, os::kMapModeText), 0);
  os::BITMAP told{};
  EXPECT_EQ(os->GetObjectW(nullptr, sizeof told, &told), 0);
  os::POINT point{};
  EXPECT_EQ(os->DPtoLP(nullptr, &point, 1), 0);
  EXPECT_EQ(os->SelectPalette(os->CreateMetaFileW(nullptr), nullptr, 1), nullptr);
  EXPECT_EQ(os->BitBlt(nullptr, 0, 0, 1, 1, nullptr, 0, 0, os::kSourceCopy), 0);
  EXPECT_EQ(os->DeleteDC(nullptr), 0);
  EXPECT_EQ(os->CloseMetaFile(nullptr), nullptr);
  EXPECT_EQ(os->GetMetaFileBitsEx(nullptr, 0, nullptr), 0u);
  EXPECT_EQ(os->DeleteMetaFile(nullptr), 0);
  EXPECT_EQ(os->DeleteObject(nullptr), 0);
}

TEST_P(Graphics, AHandleOfAnotherKindIsRefused) {
  const os::HBITMAP bitmap = Make(Info(4, 2, 24));
  const os::HDC memory = os->CreateCompatibleDC(nullptr);
  const os::HDC metafile = os->CreateMetaFileW(nullptr);
  EXPECT_EQ(os->CloseMetaFile(memory), nullptr);
  EXPECT_EQ(os->ReleaseDC(nullptr, memory), 0);
  EXPECT_EQ(os->BitBlt(metafile, 0, 0, 1, 1, metafile, 0, 0, os::kSourceCopy), 0);
  EXPECT_EQ(os->SelectObject(memory, memory), nullptr);
  EXPECT_EQ(os->SelectPalette(metafile, reinterpret_cast<os::HPALETTE>(bitmap), 1), nullptr);
  EXPECT_EQ(os->DeleteMetaFile(reinterpret_cast<os::HMETAFILE>(bitmap)), 0);
}

INSTANTIATE_TEST_SUITE_P(Of, Graphics, testing::ValuesIn(Subjects()),
                         [](const auto& info) { return std::string(info.param.name); });

// What holds where there are no bitmaps but the library's own.
class PosixGraphics : public testing::Test {
 protected:
  zdx::PosixGraphics os;
  const Palette palette{2};
};

TEST_F(PosixGraphics, TheFirstPaletteOfAMetafileLeavesNoRecord) {
  const os::HDC metafile = os.CreateMetaFileW(nullptr);
  const os::HPALETTE given = os.CreatePalette(palette.get());
  const os::HPALETTE stock = os.SelectPalette(metafile, given, 1);
  EXPECT_NE(os.DeleteObject(stock), 0);
  const os::HDC other = os.CreateMetaFileW(nullptr);
  EXPECT_EQ(os.SelectPalette(other, stock, 1), stock);
  EXPECT_EQ(os.GetMetaFileBitsEx(os.CloseMetaFile(other), 0, nullptr), 18u + 6u);
}

TEST_F(PosixGraphics, APaletteThatIsDeletedIsNoLongerAContexts) {
  const os::HDC metafile = os.CreateMetaFileW(nullptr);
  const os::HPALETTE given = os.CreatePalette(palette.get());
  const os::HPALETTE stock = os.SelectPalette(metafile, given, 1);
  EXPECT_NE(os.DeleteObject(given), 0);
  EXPECT_EQ(os.SelectPalette(metafile, os.CreatePalette(palette.get()), 1), stock);
}

TEST_F(PosixGraphics, ASelectedBitmapIsNotDeleted) {
  const Info info(4, 2, 24);
  const os::HBITMAP bitmap =
      os.CreateDIBSection(nullptr, info.get(), os::kRgbColors, nullptr, nullptr, 0);
  const os::HDC context = os.CreateCompatibleDC(nullptr);
  ASSERT_NE(os.SelectObject(context, bitmap), nullptr);
  EXPECT_EQ(os.DeleteObject(bitmap), 0);
  EXPECT_NE(os.DeleteDC(context), 0);
  EXPECT_NE(os.DeleteObject(bitmap), 0);
}

TEST_F(PosixGraphics, AMetafilesUnitsArePixelsToo) {
  const os::HDC metafile = os.CreateMetaFileW(nullptr);
  os::POINT point = {640, 480};
  EXPECT_NE(os.DPtoLP(metafile, &point, 1), 0);
  EXPECT_EQ(os.GetMapMode(metafile), os::kMapModeText);
}

TEST_F(PosixGraphics, APaletteOfNoUseIsRefused) {
  EXPECT_EQ(os.CreatePalette(Palette(0).get()), nullptr);
  Palette other(2);
  other.version = 0x0200;
  EXPECT_EQ(os.CreatePalette(other.get()), nullptr);
}

TEST_F(PosixGraphics, AnyMapModeButPixelsIsRefused) {
  const os::HDC memory = os.CreateCompatibleDC(nullptr);
  EXPECT_EQ(os.SetMapMode(memory, 8), 0);
  EXPECT_EQ(os.GetMapMode(memory), os::kMapModeText);
}

TEST_F(PosixGraphics, WhatNobodyAsksForIsRefused) {
  const Info info(4, 2, 24);
  int something = 0;
  EXPECT_EQ(os.CreateDIBSection(nullptr, info.get(), 1, nullptr, nullptr, 0), nullptr);
  EXPECT_EQ(os.CreateDIBSection(nullptr, info.get(), os::kRgbColors, nullptr, &something, 0),
            nullptr);
  EXPECT_EQ(os.CreateMetaFileW(L"a.wmf"), nullptr);
  EXPECT_EQ(os.GetDC(&something), nullptr);
  EXPECT_EQ(os.ReleaseDC(&something, os.GetDC(nullptr)), 0);
  EXPECT_EQ(os.CreateCompatibleDC(reinterpret_cast<os::HDC>(&something)), nullptr);
  EXPECT_EQ(os.DPtoLP(os.GetDC(nullptr), nullptr, 1), 0);
  os::POINT point{};
  EXPECT_EQ(os.DPtoLP(os.GetDC(nullptr), &point, -1), 0);
}

}  // namespace
}  // namespace graphics_contract
