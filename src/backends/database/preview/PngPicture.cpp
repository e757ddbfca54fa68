#include "backends/database/preview/PngPicture.h"

#include <png.h>

#include <array>
#include <cstring>
#include <string>
#include <vector>

namespace zdx::preview {
namespace {

constexpr const wchar_t* kDamagedPng = L"The PNG picture is damaged.";

// In the first chunk, behind the signature of 8 bytes, length, name, width and height.
constexpr std::size_t kDepthAt = 8 + 4 + 4 + 4 + 4;
constexpr std::size_t kColourTypeAt = kDepthAt + 1;

// Whether every pixel is one of at most 256 colours, which the file tells.
bool HasTable(std::string_view bytes) {
  const int type = bytes[kColourTypeAt];
  return type == PNG_COLOR_TYPE_PALETTE || (type == PNG_COLOR_TYPE_GRAY && bytes[kDepthAt] <= 8);
}

// `part` of a colour, as it looks on white.
std::uint8_t OnWhite(unsigned part, unsigned opacity) {
  return static_cast<std::uint8_t>((part * opacity + 255 * (255 - opacity) + 127) / 255);
}

class Image {
 public:
  explicit Image(std::string_view bytes) : bytes_(bytes) { image_.version = PNG_IMAGE_VERSION; }
  ~Image() { png_image_free(&image_); }
  Image(const Image&) = delete;
  Image& operator=(const Image&) = delete;

  Showing Show() {
    if (!png_image_begin_read_from_memory(&image_, bytes_.data(), bytes_.size()))
      return kDamagedPng;
    // 16 bits mean the same scale of colours as 8 do.
    image_.flags |= PNG_IMAGE_FLAG_16BIT_sRGB;
    const std::uint64_t rowSize = std::uint64_t{image_.width} * 4;
    if (rowSize > kMostUnpackedBytes / image_.height) return kTooLarge;
    if (HasTable(bytes_)) return ShowWithTable();
    return (image_.format & PNG_FORMAT_FLAG_ALPHA) != 0 ? ShowOnWhite() : ShowOpaque();
  }

 private:
  os::BITMAPINFOHEADER Head(std::uint16_t bits, std::uint32_t colours) const {
    os::BITMAPINFOHEADER head{};
    head.biSize = sizeof head;
    head.biWidth = static_cast<std::int32_t>(image_.width);
    head.biHeight = static_cast<std::int32_t>(image_.height);
    head.biPlanes = 1;
    head.biBitCount = bits;
    head.biClrUsed = colours;
    return head;
  }

  std::ptrdiff_t RowSizeOf(unsigned bits) const {
    return static_cast<std::ptrdiff_t>(RowSize(image_.width, bits));
  }

  // A stride below zero asks for rows from the bottom up.
  bool Read(void* rows, std::ptrdiff_t stride, void* table) {
    return png_image_finish_read(&image_, nullptr, rows, static_cast<png_int_32>(stride), table) !=
           0;
  }

  Showing ShowWithTable() {
    image_.format = PNG_FORMAT_BGRA_COLORMAP;
    std::array<std::uint8_t, std::size_t{256}* 4> table = {};
    Dib pixels(Head(8, 0), {});
    if (!Read(pixels.rows().data(), -RowSizeOf(8), table.data())) return kDamagedPng;
    std::string colours;
    for (std::size_t i = 0; i < table.size(); i += 4) {
      const unsigned opacity = i / 4 < image_.colormap_entries ? table[i + 3] : 255;
      for (std::size_t part = 0; part < 3; ++part) {
        colours += static_cast<char>(OnWhite(table[i + part], opacity));
      }
      colours += '\0';
    }
    Dib dib(Head(8, 256), colours);
    std::memcpy(dib.rows().data(), pixels.rows().data(), dib.rows().size());
    return dib;
  }

  Showing ShowOpaque() {
    image_.format = PNG_FORMAT_BGR;
    Dib dib(Head(24, 0), {});
    if (!Read(dib.rows().data(), -RowSizeOf(24), nullptr)) return kDamagedPng;
    return dib;
  }

  Showing ShowOnWhite() {
    image_.format = PNG_FORMAT_BGRA;
    std::vector<std::uint8_t> pixels(PNG_IMAGE_SIZE(image_));
    if (!Read(pixels.data(), -RowSizeOf(32), nullptr)) return kDamagedPng;
    Dib dib(Head(24, 0), {});
    for (std::size_t y = 0; y < image_.height; ++y) {
      const std::uint8_t* from = pixels.data() + y * image_.width * 4;
      std::uint8_t* to = dib.rows().data() + y * RowSize(image_.width, 24);
      for (std::size_t x = 0; x < image_.width; ++x, from += 4, to += 3) {
        for (std::size_t part = 0; part < 3; ++part) to[part] = OnWhite(from[part], from[3]);
      }
    }
    return dib;
  }

  std::string_view bytes_;
  png_image image_{};
};

}  // namespace

Showing ShowPng(std::string_view bytes) { return Image(bytes).Show(); }

}  // namespace zdx::preview
