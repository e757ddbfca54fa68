// DWG files cut anywhere, and with any byte changed: an answer or a status, always at a fair cost.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "malformed/Cost.h"
#include "malformed/Damage.h"
#include "malformed/DwgDamage.h"

namespace {

using damage::ReadAtFairCost;
using damage::SoundDwg;
using testing::ElementsAre;
using testing::IsEmpty;

class EveryDwg : public testing::TestWithParam<const char*> {
 protected:
  // Changes every `step`th byte of [begin, end) in turn.
  void ExpectAnswers(std::size_t begin, std::size_t end, std::size_t step) {
    for (std::size_t at = begin; at < std::min(end, bytes.size()); at += step) {
      for (const unsigned change : {0x01u, 0xFFu}) {
        SCOPED_TRACE(at);
        std::string changed = bytes;
        changed[at] = static_cast<char>(changed[at] ^ static_cast<char>(change));
        ReadAtFairCost(changed);
      }
    }
  }

  std::string bytes = SoundDwg(GetParam());
};

// What the damage below is measured against.
TEST_P(EveryDwg, TheSoundFileIsReadWithoutAWarning) {
  const damage::Outcome outcome = ReadAtFairCost(bytes);
  // AC1014 knows names in capitals alone.
  const bool capitals = std::string(GetParam()) == "AC1014";
  EXPECT_THAT(outcome.reading.Texts(L"Layer Name"),
              capitals ? ElementsAre("0", "FIRST", "SECOND", "THIRD")
                       : ElementsAre("0", "First", "Second", "Third"));
  EXPECT_THAT(outcome.reading.diagnostics.warnings, IsEmpty());
}

TEST_P(EveryDwg, CutAnywhereGivesAnAnswerOrAStatus) {
  for (std::size_t size = 0; size < bytes.size(); size += size < 0x200 ? 3 : 61) {
    SCOPED_TRACE(size);
    ReadAtFairCost(bytes.substr(0, size));
  }
}

TEST_P(EveryDwg, AChangedByteOfTheHeadGivesAnAnswerOrAStatus) { ExpectAnswers(0, 0x100, 1); }

// The head page of AC1021; the first sections of the other versions.
TEST_P(EveryDwg, AChangedByteBehindTheHeadGivesAnAnswerOrAStatus) {
  ExpectAnswers(0x100, 0x480, 11);
}

TEST_P(EveryDwg, AChangedByteFurtherOnGivesAnAnswerOrAStatus) {
  ExpectAnswers(0x480, bytes.size(), bytes.size() / 600 + 1);
}

// The maps of AC1018 and later, the object map below and the copies of the heads.
TEST_P(EveryDwg, AChangedByteOfTheLastPagesGivesAnAnswerOrAStatus) {
  ExpectAnswers(bytes.size() - std::min<std::size_t>(bytes.size(), 0x800), bytes.size(), 7);
}

INSTANTIATE_TEST_SUITE_P(Versions, EveryDwg, testing::ValuesIn(damage::kDwgVersions),
                         [](const auto& info) { return std::string(info.param); });

}  // namespace
