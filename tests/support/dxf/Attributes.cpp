#include "support/drawing/MultiLine.h"
#include "support/dxf/Drawing.h"
#include "support/dxf/Tokens.h"

namespace dxf {
namespace {

void PutText(Drawing& drawing, const AttributeSpec& attribute) {
  drawing.out.Put({100, kTextMarker});
  drawing.out.PutPoint(10, attribute.at.x, attribute.at.y);
  drawing.out.Put({{40, attribute.height}, {1, StoredValue(attribute, drawing.version)}});
}

void PutOwn(Drawing& drawing, const AttributeSpec& attribute, AttributeRole role) {
  const bool isDefinition = role == AttributeRole::Definition;
  drawing.out.Put({100, isDefinition ? kAttributeDefinitionMarker : kAttributeMarker});
  if (drawing.version >= Version::AC1024) drawing.out.Put({280, 0});
  if (isDefinition) drawing.out.Put({3, attribute.prompt});
  drawing.out.Put({{2, StoredTag(attribute, role, drawing.version)}, {70, attribute.flags}});
  if (drawing.version >= Version::AC1021) drawing.out.Put({280, 1});
}

void PutEmbedded(Drawing& drawing, const AttributeSpec& attribute, AttributeRole role) {
  drawing.out.Put({{71, MultiLineKind(role)}, {72, 0}});
  drawing.out.PutPoint(11, attribute.at.x, attribute.at.y);
  drawing.out.Put({101, kEmbeddedObject});
  drawing.out.Put(ManyLines(attribute));
}

void Write(Drawing& drawing, const AttributeSpec& attribute, const std::string& owner, bool onPaper,
           AttributeRole role) {
  EntitySpec entity;
  entity.type = role == AttributeRole::Attribute ? kAttribute : kAttributeDefinition;
  entity.layer = attribute.layer;
  entity.handle = attribute.handle;
  entity.extension = LinesRecord(attribute, role, drawing.version);
  BeginEntity(drawing, entity, owner, onPaper);
  PutText(drawing, attribute);
  PutOwn(drawing, attribute, role);
  if (HasEmbeddedLines(attribute, drawing.version)) PutEmbedded(drawing, attribute, role);
}

}  // namespace

void WriteAttributeDefinition(Drawing& drawing, const AttributeSpec& definition,
                              const PlannedBlock& block) {
  Write(drawing, definition, block.recordHandle, block.isPaper, AttributeRole::Definition);
}

void WriteAttribute(Drawing& drawing, const AttributeSpec& attribute, const std::string& insert,
                    bool onPaper) {
  Write(drawing, attribute, insert, onPaper, AttributeRole::Attribute);
}

}  // namespace dxf
