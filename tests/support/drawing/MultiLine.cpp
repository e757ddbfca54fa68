#include "support/drawing/MultiLine.h"

#include "support/drawing/LongText.h"
#include "support/drawing/Tokens.h"

namespace drawing {
namespace {

constexpr const char* kPlainTagSuffix = "_001";

}  // namespace

int MultiLineKind(AttributeRole role) { return role == AttributeRole::Attribute ? 2 : 4; }

bool HasEmbeddedLines(const AttributeSpec& attribute, Version version) {
  return attribute.multiLine && version >= Version::AC1032;
}

bool HasLinesInRecord(const AttributeSpec& attribute, Version version) {
  return attribute.multiLine && HasObjects(version) && version < Version::AC1032;
}

std::vector<Tag> ManyLines(const AttributeSpec& attribute) {
  std::vector<Tag> tags = {{10, attribute.at.x},
                           {20, attribute.at.y},
                           {30, 0.0},
                           {40, attribute.height},
                           {41, 0.0},
                           {46, 0.0},
                           {71, 1},
                           {72, 5}};
  AppendLongText(tags, attribute.value);
  tags.insert(tags.end(), {Tag(73, 1), Tag(44, 1.0)});
  return tags;
}

std::vector<NamedObject> LinesRecord(const AttributeSpec& attribute, AttributeRole role,
                                     Version version) {
  if (!HasLinesInRecord(attribute, version)) return {};
  std::vector<Tag> tags = {
      {70, MultiLineKind(role)}, {70, 0}, {70, 0}, {40, 1.0}, {2, attribute.tag},
      {1, kEmbeddedObject}};
  const std::vector<Tag> lines = ManyLines(attribute);
  tags.insert(tags.end(), lines.begin(), lines.end());
  return {{kMultiLineKey, Xrecord(tags)}};
}

std::string StoredTag(const AttributeSpec& attribute, AttributeRole role, Version version) {
  // The suffix marks an attribute whose real tag stands in the record.
  const bool isSuffixed = HasLinesInRecord(attribute, version) && role == AttributeRole::Attribute;
  return isSuffixed ? attribute.tag + kPlainTagSuffix : attribute.tag;
}

std::string StoredValue(const AttributeSpec& attribute, Version version) {
  if (HasEmbeddedLines(attribute, version)) return {};
  const bool isBeside = HasLinesInRecord(attribute, version) && attribute.plainValue.has_value();
  return isBeside ? *attribute.plainValue : attribute.value;
}

}  // namespace drawing
