#include "maker/Photo.h"

#include <png.h>

#include <cmath>
#include <vector>

namespace examples {
namespace {

constexpr int kWidth = 160;
constexpr int kHeight = 96;

struct Colour {
  unsigned char red;
  unsigned char green;
  unsigned char blue;
};

bool IsHouse(int x, int y) { return x >= 50 && x < 100 && y >= 42 && y < 70; }

bool IsRoof(int x, int y) { return y >= 26 && y < 42 && std::abs(x - 75) < (y - 24) * 2; }

bool IsWindow(int x, int y) { return IsHouse(x, y) && x % 14 < 5 && y >= 50 && y < 60; }

// A house with a roof on a hill, below the sky.
Colour ColourAt(int x, int y) {
  if (IsWindow(x, y)) return {240, 230, 150};
  if (IsHouse(x, y)) return {196, 160, 130};
  if (IsRoof(x, y)) return {140, 60, 50};
  if (y > 66 - x / 20) return {static_cast<unsigned char>(60 + y / 3), 130, 70};
  return {static_cast<unsigned char>(150 + y), static_cast<unsigned char>(190 + y / 2), 240};
}

// A chimney beside a hall, its smoke drifting off.
Colour PlantColourAt(int x, int y) {
  if (x >= 40 && x < 50 && y >= 20 && y < 80) return {150, 70, 60};
  if (x >= 60 && x < 140 && y >= 55 && y < 80) return {170, 170, 175};
  if (x >= 45 && y < 20 && y > 4 && y > 18 - (x - 45) / 6) return {210, 210, 210};
  if (y >= 80) return {100, 120, 90};
  return {170, static_cast<unsigned char>(200 + y / 3), 235};
}

bool WritePicture(const std::string& path, Colour colourAt(int x, int y)) {
  std::vector<unsigned char> pixels;
  for (int y = 0; y < kHeight; ++y) {
    for (int x = 0; x < kWidth; ++x) {
      const Colour colour = colourAt(x, y);
      pixels.insert(pixels.end(), {colour.red, colour.green, colour.blue});
    }
  }
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  image.width = kWidth;
  image.height = kHeight;
  image.format = PNG_FORMAT_RGB;
  return png_image_write_to_file(&image, path.c_str(), 0, pixels.data(), 0, nullptr) != 0;
}

}  // namespace

bool WritePhoto(const std::string& path) { return WritePicture(path, ColourAt); }

bool WritePlantPhoto(const std::string& path) { return WritePicture(path, PlantColourAt); }

}  // namespace examples
