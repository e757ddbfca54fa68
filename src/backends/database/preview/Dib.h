// A device-independent bitmap as one block.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/os/Graphics.h"

namespace zdx::preview {

// No picture that takes more bytes than this when it is unpacked is shown.
inline constexpr std::uint64_t kMostUnpackedBytes = std::uint64_t{16} << 20;
inline constexpr const wchar_t* kTooLarge = L"The picture is too large.";

// Head, colour masks or colour table, and rows.  The head has 40 bytes and tells no compression, or
// masks; biClrUsed is the size of the table.
class Dib {
 public:
  // `colours` is what stands between head and rows, a multiple of 4 bytes.  The rows, as many as
  // `head` says, are zeros; the caller made sure of their size.
  Dib(const os::BITMAPINFOHEADER& head, std::string_view colours);

  const os::BITMAPINFOHEADER& head() const { return info()->bmiHeader; }
  // Valid as long as this, even if it moves.
  const os::BITMAPINFO* info() const;
  // Empty for a bitmap without a colour table.
  std::span<const os::RGBQUAD> colours() const;
  std::span<std::uint8_t> rows();
  std::span<const std::uint8_t> rows() const;

 private:
  std::size_t RowsAt() const { return block_.size() * sizeof block_[0] - rowsSize_; }

  std::size_t rowsSize_;
  // Numbers, for their alignment.
  std::vector<std::uint32_t> block_;
};

// A picture, or why it can't be shown, as a sentence.
using Showing = std::variant<Dib, const wchar_t*>;

// The bytes of a row, padded to four.
constexpr std::uint64_t RowSize(std::uint64_t width, unsigned bits) {
  return (width * bits + 31) / 32 * 4;
}

}  // namespace zdx::preview
