#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "backends/database/dwg/PreviewArea.h"
#include "formats/dwg/Containers.h"
#include "support/handmade/HandMade.h"

namespace zdx::dwg {
namespace {

using handmade::Low32;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint32_t kPlace = 0x500;
const std::string kMark("\x1F\x25\x6D\x07\xD4\x36\x28\x28\x9D\x57\xCA\x3F\x9D\x44\x10\x2B", 16);

struct Picture {
  unsigned code;
  std::string bytes;
};

// The mark, the size, the number; code, address and size of each; the bytes.
std::string Area(const std::vector<Picture>& pictures) {
  std::string list;
  std::string bytes;
  const std::size_t first = kPlace + 16 + 4 + 1 + 9 * pictures.size();
  for (const Picture& picture : pictures) {
    list +=
        static_cast<char>(picture.code) + Low32(first + bytes.size()) + Low32(picture.bytes.size());
    bytes += picture.bytes;
  }
  std::string end = kMark;
  for (char& c : end) c = static_cast<char>(~c);
  return kMark + Low32(1 + list.size() + bytes.size()) + static_cast<char>(pictures.size()) + list +
         bytes + end;
}

class PreviewAreaTest : public testing::Test {
 protected:
  std::vector<model::StoredPicture> Read(const std::string& area) {
    PlainSection section(area, kPlace);
    return ReadPreviewArea(section, report);
  }

  model::Report report;
};

TEST_F(PreviewAreaTest, HasItsPicturesInTheirOrder) {
  const auto pictures =
      Read(Area({{1, std::string(80, 'h')}, {2, "bitmap"}, {3, "meta"}, {6, "png"}}));
  ASSERT_EQ(pictures.size(), 3u);
  EXPECT_EQ(pictures[0].kind, model::StoredPicture::Kind::kBitmap);
  EXPECT_EQ(pictures[0].bytes, "bitmap");
  EXPECT_EQ(pictures[0].at, kPlace + 16 + 4 + 1 + 4 * 9 + 80u);
  EXPECT_EQ(pictures[1].kind, model::StoredPicture::Kind::kMetafile);
  EXPECT_EQ(pictures[1].bytes, "meta");
  EXPECT_EQ(pictures[2].kind, model::StoredPicture::Kind::kPng);
  EXPECT_EQ(pictures[2].bytes, "png");
  EXPECT_THAT(TextsOf(report), IsEmpty());
}

TEST_F(PreviewAreaTest, MayHoldNone) {
  EXPECT_THAT(Read(Area({})), IsEmpty());
  EXPECT_THAT(Read(Area({{1, "head alone"}})), IsEmpty());
  EXPECT_THAT(TextsOf(report), IsEmpty());
}

TEST_F(PreviewAreaTest, TwoPicturesOfAKindAreBothThere) {
  EXPECT_EQ(Read(Area({{1, "h"}, {2, "one"}, {2, "two"}})).size(), 2u);
}

TEST_F(PreviewAreaTest, AWrongMarkIsTold) {
  EXPECT_THAT(Read(handmade::Damaged(Area({{2, "bitmap"}}), 3)), IsEmpty());
  ASSERT_EQ(TextsOf(report).size(), 1u);
  EXPECT_EQ(report.warnings[0].offset, kPlace);
}

TEST_F(PreviewAreaTest, AListThatIsCutIsTold) {
  EXPECT_THAT(Read(Area({{2, "bitmap"}}).substr(0, 16 + 4 + 1 + 8)), IsEmpty());
  EXPECT_THAT(TextsOf(report), ElementsAre(L"The list of preview pictures ends early."));
}

TEST_F(PreviewAreaTest, APictureOutsideOfTheAreaCostsOnlyItself) {
  for (const std::uint32_t address : {0u, kPlace - 1, kPlace + 0x1000, 0xFFFFFFFFu}) {
    report = {};
    std::string area = Area({{2, "bitmap"}, {6, "png"}});
    area.replace(16 + 4 + 1 + 1, 4, Low32(address));
    const auto pictures = Read(area);
    ASSERT_EQ(pictures.size(), 1u);
    EXPECT_EQ(pictures[0].bytes, "png");
    EXPECT_EQ(TextsOf(report).size(), 1u);
  }
}

TEST_F(PreviewAreaTest, PicturesThatAreAllTheWholeAreaStayWithinSomeMegabytes) {
  std::string area = kMark + Low32(0) + "\xFF";
  constexpr std::size_t kSize = 1 << 20;
  for (int i = 0; i < 255; ++i) area += "\x02" + Low32(kPlace) + Low32(kSize);
  const auto pictures = Read(area + std::string(kSize, 'p'));
  std::size_t total = 0;
  for (const model::StoredPicture& picture : pictures) total += picture.bytes.size();
  EXPECT_GE(total, kSize);
  EXPECT_LE(total, 16 * kSize);
  EXPECT_GE(report.warningCount, 1u);
}

}  // namespace
}  // namespace zdx::dwg
