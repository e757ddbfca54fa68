#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "ThumbnailPicture.h"
#include "support/pictures/Pictures.h"

namespace zdx {

namespace {

using namespace std::string_literals;
using pictures::BitmapHead;
using pictures::Number;

std::string Value(const std::string& bitmap) {
  return "\3\0\0\0\x8\0\4\0\2\0\0\0"s + pictures::Metafile(0x0940, std::string(16, '\0') + bitmap);
}

std::optional<ThumbnailPicture> Read(const std::string& value) {
  return ReadThumbnail({reinterpret_cast<const std::uint8_t*>(value.data()), value.size()});
}

TEST(ThumbnailPicture, IsReadToItsRows) {
  const std::string value = Value(pictures::SmallBitmap());
  const auto picture = Read(value);
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->width, 4u);
  EXPECT_EQ(picture->height, 2u);
  EXPECT_EQ(picture->bits, 24);
  EXPECT_EQ(std::string(picture->rows.begin(), picture->rows.end()),
            pictures::SmallBitmap().substr(40));
}

TEST(ThumbnailPicture, RecordsBeforeTheBitmapArePassedOver) {
  const std::string realize = Number(3, 4) + Number(0x35, 2);
  std::string value = Value(pictures::SmallBitmap());
  value.insert(12 + 18, realize);
  value.replace(12 + 6, 4, Number(static_cast<std::uint32_t>(value.size() - 12) / 2, 4));
  EXPECT_TRUE(Read(value));
}

TEST(ThumbnailPicture, EveryCutIsRefused) {
  const std::string whole = Value(pictures::SmallBitmap());
  for (std::size_t size = 0; size < whole.size(); ++size) {
    EXPECT_FALSE(Read(whole.substr(0, size))) << size;
  }
}

TEST(ThumbnailPicture, AnotherFormatIsRefused) {
  std::string value = Value(pictures::SmallBitmap());
  value[0] = 14;
  EXPECT_FALSE(Read(value));
}

TEST(ThumbnailPicture, ARecordOfNoSizeIsRefused) {
  std::string value = Value(pictures::SmallBitmap());
  value.replace(12 + 18, 4, Number(0, 4));
  EXPECT_FALSE(Read(value));
}

TEST(ThumbnailPicture, ARecordBeyondTheEndIsRefused) {
  std::string value = Value(pictures::SmallBitmap());
  value.replace(12 + 18, 4, Number(0xFFFFFFFF, 4));
  EXPECT_FALSE(Read(value));
}

TEST(ThumbnailPicture, AMetafileWithoutABitmapIsRefused) {
  EXPECT_FALSE(Read("\3\0\0\0\x8\0\4\0\2\0\0\0"s + pictures::Metafile(0x0213, "\1\0\2\0"s)));
}

struct OddCase {
  const char* name;
  BitmapHead head;
};

// How a failing test names its case.
void PrintTo(const OddCase& odd, std::ostream* out) { *out << odd.name; }

// A bitmap's head that no metafile of the engine's has.
class OddBitmap : public testing::TestWithParam<OddCase> {};

TEST_P(OddBitmap, IsRefused) {
  EXPECT_FALSE(Read(Value(GetParam().head.Bytes() + std::string(3000, '\0'))));
}

INSTANTIATE_TEST_SUITE_P(ThumbnailPicture, OddBitmap,
                         testing::Values(OddCase{"NoWidth", BitmapHead{.width = 0}},
                                         OddCase{"NoHeight", BitmapHead{.height = 0}},
                                         OddCase{"TopDown", BitmapHead{.height = -2}},
                                         OddCase{"TwoBits", BitmapHead{.bits = 2}},
                                         OddCase{"TooWide", BitmapHead{.width = 0x7FFFFFFF}},
                                         OddCase{"TooHigh", BitmapHead{.height = 0x7FFFFFFF}},
                                         OddCase{"Packed", BitmapHead{.bits = 8, .compression = 1}},
                                         OddCase{"SixteenBitsWithoutMasks", BitmapHead{.bits = 16}},
                                         OddCase{"AShortTable",
                                                 BitmapHead{.bits = 8, .coloursUsed = 2}}),
                         [](const auto& info) { return info.param.name; });

}  // namespace

}  // namespace zdx
