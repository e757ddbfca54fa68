// One drawing that names files in every way.
#pragma once

#include "support/drawing/DrawingSpec.h"

namespace zdx_test {

// Records that may choose a handle have one.
drawing::DrawingSpec SpecWithFiles();

}  // namespace zdx_test
