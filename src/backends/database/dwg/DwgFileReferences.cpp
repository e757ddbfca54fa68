// The files that the drawing names.
#include "backends/database/dwg/DwgDrawing.h"

namespace zdx::dwg {

model::Handle DwgDrawing::HandleOf(model::ObjectKey /*object*/) { return 0; }

std::vector<model::FreeValue> DwgDrawing::FreeValues(model::ObjectKey /*record*/) { return {}; }

std::vector<model::FileReference> DwgDrawing::FileReferences() { return {}; }

bool DwgDrawing::IsOverlayBlock(model::ObjectKey /*block*/) { return false; }

}  // namespace zdx::dwg
