// The blocks.
#include "backends/database/dxf/DxfDrawing.h"

namespace zdx::dxf {

bool DxfDrawing::IsLayoutBlock(model::ObjectKey /*block*/) { return false; }
std::vector<model::ObjectKey> DxfDrawing::BlockEntities(model::ObjectKey /*block*/) { return {}; }
std::vector<model::ObjectKey> DxfDrawing::BlockReferences(model::ObjectKey /*block*/) { return {}; }
bool DxfDrawing::IsDynamicBlock(model::ObjectKey /*block*/) { return false; }
std::vector<model::ObjectKey> DxfDrawing::AnonymousCopies(model::ObjectKey /*block*/) { return {}; }
std::optional<model::ObjectKey> DxfDrawing::OwnerBlock(model::ObjectKey /*entity*/) {
  return std::nullopt;
}
std::optional<std::wstring> DxfDrawing::EntityText(model::ObjectKey /*entity*/) {
  return std::nullopt;
}
model::Attribute DxfDrawing::ReadAttribute(model::ObjectKey /*entity*/) { return {}; }
model::BlockReference DxfDrawing::ReadBlockReference(model::ObjectKey /*entity*/) { return {}; }
std::optional<model::ObjectKey> DxfDrawing::GeoDataObject() { return std::nullopt; }
std::optional<model::GeoData> DxfDrawing::ReadGeoData(model::ObjectKey /*object*/) {
  return std::nullopt;
}

}  // namespace zdx::dxf
