#include <map>
#include <numbers>
#include <stdexcept>

#include "support/dwg/Drawing.h"
#include "support/dwg/TagValues.h"
#include "support/dwg/Tokens.h"

namespace dwg {
namespace {

constexpr unsigned kLineWeightByLayer = 29;
constexpr unsigned kClosed = 512;
// Bits of a text whose values are the usual ones.
constexpr unsigned kNoRotation = 8;
constexpr unsigned kAllUsual = 255;

double Radians(double degrees) { return degrees * std::numbers::pi / 180.0; }

void PutLine(Fields& fields, const TagValues& values) {
  const double xs[] = {values.Real(10), values.Real(11)};
  const double ys[] = {values.Real(20), values.Real(21)};
  const double zs[] = {values.Real(30), values.Real(31)};
  if (!fields.IsSince(Version::AC1015)) {
    for (const int end : {0, 1}) fields.Point3(xs[end], ys[end], zs[end]);
  } else {
    const bool isFlat = zs[0] == 0.0 && zs[1] == 0.0;
    fields.B(isFlat);
    for (const double* pair : {xs, ys, zs}) {
      if (pair == zs && isFlat) continue;
      fields.RD(pair[0]);
      fields.DD(pair[1], pair[0]);
    }
  }
  fields.BT();
  fields.BE();
}

void PutCentre(Fields& fields, const TagValues& values) {
  fields.Point3(values.Real(10), values.Real(20), values.Real(30));
}

void PutCircle(Fields& fields, const TagValues& values) {
  PutCentre(fields, values);
  fields.BD(values.Real(40));
  fields.BT();
  fields.BE();
}

void PutArc(Fields& fields, const TagValues& values) {
  PutCircle(fields, values);
  fields.BD(Radians(values.Real(50)));
  fields.BD(Radians(values.Real(51)));
}

void PutPoint(Fields& fields, const TagValues& values) {
  PutCentre(fields, values);
  fields.BT();
  fields.BE();
  fields.BD(0.0);
}

void PutLightPolyline(Fields& fields, const EntitySpec& polyline) {
  fields.BS(polyline.closed ? kClosed : 0);
  fields.BL(static_cast<std::int64_t>(polyline.vertices.size()));
  drawing::Point before;
  bool isFirst = true;
  for (const drawing::Point& vertex : polyline.vertices) {
    if (isFirst || !fields.IsSince(Version::AC1015)) {
      fields.Point2(vertex.x, vertex.y);
    } else {
      fields.DD(vertex.x, before.x);
      fields.DD(vertex.y, before.y);
    }
    before = vertex;
    isFirst = false;
  }
}

void PutScale(Fields& fields, const TagValues& values) {
  const double x = values.Real(41, 1.0);
  const double y = values.Real(42, 1.0);
  const double z = values.Real(43, 1.0);
  if (!fields.IsSince(Version::AC1015)) return fields.Point3(x, y, z);
  if (x == 1.0 && y == 1.0 && z == 1.0) return fields.BB(3);
  if (x == y && x == z) {
    fields.BB(2);
    fields.RD(x);
    return;
  }
  fields.BB(x == 1.0 ? 1 : 0);
  if (x != 1.0) fields.RD(x);
  fields.DD(y, x);
  fields.DD(z, x);
}

// Writes the attributes and what ends them, and returns their handles, that end's last.
std::vector<Handle> WriteAttributes(Drawing& drawing, const EntitySpec& insert, Handle owner,
                                    Space space) {
  std::vector<Handle> handles;
  if (insert.attributes.empty()) return handles;
  for (const AttributeSpec& attribute : insert.attributes) {
    handles.push_back(drawing.NextHandle(attribute.handle));
  }
  for (std::size_t i = 0; i < insert.attributes.size(); ++i) {
    const Neighbours neighbours{i == 0 ? 0 : handles[i - 1],
                                i + 1 == handles.size() ? 0 : handles[i + 1]};
    WriteAttribute(drawing, handles[i], insert.attributes[i], {owner, space, neighbours, true});
  }
  handles.push_back(drawing.NextHandle());
  Fields end = drawing.NewFields(handles.back());
  EntitySpec plain;
  plain.layer = insert.layer;
  BeginEntity(drawing, end, plain, {owner, space, {}, true}, {});
  drawing.AddEntity(Type::SequenceEnd, end);
  return handles;
}

bool IsArray(const TagValues& values) { return values.Has(70) || values.Has(71); }

void PutArray(Fields& fields, const TagValues& values) {
  fields.BS(values.Integer(70, 1));
  fields.BS(values.Integer(71, 1));
  fields.BD(values.Real(44));
  fields.BD(values.Real(45));
}

void PutInsert(Drawing& drawing, Fields& fields, const EntitySpec& insert, Space space) {
  const TagValues values(insert.body);
  PutCentre(fields, values);
  PutScale(fields, values);
  fields.BD(Radians(values.Real(50)));
  fields.Point3(0.0, 0.0, 1.0);
  const std::vector<Handle> attributes = WriteAttributes(drawing, insert, fields.Own(), space);
  const std::size_t count = insert.attributes.size();
  fields.B(count != 0);
  const bool hasList = fields.IsSince(Version::AC1018);
  if (hasList && count != 0) fields.BL(static_cast<std::int64_t>(count));
  if (IsArray(values)) PutArray(fields, values);
  PlannedBlock* block = drawing.BlockNamed(drawing::InsertedBlock(insert));
  fields.H(Link::HardPointer, block == nullptr ? 0 : block->record);
  if (block != nullptr && ListsOf(drawing.spec) != drawing::ReferenceLists::None) {
    block->inserts.push_back(fields.Own());
  }
  if (count == 0) return;
  if (hasList) {
    for (std::size_t i = 0; i < count; ++i) fields.H(Link::HardOwner, attributes[i]);
  } else {
    fields.Near(Link::SoftPointer, attributes.front());
    fields.Near(Link::SoftPointer, attributes[count - 1]);
  }
  fields.H(Link::HardOwner, attributes.back());
}

void PutMText(const Drawing& drawing, Fields& fields, const TagValues& values) {
  PutManyLines(fields, {values.Text(3, 1), {values.Real(10), values.Real(20)}, values.Real(40)});
  fields.H(Link::HardPointer, drawing.styles.empty() ? 0 : drawing.styles.front().handle);
  if (!fields.IsSince(Version::AC1032)) return;
  fields.H(Link::HardPointer, drawing.ApplicationHandle(drawing::kApplication));
}

using PutFunction = void (*)(Fields&, const TagValues&);

struct PlainKind {
  Type type;
  PutFunction put;
};

const std::map<std::string, PlainKind>& PlainKinds() {
  static const std::map<std::string, PlainKind> kKinds = {{kLine, {Type::Line, PutLine}},
                                                          {kCircle, {Type::Circle, PutCircle}},
                                                          {kArc, {Type::Arc, PutArc}},
                                                          {kPoint, {Type::Point, PutPoint}}};
  return kKinds;
}

// Returns the type, 0 for an entity that the maker can't write.
unsigned PutEntity(Drawing& drawing, Fields& fields, const EntitySpec& entity, Space space) {
  const TagValues values(entity.body);
  const auto plain = PlainKinds().find(entity.type);
  if (plain != PlainKinds().end()) {
    plain->second.put(fields, values);
    return static_cast<unsigned>(plain->second.type);
  }
  if (entity.type == kText) {
    PutText(fields, {values.Text(1),
                     {values.Real(10), values.Real(20)},
                     values.Real(40),
                     Radians(values.Real(50))});
    fields.H(Link::HardPointer, drawing.styles.empty() ? 0 : drawing.styles.front().handle);
    return static_cast<unsigned>(Type::Text);
  }
  if (entity.type == drawing::kMText) {
    PutMText(drawing, fields, values);
    return static_cast<unsigned>(Type::MText);
  }
  if (entity.type == drawing::kPolyline) {
    PutLightPolyline(fields, entity);
    return fields.IsSince(Version::AC1015) ? static_cast<unsigned>(Type::LightPolyline)
                                           : drawing.ClassNumber(kLightPolyline);
  }
  if (entity.type == drawing::kInsert) {
    PutInsert(drawing, fields, entity, space);
    return static_cast<unsigned>(IsArray(values) ? Type::ArrayInsert : Type::Insert);
  }
  throw std::invalid_argument("the maker doesn't write entities of type " + entity.type);
}

void WriteEntity(Drawing& drawing, const PlannedEntity& planned, const EntityPlace& place) {
  const EntitySpec& entity = *planned.entity;
  Fields fields = drawing.NewFields(planned.handle);
  BeginEntity(drawing, fields, entity, place, entity.extension);
  RecordHead head;
  head.isEntity = true;
  head.type = PutEntity(drawing, fields, entity, place.space);
  head.data = DataOf(drawing, entity.extendedData);
  drawing.Add(head, fields);
}

unsigned ModeOf(const EntityPlace& place) {
  return place.space == Space::Model ? 2 : place.space == Space::Paper ? 1 : 0;
}

void PutLook(Fields& fields, int colour, bool hasLinetype) {
  fields.BS(colour);
  fields.BD(1.0);
  if (fields.IsSince(Version::AC1015)) {
    fields.BB(hasLinetype ? 3 : 0);
    fields.BB(0);
  }
  if (fields.IsSince(Version::AC1021)) {
    fields.BB(0);
    fields.RC(0);
  }
  if (fields.IsSince(Version::AC1024)) fields.Bits(0, 3);
  fields.BS(0);
  if (fields.IsSince(Version::AC1015)) fields.RC(kLineWeightByLayer);
}

}  // namespace

void PutText(Fields& fields, const TextLine& text) {
  if (!fields.IsSince(Version::AC1015)) {
    fields.BD(0.0);
    fields.Point2(text.at.x, text.at.y);
    fields.Point2(0.0, 0.0);
    fields.BE();
    fields.BT();
    for (const double value : {0.0, text.angle, text.height, 1.0}) fields.BD(value);
    fields.T(text.text);
    for (int i = 0; i < 3; ++i) fields.BS(0);
    return;
  }
  fields.RC(text.angle == 0.0 ? kAllUsual : kAllUsual & ~kNoRotation);
  fields.Point2(text.at.x, text.at.y);
  fields.BE();
  fields.BT();
  if (text.angle != 0.0) fields.RD(text.angle);
  fields.RD(text.height);
  fields.T(text.text);
}

void BeginEntity(Drawing& drawing, Fields& fields, const EntitySpec& entity,
                 const EntityPlace& place, const std::vector<NamedObject>& extension) {
  const Version version = drawing.version;
  const TagValues common(entity.common);
  const bool hasLinetype = common.Has(6);
  const Handle dictionary = WriteExtension(drawing, extension, fields.Own());
  const Neighbours& neighbours = place.neighbours;
  const bool isBetween =
      neighbours.previous == fields.Own() - 1 && neighbours.next == fields.Own() + 1;
  const unsigned mode = place.isPart ? 0 : ModeOf(place);
  fields.BB(mode);
  fields.BL(0);
  if (version < Version::AC1015) fields.B(!hasLinetype);
  fields.B(version >= Version::AC1018 ? dictionary == 0 : isBetween);
  if (version >= Version::AC1027) fields.B(false);
  PutLook(fields, common.Integer(62, kByLayer), hasLinetype);

  if (mode == 0) fields.Near(Link::SoftPointer, place.owner);
  if (dictionary != 0 || version < Version::AC1018) fields.H(Link::HardOwner, dictionary);
  const Handle layer = drawing.LayerHandle(entity.layer);
  const Handle linetype = hasLinetype ? drawing.LinetypeHandle(common.Text(6)) : 0;
  if (version < Version::AC1015) {
    fields.H(Link::HardPointer, layer);
    if (hasLinetype) fields.H(Link::HardPointer, linetype);
  }
  if (version < Version::AC1018 && !isBetween) {
    fields.Near(Link::SoftPointer, neighbours.previous);
    fields.Near(Link::SoftPointer, neighbours.next);
  }
  if (version >= Version::AC1015) {
    fields.H(Link::HardPointer, layer);
    if (hasLinetype) fields.H(Link::HardPointer, linetype);
  }
}

void WriteEntities(Drawing& drawing, const PlannedBlock& block) {
  const std::vector<PlannedEntity>& entities = block.entities;
  for (std::size_t i = 0; i < entities.size(); ++i) {
    const PlannedEntity& planned = entities[i];
    const Neighbours neighbours{i == 0 ? 0 : entities[i - 1].handle,
                                i + 1 == entities.size() ? 0 : entities[i + 1].handle};
    const EntityPlace place{block.record, block.PlaceOfEntities(), neighbours};
    if (planned.entity != nullptr) {
      WriteEntity(drawing, planned, place);
    } else if (planned.definition != nullptr) {
      WriteAttributeDefinition(drawing, planned.handle, *planned.definition, place);
    } else {
      WriteImage(drawing, planned, place);
    }
  }
}

}  // namespace dwg
