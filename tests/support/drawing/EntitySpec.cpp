#include "support/drawing/EntitySpec.h"

#include "support/drawing/LongText.h"
#include "support/drawing/Tokens.h"

namespace drawing {
namespace {

void AppendPoint(std::vector<Tag>& tags, int code, Point point) {
  tags.insert(tags.end(), {Tag(code, point.x), Tag(code + 10, point.y), Tag(code + 20, 0.0)});
}

EntitySpec Entity(std::string type, std::string layer, const char* marker) {
  EntitySpec entity;
  entity.type = std::move(type);
  entity.layer = std::move(layer);
  entity.body.emplace_back(100, marker);
  return entity;
}

}  // namespace

EntitySpec Line(std::string layer, Point from, Point to) {
  EntitySpec entity = Entity("LINE", std::move(layer), kLineMarker);
  AppendPoint(entity.body, 10, from);
  AppendPoint(entity.body, 11, to);
  return entity;
}

EntitySpec Circle(std::string layer, Point centre, double radius) {
  EntitySpec entity = Entity("CIRCLE", std::move(layer), kCircleMarker);
  AppendPoint(entity.body, 10, centre);
  entity.body.emplace_back(40, radius);
  return entity;
}

EntitySpec Arc(std::string layer, Point centre, double radius, double from, double to) {
  EntitySpec entity = Circle(std::move(layer), centre, radius);
  entity.type = "ARC";
  entity.body.insert(entity.body.end(), {Tag(100, kArcMarker), Tag(50, from), Tag(51, to)});
  return entity;
}

EntitySpec Dot(std::string layer, Point at) {
  EntitySpec entity = Entity("POINT", std::move(layer), kPointMarker);
  AppendPoint(entity.body, 10, at);
  return entity;
}

EntitySpec Text(std::string layer, Point at, double height, std::string text, double angle) {
  EntitySpec entity = Entity("TEXT", std::move(layer), kTextMarker);
  AppendPoint(entity.body, 10, at);
  entity.body.emplace_back(40, height);
  entity.body.emplace_back(1, std::move(text));
  if (angle != 0.0) entity.body.emplace_back(50, angle);
  entity.body.emplace_back(100, kTextMarker);
  return entity;
}

EntitySpec Polyline(std::string layer, std::vector<Point> vertices, bool closed) {
  EntitySpec entity;
  entity.type = kPolyline;
  entity.layer = std::move(layer);
  entity.vertices = std::move(vertices);
  entity.closed = closed;
  return entity;
}

EntitySpec MText(std::string layer, Point at, double height, std::string text) {
  EntitySpec entity = Entity(kMText, std::move(layer), kMTextMarker);
  AppendPoint(entity.body, 10, at);
  entity.body.insert(entity.body.end(), {Tag(40, height), Tag(41, 0.0), Tag(71, 1), Tag(72, 5)});
  AppendLongText(entity.body, text);
  return entity;
}

std::string InsertedBlock(const EntitySpec& insert) {
  for (const Tag& tag : insert.body) {
    if (tag.code == 2) return std::get<std::string>(tag.value);
  }
  return {};
}

EntitySpec Insert(std::string block, std::vector<AttributeSpec> attributes, Placement placement,
                  std::string layer) {
  EntitySpec entity = Entity(kInsert, std::move(layer), kBlockReferenceMarker);
  if (!attributes.empty()) entity.body.emplace_back(66, 1);
  entity.body.emplace_back(2, std::move(block));
  AppendPoint(entity.body, 10, placement.at);
  if (placement.scale != 1.0) {
    for (const int code : {41, 42, 43}) entity.body.emplace_back(code, placement.scale);
  }
  if (placement.angle != 0.0) entity.body.emplace_back(50, placement.angle);
  if (placement.columns != 1 || placement.rows != 1) {
    entity.body.insert(entity.body.end(),
                       {Tag(70, placement.columns), Tag(71, placement.rows),
                        Tag(44, placement.columnSpacing), Tag(45, placement.rowSpacing)});
  }
  entity.attributes = std::move(attributes);
  return entity;
}

}  // namespace drawing
