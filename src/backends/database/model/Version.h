// The versions of drawings.
#pragma once

#include <optional>
#include <string_view>

namespace zdx::model {

// A version by its number in the drawing-database library; greater is later.
using Version = int;

inline constexpr Version kVersion1009 = 16;
inline constexpr Version kVersion1012 = 19;
inline constexpr Version kVersion1014 = 21;
inline constexpr Version kVersion1015 = 23;
inline constexpr Version kVersion1018 = 25;
inline constexpr Version kVersion1021 = 27;
inline constexpr Version kVersion1024 = 29;
inline constexpr Version kVersion1027 = 31;
inline constexpr Version kVersion1032 = 33;
// Later than all that are known.
inline constexpr Version kVersionUnknownNewer = 34;

// The version that a file means by `magic`, such as "AC1015".  Magics between two known ones count
// as the earlier; nullopt for a text that isn't a magic.
std::optional<Version> VersionByMagic(std::string_view magic);

}  // namespace zdx::model
