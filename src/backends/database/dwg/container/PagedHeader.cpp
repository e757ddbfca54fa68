#include "backends/database/dwg/container/PagedHeader.h"

#include <array>
#include <string>

#include "backends/database/dwg/bits/Checksums.h"
#include "base/LittleEndian.h"

namespace zdx::dwg {
namespace {

constexpr std::size_t kHeaderAt = 0x80;
constexpr std::size_t kHeaderSize = 0x6C;
constexpr std::size_t kPageMapAt = 0x54;
constexpr std::size_t kSectionMapPageAt = 0x5C;
constexpr std::size_t kCheckAt = 0x68;

// What the header is masked with.
constexpr std::array<std::uint8_t, kHeaderSize> kMask = [] {
  std::array<std::uint8_t, kHeaderSize> mask = {};
  std::uint32_t seed = 1;
  for (std::uint8_t& byte : mask) {
    seed = seed * 0x343FD + 0x269EC3;
    byte = static_cast<std::uint8_t>(seed >> 16);
  }
  return mask;
}();

std::string Unmasked(std::string_view masked) {
  std::string header;
  for (std::size_t i = 0; i < kHeaderSize; ++i) {
    header.push_back(static_cast<char>(static_cast<std::uint8_t>(masked[i]) ^ kMask[i]));
  }
  return header;
}

bool CheckIsRight(std::string header) {
  const auto check = LittleEndianAt<std::uint32_t>(header, kCheckAt);
  header.replace(kCheckAt, sizeof check, sizeof check, '\0');
  return check == Crc32(header);
}

std::optional<PagedHeader> Fields(const std::string& header, std::uint64_t fileSize) {
  const auto pageMap = LittleEndianAt<std::uint64_t>(header, kPageMapAt);
  if (fileSize < kFirstPage || pageMap >= fileSize - kFirstPage) return std::nullopt;
  return PagedHeader{pageMap + kFirstPage,
                     LittleEndianAt<std::uint32_t>(header, kSectionMapPageAt)};
}

}  // namespace

std::optional<PagedHeader> ReadPagedHeader(std::string_view bytes, model::Report& report) {
  if (bytes.size() < kHeaderAt + kHeaderSize) return std::nullopt;
  const std::string first = Unmasked(bytes.substr(kHeaderAt));
  if (CheckIsRight(first)) return Fields(first, bytes.size());
  const std::string copy = Unmasked(bytes.substr(bytes.size() - kHeaderSize));
  if (CheckIsRight(copy)) {
    report.Warn(
        {L"The checksum of the file's header is wrong; its copy is used.", kHeaderAt, {}, {}});
    return Fields(copy, bytes.size());
  }
  report.Warn({L"The checksum of the file's header is wrong.", kHeaderAt, {}, {}});
  return Fields(first, bytes.size());
}

}  // namespace zdx::dwg
