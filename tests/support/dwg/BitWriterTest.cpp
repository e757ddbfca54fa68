#include <gtest/gtest.h>

#include <functional>

#include "support/dwg/BitWriter.h"
#include "support/dwg/Bytes.h"
#include "support/dwg/Fields.h"

namespace dwg {
namespace {

using namespace std::string_literals;

std::string Written(const std::function<void(BitWriter&)>& write) {
  BitWriter bits;
  write(bits);
  return bits.Bytes();
}

TEST(BitWriter, BitsAreTakenFromTheMostSignificantEnd) {
  EXPECT_EQ(Written([](BitWriter& bits) {
              bits.B(true);
              bits.BB(1);
              bits.Bits(3, 4);
            }),
            "\xA6"s);
}

TEST(BitWriter, ARawNumberAtAnOddPlaceIsTheSameBytesShifted) {
  // 1, then 0x34 and 0x12.
  EXPECT_EQ(Written([](BitWriter& bits) {
              bits.B(true);
              bits.RS(0x1234);
            }),
            "\x9A\x09\x00"s);
}

TEST(BitWriter, AShortNumberTellsItsWidthInTwoBits) {
  EXPECT_EQ(Written([](BitWriter& bits) { bits.BS(0); }), "\x80"s);
  EXPECT_EQ(Written([](BitWriter& bits) { bits.BS(256); }), "\xC0"s);
  EXPECT_EQ(Written([](BitWriter& bits) { bits.BS(255); }), "\x7F\xC0"s);
  EXPECT_EQ(Written([](BitWriter& bits) { bits.BS(257); }), "\x00\x40\x40"s);
  EXPECT_EQ(Written([](BitWriter& bits) { bits.BS(-1); }), "\x3F\xFF\xC0"s);
}

TEST(BitWriter, ALongNumberHasNoFormFor256) {
  EXPECT_EQ(Written([](BitWriter& bits) { bits.BL(0); }), "\x80"s);
  EXPECT_EQ(Written([](BitWriter& bits) { bits.BL(3); }), "\x40\xC0"s);
  EXPECT_EQ(Written([](BitWriter& bits) { bits.BL(256); }), "\x00\x00\x40\x00\x00"s);
}

TEST(BitWriter, ANumberOf64BitsTellsItsBytesInThreeBits) {
  // 010, then 0x00 and 0x01.
  EXPECT_EQ(Written([](BitWriter& bits) { bits.BLL(256); }), "\x40\x00\x20"s);
}

TEST(BitWriter, OneAndZeroAreDoublesOfTwoBits) {
  EXPECT_EQ(Written([](BitWriter& bits) {
              bits.BD(1.0);
              bits.BD(0.0);
            }),
            "\x60"s);
  // 00, then the bytes of 2.0: six zeros, 0x00, 0x40.
  EXPECT_EQ(Written([](BitWriter& bits) { bits.BD(2.0); }), "\0\0\0\0\0\0\0\x10\0"s);
}

TEST(BitWriter, ADoubleLikeTheExpectedOneTellsWhatDiffers) {
  EXPECT_EQ(Written([](BitWriter& bits) { bits.DD(1.5, 1.5); }), "\x00"s);
  // 1.0 is 3FF00000 00000000; its next neighbour differs in the lowest byte alone.
  EXPECT_EQ(Written([](BitWriter& bits) { bits.DD(1.0 + 0x1p-52, 1.0); }), "\x40\x40\x00\x00\x00"s);
  // 1.0 + 2^-13 is 3FF00080 00000000: the first two of six bytes are the upper ones.
  EXPECT_EQ(Written([](BitWriter& bits) { bits.DD(1.0 + 0x1p-13, 1.0); }),
            "\xA0\x00\x00\x00\x00\x00\x00"s);
  EXPECT_EQ(Written([](BitWriter& bits) { bits.DD(-1.0, 1.0); }).size(), 9u);
}

TEST(BitWriter, ATypeIsOneByteForTheCommonOnes) {
  EXPECT_EQ(Written([](BitWriter& bits) { bits.OT(49); }), "\x0C\x40"s);
  EXPECT_EQ(Written([](BitWriter& bits) { bits.OT(0x1F2); }), "\x40\x80"s);
  EXPECT_EQ(Written([](BitWriter& bits) { bits.OT(0x300); }), "\x80\x00\xC0"s);
}

TEST(BitWriter, AReferenceStandsHighByteFirst) {
  EXPECT_EQ(Written([](BitWriter& bits) { bits.Reference(4, 0x1F2); }), "\x42\x01\xF2"s);
  EXPECT_EQ(Written([](BitWriter& bits) { bits.Reference(5, 0); }), "\x50"s);
}

TEST(BitWriter, NumbersOfAnyLengthBeginWithTheirLowPart) {
  EXPECT_EQ(Umc(0x7F), "\x7F"s);
  EXPECT_EQ(Umc(0x80), "\x80\x01"s);
  EXPECT_EQ(Mc(0x3F), "\x3F"s);
  EXPECT_EQ(Mc(0x40), "\xC0\x00"s);
  EXPECT_EQ(Mc(-1), "\x41"s);
  EXPECT_EQ(Mc(-0x80), "\x80\x41"s);
  EXPECT_EQ(Ms(0x7FFF), "\xFF\x7F"s);
  EXPECT_EQ(Ms(0x8001), "\x01\x80\x01\x00"s);
}

TEST(BitWriter, ANumberPutLaterChangesNothingAroundIt) {
  BitWriter bits;
  bits.Bits(7, 3);
  bits.RL(0);
  bits.Bits(31, 5);
  bits.PutRL(3, 0x04030201);
  EXPECT_EQ(bits.Bytes(), "\xE0\x20\x40\x60\x9F"s);
}

std::string TextIn(Version version, bool endsWithZero) {
  const drawing::PageEncoder encoder("ANSI_1252");
  Fields fields(version, encoder, endsWithZero, Fields::References::Apart);
  fields.T("A");
  return fields.Together({}).bits.Bytes();
}

TEST(Fields, ATextBelowAC1021CountsAZeroAtItsEnd) {
  // 01, count 2, "A", 0.
  EXPECT_EQ(TextIn(Version::AC1015, true), "\x40\x90\x40\x00"s);
  EXPECT_EQ(TextIn(Version::AC1015, false), "\x40\x50\x40"s);
}

TEST(Fields, TheTextsOfLaterVersionsStandBehindTheNumbersWithTheirLength) {
  // 01, count 1, 0x41 0x00; then the length, 26 bits; then that there are texts.
  EXPECT_EQ(TextIn(Version::AC1021, true), "\x40\x50\x40\x06\x80\x20"s);
}

TEST(Fields, AReferenceNearbyIsToldByItsDistance) {
  const drawing::PageEncoder encoder;
  Fields fields(Version::AC1032, encoder, true, Fields::References::Apart, 0x200);
  for (const Handle target : {0x201u, 0x1FFu, 0x210u, 0x1F0u, 0x1u, 0u}) {
    fields.Near(Link::SoftPointer, target);
  }
  const Fields::Streams streams = fields.Together({});
  // One bit before the references says that there are no texts.
  BitWriter expected;
  expected.B(false);
  expected.Raw("\x60\x80\xA1\x10\xC1\x10\x41\x01\x40"s);
  EXPECT_EQ(streams.references, 1u);
  EXPECT_EQ(streams.bits.Bytes(), expected.Bytes());
}

}  // namespace
}  // namespace dwg
