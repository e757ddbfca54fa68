#include "support/dxf/Drawing.h"
#include "support/dxf/Tokens.h"

namespace dxf {
namespace {

constexpr const char* kLightPolyline = "LWPOLYLINE";
constexpr const char* kHeavyMarker = k2dPolylineMarker;

// The parts of a polyline that are entities of their own lie where it lies, and are its own.
struct Part {
  const std::string& layer;
  const std::string& owner;
  bool onPaper;
};

std::string BeginPart(Drawing& drawing, const char* type, const Part& part) {
  EntitySpec entity;
  entity.type = type;
  entity.layer = part.layer;
  return BeginEntity(drawing, entity, part.owner, part.onPaper);
}

void WriteLightPolyline(Drawing& drawing, const EntitySpec& polyline, const PlannedBlock& block) {
  EntitySpec light = polyline;
  light.type = kLightPolyline;
  BeginEntity(drawing, light, block.recordHandle, block.isPaper);
  drawing.out.Put(
      {{100, kPolylineMarker}, {90, polyline.vertices.size()}, {70, polyline.closed}, {43, 0.0}});
  for (const Point& vertex : polyline.vertices) drawing.out.Put({{10, vertex.x}, {20, vertex.y}});
}

void WriteHeavyPolyline(Drawing& drawing, const EntitySpec& polyline, const PlannedBlock& block) {
  const std::string handle = BeginEntity(drawing, polyline, block.recordHandle, block.isPaper);
  drawing.out.Put({{100, kHeavyMarker}, {66, 1}});
  drawing.out.PutPoint(10, 0.0, 0.0);
  drawing.out.Put({70, polyline.closed});
  const Part part{polyline.layer, handle, block.isPaper};
  for (const Point& vertex : polyline.vertices) {
    BeginPart(drawing, "VERTEX", part);
    drawing.out.Put({{100, kVertexMarker}, {100, k2dVertexMarker}});
    drawing.out.PutPoint(10, vertex.x, vertex.y);
  }
  BeginPart(drawing, kSequenceEnd, part);
}

// An insert names its block as the block's record is named.
void PutBody(Drawing& drawing, const EntitySpec& entity) {
  if (entity.type != kInsert) return drawing.out.Put(entity.body);
  const PlannedBlock* const block = drawing.BlockNamed(InsertedBlock(entity));
  const bool isHidden = block != nullptr && block->name.starts_with('*');
  for (const Tag& tag : entity.body) {
    drawing.out.Put(isHidden && tag.code == 2 ? Tag(2, block->name) : tag);
  }
}

}  // namespace

std::string BeginEntity(Drawing& drawing, const EntitySpec& entity, const std::string& owner,
                        bool onPaper) {
  std::string handle = drawing.HandleFor(entity);
  drawing.out.Put({0, entity.type});
  drawing.PutEntityHandle(handle);
  drawing.PutExtension(entity.extension, handle);
  drawing.PutOwner(owner);
  drawing.out.Put({100, kEntityMarker});
  if (onPaper) drawing.out.Put({67, 1});
  drawing.out.Put({8, entity.layer});
  drawing.out.Put(entity.common);
  return handle;
}

void WriteEntity(Drawing& drawing, const EntitySpec& entity, const PlannedBlock& block) {
  if (entity.type == kPolyline && !entity.vertices.empty()) {
    const bool isLight = drawing.version >= Version::AC1014;
    (isLight ? WriteLightPolyline : WriteHeavyPolyline)(drawing, entity, block);
    return;
  }
  if (entity.type == kMText && !HasObjects(drawing.version)) return;
  const std::string handle = BeginEntity(drawing, entity, block.recordHandle, block.isPaper);
  PutBody(drawing, entity);
  drawing.out.Put(entity.extendedData);
  for (const AttributeSpec& attribute : entity.attributes) {
    WriteAttribute(drawing, attribute, handle, block.isPaper);
  }
  if (!entity.attributes.empty()) {
    BeginPart(drawing, kSequenceEnd, {entity.layer, handle, block.isPaper});
  }
}

}  // namespace dxf
