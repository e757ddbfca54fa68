#include "backends/posix/Bstr.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>

namespace zdx {
namespace {

// The block before the first character: padding that keeps the characters aligned, then the length.
//
//   OFFSET  SIZE  MEANING
//      0     12   nothing
//     12      4   length in bytes, terminator not counted
using Length = std::uint32_t;
constexpr std::size_t kHeadSize = alignof(std::max_align_t);
static_assert(kHeadSize >= sizeof(Length));

}  // namespace

BSTR NewBstr(const wchar_t* text, std::size_t length) {
  if (length > std::numeric_limits<Length>::max() / sizeof(wchar_t)) return nullptr;
  const std::size_t bytes = length * sizeof(wchar_t);
  auto* const block = static_cast<std::byte*>(std::malloc(kHeadSize + bytes + sizeof(wchar_t)));
  if (block == nullptr) return nullptr;
  const Length stored = static_cast<Length>(bytes);
  std::memcpy(block + kHeadSize - sizeof(Length), &stored, sizeof(Length));
  std::memcpy(block + kHeadSize, text, bytes);
  std::memset(block + kHeadSize + bytes, 0, sizeof(wchar_t));
  return reinterpret_cast<BSTR>(block + kHeadSize);
}

void FreeBstr(BSTR text) {
  if (text != nullptr) std::free(reinterpret_cast<std::byte*>(text) - kHeadSize);
}

std::size_t BstrLength(BSTR text) {
  if (text == nullptr) return 0;
  Length bytes = 0;
  std::memcpy(&bytes, reinterpret_cast<const std::byte*>(text) - sizeof(Length), sizeof(Length));
  return bytes / sizeof(wchar_t);
}

}  // namespace zdx
