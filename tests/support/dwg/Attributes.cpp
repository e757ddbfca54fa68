#include "support/dwg/Drawing.h"
#include "support/dwg/Tokens.h"

namespace dwg {
namespace {

constexpr unsigned kSingleLine = 1;
constexpr int kMultiLineAttribute = 2;
constexpr int kMultiLineDefinition = 4;
constexpr const char* kPlainTagSuffix = "_001";
constexpr int kTextVersion = 4;

enum class Role { Attribute, Definition };

int MultiLineKind(Role role) {
  return role == Role::Attribute ? kMultiLineAttribute : kMultiLineDefinition;
}

// Below AC1032 the many lines stand in a record beside a plain attribute.
std::vector<NamedObject> MultiLineRecord(const AttributeSpec& attribute, Role role) {
  return {{drawing::kMultiLineKey, drawing::Xrecord({{70, MultiLineKind(role)},
                                                     {70, 0},
                                                     {70, 0},
                                                     {40, 1.0},
                                                     {2, attribute.tag},
                                                     {1, drawing::kEmbeddedObject},
                                                     {10, attribute.at.x},
                                                     {20, attribute.at.y},
                                                     {30, 0.0},
                                                     {40, attribute.height},
                                                     {41, 0.0},
                                                     {46, 0.0},
                                                     {71, 1},
                                                     {72, 5},
                                                     {1, attribute.value},
                                                     {73, 1},
                                                     {44, 1.0}})}};
}

void PutColumns(Fields& fields, const AttributeSpec& attribute) {
  fields.B(true);
  fields.BS(kTextVersion);
  fields.B(true);
  fields.BL(1);
  fields.Point3(1.0, 0.0);
  fields.Point3(attribute.at.x, attribute.at.y);
  for (int i = 0; i < 4; ++i) fields.BD(0.0);
  fields.BS(0);
}

// The text of many lines that an attribute of AC1032 holds within it.
void PutEmbeddedText(Fields& fields, const AttributeSpec& attribute) {
  fields.Point3(attribute.at.x, attribute.at.y);
  fields.Point3(0.0, 0.0, 1.0);
  fields.Point3(1.0, 0.0);
  fields.BD(0.0);
  fields.BD(0.0);
  fields.BD(attribute.height);
  fields.BS(1);
  fields.BS(5);
  fields.BD(0.0);
  fields.BD(0.0);
  fields.T(attribute.value);
  fields.BS(1);
  fields.BD(1.0);
  fields.B(false);
  fields.BL(0);
  PutColumns(fields, attribute);
  fields.BS(0);
}

void Write(Drawing& drawing, Handle handle, const AttributeSpec& attribute,
           const EntityPlace& place, Role role) {
  const bool isEmbedded = attribute.multiLine && drawing.IsSince(Version::AC1032);
  const bool hasRecord = attribute.multiLine && !isEmbedded;
  const bool isDefinition = role == Role::Definition;
  const Handle style = drawing.styles.empty() ? 0 : drawing.styles.front().handle;
  EntitySpec entity;
  entity.layer = attribute.layer;
  Fields fields = drawing.NewFields(handle);
  BeginEntity(drawing, fields, entity, place,
              hasRecord ? MultiLineRecord(attribute, role) : std::vector<NamedObject>());
  fields.H(Link::HardPointer, style);
  PutText(fields, {isEmbedded ? std::string() : attribute.value, attribute.at, attribute.height});
  if (fields.IsSince(Version::AC1024)) fields.RC(0);
  if (fields.IsSince(Version::AC1032)) {
    fields.RC(isEmbedded ? static_cast<unsigned>(MultiLineKind(role)) : kSingleLine);
  }
  if (isEmbedded) {
    EntityPlace within;
    within.isPart = true;
    BeginEntity(drawing, fields, entity, within, {});
    PutEmbeddedText(fields, attribute);
    fields.H(Link::HardPointer, style);
    fields.H(Link::HardPointer, drawing.ApplicationHandle(drawing::kApplication));
  }
  // The suffix marks an attribute whose real tag stands in the record.
  fields.T(hasRecord && !isDefinition ? attribute.tag + kPlainTagSuffix : attribute.tag);
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
  Write(drawing, handle, definition, place, Role::Definition);
}

void WriteAttribute(Drawing& drawing, Handle handle, const AttributeSpec& attribute,
                    const EntityPlace& place) {
  Write(drawing, handle, attribute, place, Role::Attribute);
}

}  // namespace dwg
