#pragma once

#include <string>

#include "support/drawing/DrawingSpec.h"
#include "support/dwg/Writing.h"

namespace dwg {

// The bytes of a DWG file of AC1014 or later that holds what `spec` tells, always the same for the
// same spec.  Throws std::invalid_argument if the spec can't be written.
//
//   drawing::DrawingSpec spec;
//   spec.version = "AC1015";
//   spec.layers = {"0", "Walls"};
//   const std::string bytes = dwg::Make(spec);
//
// Layers and blocks that the spec doesn't list can't be named by a DWG file: entities of such a
// layer lie on the first one, inserts of such a block insert none.  The spec's own header
// variables are left out, for their order is fixed here.
std::string Make(const drawing::DrawingSpec& spec, const Writing& writing = {});

}  // namespace dwg
