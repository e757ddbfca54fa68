// What is gathered of a walk, and in which order it is kept.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "properties/appinfo/AppInfoNotifier.h"
#include "support/appinfo/AppInfoFile.h"

using appinfo::kOtherId;
using appinfo::kSummaryId;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class Gathering : public testing::Test {
 protected:
  ZDXEngine::PropertySetMap sets;
  ZDXEngine::AppInfoNotifier notifier{&sets};
};

TEST_F(Gathering, ACountIsNotKept) {
  notifier.OnEntryCount(5);
  EXPECT_THAT(sets, IsEmpty());
  notifier.OnPropertySet(kOtherId, L"one");
  notifier.OnEntryCount(0);
  EXPECT_THAT(sets, SizeIs(1));
}

TEST_F(Gathering, EverySetIsKeptUnderItsId) {
  notifier.OnPropertySet(kOtherId, L"one");
  notifier.OnPropertySet(kSummaryId, L"two");
  ASSERT_THAT(sets, SizeIs(2));
  EXPECT_EQ(sets.at(kOtherId), L"one");
  EXPECT_EQ(sets.at(kSummaryId), L"two");
}

TEST_F(Gathering, OfTwoTextsTheFirstIsKept) {
  notifier.OnPropertySet(kOtherId, L"one");
  notifier.OnPropertySet(kOtherId, L"two");
  ASSERT_THAT(sets, SizeIs(1));
  EXPECT_EQ(sets.at(kOtherId), L"one");
}

TEST_F(Gathering, IdsAreOrderedByTheirBytesInMemory) {
  const GUID low = {0x00000200, 0, 0, {}};   // 00 02 00 00
  const GUID high = {0x00000101, 0, 0, {}};  // 01 01 00 00
  notifier.OnPropertySet(high, L"high");
  notifier.OnPropertySet(low, L"low");
  EXPECT_EQ(sets.begin()->second, L"low");
}

TEST_F(Gathering, TheLastByteOfAnIdTellsItApart) {
  GUID other = kOtherId;
  other.Data4[7] ^= 0x80;
  notifier.OnPropertySet(kOtherId, L"one");
  notifier.OnPropertySet(other, L"two");
  EXPECT_THAT(sets, SizeIs(2));
  EXPECT_EQ(sets.begin()->second, L"one");
}

}  // namespace
