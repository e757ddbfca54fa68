#include <gmock/gmock.h>
#include <png.h>

#include <algorithm>

#include "cli/CliTest.h"
#include "cli/SmallDrawing.h"
#include "support/Paths.h"
#include "support/pictures/Pictures.h"

namespace zdx_test {

namespace {

using namespace std::string_literals;
using pictures::BitmapHead;
using pictures::Number;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

constexpr int kNoPicture = 1;

class Thumb : public CliTest {
 protected:
  // Runs thumb on a drawing with that picture; gives the bytes of the file that it wrote.
  std::string Written(const std::string& picture, const std::string& output) const {
    SmallDrawing drawing;
    drawing.picture = picture;
    Write("plan.dxf", DxfText(drawing));
    const Outcome outcome = Zdx({"thumb", "plan.dxf", "-O", output});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
    EXPECT_THAT(outcome.out, IsEmpty());
    return Read(output);
  }

  std::string Read(const std::string& name) const { return ContentsOf(Folder() / PathOf(name)); }

  std::vector<std::string> FilesInTheFolder() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(Folder())) {
      names.push_back(BytesOf(entry.path().filename()));
    }
    std::sort(names.begin(), names.end());
    return names;
  }
};

// Red, green and blue of each pixel, from the top; and how wide the picture is.
struct Pixels {
  std::string bytes;
  unsigned width = 0;
  bool palette = false;
};

Pixels Decode(const std::string& png) {
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  EXPECT_NE(png_image_begin_read_from_memory(&image, png.data(), png.size()), 0);
  Pixels pixels;
  pixels.width = image.width;
  pixels.palette = (image.format & PNG_FORMAT_FLAG_COLORMAP) != 0;
  image.format = PNG_FORMAT_RGB;
  pixels.bytes.resize(PNG_IMAGE_SIZE(image));
  EXPECT_NE(png_image_finish_read(&image, nullptr, pixels.bytes.data(), 0, nullptr), 0);
  return pixels;
}

TEST_F(Thumb, APictureInPngHasThePixelsOfTheDrawing) {
  const Pixels pixels = Decode(Written(pictures::SmallBitmap(), "out.png"));
  EXPECT_EQ(pixels.width, 4u);
  EXPECT_FALSE(pixels.palette);
  EXPECT_EQ(pixels.bytes,
            "\x0E\x0D\x0C\x11\x10\x0F\x14\x13\x12\x17\x16\x15"
            "\x02\x01\x00\x05\x04\x03\x08\x07\x06\x0B\x0A\x09"s);
}

TEST_F(Thumb, APictureWithATableHasAPaletteInPng) {
  BitmapHead head{.width = 2, .height = 2, .bits = 4, .coloursUsed = 3};
  const std::string table = "\3\2\1\0\6\5\4\0\x9\x8\7\0"s;
  const Pixels pixels = Decode(Written(head.Bytes() + table + "\x01\0\0\0\x21\0\0\0"s, "out.png"));
  EXPECT_TRUE(pixels.palette);
  EXPECT_EQ(pixels.bytes, "\7\x8\x9\4\5\6\1\2\3\4\5\6"s);
}

TEST_F(Thumb, APictureOfTwoColoursHasThemInPng) {
  BitmapHead head{.width = 3, .height = 1, .bits = 1};
  const Pixels pixels =
      Decode(Written(head.Bytes() + "\0\0\0\0\xFF\xFE\xFD\0\xA0\0\0\0"s, "out.png"));
  EXPECT_EQ(pixels.bytes, "\xFD\xFE\xFF\0\0\0\xFD\xFE\xFF"s);
}

TEST_F(Thumb, FiveBitsAreSpreadOverEightInPng) {
  BitmapHead head{.width = 2, .height = 1, .bits = 16};
  // Full red with half of green's levels; then full blue.
  const Pixels pixels = Decode(Written(head.Bytes() + "\x00\x7E\x1F\x00"s, "out.png"));
  // 16 of 31 levels are 131.6 of 255.
  EXPECT_EQ(pixels.bytes, "\xFF\x84\x00\x00\x00\xFF"s);
}

