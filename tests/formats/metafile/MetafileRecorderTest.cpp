#include <gtest/gtest.h>

#include "backends/posix/graphics/MetafileRecorder.h"
#include "backends/posix/graphics/PosixGraphics.h"

namespace zdx::graphics {
namespace {

std::unique_ptr<Bitmap> FourByTwo() {
  os::BITMAPINFO info{};
  info.bmiHeader = {sizeof(os::BITMAPINFOHEADER), 4, 2, 1, 24, os::kRgb, 0, 0, 0, 0, 0};
  return Bitmap::Make(info);
}

constexpr Transfer kAll = {0, 0, 4, 2, 0, 0, os::kSourceCopy};
// Header, record with its fields, bitmap's head and rows, end.
constexpr std::size_t kWhole = 18 + 22 + 40 + 24 + 6;

TEST(MetafileRecorder, FillsTheRoomThatThereIs) {
  MetafileRecorder recorder(kWhole);
  EXPECT_TRUE(recorder.DrawBitmap(*FourByTwo(), kAll));
  const auto bytes = recorder.Finish();
  ASSERT_TRUE(bytes);
  EXPECT_EQ(bytes->size(), kWhole);
}

TEST(MetafileRecorder, ABitmapOneByteTooLargeMakesNoMetafile) {
  MetafileRecorder recorder(kWhole - 1);
  EXPECT_FALSE(recorder.DrawBitmap(*FourByTwo(), kAll));
  EXPECT_FALSE(recorder.Finish());
}

TEST(MetafileRecorder, APaletteTooLargeMakesNoMetafile) {
  MetafileRecorder recorder(kWhole);
  const std::vector<os::PALETTEENTRY> entries(256);
  recorder.SelectPalette(entries);
  EXPECT_FALSE(recorder.Finish());
}

TEST(MetafileRecorder, NothingFollowsWhatFoundNoRoom) {
  MetafileRecorder recorder(kWhole + 14);
  EXPECT_TRUE(recorder.DrawBitmap(*FourByTwo(), kAll));
  EXPECT_FALSE(recorder.DrawBitmap(*FourByTwo(), kAll));
  recorder.RealizePalette();
  EXPECT_FALSE(recorder.Finish());
}

TEST(MetafileRecorder, WithoutRoomThereIsNoMetafileAndItsContextHasEnded) {
  // Room for the header alone.
  PosixGraphics os(18);
  const os::HDC context = os.CreateMetaFileW(nullptr);
  EXPECT_EQ(os.CloseMetaFile(context), nullptr);
  EXPECT_EQ(os.GetMapMode(context), 0);
}

TEST(MetafileRecorder, ATransferWithoutRoomFails) {
  PosixGraphics os(18 + 6);
  const os::HDC metafile = os.CreateMetaFileW(nullptr);
  const os::HDC memory = os.CreateCompatibleDC(nullptr);
  EXPECT_EQ(os.BitBlt(metafile, 0, 0, 1, 1, memory, 0, 0, os::kSourceCopy), 0);
  EXPECT_EQ(os.CloseMetaFile(metafile), nullptr);
}

}  // namespace
}  // namespace zdx::graphics
