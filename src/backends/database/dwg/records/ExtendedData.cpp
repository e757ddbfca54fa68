#include "backends/database/dwg/records/ExtendedData.h"

#include "base/LittleEndian.h"

namespace zdx::dwg {
namespace {

constexpr unsigned kTextItem = 0;
constexpr unsigned kBracketItem = 2;
constexpr unsigned kLayerItem = 3;
constexpr unsigned kBinaryItem = 4;
constexpr unsigned kReferenceItem = 5;
constexpr std::size_t kReferenceSize = 8;

// The size of the value behind `code`; nullopt for a code that isn't known, or if its length isn't
// there.
std::optional<std::size_t> SizeOfItem(unsigned code, std::string_view value, Format format) {
  switch (code) {
    case kTextItem:
      if (format.HasStringStream()) {
        if (value.size() < 2) return std::nullopt;
        return 2 + std::size_t{2} * LittleEndian<std::uint16_t>(value);
      }
      // Length, code page, bytes.
      if (value.empty()) return std::nullopt;
      return 1 + 2 + std::size_t{LittleEndian<std::uint8_t>(value)};
    case kBracketItem:
      return 1;
    case kLayerItem:
    case kReferenceItem:
      return kReferenceSize;
    case kBinaryItem:
      if (value.empty()) return std::nullopt;
      return 1 + std::size_t{LittleEndian<std::uint8_t>(value)};
    case 10:
    case 11:
    case 12:
    case 13:
    case 14:
    case 15:
      return std::size_t{3} * 8;
    case 40:
    case 41:
    case 42:
      return 8;
    case 70:
      return 2;
    case 71:
      return 4;
    default:
      return std::nullopt;
  }
}

// Other numbers have the low byte first.
std::uint64_t HighByteFirst(std::string_view bytes) {
  std::uint64_t number = 0;
  for (const char byte : bytes) number = number << 8 | static_cast<std::uint8_t>(byte);
  return number;
}

}  // namespace

std::optional<std::uint64_t> FirstReference(std::string_view bytes, Format format) {
  while (!bytes.empty()) {
    const unsigned code = LittleEndian<std::uint8_t>(bytes);
    bytes.remove_prefix(1);
    const std::optional<std::size_t> size = SizeOfItem(code, bytes, format);
    if (!size || *size > bytes.size()) return std::nullopt;
    if (code == kReferenceItem) return HighByteFirst(bytes.substr(0, kReferenceSize));
    bytes.remove_prefix(*size);
  }
  return std::nullopt;
}

}  // namespace zdx::dwg
