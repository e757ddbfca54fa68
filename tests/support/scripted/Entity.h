// What stands in the blocks of a scripted drawing.
#pragma once

#include <deque>
#include <string>

#include "support/scripted/Node.h"

namespace scripted {

struct Record;

enum class EntityKind { kPlain, kText, kMText, kAttribute, kDefinition, kReference };

struct Entity : Node {
  // An attribute of this reference; its label is "TAG of REFERENCE".
  Entity& AddAttribute(std::wstring attributeTag, std::wstring attributeText);

  EntityKind kind = EntityKind::kPlain;
  // If it isn't empty the entity is of a class of this name below the one of its kind.
  std::wstring className;
  // False: the entity's class isn't known, `isA` gives null.
  bool hasClass = true;

  // Of texts, attributes and definitions.
  std::wstring tag;
  std::wstring prompt;
  std::wstring text;
  bool constant = false;
  bool multiLine = false;

  // The block in which it stands; null if the library doesn't tell.
  const Record* owner = nullptr;

  // Of a reference: the block that it shows, and its attributes.
  const Record* block = nullptr;
  std::deque<Entity> attributes;
};

}  // namespace scripted
