// What a drawing holds in its blocks, and where it lies on the earth.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace zdx::model {

enum class ObjectKey : std::uint64_t;

// An attribute definition of a block, or an attribute of a reference.  A text that can't be read is
// nullopt.
struct Attribute {
  // Of a multi-line attribute below AC1032 the true tag: the stored one has a suffix.
  std::optional<std::wstring> tag;
  // Of a definition.
  std::optional<std::wstring> prompt;
  // The value, of a definition the one that it gives to new references; of a multi-line attribute
  // with its codes of format.
  std::optional<std::wstring> text;
  bool isConstant = false;
  bool isMultiLine = false;
};

// A place where a block is shown.
struct BlockReference {
  // The block's record; nullopt if the drawing has none of that name or handle.
  std::optional<ObjectKey> block;
  // In stored order, those that the drawing has.
  std::vector<ObjectKey> attributes;
};

// A location object of whatever version: what a version doesn't have is nullopt, or the default.
struct GeoData {
  int coordinateType = 0;
  std::array<double, 3> designPoint = {};
  std::array<double, 3> referencePoint = {};
  std::array<double, 2> northVector = {0, 1};
  // From the y axis to the north, against the clock, in radians.
  double northAngle = 0;
  std::array<double, 3> upDirection = {0, 0, 1};
  double horizontalUnitScale = 1;
  int horizontalUnits = 0;
  double verticalUnitScale = 1;
  int verticalUnits = 0;
  double scaleFactor = 1;
  bool correctsSeaLevel = false;
  double seaLevelElevation = 0;
  double projectionRadius = 0;
  std::optional<std::wstring> coordinateSystem;
  std::optional<std::wstring> geoRssTag;
  std::optional<std::wstring> observationFrom;
  std::optional<std::wstring> observationTo;
  std::optional<std::wstring> observationCoverage;

  // Of the two forms of the north each version stores one; these set both.  An angle that is
  // nothing but the rounding of a stored vector is 0.
  void SetNorth(std::array<double, 2> vector);
  void SetNorth(double angle);
};

}  // namespace zdx::model
