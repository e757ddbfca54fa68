// The files that the drawing names.
#include "backends/database/dxf/DxfDrawing.h"

namespace zdx::dxf {

model::Handle DxfDrawing::HandleOf(model::ObjectKey /*object*/) { return 0; }

std::vector<model::FreeValue> DxfDrawing::FreeValues(model::ObjectKey /*record*/) { return {}; }

std::vector<model::FileReference> DxfDrawing::FileReferences() { return {}; }

bool DxfDrawing::IsOverlayBlock(model::ObjectKey /*block*/) { return false; }

}  // namespace zdx::dxf
