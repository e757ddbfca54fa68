#include "backends/database/preview/RunLengths.h"

#include "backends/database/preview/Dib.h"

namespace zdx::preview {
namespace {

constexpr unsigned kEndOfRow = 0;
constexpr unsigned kEndOfPicture = 1;
constexpr unsigned kStep = 2;

class Unpacker {
 public:
  Unpacker(std::string_view packed, const BitmapHead& head, std::span<std::uint8_t> rows)
      : packed_(packed), head_(head), rowSize_(RowSize(head.width, head.bits)), rows_(rows) {}

  bool Run() {
    while (!ended_) {
      if (packed_.size() - at_ < 2) return false;
      const unsigned count = Take();
      const unsigned what = Take();
      if (!(count > 0 ? Repeat(count, what) : Follow(what))) return false;
    }
    return true;
  }

 private:
  unsigned Take() { return static_cast<unsigned char>(packed_[at_++]); }

  bool Follow(unsigned order) {
    switch (order) {
      case kEndOfRow:
        x_ = 0;
        ++y_;
        return true;
      case kEndOfPicture:
        ended_ = true;
        return true;
      case kStep:
        if (packed_.size() - at_ < 2) return false;
        x_ += Take();
        y_ += Take();
        return true;
      default:
        return Copy(order);
    }
  }

  bool Repeat(unsigned count, unsigned what) {
    for (unsigned i = 0; i < count; ++i) {
      if (!Put(head_.bits == 8 ? what : Half(what, i))) return false;
    }
    return true;
  }

  bool Copy(unsigned count) {
    const std::size_t bytes = head_.bits == 8 ? count : (count + 1) / 2;
    const std::size_t padded = (bytes + 1) / 2 * 2;
    if (packed_.size() - at_ < padded) return false;
    for (unsigned i = 0; i < count; ++i) {
      const auto byte = static_cast<unsigned char>(packed_[at_ + (head_.bits == 8 ? i : i / 2)]);
      if (!Put(head_.bits == 8 ? byte : Half(byte, i))) return false;
    }
    at_ += padded;
    return true;
  }

  static unsigned Half(unsigned byte, unsigned i) { return i % 2 == 0 ? byte >> 4 : byte & 0xF; }

  bool Put(unsigned pixel) {
    if (x_ >= head_.width || y_ >= head_.height) return false;
    std::uint8_t& byte = rows_[y_ * rowSize_ + (head_.bits == 8 ? x_ : x_ / 2)];
    const bool high = head_.bits == 4 && x_ % 2 == 0;
    const unsigned kept = head_.bits == 8 ? 0 : byte & (high ? 0x0Fu : 0xF0u);
    byte = static_cast<std::uint8_t>(kept | pixel << (high ? 4 : 0));
    ++x_;
    return true;
  }

  std::string_view packed_;
  const BitmapHead& head_;
  std::uint64_t rowSize_;
  std::span<std::uint8_t> rows_;
  std::size_t at_ = 0;
  std::uint64_t x_ = 0;
  std::uint64_t y_ = 0;
  bool ended_ = false;
};

}  // namespace

bool UnpackRuns(std::string_view packed, const BitmapHead& head, std::span<std::uint8_t> rows) {
  return Unpacker(packed, head, rows).Run();
}

}  // namespace zdx::preview
