#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "backends/database/dwg/container/PagedContainer.h"
#include "formats/dwg/Containers.h"
#include "support/handmade/HandMade.h"
#include "support/handmade/PagedFile.h"

namespace zdx::dwg {
namespace {

using handmade::Damaged;
using handmade::Low32;
using handmade::Low64;
using handmade::MakePaged;
using handmade::Noise;
using handmade::OneRun;
using handmade::Padded;
using handmade::PagedBytes;
using handmade::PagedPart;
using handmade::PagedSpec;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string kPagedPreview = Noise(0x60, 3);
const std::string kFirstPaged = Noise(0x80, 1);
const std::string kSecondPaged = Noise(0x80, 2);

// A section of two compressed pages, and one that is stored plain.
PagedSpec PagedFileSpec() {
  PagedSpec spec;
  spec.parts = {{"AcDb:AcDbObjects",
                 0xC0,
                 0x80,
                 true,
                 {{OneRun(kFirstPaged), 0}, {OneRun(kSecondPaged), 0x80}}},
                {"AcDb:Preview", 0x60, 0x80, false, {{Padded(kPagedPreview, 0x80), 0}}}};
  return spec;
}

Opened OpenedPaged(const std::string& bytes) { return Opened(OpenPaged, bytes); }

TEST(PagedContainer, JoinsThePagesOfASection) {
  Opened file = OpenedPaged(MakePaged(PagedFileSpec()).bytes);
  EXPECT_EQ(file.All(SectionId::kObjects), kFirstPaged + kSecondPaged.substr(0, 0x40));
  EXPECT_EQ(file.All(SectionId::kPreview), kPagedPreview);
  EXPECT_THAT(file.Warnings(), IsEmpty());
}

TEST(PagedContainer, ASectionThatTheMapDoesNotNameIsNotThere) {
  Opened file = OpenedPaged(MakePaged(PagedFileSpec()).bytes);
  EXPECT_EQ(file.container().Find(SectionId::kSummary), nullptr);
}

TEST(PagedContainer, TellsWhereAPlainByteAndWhereACompressedPageStands) {
  const PagedBytes made = MakePaged(PagedFileSpec());
  Opened file = OpenedPaged(made.bytes);
  EXPECT_EQ(file.container().Find(SectionId::kPreview)->PlaceOf(5), made.pages[2] + 0x20 + 5);
  EXPECT_EQ(file.container().Find(SectionId::kObjects)->PlaceOf(0x85), made.pages[1]);
}

TEST(PagedContainer, APageThatIsNotWrittenIsZeros) {
  PagedSpec spec = PagedFileSpec();
  spec.parts[0].pages.erase(spec.parts[0].pages.begin());
  Opened file = OpenedPaged(MakePaged(spec).bytes);
  EXPECT_EQ(file.All(SectionId::kObjects), std::string(0x80, '\0') + kSecondPaged.substr(0, 0x40));
  EXPECT_THAT(file.Warnings(), IsEmpty());
}

TEST(PagedContainer, ASectionWithoutPagesIsZeros) {
  PagedSpec spec = PagedFileSpec();
  spec.parts[0].pages.clear();
  spec.parts[0].size = 4;
  EXPECT_EQ(OpenedPaged(MakePaged(spec).bytes).All(SectionId::kObjects), std::string(4, '\0'));
}

TEST(PagedContainer, GapsInThePageMapAreSteppedOver) {
  PagedSpec spec = PagedFileSpec();
  spec.editPageMap = [](std::string& map) {
    // Of the first page's size, half is a gap behind it now, with its four words more.
    map.replace(0, 8,
                Low32(1) + Low32(0x80) + Low32(0xFFFFFFFF) + Low32(0x40) + Low64(0) + Low64(0));
  };
  Opened file = OpenedPaged(MakePaged(spec).bytes);
  EXPECT_EQ(file.All(SectionId::kObjects), kFirstPaged + kSecondPaged.substr(0, 0x40));
}

TEST(PagedContainer, AWrongSumOfAPageIsToldWithItsPlaceAndThePageRead) {
  const PagedBytes made = MakePaged(PagedFileSpec());
  Opened file = OpenedPaged(Damaged(made.bytes, made.pages[2] + 0x20));
  EXPECT_EQ(file.All(SectionId::kPreview), Damaged(kPagedPreview, 0));
  EXPECT_THAT(file.Warnings(), ElementsAre(L"The checksum of a page is wrong."));
  EXPECT_EQ(file.report().warnings[0].offset, made.pages[2]);
}

TEST(PagedContainer, AWrongSumOfAPagesHeadIsTold) {
  const PagedBytes made = MakePaged(PagedFileSpec());
  Opened file = OpenedPaged(Damaged(made.bytes, made.pages[2] + 0x0C));
  EXPECT_EQ(file.All(SectionId::kPreview), kPagedPreview);
  EXPECT_THAT(file.Warnings(), ElementsAre(L"The checksum of a page's head is wrong."));
}

// The type, the section's number and the stored size.
// One word of the three that tell which page it is may be damaged.
TEST(PagedContainer, APageWithADamagedHeadIsReadAllTheSame) {
  const PagedBytes made = MakePaged(PagedFileSpec());
  for (const std::size_t at : {0x00u, 0x04u, 0x10u}) {
    Opened file = OpenedPaged(Damaged(made.bytes, made.pages[0] + at));
    EXPECT_EQ(file.Part(SectionId::kObjects, 0, 0x80), kFirstPaged.substr(0, 0x80));
    EXPECT_THAT(file.Warnings(), ElementsAre(L"The head of a page is damaged."));
    EXPECT_EQ(file.report().warnings[0].offset, made.pages[0]);
  }
}

TEST(PagedContainer, AnotherPageIsNotRead) {
  const PagedBytes made = MakePaged(PagedFileSpec());
  Opened file =
      OpenedPaged(Damaged(Damaged(made.bytes, made.pages[0] + 0x04), made.pages[0] + 0x10));
  EXPECT_EQ(file.Part(SectionId::kObjects, 0, 0x80), std::nullopt);
  EXPECT_EQ(file.Part(SectionId::kObjects, 0x80, 0x40), kSecondPaged.substr(0, 0x40));
  EXPECT_THAT(file.Warnings(), Contains(L"A page can't be read."));
}

// The section map tells it too.
TEST(PagedContainer, AWrongStoredSizeInAPagesHeadCostsNothing) {
  const PagedBytes made = MakePaged(PagedFileSpec());
  Opened file = OpenedPaged(Damaged(made.bytes, made.pages[0] + 0x0B));
  EXPECT_EQ(file.Part(SectionId::kObjects, 0, 0x80), kFirstPaged.substr(0, 0x80));
  EXPECT_THAT(file.Warnings(), ElementsAre(L"The checksum of a page's head is wrong."));
}

TEST(PagedContainer, APageThatTheMapDoesNotPlaceIsTold) {
  PagedSpec spec = PagedFileSpec();
  spec.parts[0].pages[0].id = 77;
  Opened file = OpenedPaged(MakePaged(spec).bytes);
  EXPECT_EQ(file.Part(SectionId::kObjects, 0, 1), std::nullopt);
  EXPECT_THAT(file.Warnings(), ElementsAre(L"A page isn't in the file."));
}

TEST(PagedContainer, DamagedCompressionKeepsWhatCameBefore) {
  PagedSpec spec = PagedFileSpec();
  // A run, and a copy from before it.
  spec.parts[0].pages[0].stored = std::string(
      "\x01"
      "abcd"
      "\x21\x10\x00",
      8);
  Opened file = OpenedPaged(MakePaged(spec).bytes);
  EXPECT_EQ(file.Part(SectionId::kObjects, 0, 4), "abcd");
  EXPECT_EQ(file.Part(SectionId::kObjects, 0, 5), std::nullopt);
  EXPECT_THAT(file.Warnings(), ElementsAre(L"The compressed data of a page are damaged."));
}

TEST(PagedContainer, APageThatStaysShortGivesNothingBehindItsEnd) {
  PagedSpec spec = PagedFileSpec();
  spec.parts[0].pages[0].stored = OneRun("abcd");
  Opened file = OpenedPaged(MakePaged(spec).bytes);
  EXPECT_EQ(file.Part(SectionId::kObjects, 2, 2), "cd");
  EXPECT_EQ(file.Part(SectionId::kObjects, 0, 0x80), std::nullopt);
}

TEST(PagedContainer, AnUntouchedPageIsNotRead) {
  const PagedBytes made = MakePaged(PagedFileSpec());
  Opened file = OpenedPaged(Damaged(made.bytes, made.pages[1]));
  EXPECT_EQ(file.Part(SectionId::kObjects, 0, 0x80), kFirstPaged);
  EXPECT_THAT(file.Warnings(), IsEmpty());
}

TEST(PagedContainer, ADamagedHeaderIsReplacedByItsCopy) {
  const std::string bytes = MakePaged(PagedFileSpec()).bytes;
  for (const std::size_t at : {0x80u, 0xD4u, 0xDCu, 0xE8u}) {
    Opened file = OpenedPaged(Damaged(bytes, at));
    EXPECT_EQ(file.All(SectionId::kPreview), kPagedPreview);
    EXPECT_THAT(file.Warnings(),
                ElementsAre(L"The checksum of the file's header is wrong; its copy is used."));
    EXPECT_EQ(file.report().warnings[0].offset, 0x80u);
  }
}

TEST(PagedContainer, AHeaderWhoseCopyIsDamagedTooIsTakenAsItIs) {
  const std::string bytes = MakePaged(PagedFileSpec()).bytes;
  Opened file = OpenedPaged(Damaged(Damaged(bytes, 0x80), bytes.size() - 0x6C));
  EXPECT_EQ(file.All(SectionId::kPreview), kPagedPreview);
  EXPECT_THAT(file.Warnings(), ElementsAre(L"The checksum of the file's header is wrong."));
}

TEST(PagedContainer, AWrongSumOfAMapIsToldAndTheMapRead) {
  const PagedBytes made = MakePaged(PagedFileSpec());
  for (const std::size_t at : {made.pageMapAt, made.sectionMapAt}) {
    Opened file = OpenedPaged(Damaged(made.bytes, at + 16));
    EXPECT_EQ(file.All(SectionId::kPreview), kPagedPreview);
    ASSERT_EQ(file.Warnings().size(), 1u);
    EXPECT_EQ(file.report().warnings[0].offset, at);
  }
}

TEST(PagedContainer, AMapOfAnotherTypeOrSizeIsARefusal) {
  const PagedBytes made = MakePaged(PagedFileSpec());
  EXPECT_EQ(OpenedPaged(Damaged(made.bytes, made.pageMapAt)).Refusal(),
            L"The page map can't be read.");
  EXPECT_EQ(OpenedPaged(Damaged(made.bytes, made.pageMapAt + 11)).Refusal(),
            L"The page map can't be read.");
  EXPECT_EQ(OpenedPaged(Damaged(made.bytes, made.sectionMapAt)).Refusal(),
            L"The section map can't be read.");
}

TEST(PagedContainer, APageMapOutsideOfTheFileIsARefusal) {
  PagedSpec spec = PagedFileSpec();
  for (const std::uint64_t at : {std::uint64_t{0x100000}, ~std::uint64_t{0}, std::uint64_t{0}}) {
    spec.pageMapAt = at;
    EXPECT_NE(OpenedPaged(MakePaged(spec).bytes).Refusal(), L"");
  }
}

TEST(PagedContainer, ASectionMapWithoutAPageIsARefusal) {
  PagedSpec spec = PagedFileSpec();
  spec.sectionMapId = 99;
  EXPECT_EQ(OpenedPaged(MakePaged(spec).bytes).Refusal(), L"The section map can't be read.");
}

TEST(PagedContainer, AFileThatEndsWithinItsHeaderIsARefusal) {
  EXPECT_EQ(OpenedPaged(MakePaged(PagedFileSpec()).bytes.substr(0, 0xE0)).Refusal(),
            L"The file's header can't be read.");
}

TEST(PagedContainer, ASectionWithMorePagesThanTheMapHoldsKeepsThoseThatAreThere) {
  PagedSpec spec = PagedFileSpec();
  std::swap(spec.parts[0], spec.parts[1]);
  spec.parts[1].pageCount = 0xFFFFFFFF;
  Opened file = OpenedPaged(MakePaged(spec).bytes);
  EXPECT_EQ(file.All(SectionId::kObjects), kFirstPaged + kSecondPaged.substr(0, 0x40));
}

TEST(PagedContainer, PagesMayStandInAnyOrder) {
  PagedSpec spec = PagedFileSpec();
  std::swap(spec.parts[0].pages[0], spec.parts[0].pages[1]);
  EXPECT_EQ(OpenedPaged(MakePaged(spec).bytes).All(SectionId::kObjects),
            kFirstPaged + kSecondPaged.substr(0, 0x40));
}

// 64 pages of a mebibyte, of which the cache holds half, from a file of some hundred kilobytes; the
// third is damaged.
TEST(PagedContainer, ASectionFarLargerThanTheCacheIsReadAllTheSame) {
  constexpr std::uint32_t kSize = 1 << 20;
  constexpr std::uint64_t kCount = 64;
  handmade::PagedSpec spec = PagedFileSpec();
  handmade::PagedPart part{.name = "AcDb:AcDbObjects", .size = kCount * kSize, .pageSize = kSize};
  for (std::uint64_t i = 0; i < kCount; ++i) {
    part.pages.push_back(
        {handmade::Repeating(handmade::Noise(1000, static_cast<std::uint32_t>(i + 1)), kSize),
         i * kSize});
  }
  spec.parts = {part};
  const PagedBytes made = MakePaged(spec);
  Opened file = OpenedPaged(Damaged(made.bytes, made.pages[2] + 0x0C));
  for (int again = 0; again < 2; ++again) {
    for (std::uint64_t i = 0; i < kCount; ++i) {
      EXPECT_EQ(file.Part(SectionId::kObjects, i * kSize, 1000),
                handmade::Noise(1000, static_cast<std::uint32_t>(i + 1)));
    }
  }
  EXPECT_THAT(file.Warnings(), testing::SizeIs(1));
}

}  // namespace
}  // namespace zdx::dwg
