#include <gtest/gtest.h>

#include "formats/preview/Shown.h"
#include "support/pictures/Pictures.h"

namespace {

using namespace std::string_literals;
using namespace preview_test;
using pictures::Metafile;
using pictures::Number;
using zdx::preview::Showing;

Showing ShowMetafile(const std::string& bytes) {
  return preview_test::Show(zdx::model::StoredPicture::Kind::kMetafile, bytes);
}

const std::string kRows = pictures::SmallBitmap().substr(40);

TEST(MetafilePicture, ABitBlockIsShown) {
  EXPECT_EQ(RowsOf(ShowMetafile(Metafile(0x0940, std::string(16, '\1') + pictures::SmallBitmap()))),
            kRows);
}

TEST(MetafilePicture, AStretchedBitBlockIsShown) {
  EXPECT_EQ(RowsOf(ShowMetafile(Metafile(0x0B41, std::string(20, '\1') + pictures::SmallBitmap()))),
            kRows);
}

TEST(MetafilePicture, AStretchedBitmapIsShown) {
  const std::string fields = Number(0x00CC0020, 4) + Number(0, 2) + std::string(16, '\1');
  EXPECT_EQ(RowsOf(ShowMetafile(Metafile(0x0F43, fields + pictures::SmallBitmap()))), kRows);
}

TEST(MetafilePicture, AHeadOfAFileBeforeItIsPassedOver) {
  const std::string head = Number(0x9AC6CDD7, 4) + std::string(18, '\0');
  EXPECT_EQ(RowsOf(ShowMetafile(head +
                                Metafile(0x0940, std::string(16, '\1') + pictures::SmallBitmap()))),
            kRows);
}

TEST(MetafilePicture, ABitmapWithNumbersOfAPaletteIsNotShown) {
  const std::string fields = Number(0x00CC0020, 4) + Number(1, 2) + std::string(16, '\1');
  EXPECT_EQ(RefusalOf(ShowMetafile(Metafile(0x0F43, fields + pictures::SmallBitmap()))),
            L"The metafile draws no bitmap.");
}

TEST(MetafilePicture, LinesAloneAreNotShown) {
  EXPECT_EQ(RefusalOf(ShowMetafile(Metafile(0x0213, "\1\0\2\0"s))),
            L"The metafile draws no bitmap.");
}

TEST(MetafilePicture, ABitBlockWithoutABitmapIsNotShown) {
  EXPECT_EQ(RefusalOf(ShowMetafile(Metafile(0x0940, std::string(18, '\1')))),
            L"The bitmap ends too early.");
  EXPECT_EQ(RefusalOf(ShowMetafile(Metafile(0x0940, std::string(16, '\1')))),
            L"The metafile draws no bitmap.");
}

TEST(MetafilePicture, ARecordOfNoSizeIsRefused) {
  std::string bytes = Metafile(0x0213, "\1\0\2\0"s);
  bytes.replace(18, 4, Number(0, 4));
  EXPECT_EQ(RefusalOf(ShowMetafile(bytes)), L"The metafile is damaged.");
}

TEST(MetafilePicture, ARecordBeyondTheEndIsRefused) {
  std::string bytes = Metafile(0x0213, "\1\0\2\0"s);
  bytes.replace(18, 4, Number(0xFFFFFFFF, 4));
  EXPECT_EQ(RefusalOf(ShowMetafile(bytes)), L"The metafile is damaged.");
}

TEST(MetafilePicture, EveryCutIsRefused) {
  const std::string whole = Metafile(0x0940, std::string(16, '\1') + pictures::SmallBitmap());
  // The last record, of 6 bytes, only says that the metafile has ended.
  for (std::size_t size = 0; size < whole.size() - 6; ++size) {
    EXPECT_FALSE(RefusalOf(ShowMetafile(whole.substr(0, size))).empty()) << size;
  }
}

}  // namespace
