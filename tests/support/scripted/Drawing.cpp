#include "support/scripted/Drawing.h"

#include "support/scripted/CallLog.h"

namespace scripted {
namespace {

const char* WordFor(EntityKind kind) {
  switch (kind) {
    case EntityKind::kText:
      return "text";
    case EntityKind::kMText:
      return "mtext";
    case EntityKind::kAttribute:
      return "attribute";
    case EntityKind::kDefinition:
      return "definition";
    case EntityKind::kReference:
      return "reference";
    case EntityKind::kPlain:
      break;
  }
  return "entity";
}

}  // namespace

Entity& Entity::AddAttribute(std::wstring attributeTag, std::wstring attributeText) {
  Entity& attribute = attributes.emplace_back();
  attribute.label = Shown(attributeTag) + " of " + label;
  attribute.kind = EntityKind::kAttribute;
  attribute.mayCloseTwice = true;
  attribute.tag = std::move(attributeTag);
  attribute.text = std::move(attributeText);
  return attribute;
}

Entity& Record::Add(EntityKind entityKind) {
  Entity& entity = entities.emplace_back();
  entity.label =
      std::string(WordFor(entityKind)) + " " + Shown(entities.size()) + " of " + Shown(name);
  entity.kind = entityKind;
  entity.mayCloseTwice = true;
  entity.owner = this;
  return entity;
}

Entity& Record::AddDefinition(std::wstring tag, std::wstring prompt, std::wstring text) {
  Entity& definition = Add(EntityKind::kDefinition);
  definition.label = "definition " + Shown(tag) + " of " + Shown(name);
  definition.tag = std::move(tag);
  definition.prompt = std::move(prompt);
  definition.text = std::move(text);
  return definition;
}

Entity& Record::AddConstant(std::wstring tag, std::wstring prompt, std::wstring text) {
  Entity& definition = AddDefinition(std::move(tag), std::move(prompt), std::move(text));
  definition.constant = true;
  return definition;
}

Entity& Record::AddReference(const Record* standsIn) {
  Entity& reference = references.emplace_back();
  reference.label = "reference " + Shown(references.size()) + " of " + Shown(name);
  reference.kind = EntityKind::kReference;
  reference.mayCloseTwice = true;
  reference.owner = standsIn;
  reference.block = this;
  return reference;
}

Table::Table(TableKind tableKind, std::string tableLabel, std::string labelOfRecords)
    : kind(tableKind), recordLabel(std::move(labelOfRecords)) {
  label = std::move(tableLabel);
}

Record& Table::Add(std::wstring name, std::wstring comments) {
  Record& record = records.emplace_back();
  record.label = recordLabel + " " + Shown(name);
  record.kind = kind;
  record.name = std::move(name);
  record.comments = std::move(comments);
  return record;
}

PlainObject& Dictionary::Add(std::wstring name, std::wstring className) {
  Entry& entry = entries.emplace_back();
  entry.object.label = "object " + Shown(name);
  entry.object.className = std::move(className);
  entry.name = std::move(name);
  return entry.object;
}

}  // namespace scripted
