// The words for the numbers of a geographic location.
//
// They come from the engine's texts at the first use and are kept as long as the process.  A number
// that has no word gives an empty text.
#pragma once

#include <cstdint>
#include <string>

namespace ZDXEngine {

// The word for a type of coordinates: "Grid".
std::wstring GetCoordinateTypeName(std::int32_t type);
// The word for a unit of length: "Meters".
std::wstring GetUnitName(std::int32_t unit);

}  // namespace ZDXEngine
