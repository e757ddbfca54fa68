#include "backends/database/dwg/records/SectionBlock.h"

#include "backends/database/dwg/bits/Checksums.h"
#include "base/LittleEndian.h"

namespace zdx::dwg {
namespace {

constexpr std::size_t kMarkSize = 16;
constexpr std::size_t kBlockSizeSize = 4;
constexpr std::size_t kHandlePlaceSize = 4;

// The last maintenance release of AC1024 and AC1027 whose sizes have four bytes.
constexpr unsigned kLastShortSize = 3;

bool HasLongSize(Format format) {
  if (format.version >= model::kVersion1032) return true;
  return format.version >= model::kVersion1024 && format.maintenance > kLastShortSize;
}

// The fields in the bytes [begin, end) of `block`.
Streams StreamsOf(std::string_view block, std::size_t begin, std::size_t end, Format format) {
  const std::uint64_t first = std::uint64_t{begin} * 8;
  if (!format.HasStringStream()) return Streams::OfSection(block, first, end * 8);
  const std::uint64_t handles = first + LittleEndianAt<std::uint32_t>(block, begin);
  return Streams::OfRecord(format, block, first + kHandlePlaceSize * 8, handles, end * 8);
}

}  // namespace

SectionBlock::SectionBlock(Section& section, Format format, std::string_view mark,
                           const wchar_t* what, model::Report& report)
    : place_(section.PlaceOf(0)) {
  const auto warn = [&](const wchar_t* before, const wchar_t* behind) {
    report.Warn({before + std::wstring(what) + behind, place_, {}, {}});
  };
  const std::size_t headSize = kMarkSize + (HasLongSize(format) ? 2 : 1) * kBlockSizeSize;
  const auto head = section.Bytes(0, headSize, scratch_);
  if (!head) {
    warn(L"The section of the ", L" ends within its head.");
    return;
  }
  if (head->substr(0, kMarkSize) != mark) warn(L"The mark before the ", L" is wrong.");
  std::uint64_t size = LittleEndianAt<std::uint32_t>(*head, kMarkSize);
  // A size that can't be right is no reason to lose what there is.
  const std::uint64_t framed = headSize + kCrcSize;
  if (section.size() >= framed && size > section.size() - framed) {
    warn(L"The size of the ", L" is wrong.");
    size = section.size() - framed;
  }
  const auto block = section.Bytes(0, headSize + size + kCrcSize, scratch_);
  if (!block || (format.HasStringStream() && size < kHandlePlaceSize)) {
    warn(L"The section of the ", L" ends early.");
    return;
  }
  const std::size_t end = headSize + static_cast<std::size_t>(size);
  const std::string_view checked = block->substr(kMarkSize, end - kMarkSize);
  if (LittleEndianAt<std::uint16_t>(*block, end) != Crc16(checked)) {
    warn(L"The checksum of the ", L" is wrong.");
  }
  streams_ = StreamsOf(*block, headSize, end, format);
}

}  // namespace zdx::dwg
