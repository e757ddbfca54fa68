#include "support/dxf/Drawing.h"
#include "support/dxf/Tokens.h"

namespace dxf {
namespace {

constexpr std::size_t kLongestChunk = 250;
constexpr int kMultiLineAttribute = 2;
constexpr int kMultiLineDefinition = 4;
constexpr const char* kPlainTagSuffix = "_001";

enum class Role { Attribute, Definition };

// The groups of a text of many lines.  The text is cut between characters.
std::vector<Tag> ManyLines(const AttributeSpec& attribute) {
  std::vector<Tag> tags = {{10, attribute.at.x},
                           {20, attribute.at.y},
                           {30, 0.0},
                           {40, attribute.height},
                           {41, 0.0},
                           {46, 0.0},
                           {71, 1},
                           {72, 5}};
  std::string rest = attribute.value;
  while (rest.size() > kLongestChunk) {
    std::size_t size = kLongestChunk;
    while ((static_cast<unsigned char>(rest[size]) & 0xC0) == 0x80) --size;
    tags.emplace_back(3, rest.substr(0, size));
    rest.erase(0, size);
  }
  tags.insert(tags.end(), {Tag(1, rest), Tag(73, 1), Tag(44, 1.0)});
  return tags;
}

// Below AC1032 the many lines stand in a record beside a plain attribute.
std::vector<NamedObject> MultiLineRecord(const AttributeSpec& attribute, Role role) {
  std::vector<Tag> tags = {
      {70, role == Role::Attribute ? kMultiLineAttribute : kMultiLineDefinition},
      {70, 0},
      {70, 0},
      {40, 1.0},
      {2, attribute.tag},
      {1, kEmbeddedObject}};
  const std::vector<Tag> lines = ManyLines(attribute);
  tags.insert(tags.end(), lines.begin(), lines.end());
  return {{kMultiLineKey, Xrecord(tags)}};
}

bool IsEmbedded(const Drawing& drawing, const AttributeSpec& attribute) {
  return attribute.multiLine && drawing.version >= Version::AC1032;
}

bool HasRecord(const Drawing& drawing, const AttributeSpec& attribute) {
  return attribute.multiLine && HasObjects(drawing.version) && drawing.version < Version::AC1032;
}

void PutText(Drawing& drawing, const AttributeSpec& attribute) {
  drawing.out.Put({100, kTextMarker});
  drawing.out.PutPoint(10, attribute.at.x, attribute.at.y);
  drawing.out.Put({40, attribute.height});
  drawing.out.Put({1, IsEmbedded(drawing, attribute) ? std::string() : attribute.value});
}

void PutOwn(Drawing& drawing, const AttributeSpec& attribute, Role role) {
  const bool isDefinition = role == Role::Definition;
  drawing.out.Put({100, isDefinition ? kAttributeDefinitionMarker : kAttributeMarker});
  if (drawing.version >= Version::AC1024) drawing.out.Put({280, 0});
  if (isDefinition) drawing.out.Put({3, attribute.prompt});
  // The suffix marks an attribute whose real tag stands in the record.
  const bool isSuffixed = HasRecord(drawing, attribute) && !isDefinition;
  drawing.out.Put({2, isSuffixed ? attribute.tag + kPlainTagSuffix : attribute.tag});
  drawing.out.Put({70, attribute.flags});
  if (drawing.version >= Version::AC1021) drawing.out.Put({280, 1});
}

void PutEmbedded(Drawing& drawing, const AttributeSpec& attribute, Role role) {
  drawing.out.Put({71, role == Role::Attribute ? kMultiLineAttribute : kMultiLineDefinition});
  drawing.out.Put({72, 0});
  drawing.out.PutPoint(11, attribute.at.x, attribute.at.y);
  drawing.out.Put({101, kEmbeddedObject});
  drawing.out.Put(ManyLines(attribute));
}

void Write(Drawing& drawing, const AttributeSpec& attribute, const std::string& owner, bool onPaper,
           Role role) {
  EntitySpec entity;
  entity.type = role == Role::Attribute ? kAttribute : kAttributeDefinition;
  entity.layer = attribute.layer;
  entity.handle = attribute.handle;
  if (HasRecord(drawing, attribute)) entity.extension = MultiLineRecord(attribute, role);
  BeginEntity(drawing, entity, owner, onPaper);
  PutText(drawing, attribute);
  PutOwn(drawing, attribute, role);
  if (IsEmbedded(drawing, attribute)) PutEmbedded(drawing, attribute, role);
}

}  // namespace

void WriteAttributeDefinition(Drawing& drawing, const AttributeSpec& definition,
                              const PlannedBlock& block) {
  Write(drawing, definition, block.recordHandle, block.isPaper, Role::Definition);
}

void WriteAttribute(Drawing& drawing, const AttributeSpec& attribute, const std::string& insert,
                    bool onPaper) {
  Write(drawing, attribute, insert, onPaper, Role::Attribute);
}

}  // namespace dxf
