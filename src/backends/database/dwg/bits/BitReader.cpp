#include "backends/database/dwg/bits/BitReader.h"

#include <algorithm>
#include <bit>

namespace zdx::dwg {
namespace {

// What the two bits before a number say of it.
enum Short : unsigned { kWhole = 0, kByte = 1, kZero = 2, k256 = 3 };
enum Real : unsigned { kFull = 0, kOne = 1, kNought = 2 };

// The low number of the types that OT writes as a byte behind the two bits 1.
constexpr std::uint16_t kSecondTypeRange = 0x1F0;

// The largest number that a modular code can hold here.
constexpr unsigned kMostBits = 64;

}  // namespace

std::uint64_t HandleReference::From(std::uint64_t own) const {
  switch (code) {
    case 6:
      return own + 1;
    case 8:
      return own - 1;
    case 10:
      return own + value;
    case 12:
      return own - value;
    default:
      return value;
  }
}

BitReader::BitReader(std::string_view bytes, std::uint64_t begin, std::uint64_t end)
    : bytes_(bytes) {
  const std::uint64_t most = std::uint64_t{bytes.size()} * 8;
  end_ = std::min(end, most);
  failed_ = begin > end_;
  at_ = std::min(begin, end_);
}

void BitReader::Seek(std::uint64_t position) {
  failed_ = failed_ || position > end_;
  at_ = std::min(position, end_);
}

void BitReader::Skip(std::uint64_t bits) {
  if (Take(bits)) at_ += bits;
}

// False, and a failure, if the run has no more `bits`.
bool BitReader::Take(std::uint64_t bits) {
  if (!failed_ && bits <= Left()) return true;
  Fail();
  return false;
}

void BitReader::Fail() {
  failed_ = true;
  at_ = end_;
}

std::uint64_t BitReader::SlowBits(unsigned count) {
  if (!Take(count)) return 0;
  std::uint64_t value = 0;
  while (count > 0) {
    const unsigned inByte = static_cast<unsigned>(at_ & 7);
    const unsigned taken = std::min(8 - inByte, count);
    const unsigned byte = static_cast<std::uint8_t>(bytes_[static_cast<std::size_t>(at_ >> 3)]);
    const unsigned piece = byte >> (8 - inByte - taken) & ((1u << taken) - 1);
    value = value << taken | piece;
    at_ += taken;
    count -= taken;
  }
  return value;
}

std::uint64_t BitReader::RawBytes(unsigned count) {
  if (!Take(std::uint64_t{count} * 8)) return 0;
  std::uint64_t highFirst = Bits(count * 8);
  std::uint64_t value = 0;
  for (unsigned i = 0; i < count; ++i) {
    value = value << 8 | (highFirst & 0xFF);
    highFirst >>= 8;
  }
  return value;
}

double BitReader::RD() { return std::bit_cast<double>(RLL()); }

std::uint16_t BitReader::BS() {
  switch (BB()) {
    case kWhole:
      return RS();
    case kByte:
      return RC();
    case kZero:
      return 0;
    default:
      return failed_ ? 0 : 256;
  }
}

std::uint32_t BitReader::BL() {
  switch (BB()) {
    case kWhole:
      return RL();
    case kByte:
      return RC();
    case kZero:
      return 0;
    default:
      Fail();
      return 0;
  }
}

std::uint64_t BitReader::BLL() { return RawBytes(static_cast<unsigned>(Bits(3))); }

double BitReader::BD() {
  switch (BB()) {
    case kFull:
      return RD();
    case kOne:
      return 1.0;
    case kNought:
      return 0.0;
    default:
      Fail();
      return 0.0;
  }
}

std::uint16_t BitReader::OT() {
  switch (BB()) {
    case 0:
      return RC();
    case 1:
      return static_cast<std::uint16_t>(RC() + kSecondTypeRange);
    default:
      return RS();
  }
}

std::uint64_t BitReader::UMC() {
  std::uint64_t value = 0;
  for (unsigned shift = 0; shift < kMostBits; shift += 7) {
    const std::uint64_t byte = RC();
    value |= (byte & 0x7F) << shift;
    if ((byte & 0x80) == 0) return value;
  }
  Fail();
  return 0;
}

std::int64_t BitReader::MC() {
  std::uint64_t value = 0;
  for (unsigned shift = 0; shift < kMostBits; shift += 7) {
    const std::uint64_t byte = RC();
    if ((byte & 0x80) != 0) {
      value |= (byte & 0x7F) << shift;
      continue;
    }
    value |= (byte & 0x3F) << shift;
    return static_cast<std::int64_t>((byte & 0x40) != 0 ? 0 - value : value);
  }
  Fail();
  return 0;
}

std::uint64_t BitReader::MS() {
  std::uint64_t value = 0;
  for (unsigned shift = 0; shift < kMostBits; shift += 15) {
    const std::uint64_t word = RS();
    value |= (word & 0x7FFF) << shift;
    if ((word & 0x8000) == 0) return value;
  }
  Fail();
  return 0;
}

HandleReference BitReader::H() {
  HandleReference reference;
  reference.code = static_cast<unsigned>(Bits(4));
  const auto count = static_cast<unsigned>(Bits(4));
  if (count > 8) {
    Fail();
    return {};
  }
  reference.value = Bits(8 * count);
  return failed_ ? HandleReference() : reference;
}

std::string BitReader::Bytes(std::uint64_t count) {
  const std::uint64_t whole = std::min(count, Left() / 8);
  std::string bytes;
  bytes.reserve(static_cast<std::size_t>(whole));
  if ((at_ & 7) == 0) {
    bytes = bytes_.substr(static_cast<std::size_t>(at_ >> 3), static_cast<std::size_t>(whole));
    at_ += whole * 8;
  } else {
    for (std::uint64_t i = 0; i < whole; ++i) bytes.push_back(static_cast<char>(RC()));
  }
  if (whole < count) Fail();
  return bytes;
}

}  // namespace zdx::dwg
