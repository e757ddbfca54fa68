// Damaged preview pictures: no picture, a warning with its place, and all else of the drawing.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "malformed/Damage.h"
#include "support/PublicRead.h"
#include "support/pictures/Pictures.h"

namespace {

using namespace std::string_literals;
using damage::Replaced;
using pictures::Number;
using zdx_test::Reading;

std::string WithPicture(const std::string& picture, dxf::Form form = dxf::Form::Ascii) {
  drawing::DrawingSpec spec = damage::Sound();
  spec.previews = {{drawing::PreviewKind::Bitmap, picture}};
  return dxf::Make(spec, {.form = form, .lineEnd = "\n"});
}

bool HasPicture(const Reading& reading) {
  for (const ZDXEngine::_PropData& property : reading.properties) {
    if (property.formatId == zdx_test::kSummary && property.name == L"17") return true;
  }
  return false;
}

// Only the picture is lost, and the one warning tells where.
void ExpectOnlyThePictureLost(const std::string& file) {
  const Reading reading = zdx_test::ReadBytes(file);
  EXPECT_FALSE(HasPicture(reading));
  EXPECT_FALSE(reading.Texts(L"Layer Name").empty());
  ASSERT_EQ(reading.diagnostics.warnings.size(), 1u);
  const ZDXEngine::DiagnosticPlace& place = reading.diagnostics.warnings[0].place;
  EXPECT_TRUE(place.line || place.offset);
}

const std::string kDigits = "28000000040000000200000001001800";

TEST(DamagedPicture, WhatTheseTestsDamageIsSound) {
  for (const dxf::Form form : {dxf::Form::Ascii, dxf::Form::Binary}) {
    const Reading reading = zdx_test::ReadBytes(WithPicture(pictures::SmallBitmap(), form));
    EXPECT_TRUE(HasPicture(reading));
    EXPECT_EQ(reading.diagnostics.warningCount, 0u);
  }
}

TEST(DamagedPicture, ALetterThatIsNoDigit) {
  ExpectOnlyThePictureLost(
      Replaced(WithPicture(pictures::SmallBitmap()), kDigits, "G" + kDigits.substr(1)));
}

TEST(DamagedPicture, AnOddNumberOfDigits) {
  ExpectOnlyThePictureLost(
      Replaced(WithPicture(pictures::SmallBitmap()), kDigits, kDigits.substr(1)));
}

TEST(DamagedPicture, FewerBytesThanTold) {
  ExpectOnlyThePictureLost(
      Replaced(WithPicture(pictures::SmallBitmap()), kDigits, kDigits.substr(2)));
}

TEST(DamagedPicture, MoreBytesThanTold) {
  ExpectOnlyThePictureLost(Replaced(WithPicture(pictures::SmallBitmap()), kDigits, "00" + kDigits));
}

TEST(DamagedPicture, ALengthBelowZero) {
  ExpectOnlyThePictureLost(Replaced(WithPicture(pictures::SmallBitmap()),
                                    "THUMBNAILIMAGE\n 90\n       64",
                                    "THUMBNAILIMAGE\n 90\n       -1"));
}

TEST(DamagedPicture, ALengthThatIsNoNumber) {
  ExpectOnlyThePictureLost(Replaced(WithPicture(pictures::SmallBitmap()),
                                    "THUMBNAILIMAGE\n 90\n       64",
                                    "THUMBNAILIMAGE\n 90\n  sixty"));
}

TEST(DamagedPicture, LengthWithoutBytes) {
  ExpectOnlyThePictureLost(
      Replaced(WithPicture(pictures::SmallBitmap()), "310\n" + kDigits, "999\n" + kDigits));
}

TEST(DamagedPicture, HugeSizesOfABitmap) {
  const pictures::BitmapHead head{.width = 0x7FFFFFFF, .height = 0x7FFFFFFF, .bits = 32};
  ExpectOnlyThePictureLost(WithPicture(head.Bytes() + std::string(24, 'x')));
}

TEST(DamagedPicture, HugeSizesOfABitmapInABinaryFile) {
  const pictures::BitmapHead head{.width = 0x7FFFFFFF, .height = 0x7FFFFFFF, .bits = 1};
  ExpectOnlyThePictureLost(WithPicture(head.Bytes() + std::string(24, 'x'), dxf::Form::Binary));
}

TEST(DamagedPicture, APackedBitmapOfGigabytes) {
  const pictures::BitmapHead head{.width = 65535, .height = 65535, .bits = 8, .compression = 1};
  ExpectOnlyThePictureLost(WithPicture(head.Bytes() + std::string(1024, '\0') + "\0\1"s));
}

TEST(DamagedPicture, APngOfGigabytes) {
  ExpectOnlyThePictureLost(
      WithPicture(pictures::Png({.width = 60000, .height = 60000, .rows = "x"})));
}

TEST(DamagedPicture, APngWithoutPixels) {
  const std::string png = pictures::Png({.rows = "\1\2\3"});
  ExpectOnlyThePictureLost(WithPicture(png.substr(0, 8 + 25)));
}

TEST(DamagedPicture, AWordOfABitmapThatIsWrong) {
  for (const std::size_t at : {0, 4, 8, 12, 14, 16, 32}) {
    std::string bitmap = pictures::SmallBitmap();
    bitmap.replace(at, 2, "\xFF\xFF");
    SCOPED_TRACE(at);
    ExpectOnlyThePictureLost(WithPicture(bitmap));
  }
}

}  // namespace
