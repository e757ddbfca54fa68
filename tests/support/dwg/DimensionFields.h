#pragma once

#include "support/drawing/DrawingSpec.h"
#include "support/dwg/Fields.h"

namespace dwg {

// The variables of dimensioning, which the header and a dimension style hold in the same order
// from AC1015 on, but for the texts and references among them.
void PutDimensionSizes(Fields& fields);
void PutDimensionRest(Fields& fields);
// Those of AC1014 up to the sizes.
void PutOldDimensionModes(Fields& fields);

}  // namespace dwg
