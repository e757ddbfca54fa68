// Writes a Windows metafile in memory.
#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "backends/posix/graphics/Bitmap.h"
#include "platform/os/Graphics.h"

namespace zdx::graphics {

// Where a bit-block transfer takes and puts its pixels; the metafile keeps 16 bits of each number.
struct Transfer {
  std::int32_t targetX;
  std::int32_t targetY;
  std::int32_t width;
  std::int32_t height;
  std::int32_t sourceX;
  std::int32_t sourceY;
  std::uint32_t operation;
};

// Once a record found no room, there is no metafile: the calls that follow do nothing.
class MetafileRecorder {
 public:
  // Sizes are told in 32 bits.
  static constexpr std::size_t kMostBytes = std::numeric_limits<std::uint32_t>::max();

  explicit MetafileRecorder(std::size_t mostBytes = kMostBytes);

  // Makes a palette the current one.
  void SelectPalette(std::span<const os::PALETTEENTRY> entries);
  void RealizePalette();
  // Draws a part of `bitmap`, all of which is kept.  False if it found no room.
  bool DrawBitmap(const Bitmap& bitmap, const Transfer& transfer);

  // The whole metafile, and the end of the recording; nullopt if something found no room.
  std::optional<std::string> Finish();

 private:
  bool Begin(std::uint16_t function, std::uint64_t size);
  void Put16(std::uint32_t number);
  void Put32(std::uint32_t number);
  void PutBitmapHead(const Bitmap& bitmap);

  std::size_t mostBytes_;
  // Begins with room for the header.
  std::string bytes_;
  std::uint16_t objects_ = 0;
  std::uint32_t largestWords_ = 0;
  bool failed_ = false;
};

}  // namespace zdx::graphics
