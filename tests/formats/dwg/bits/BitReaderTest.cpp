#include <gtest/gtest.h>

#include "backends/database/dwg/bits/BitReader.h"
#include "support/handmade/HandMade.h"

namespace zdx::dwg {
namespace {

using namespace std::string_literals;
using handmade::Bits;

// Reads one value behind `lead` bits, and expects it to be all that the bits hold.
template <class Read>
auto ValueOf(const Bits& bits, Read read, unsigned lead = 0) {
  Bits led;
  led.Plain(std::string(lead, '1')).Append(bits);
  const std::string bytes = led.Bytes();
  BitReader reader(bytes, lead, led.size());
  const auto value = read(reader);
  EXPECT_FALSE(reader.failed());
  EXPECT_EQ(reader.Left(), 0u);
  return value;
}

// A code whose bits are cut by one fails, and gives 0.
template <class Read>
void ExpectNeedsAllOf(const Bits& bits, Read read) {
  const std::string bytes = bits.Bytes();
  BitReader reader(bytes, 0, bits.size() - 1);
  read(reader);
  EXPECT_TRUE(reader.failed());
}

TEST(BitReader, BitsComeFromTheHighEndOfAByte) {
  BitReader reader("\xB2\x80", 0, 16);
  EXPECT_TRUE(reader.B());
  EXPECT_EQ(reader.BB(), 1u);
  EXPECT_EQ(reader.Bits(6), 0b100101u);
  EXPECT_EQ(reader.position(), 9u);
  EXPECT_EQ(reader.Left(), 7u);
}

TEST(BitReader, RawNumbersHaveTheirLowByteFirstAtEveryBit) {
  for (unsigned lead = 0; lead < 8; ++lead) {
    const auto rc = [](BitReader& r) { return r.RC(); };
    const auto rs = [](BitReader& r) { return r.RS(); };
    const auto rl = [](BitReader& r) { return r.RL(); };
    const auto rll = [](BitReader& r) { return r.RLL(); };
    const auto rd = [](BitReader& r) { return r.RD(); };
    EXPECT_EQ(ValueOf(Bits().Raw("\xA5"), rc, lead), 0xA5);
    EXPECT_EQ(ValueOf(Bits().Raw("\x34\x12"), rs, lead), 0x1234);
    EXPECT_EQ(ValueOf(Bits().Raw("\x78\x56\x34\xF2"), rl, lead), 0xF2345678u);
    EXPECT_EQ(ValueOf(Bits().Raw("\x08\x07\x06\x05\x04\x03\x02\xF1"), rll, lead),
              0xF102030405060708u);
    EXPECT_EQ(ValueOf(Bits().Raw("\0\0\0\0\0\0\xF8\xBF"s), rd, lead), -1.5);
  }
}

TEST(BitReader, AShortNumberHasFourForms) {
  const auto bs = [](BitReader& r) { return r.BS(); };
  EXPECT_EQ(ValueOf(Bits().Plain("00 11101000 00000011"), bs), 1000);
  EXPECT_EQ(ValueOf(Bits().Plain("01 11111111"), bs), 255);
  EXPECT_EQ(ValueOf(Bits().Plain("10"), bs), 0);
  EXPECT_EQ(ValueOf(Bits().Plain("11"), bs), 256);
  EXPECT_EQ(ValueOf(Bits().Plain("00 11101000 00000011"), bs, 5), 1000);
  ExpectNeedsAllOf(Bits().Plain("00 11101000 00000011"), bs);
  ExpectNeedsAllOf(Bits().Plain("01 11111111"), bs);
  ExpectNeedsAllOf(Bits().Plain("11"), bs);
}

TEST(BitReader, ALongNumberHasThreeForms) {
  const auto bl = [](BitReader& r) { return r.BL(); };
  EXPECT_EQ(ValueOf(Bits().Plain("00").Raw("\x01\x02\x03\x84"), bl), 0x84030201u);
  EXPECT_EQ(ValueOf(Bits().Plain("01 10000001"), bl), 0x81u);
  EXPECT_EQ(ValueOf(Bits().Plain("10"), bl), 0u);
  ExpectNeedsAllOf(Bits().Plain("00").Raw("\x01\x02\x03\x84"), bl);
}

TEST(BitReader, TheFourthFormOfALongNumberOrARealIsAFailure) {
  const std::string bytes = Bits().Plain("11").Raw("\x11\x22").Bytes();
  BitReader number(bytes, 0, 18);
  EXPECT_EQ(number.BL(), 0u);
  EXPECT_TRUE(number.failed());
  BitReader real(bytes, 0, 18);
  EXPECT_EQ(real.BD(), 0.0);
  EXPECT_TRUE(real.failed());
}

TEST(BitReader, ACountedNumberHasAsManyBytesAsItsThreeBitsSay) {
  const auto bll = [](BitReader& r) { return r.BLL(); };
  EXPECT_EQ(ValueOf(Bits().Plain("000"), bll), 0u);
  EXPECT_EQ(ValueOf(Bits().Plain("001 00000111"), bll), 7u);
  EXPECT_EQ(ValueOf(Bits().Plain("011").Raw("\x01\x02\x03"), bll), 0x030201u);
  EXPECT_EQ(ValueOf(Bits().Plain("111").Raw("\x01\x02\x03\x04\x05\x06\x07"), bll),
            0x07060504030201u);
  ExpectNeedsAllOf(Bits().Plain("011").Raw("\x01\x02\x03"), bll);
}

TEST(BitReader, ARealHasThreeForms) {
  const auto bd = [](BitReader& r) { return r.BD(); };
  EXPECT_EQ(ValueOf(Bits().Plain("00").Raw("\0\0\0\0\0\0\x04\x40"s), bd), 2.5);
  EXPECT_EQ(ValueOf(Bits().Plain("01"), bd), 1.0);
  EXPECT_EQ(ValueOf(Bits().Plain("10"), bd), 0.0);
}

TEST(BitReader, ATypeHasAByteOrAByteFrom0x1F0OrTwo) {
  const auto ot = [](BitReader& r) { return r.OT(); };
  EXPECT_EQ(ValueOf(Bits().Plain("00 00110011"), ot), 51);
  EXPECT_EQ(ValueOf(Bits().Plain("01 00000100"), ot), 500);
  EXPECT_EQ(ValueOf(Bits().Plain("10").RS(0x1234), ot), 0x1234);
  EXPECT_EQ(ValueOf(Bits().Plain("11").RS(0x1234), ot), 0x1234);
}

TEST(BitReader, AModularNumberHasSevenBitsAByteLowPartFirst) {
  const auto umc = [](BitReader& r) { return r.UMC(); };
  EXPECT_EQ(ValueOf(Bits().Raw("\x7F"), umc), 127u);
  EXPECT_EQ(ValueOf(Bits().Raw("\x80\x01"), umc), 128u);
  EXPECT_EQ(ValueOf(Bits().Raw("\x82\x24"), umc), 0x1202u);
  EXPECT_EQ(ValueOf(Bits().Raw("\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\x01"), umc),
            0xFFFFFFFFFFFFFFFFu);
  ExpectNeedsAllOf(Bits().Raw("\x82\x24"), umc);
}

TEST(BitReader, ASignedModularNumberHasItsSignInTheLastByte) {
  const auto mc = [](BitReader& r) { return r.MC(); };
  EXPECT_EQ(ValueOf(Bits().Raw("\x3F"), mc), 63);
  EXPECT_EQ(ValueOf(Bits().Raw("\x7F"), mc), -63);
  EXPECT_EQ(ValueOf(Bits().Raw("\xC0\x00"s), mc), 64);
  EXPECT_EQ(ValueOf(Bits().Raw("\xC0\x40"), mc), -64);
  EXPECT_EQ(ValueOf(Bits().Raw("\x85\x4B"), mc), -(5 + 11 * 128));
}

TEST(BitReader, AModularNumberThatNeverEndsIsAFailure) {
  const std::string bytes(20, '\xFF');
  BitReader reader(bytes, 0, 160);
  EXPECT_EQ(reader.UMC(), 0u);
  EXPECT_TRUE(reader.failed());
  BitReader withSign(bytes, 0, 160);
  EXPECT_EQ(withSign.MC(), 0);
  EXPECT_TRUE(withSign.failed());
  BitReader words(bytes, 0, 160);
  EXPECT_EQ(words.MS(), 0u);
  EXPECT_TRUE(words.failed());
}

TEST(BitReader, ASizeHasFifteenBitsAWordLowPartFirst) {
  const auto ms = [](BitReader& r) { return r.MS(); };
  EXPECT_EQ(ValueOf(Bits().RS(0x7FFF), ms), 0x7FFFu);
  EXPECT_EQ(ValueOf(Bits().RS(0x8002).RS(0x0003), ms), 2u + 3u * 0x8000u);
  ExpectNeedsAllOf(Bits().RS(0x8002).RS(0x0003), ms);
}

TEST(BitReader, AHandleHasACodeACountAndItsHighByteFirst) {
  const auto h = [](BitReader& r) { return r.H(); };
  const HandleReference reference = ValueOf(Bits().Raw("\x52\x12\x34"), h, 3);
  EXPECT_EQ(reference.code, 5u);
  EXPECT_EQ(reference.value, 0x1234u);
  const HandleReference none = ValueOf(Bits().Raw("\x30"), h);
  EXPECT_EQ(none.code, 3u);
  EXPECT_EQ(none.value, 0u);
  EXPECT_EQ(ValueOf(Bits().Raw("\x08\x01\x02\x03\x04\x05\x06\x07\x08"), h).value,
            0x0102030405060708u);
  ExpectNeedsAllOf(Bits().Raw("\x52\x12\x34"), h);
}

TEST(BitReader, AHandleOfMoreThanEightBytesIsAFailure) {
  const std::string bytes = "\x59" + std::string(9, '\1');
  BitReader reader(bytes, 0, bytes.size() * 8);
  EXPECT_EQ(reader.H().value, 0u);
  EXPECT_TRUE(reader.failed());
}

TEST(HandleReference, IsAbsoluteOrCountedFromTheRecordsOwn) {
  for (const unsigned code : {0u, 2u, 3u, 4u, 5u}) {
    EXPECT_EQ((HandleReference{code, 0x20}).From(0x100), 0x20u);
  }
  EXPECT_EQ((HandleReference{6, 0}).From(0x100), 0x101u);
  EXPECT_EQ((HandleReference{8, 0}).From(0x100), 0xFFu);
  EXPECT_EQ((HandleReference{0xA, 0x20}).From(0x100), 0x120u);
  EXPECT_EQ((HandleReference{0xC, 0x20}).From(0x100), 0xE0u);
}

TEST(BitReader, BytesMayBeginWithinAByte) {
  for (unsigned lead = 0; lead < 8; ++lead) {
    EXPECT_EQ(ValueOf(
                  Bits().Raw("a\0c"s), [](BitReader& r) { return r.Bytes(3); }, lead),
              "a\0c"s);
  }
}

TEST(BitReader, FewerBytesThanAskedForAreAFailure) {
  for (const unsigned begin : {0u, 3u}) {
    BitReader reader("abc", begin, 24);
    EXPECT_LT(reader.Bytes(4).size(), 4u);
    EXPECT_TRUE(reader.failed());
  }
}

TEST(BitReader, ACountOfBytesThatWrapsAroundIsAFailure) {
  BitReader reader("abc", 0, 24);
  reader.Bytes(std::uint64_t{1} << 61);
  EXPECT_TRUE(reader.failed());
}

TEST(BitReader, PastTheEndComeZerosForGood) {
  BitReader reader("\xFF\xFF", 0, 12);
  reader.Skip(5);
  EXPECT_EQ(reader.RC(), 0u);
  EXPECT_TRUE(reader.failed());
  EXPECT_FALSE(reader.B());
  EXPECT_EQ(reader.Left(), 0u);
}

TEST(BitReader, AfterAFailureComesNothingMore) {
  BitReader reader("\x03zzzzz", 6, 48);
  reader.BL();
  ASSERT_TRUE(reader.failed());
  EXPECT_EQ(reader.Bytes(2), "");
  EXPECT_EQ(reader.RC(), 0u);
}

TEST(BitReader, ARunIsCutAtTheEndOfTheBytes) {
  BitReader reader("ab", 8, 1000);
  EXPECT_EQ(reader.end(), 16u);
  EXPECT_EQ(reader.RC(), 'b');
  EXPECT_FALSE(reader.failed());
}

TEST(BitReader, ARunThatBeginsBehindItsEndFails) {
  BitReader reader("ab", 17, 1000);
  EXPECT_TRUE(reader.failed());
  EXPECT_EQ(reader.RC(), 0u);
}

TEST(BitReader, SeekingBehindTheEndIsAFailure) {
  BitReader reader("ab", 0, 16);
  reader.Seek(8);
  EXPECT_EQ(reader.RC(), 'b');
  reader.Seek(17);
  EXPECT_TRUE(reader.failed());
}

}  // namespace
}  // namespace zdx::dwg
