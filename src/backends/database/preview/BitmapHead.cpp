#include "backends/database/preview/BitmapHead.h"

#include <algorithm>
#include <array>
#include <limits>

#include "base/LittleEndian.h"

namespace zdx::preview {
namespace {

using Packing = BitmapHead::Packing;

constexpr std::size_t kOldHeadSize = 4 + 2 + 2 + 2 + 2;
constexpr std::size_t kHeadSize = 4 + 4 + 4 + 2 + 2 + 4 + 4 + 8 + 4 + 4;
constexpr std::size_t kMasksSize = 4 + 4 + 4;
// What the longer heads have: masks, masks and opacity, colour spaces of two kinds.
constexpr std::array<std::size_t, 4> kLongHeadSizes = {52, 56, 108, 124};

constexpr const wchar_t* kEndsTooEarly = L"The bitmap ends too early.";
constexpr const wchar_t* kOddHead = L"The bitmap's head isn't of a known kind.";
constexpr const wchar_t* kOddSize = L"The bitmap's width or height can't be.";
constexpr const wchar_t* kOddDepth = L"The bitmap's pixels are of no known kind.";
constexpr const wchar_t* kTooManyColours = L"The bitmap's colour table is too large.";

bool IsKnownDepth(const BitmapHead& head) {
  const std::uint16_t bits = head.bits;
  switch (head.packing) {
    case Packing::kNone:
      return bits == 1 || bits == 4 || bits == 8 || bits == 16 || bits == 24 || bits == 32;
    case Packing::kRuns8:
      return bits == 8 && !head.topDown;
    case Packing::kRuns4:
      return bits == 4 && !head.topDown;
    case Packing::kMasks:
      return bits == 16 || bits == 32;
  }
  return false;
}

// Each reads what its kind of head tells; null on success.
const wchar_t* ReadOldHead(std::string_view bytes, BitmapHead& head) {
  head.width = LittleEndianAt<std::uint16_t>(bytes, 4);
  head.height = LittleEndianAt<std::uint16_t>(bytes, 6);
  head.bits = LittleEndianAt<std::uint16_t>(bytes, 10);
  if (head.width == 0 || head.height == 0) return kOddSize;
  if (LittleEndianAt<std::uint16_t>(bytes, 8) != 1 || head.bits == 16 || head.bits == 32)
    return kOddDepth;
  head.coloursAt = kOldHeadSize;
  head.colourSize = 3;
  head.colours = head.bits <= 8 ? std::size_t{1} << head.bits : 0;
  return nullptr;
}

const wchar_t* ReadHead(std::string_view bytes, std::size_t headSize, BitmapHead& head) {
  const auto width = static_cast<std::int32_t>(LittleEndianAt<std::uint32_t>(bytes, 4));
  const auto height = static_cast<std::int32_t>(LittleEndianAt<std::uint32_t>(bytes, 8));
  if (width <= 0 || height == 0 || height == std::numeric_limits<std::int32_t>::min()) {
    return kOddSize;
  }
  head.width = static_cast<std::uint32_t>(width);
  head.height = static_cast<std::uint32_t>(height < 0 ? -height : height);
  head.topDown = height < 0;
  head.bits = LittleEndianAt<std::uint16_t>(bytes, 14);
  head.packing = Packing{LittleEndianAt<std::uint32_t>(bytes, 16)};
  if (LittleEndianAt<std::uint16_t>(bytes, 12) != 1) return kOddDepth;
  head.masksAt = kHeadSize;
  const bool masksBehind = head.packing == Packing::kMasks && headSize == kHeadSize;
  head.coloursAt = headSize + (masksBehind ? kMasksSize : 0);
  head.colourSize = 4;
  const std::uint32_t used = LittleEndianAt<std::uint32_t>(bytes, 32);
  const std::size_t all = head.bits <= 8 ? std::size_t{1} << head.bits : 0;
  head.colours = used == 0 ? all : used;
  return all != 0 && head.colours > all ? kTooManyColours : nullptr;
}

}  // namespace

std::variant<BitmapHead, const wchar_t*> ReadBitmapHead(std::string_view bytes) {
  if (bytes.size() < kOldHeadSize) return kEndsTooEarly;
  const std::size_t size = LittleEndianAt<std::uint32_t>(bytes, 0);
  const bool isOld = size == kOldHeadSize;
  const bool isLong =
      std::find(kLongHeadSizes.begin(), kLongHeadSizes.end(), size) != kLongHeadSizes.end();
  if (!isOld && !isLong && size != kHeadSize) return kOddHead;
  if (bytes.size() < size) return kEndsTooEarly;
  BitmapHead head;
  const wchar_t* const flaw = isOld ? ReadOldHead(bytes, head) : ReadHead(bytes, size, head);
  if (flaw != nullptr) return flaw;
  if (!IsKnownDepth(head)) return kOddDepth;
  if (head.coloursAt > bytes.size()) return kEndsTooEarly;
  if (head.colours > (bytes.size() - head.coloursAt) / head.colourSize) return kTooManyColours;
  head.rowsAt = head.coloursAt + head.colours * head.colourSize;
  return head;
}

}  // namespace zdx::preview
