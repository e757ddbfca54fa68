#include "properties/appinfo/DwgHeader.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>

#include "base/LittleEndian.h"
#include "properties/appinfo/Literals.h"
#include "properties/appinfo/SourceFile.h"

namespace ZDXEngine {
namespace {

// The file's first bytes:
//
//   OFFSET  SIZE  MEANING
//     0x00     6  version magic
//     0x0B     1  release
//     0x0D     4  offset, first candidate
//     0x2C     4  offset, second candidate
//     0x30     4  offset, third candidate: the one that holds from kThirdRelease on
constexpr std::size_t kHeaderSize = 0x80;
constexpr std::size_t kReleaseAt = 0x0B;
constexpr std::size_t kFirstAt = 0x0D;
constexpr std::size_t kSecondAt = 0x2C;
constexpr std::size_t kThirdAt = 0x30;
constexpr std::uint8_t kThirdRelease = 0x0F;

using Header = std::array<std::uint8_t, kHeaderSize>;

DwgHeaderKind KindOf(const Header& header) {
  for (const auto& [magic, kind] : kHeaderMagics) {
    if (std::memcmp(header.data(), magic.data(), magic.size()) == 0) return kind;
  }
  return kDwgHeaderNone;
}

std::uint32_t CandidateAt(const Header& header, std::size_t place) {
  return zdx::LittleEndian<std::uint32_t>(header.data() + place);
}

std::uint32_t OffsetOf(const Header& header, DwgHeaderKind kind) {
  if (kind != kDwgHeader1018 && kind != kDwgHeader1021) return 0;
  if (kind == kDwgHeader1021 && header[kReleaseAt] >= kThirdRelease) {
    return CandidateAt(header, kThirdAt);
  }
  return std::max(CandidateAt(header, kFirstAt), CandidateAt(header, kSecondAt));
}

}  // namespace

DwgHeaderKind LocateAppInfo(const std::wstring& path, std::uint32_t& offset) {
  const os::FileHandle file = OpenSourceFile(path);
  offset = 0;
  if (file == os::kInvalidHandle) return kDwgHeaderNone;
  // A shorter file leaves the rest of the header zero.
  Header header = {};
  std::uint32_t count = 0;
  DwgHeaderKind kind = kDwgHeaderNone;
  if (os::ReadFile(file, header.data(), kHeaderSize, &count, nullptr) != 0) {
    kind = KindOf(header);
    offset = OffsetOf(header, kind);
  }
  os::CloseHandle(file);
  return kind;
}

}  // namespace ZDXEngine