TEST_F(Thumb, TopDownRowsComeTheRightWayUp) {
  BitmapHead head{.width = 1, .height = -2, .bits = 32};
  const Pixels pixels = Decode(Written(head.Bytes() + "\3\2\1\0\6\5\4\0"s, "out.png"));
  EXPECT_EQ(pixels.bytes, "\1\2\3\4\5\6");
}

TEST_F(Thumb, APictureInBmpIsTheBitmapBehindTheHeadOfAFile) {
  const std::string rows = pictures::SmallBitmap().substr(40);
  const std::string file = Written(pictures::SmallBitmap(), "out.bmp");
  EXPECT_EQ(file.substr(0, 14), "BM"s + Number(14 + 40 + 24, 4) + Number(0, 4) + Number(54, 4));
  EXPECT_EQ(file.substr(14, 16), BitmapHead().Bytes().substr(0, 16));
  EXPECT_EQ(file.substr(54), rows);
}

TEST_F(Thumb, TheMetafileHasAHeadThatTellsItsSize) {
  const std::string file = Written(pictures::SmallBitmap(), "out.wmf");
  std::string head = Number(0x9AC6CDD7, 4) + Number(0, 2) + Number(0, 4) + Number(4, 2) +
                     Number(2, 2) + Number(72, 2) + Number(0, 4);
  head += Number(0xCDD7 ^ 0x9AC6 ^ 4 ^ 2 ^ 72, 2);
  EXPECT_EQ(file.substr(0, 22), head);
  EXPECT_EQ(file.substr(22),
            pictures::Metafile(
                {{0x0035, ""},
                 {0x0940, Number(0x00CC0020, 4) + Number(0, 4) + Number(2, 2) + Number(4, 2) +
                              Number(0, 4) + BitmapHead().Bytes().substr(0, 20) + Number(24, 4) +
                              std::string(16, '\0') + pictures::SmallBitmap().substr(40)}}));
}

TEST_F(Thumb, ALargerPictureThanThatHeadCanTellHasNone) {
  BitmapHead head{.width = 32768, .height = 1, .bits = 1};
  const std::string file =
      Written(head.Bytes() + std::string(8, '\0') + std::string(4096, '\0'), "out.wmf");
  EXPECT_THAT(file, StartsWith("\1\0\x9\0\0\3"s));
}

TEST_F(Thumb, TheNameMayEndInCapitals) {
  EXPECT_THAT(Written(pictures::SmallBitmap(), "OUT.PNG"), StartsWith("\x89PNG"));
  EXPECT_THAT(Written(pictures::SmallBitmap(), "OUT.Bmp"), StartsWith("BM"));
}

TEST_F(Thumb, TheOutputMayBeGivenInFull) {
  SmallDrawing drawing;
  drawing.picture = pictures::SmallBitmap();
  Write("plan.dxf", DxfText(drawing));
  EXPECT_EQ(Zdx({"thumb", "--output=[a].png", "--", "plan.dxf"}).exitCode, 0);
  EXPECT_THAT(Read("[a].png"), StartsWith("\x89PNG"));
}

TEST_F(Thumb, APictureThatWasThereIsReplaced) {
  Write("out.png", "old");
  EXPECT_THAT(Written(pictures::SmallBitmap(), "out.png"), StartsWith("\x89PNG"));
  EXPECT_THAT(FilesInTheFolder(), ElementsAre("out.png", "plan.dxf"));
}

TEST_F(Thumb, ADrawingWithoutAPictureIsTold) {
  Write("plan.dxf", DxfText());
  const Outcome outcome = Zdx({"thumb", "plan.dxf", "-O", "out.png"});
  EXPECT_EQ(outcome.exitCode, kNoPicture);
  EXPECT_EQ(outcome.err, "zdx: plan.dxf: There is no preview picture.\n");
  EXPECT_THAT(FilesInTheFolder(), ElementsAre("plan.dxf"));
}

