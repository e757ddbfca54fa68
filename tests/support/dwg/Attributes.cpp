#include "support/drawing/MultiLine.h"
#include "support/dwg/Drawing.h"

namespace dwg {
namespace {

using drawing::AttributeRole;

constexpr unsigned kSingleLine = 1;

void Write(Drawing& drawing, Handle handle, const AttributeSpec& attribute,
           const EntityPlace& place, AttributeRole role) {
  const Version version = drawing.version;
  const bool isEmbedded = HasEmbeddedLines(attribute, version);
  const bool isDefinition = role == AttributeRole::Definition;
  const Handle style = drawing.styles.empty() ? 0 : drawing.styles.front().handle;
  EntitySpec entity;
  entity.layer = attribute.layer;
  Fields fields = drawing.NewFields(handle);
  BeginEntity(drawing, fields, entity, place, LinesRecord(attribute, role, version));
  fields.H(Link::HardPointer, style);
  PutText(fields, {StoredValue(attribute, version), attribute.at, attribute.height});
  if (fields.IsSince(Version::AC1024)) fields.RC(0);
  if (fields.IsSince(Version::AC1032)) {
    fields.RC(isEmbedded ? static_cast<unsigned>(MultiLineKind(role)) : kSingleLine);
  }
  if (isEmbedded) {
    EntityPlace within;
    within.isPart = true;
    BeginEntity(drawing, fields, entity, within, {});
    PutManyLines(fields, {attribute.value, attribute.at, attribute.height});
    fields.BS(0);
    fields.H(Link::HardPointer, style);
    fields.H(Link::HardPointer, drawing.ApplicationHandle(drawing::kApplication));
  }
  fields.T(StoredTag(attribute, role, version));
  fields.BS(0);
  fields.RC(static_cast<unsigned>(attribute.flags));
  if (fields.IsSince(Version::AC1021)) fields.B(true);
  if (isDefinition) {
    if (fields.IsSince(Version::AC1024)) fields.RC(0);
    fields.T(attribute.prompt);
  }
  drawing.AddEntity(isDefinition ? Type::AttributeDefinition : Type::Attribute, fields);
}

}  // namespace

void WriteAttributeDefinition(Drawing& drawing, Handle handle, const AttributeSpec& definition,
                              const EntityPlace& place) {
  Write(drawing, handle, definition, place, AttributeRole::Definition);
}

void WriteAttribute(Drawing& drawing, Handle handle, const AttributeSpec& attribute,
                    const EntityPlace& place) {
  Write(drawing, handle, attribute, place, AttributeRole::Attribute);
}

}  // namespace dwg
