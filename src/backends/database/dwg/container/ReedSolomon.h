// The error-correcting code of AC1021.
//
// Bytes stand in words of 255, of which the last ones are parity.  The words of a page are
// interleaved: byte j of word i is byte i + j * words of the page.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zdx::dwg {

inline constexpr std::size_t kWordSize = 255;

enum class ParityKind { kSystemPage, kDataPage };

// How many bytes of a word are data.
constexpr std::size_t DataSize(ParityKind kind) {
  return kind == ParityKind::kSystemPage ? 239 : 251;
}

// The data of a page of `words` words, without looking at the parity.  `page` has at least
// `words` * kWordSize bytes.
std::string TakeData(std::string_view page, std::size_t words, ParityKind kind);

// The same, mended by the parity as far as that goes: half as many wrong bytes in a word as it has
// bytes of parity.
std::string TakeMendedData(std::string_view page, std::size_t words, ParityKind kind);

}  // namespace zdx::dwg
