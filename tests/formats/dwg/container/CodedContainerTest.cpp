#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "backends/database/dwg/container/CodedContainer.h"
#include "formats/dwg/Containers.h"
#include "support/dwg/Compression.h"
#include "support/handmade/CodedFile.h"
#include "support/handmade/HandMade.h"

namespace zdx::dwg {
namespace {

using handmade::CodedBytes;
using handmade::CodedSpec;
using handmade::Damaged;
using handmade::Low64;
using handmade::MakeCoded;
using handmade::Noise;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string kFirstCoded = Noise(600, 1);
const std::string kSecondCoded = Noise(300, 2);
const std::string kPreview = Noise(100, 3);

CodedSpec Spec() {
  CodedSpec spec;
  spec.parts = {{"AcDb:AcDbObjects", 900, true, {{kFirstCoded, 0}, {kSecondCoded, 600}}},
                {"AcDb:Preview", 100, false, {{kPreview, 0}}}};
  return spec;
}

Opened OpenedCoded(const std::string& bytes) { return Opened(OpenCoded, bytes); }

// `count` bytes of `bytes` changed, `step` apart.
std::string Struck(std::string bytes, std::size_t at, std::size_t count, std::size_t step) {
  for (std::size_t i = 0; i < count; ++i) bytes = Damaged(std::move(bytes), at + i * step);
  return bytes;
}

TEST(CodedContainer, JoinsThePagesOfASection) {
  Opened file = OpenedCoded(MakeCoded(Spec()).bytes);
  EXPECT_EQ(file.All(SectionId::kObjects), kFirstCoded + kSecondCoded);
  EXPECT_EQ(file.All(SectionId::kPreview), kPreview);
  EXPECT_EQ(file.container().Find(SectionId::kSummary), nullptr);
  EXPECT_THAT(file.Warnings(), IsEmpty());
}

TEST(CodedContainer, APageThatIsNotWrittenIsZeros) {
  CodedSpec spec = Spec();
  spec.parts[0].pages.erase(spec.parts[0].pages.begin());
  EXPECT_EQ(OpenedCoded(MakeCoded(spec).bytes).All(SectionId::kObjects),
            std::string(600, '\0') + kSecondCoded);
}

// Three words of four parity bytes each: two bytes of each can be mended.
TEST(CodedContainer, ADamagedPageIsMendedAndTold) {
  const CodedBytes made = MakeCoded(Spec());
  Opened file = OpenedCoded(Struck(made.bytes, made.pages[0], 6, 1));
  EXPECT_EQ(file.All(SectionId::kObjects), kFirstCoded + kSecondCoded);
  EXPECT_THAT(file.Warnings(), ElementsAre(L"A page is damaged; it was mended."));
  EXPECT_EQ(file.report().warnings[0].offset, made.pages[0]);
}

TEST(CodedContainer, APageBeyondMendingIsToldAndReadAsItIs) {
  const CodedBytes made = MakeCoded(Spec());
  Opened file = OpenedCoded(Struck(made.bytes, made.pages[0], 60, 3));
  const auto read = file.All(SectionId::kObjects);
  ASSERT_TRUE(read);
  EXPECT_NE(read->substr(0, 600), kFirstCoded);
  EXPECT_EQ(read->substr(600), kSecondCoded);
  // The second byte of the first word stands behind the first ones of all three, and is sound.
  EXPECT_EQ((*read)[251], kFirstCoded[251]);
  EXPECT_THAT(file.Warnings(), ElementsAre(L"The checksum of a page is wrong."));
}

TEST(CodedContainer, AWrongSumOfAPlainPageIsTold) {
  const CodedBytes made = MakeCoded(Spec());
  Opened file = OpenedCoded(Damaged(made.bytes, made.pages[2] + 5));
  EXPECT_EQ(file.All(SectionId::kPreview), Damaged(kPreview, 5));
  EXPECT_THAT(file.Warnings(), ElementsAre(L"The checksum of a page is wrong."));
  EXPECT_EQ(file.container().Find(SectionId::kPreview)->PlaceOf(5), made.pages[2] + 5);
}

TEST(CodedContainer, ADamagedMapIsMendedAndTold) {
  const CodedBytes made = MakeCoded(Spec());
  for (const std::size_t at : {made.pageMapAt, made.sectionMapAt}) {
    Opened file = OpenedCoded(Struck(made.bytes, at, 8, 1));
    EXPECT_EQ(file.All(SectionId::kObjects), kFirstCoded + kSecondCoded);
    ASSERT_EQ(file.Warnings().size(), 1u);
    EXPECT_THAT(file.Warnings()[0], testing::EndsWith(L"is damaged; it was mended."));
    EXPECT_EQ(file.report().warnings[0].offset, at);
  }
}

TEST(CodedContainer, AMapBeyondMendingIsReplacedByItsCopy) {
  const CodedBytes made = MakeCoded(Spec());
  for (const std::size_t at : {made.pageMapAt, made.sectionMapAt}) {
    Opened file = OpenedCoded(Struck(made.bytes, at, 100, 1));
    EXPECT_EQ(file.All(SectionId::kObjects), kFirstCoded + kSecondCoded);
    ASSERT_EQ(file.Warnings().size(), 1u);
    EXPECT_THAT(file.Warnings()[0], testing::EndsWith(L"is damaged; its copy is used."));
  }
}

TEST(CodedContainer, ADamagedHeadIsMendedAndBeyondThatReplacedByItsCopy) {
  const std::string bytes = MakeCoded(Spec()).bytes;
  Opened mended = OpenedCoded(Struck(bytes, 0x80, 24, 1));
  EXPECT_EQ(mended.All(SectionId::kPreview), kPreview);
  EXPECT_THAT(mended.Warnings(), ElementsAre(L"The file's header is damaged; it was mended."));
  Opened copied = OpenedCoded(Struck(bytes, 0x80, 300, 1));
  EXPECT_EQ(copied.All(SectionId::kPreview), kPreview);
  EXPECT_THAT(copied.Warnings(), ElementsAre(L"The file's header is damaged; its copy is used."));
}

TEST(CodedContainer, PlacesAndSizesThatCannotBeAreARefusal) {
  struct Lie {
    std::size_t at;
    std::uint64_t value;
  };
  constexpr std::uint64_t kHuge = ~std::uint64_t{0};
  for (const Lie lie :
       {Lie{0x18, 0}, Lie{0x18, kHuge}, Lie{0x50, kHuge}, Lie{0x58, kHuge}, Lie{0x50, 1u << 30},
        Lie{0xB0, kHuge}, Lie{0xC8, kHuge}, Lie{0xD8, 0}, Lie{0xD8, kHuge}}) {
    CodedSpec spec = Spec();
    spec.editHead = [&](std::string& fields) { fields.replace(lie.at, 8, Low64(lie.value)); };
    EXPECT_NE(OpenedCoded(MakeCoded(spec).bytes).Refusal(), L"") << lie.at;
  }
}

TEST(CodedContainer, WhereTheFirstMapIsNotItsCopyIsTaken) {
  for (const std::uint64_t value : {std::uint64_t{1} << 40, ~std::uint64_t{0} - 0x480}) {
    CodedSpec spec = Spec();
    spec.editHead = [&](std::string& fields) { fields.replace(0x38, 8, Low64(value)); };
    Opened file = OpenedCoded(MakeCoded(spec).bytes);
    ASSERT_EQ(file.Refusal(), L"");
    EXPECT_EQ(file.All(SectionId::kPreview), kPreview);
    EXPECT_EQ(file.Warnings().size(), 1u);
  }
}

TEST(CodedContainer, APageLargerThanTheFileCanMakeItCostsOnlyItself) {
  for (const std::uint64_t size : {std::uint64_t{1} << 39, std::uint64_t{64} << 20}) {
    CodedSpec spec = Spec();
    spec.parts[0].pages[0].size = size;
    Opened file = OpenedCoded(MakeCoded(spec).bytes);
    EXPECT_EQ(file.Part(SectionId::kObjects, 0, 10), std::nullopt);
    EXPECT_EQ(file.Part(SectionId::kObjects, 600, 300), kSecondCoded);
    EXPECT_EQ(file.Warnings().size(), 1u);
  }
}

TEST(CodedContainer, AStoredSizeLargerThanTheFileCostsOnlyItsPage) {
  for (const std::uint64_t size : {std::uint64_t{1} << 20, ~std::uint64_t{0}}) {
    for (const std::size_t part : {0u, 1u}) {
      CodedSpec spec = Spec();
      spec.parts[part].pages[0].storedSize = size;
      Opened file = OpenedCoded(MakeCoded(spec).bytes);
      EXPECT_EQ(file.Part(part == 0 ? SectionId::kObjects : SectionId::kPreview, 0, 10),
                std::nullopt);
      EXPECT_EQ(file.Part(SectionId::kObjects, 600, 300), kSecondCoded);
      EXPECT_EQ(file.Warnings().size(), 1u);
    }
  }
}

TEST(CodedContainer, MorePagesThanTheMapHoldsKeepThoseThatAreThere) {
  CodedSpec spec = Spec();
  std::swap(spec.parts[0], spec.parts[1]);
  spec.parts[1].pageCount = ~std::uint64_t{0};
  EXPECT_EQ(OpenedCoded(MakeCoded(spec).bytes).All(SectionId::kObjects),
            kFirstCoded + kSecondCoded);
}

TEST(CodedContainer, AFileThatEndsWithinItsHeadPageIsARefusal) {
  const std::string bytes = MakeCoded(Spec()).bytes;
  for (const std::size_t size : {0x80u, 0x100u, 0x47Fu}) {
    EXPECT_EQ(OpenedCoded(bytes.substr(0, size)).Refusal(), L"The file's header can't be read.");
  }
}

// 40 pages of a mebibyte, more than the cache holds.  The sums that are made with the file are
// those of what is stored, and so wrong.
TEST(CodedContainer, PagesThatAreWantedAgainAreReadAgainAndWhatIsWrongIsToldOnce) {
  constexpr std::uint64_t kSize = 1 << 20;
  constexpr std::uint64_t kCount = 40;
  const std::string contents(kSize, 'x');
  const std::string stored = ::dwg::CodedCompressed(contents, ::dwg::Squeeze::Repeats);
  CodedSpec spec = Spec();
  spec.parts[0] = {"AcDb:AcDbObjects", kCount * kSize, true, {}};
  for (std::uint64_t i = 0; i < kCount; ++i) {
    spec.parts[0].pages.push_back({stored, i * kSize, kSize, stored.size()});
  }
  Opened file = OpenedCoded(MakeCoded(spec).bytes);
  for (std::uint64_t i = 0; i < 2 * kCount; ++i) {
    EXPECT_EQ(file.Part(SectionId::kObjects, i % kCount * kSize + 7, 5), "xxxxx");
  }
  EXPECT_THAT(file.Warnings(), testing::SizeIs(kCount));
}

}  // namespace
}  // namespace zdx::dwg
