// The objects by which a drawing names files.
#pragma once

#include <vector>

#include "support/drawing/DrawingSpec.h"
#include "support/drawing/Version.h"

namespace drawing {

// The entries of the root dictionary that hold underlays, point clouds, links to data and
// materials, as far as the version knows them; none that would be empty.
std::vector<NamedObject> ReferenceDictionaries(const DrawingSpec& spec, Version version);

// The classes of those objects.
std::vector<ClassSpec> ReferenceClasses(const DrawingSpec& spec, Version version);

// Whether `type` is one of those that name a page of a document, or a point cloud.
bool IsUnderlayDefinition(const std::string& type);
bool IsPointCloudDefinition(const std::string& type);

// A map of a material: the codes under which its tags stand.
struct MaterialMap {
  int blend;
  int source;
  int file;
};
inline constexpr MaterialMap kDiffuseMap = {42, 72, 3};
inline constexpr MaterialMap kSpecularMap = {46, 77, 4};
inline constexpr MaterialMap kReflectionMap = {48, 171, 6};
inline constexpr MaterialMap kOpacityMap = {141, 175, 7};
inline constexpr MaterialMap kBumpMap = {143, 179, 8};
inline constexpr MaterialMap kRefractionMap = {146, 273, 9};

}  // namespace drawing
