#include <gtest/gtest.h>

#include "backends/database/dwg/records/ExtendedData.h"
#include "support/handmade/HandMade.h"

namespace zdx::dwg {
namespace {

using namespace std::string_literals;
using handmade::Low16;
using handmade::Low32;

constexpr Format kPaged = {model::kVersion1018, 0};
constexpr Format kWithTexts = {model::kVersion1021, 0};

const std::string kReference = "\x05\x00\x00\x00\x00\x00\x00\x02\x4F"s;

TEST(ExtendedData, AReferenceHasItsHighByteFirst) {
  for (const Format format : {kPaged, kWithTexts}) {
    EXPECT_EQ(FirstReference(kReference, format), 0x24Fu);
  }
}

TEST(ExtendedData, EveryOtherItemIsPassedOver) {
  const std::string before = "\x46\x01\x00"s + "\x47" + Low32(5) + "\x02\x00"s + "\x02\x01"s +
                             "\x03" + std::string(8, '\1') + "\x04\x03xyz" + "\x0A" +
                             std::string(24, '\2') + "\x28" + std::string(8, '\3');
  EXPECT_EQ(FirstReference(before + kReference, kPaged), 0x24Fu);
  EXPECT_EQ(FirstReference(before + kReference, kWithTexts), 0x24Fu);
}

TEST(ExtendedData, ATextHasACodePageBelowAc1021AndTwoBytesForACharacterSince) {
  EXPECT_EQ(FirstReference("\x00\x05\x00\x1E\x05\x05\x05\x05\x05"s + kReference, kPaged), 0x24Fu);
  EXPECT_EQ(FirstReference("\x00"s + Low16(5) + handmade::Wide("Doors") + kReference, kWithTexts),
            0x24Fu);
}

TEST(ExtendedData, WithoutAWholeReferenceThereIsNone) {
  EXPECT_EQ(FirstReference("", kPaged), std::nullopt);
  EXPECT_EQ(FirstReference("\x46\x01\x00"s, kPaged), std::nullopt);
  EXPECT_EQ(FirstReference(kReference.substr(0, 8), kPaged), std::nullopt);
  EXPECT_EQ(FirstReference("\x04\xFFxyz" + kReference, kPaged), std::nullopt);
  EXPECT_EQ(FirstReference("\x00\xFF\xFF"s, kWithTexts), std::nullopt);
  EXPECT_EQ(FirstReference("\x09" + kReference, kPaged), std::nullopt);
}

}  // namespace
}  // namespace zdx::dwg
