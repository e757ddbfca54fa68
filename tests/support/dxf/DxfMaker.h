#pragma once

#include <string>

#include "support/dxf/DrawingSpec.h"

namespace dxf {

// The bytes of a DXF file that holds what `spec` tells, always the same for the same spec.
// Throws std::invalid_argument if the spec can't be written.
//
//   dxf::DrawingSpec spec;
//   spec.version = "AC1015";
//   spec.layers = {"0", "Walls"};
//   const std::string bytes = dxf::Make(spec);
std::string Make(const DrawingSpec& spec);

}  // namespace dxf
