#pragma once

#include <string>

namespace examples {

inline constexpr const char* kPhotoName = "site-photo.png";

// Writes the picture that the site plan shows, 160 by 96 pixels, to `path`.  Returns whether that
// worked.
bool WritePhoto(const std::string& path);

// The same for the picture in the plant.
bool WritePlantPhoto(const std::string& path);

}  // namespace examples
