// The blocks.
#include "backends/database/dwg/DwgDrawing.h"

namespace zdx::dwg {

bool DwgDrawing::IsLayoutBlock(model::ObjectKey /*block*/) { return false; }
std::vector<model::ObjectKey> DwgDrawing::BlockEntities(model::ObjectKey /*block*/) { return {}; }
std::vector<model::ObjectKey> DwgDrawing::BlockReferences(model::ObjectKey /*block*/) { return {}; }
bool DwgDrawing::IsDynamicBlock(model::ObjectKey /*block*/) { return false; }
std::vector<model::ObjectKey> DwgDrawing::AnonymousCopies(model::ObjectKey /*block*/) { return {}; }
std::optional<model::ObjectKey> DwgDrawing::OwnerBlock(model::ObjectKey /*entity*/) {
  return std::nullopt;
}
std::optional<std::wstring> DwgDrawing::EntityText(model::ObjectKey /*entity*/) {
  return std::nullopt;
}
model::Attribute DwgDrawing::ReadAttribute(model::ObjectKey /*entity*/) { return {}; }
model::BlockReference DwgDrawing::ReadBlockReference(model::ObjectKey /*entity*/) { return {}; }
std::optional<model::ObjectKey> DwgDrawing::GeoDataObject() { return std::nullopt; }
std::optional<model::GeoData> DwgDrawing::ReadGeoData(model::ObjectKey /*object*/) {
  return std::nullopt;
}

}  // namespace zdx::dwg
