#include <gtest/gtest.h>

#include "backends/database/dwg/container/ReedSolomon.h"
#include "support/handmade/CodeWords.h"
#include "support/handmade/HandMade.h"

namespace zdx::dwg {
namespace {

using handmade::InterleavedPage;
using handmade::Noise;
using handmade::Word;

struct Kind {
  ParityKind parity;
  Word word;
  std::size_t data;
  std::size_t mendable;
};

constexpr Kind kKinds[] = {{ParityKind::kSystemPage, Word::kSystem, 239, 8},
                           {ParityKind::kDataPage, Word::kData, 251, 2}};

// Changes `count` bytes of word `word` of a page of `words`, spread over data and parity.
std::string StruckPage(std::string page, std::size_t words, std::size_t word, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t place = (i * 97 + 3) % kWordSize;
    char& byte = page[word + place * words];
    byte = static_cast<char>(byte ^ static_cast<char>(0x11 * (i + 1)));
  }
  return page;
}

TEST(ReedSolomon, TheDataOfWordsStandsInTurn) {
  for (const Kind& kind : kKinds) {
    const std::string data = Noise(3 * kind.data);
    const std::string page = InterleavedPage(data, kind.word);
    EXPECT_EQ(TakeData(page, 3, kind.parity), data);
    EXPECT_EQ(DataSize(kind.parity), kind.data);
  }
}

TEST(ReedSolomon, NoWordsHaveNoData) {
  EXPECT_EQ(TakeData("", 0, ParityKind::kDataPage), "");
  EXPECT_EQ(TakeMendedData("", 0, ParityKind::kDataPage), "");
}

TEST(ReedSolomon, MendingLeavesSoundWordsAlone) {
  for (const Kind& kind : kKinds) {
    const std::string data = Noise(2 * kind.data);
    EXPECT_EQ(TakeMendedData(InterleavedPage(data, kind.word), 2, kind.parity), data);
  }
}

TEST(ReedSolomon, MendsHalfAsManyBytesAsThereIsParity) {
  for (const Kind& kind : kKinds) {
    const std::string data = Noise(kind.data);
    const std::string page = InterleavedPage(data, kind.word);
    for (std::size_t count = 1; count <= kind.mendable; ++count) {
      const std::string struck = StruckPage(page, 1, 0, count);
      EXPECT_NE(TakeData(struck, 1, kind.parity), data);
      EXPECT_EQ(TakeMendedData(struck, 1, kind.parity), data) << count;
    }
  }
}

TEST(ReedSolomon, MendsEveryPlaceOfAWord) {
  for (const Kind& kind : kKinds) {
    const std::string data = Noise(kind.data);
    const std::string page = InterleavedPage(data, kind.word);
    for (std::size_t at = 0; at < page.size(); ++at) {
      ASSERT_EQ(TakeMendedData(handmade::Damaged(page, at), 1, kind.parity), data) << at;
    }
  }
}

TEST(ReedSolomon, MendsEachWordOfAPage) {
  for (const Kind& kind : kKinds) {
    const std::string data = Noise(3 * kind.data);
    std::string page = InterleavedPage(data, kind.word);
    for (std::size_t word = 0; word < 3; ++word) page = StruckPage(page, 3, word, kind.mendable);
    EXPECT_EQ(TakeMendedData(page, 3, kind.parity), data);
  }
}

// So many parity bytes make it next to impossible that another word is nearer.
TEST(ReedSolomon, AWordOfASystemPageBeyondMendingStaysAsItIs) {
  const std::string page = InterleavedPage(Noise(239), Word::kSystem);
  for (const std::size_t count : {9u, 12u, 40u}) {
    const std::string struck = StruckPage(page, 1, 0, count);
    EXPECT_EQ(TakeMendedData(struck, 1, ParityKind::kSystemPage),
              TakeData(struck, 1, ParityKind::kSystemPage));
  }
}

// With four parity bytes another word may be as near as the true one; the checks tell it later.
TEST(ReedSolomon, MendingNeverChangesMoreThanItMay) {
  const std::string page = InterleavedPage(Noise(251), Word::kData);
  for (std::size_t count = 3; count < 30; ++count) {
    const std::string struck = StruckPage(page, 1, 0, count);
    const std::string mended = TakeMendedData(struck, 1, ParityKind::kDataPage);
    std::size_t changed = 0;
    for (std::size_t i = 0; i < mended.size(); ++i) changed += mended[i] != struck[i] ? 1 : 0;
    EXPECT_LE(changed, 2u) << count;
  }
}

TEST(ReedSolomon, AWordBeyondMendingLeavesTheOthersMended) {
  for (const Kind& kind : kKinds) {
    const std::string data = Noise(2 * kind.data);
    std::string page = StruckPage(InterleavedPage(data, kind.word), 2, 0, 100);
    page = StruckPage(page, 2, 1, 1);
    EXPECT_EQ(TakeMendedData(page, 2, kind.parity).substr(kind.data), data.substr(kind.data));
  }
}

}  // namespace
}  // namespace zdx::dwg
