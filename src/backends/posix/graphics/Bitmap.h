// A device-independent bitmap in memory.
#pragma once

#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <span>
#include <vector>

#include "platform/os/Graphics.h"

namespace zdx::graphics {

class Bitmap {
 public:
  // A bitmap of zeros as `info` describes it; null if it isn't a bitmap that CreateDIBSection
  // takes, if its rows have more bytes than 32 bits can count, or if memory ran out.
  static std::unique_ptr<Bitmap> Make(const os::BITMAPINFO& info);

  std::uint32_t width() const { return width_; }
  std::uint32_t height() const { return height_; }
  std::uint16_t bits() const { return bits_; }
  // The full table of a bitmap of 1, 4 or 8 bits, black where nobody gave a colour; else empty.
  const std::vector<os::RGBQUAD>& colours() const { return colours_; }
  // Of red, green and blue, in a bitmap of 16 or 32 bits.
  const std::array<std::uint32_t, 3>& masks() const { return masks_; }

  std::uint32_t rowSize() const { return rowSize_; }
  std::uint32_t size() const { return rowSize_ * height_; }
  // The rows in the order that was asked for; anybody may write them.
  void* rows() const { return rows_.get(); }
  // The bytes of a row, counted from the bottom of the picture.
  std::span<const std::uint8_t> RowFromBottom(std::uint32_t row) const;

 private:
  struct Free {
    void operator()(std::uint8_t* block) const { std::free(block); }
  };

  Bitmap() = default;
  void TakeColours(const os::BITMAPINFO& info);

  std::uint32_t width_ = 0;
  std::uint32_t height_ = 0;
  std::uint16_t bits_ = 0;
  bool topDown_ = false;
  std::uint32_t rowSize_ = 0;
  std::vector<os::RGBQUAD> colours_;
  std::array<std::uint32_t, 3> masks_ = {};
  std::unique_ptr<std::uint8_t, Free> rows_;
};

}  // namespace zdx::graphics
