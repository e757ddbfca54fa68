#pragma once

#include <string_view>

namespace drawing {

// The versions of the format by their own names, in order of age.
enum class Version { AC1009, AC1012, AC1014, AC1015, AC1018, AC1021, AC1024, AC1027, AC1032 };

// Throws std::invalid_argument for any other name.
Version VersionOf(std::string_view name);

// True for the versions whose texts are UTF-8 whatever the code page says.
inline bool HasUnicodeTexts(Version version) { return version >= Version::AC1021; }

// True for the versions with subclass markers, owners, block records, classes and objects.
inline bool HasObjects(Version version) { return version >= Version::AC1012; }

// True for the versions in which layouts are objects.
inline bool HasLayouts(Version version) { return version >= Version::AC1015; }

// True for the versions that know pictures.
inline bool HasImages(Version version) { return version >= Version::AC1014; }

// True for the versions that know documents shown below the drawing.
inline bool HasUnderlays(Version version) { return version >= Version::AC1015; }

// True for the versions that know links to data and materials with pictures.
inline bool HasMaterials(Version version) { return version >= Version::AC1021; }

// True for the versions that know point clouds.
inline bool HasPointClouds(Version version) { return version >= Version::AC1024; }

// True for the versions whose blocks tell drawings that were put aside.
inline bool HasUnloadedXrefs(Version version) { return version >= Version::AC1015; }

// True for the versions that keep the summary in header variables.
inline bool HasHeaderSummary(Version version) { return version >= Version::AC1018; }

}  // namespace drawing