TEST_F(Thumb, APictureThatCannotBeShownIsNone) {
  SmallDrawing drawing;
  drawing.picture = "not a bitmap";
  Write("plan.dxf", DxfText(drawing));
  const Outcome outcome = Zdx({"thumb", "plan.dxf", "-O", "out.png"});
  EXPECT_EQ(outcome.exitCode, kNoPicture);
  EXPECT_THAT(outcome.err, HasSubstr("warning: The preview picture can't be shown: "));
  EXPECT_THAT(outcome.err, HasSubstr("zdx: plan.dxf: There is no preview picture.\n"));
}

TEST_F(Thumb, AFileThatCannotBeReadIsTold) {
  const Outcome outcome = Zdx({"thumb", "missing.dxf", "-O", "out.png"});
  EXPECT_EQ(outcome.exitCode, kFileFailed);
  EXPECT_THAT(outcome.err, StartsWith("zdx: missing.dxf: Unable to find file"));
  EXPECT_THAT(FilesInTheFolder(), IsEmpty());
}

TEST_F(Thumb, APlaceThatCannotBeWrittenIsToldAndNothingIsLeft) {
  SmallDrawing drawing;
  drawing.picture = pictures::SmallBitmap();
  Write("plan.dxf", DxfText(drawing));
  std::filesystem::create_directory(Folder() / "folder.png");
  Write("folder.png/keep", "");
  for (const char* const output : {"missing/out.png", "folder.png"}) {
    const Outcome outcome = Zdx({"thumb", "plan.dxf", "-O", output});
    EXPECT_EQ(outcome.exitCode, kOutputFailed);
    EXPECT_THAT(outcome.err, StartsWith("zdx: "s + output + ": "));
    EXPECT_THAT(FilesInTheFolder(), ElementsAre("folder.png", "plan.dxf"));
  }
}

TEST_F(Thumb, APictureThatIsProtectedIsNotReplacedOnWindows) {
  if (!kOnWindows) GTEST_SKIP() << "who may write the folder may replace its files here";
  Write("out.png", "old");
  using std::filesystem::perms;
  constexpr auto kWrite = perms::owner_write | perms::group_write | perms::others_write;
  std::filesystem::permissions(Folder() / "out.png", kWrite, std::filesystem::perm_options::remove);
  SmallDrawing drawing;
  drawing.picture = pictures::SmallBitmap();
  Write("plan.dxf", DxfText(drawing));
  const Outcome outcome = Zdx({"thumb", "plan.dxf", "-O", "out.png"});
  EXPECT_EQ(outcome.exitCode, kOutputFailed);
  EXPECT_THAT(outcome.err, StartsWith("zdx: out.png: "));
  EXPECT_EQ(Read("out.png"), "old");
  EXPECT_THAT(FilesInTheFolder(), ElementsAre("out.png", "plan.dxf"));
  // Or the folder couldn't be removed.
  std::filesystem::permissions(Folder() / "out.png", kWrite, std::filesystem::perm_options::add);
}

TEST_F(Thumb, APictureOfANameOfAnyScriptIsWritten) {
  EXPECT_THAT(Written(pictures::SmallBitmap(), "\xD1\x87\xE5\x9B\xB3.png"), StartsWith("\x89PNG"));
}

TEST_F(Thumb, InfoTellsThePicturesSize) {
  SmallDrawing drawing;
  BitmapHead head{.width = 30, .height = 20};
  drawing.picture = head.Bytes() + std::string(92 * 20, 'x');
  Write("plan.dxf", DxfText(drawing));
  // 12 bytes, the metafile's header, its record with a bitmap of 1,880 bytes, and its end.
  EXPECT_THAT(Zdx({"info", "--select", "thumbnail", "plan.dxf"}).out,
              HasSubstr("  Summary\n    Thumbnail  30 x 20 pixels, 24 bits (1,944 bytes)\n"));
}

}  // namespace

}  // namespace zdx_test
