#include "properties/read/ReferencePrompts.h"

#include <memory>

#include "properties/read/Iterators.h"
#include "properties/read/LibraryText.h"
#include "properties/read/OpenObject.h"

namespace ZDXEngine {
namespace {

// Classes below it don't count.  The class itself is asked for too, since a file may give any name
// to a class of its own.
bool IsDefinition(const ZnDbObject& entity) {
  const ZnRxClass* const type = entity.isA();
  return type != nullptr && std::wstring_view(type->name()) == L"ZnDbAttributeDefinition" &&
         type->isDerivedFrom(ZnDbAttributeDefinition::desc());
}

ZnDbObject* OpenEntity(const ZnDbBlockTableRecordIterator& iterator) {
  ZnDbObjectId id;
  ZnDbObject* entity = nullptr;
  if (iterator.getEntityId(id) != Zent::kOk) return nullptr;
  const Zent::ErrorStatus status = zndbOpenObject(entity, id, ZnDb::kForRead, false, nullptr);
  return status == Zent::kOk ? entity : nullptr;
}

}  // namespace

std::wstring ReferencePrompts::Find(const std::wstring& tag, int ordinal) {
  if (!definitions_) Read();
  const std::size_t at = static_cast<std::size_t>(ordinal) - 1;
  if (at < definitions_->size() && (*definitions_)[at].tag == tag)
    return (*definitions_)[at].prompt;
  const auto first = firstWithTag_.find(tag);
  return first == firstWithTag_.end() ? std::wstring() : (*definitions_)[first->second].prompt;
}

void ReferencePrompts::Read() {
  definitions_ = ReadDefinitions();
  for (std::size_t at = 0; at < definitions_->size(); ++at) {
    firstWithTag_.emplace((*definitions_)[at].tag, at);
  }
}

std::vector<ReferencePrompts::Definition> ReferencePrompts::ReadDefinitions() const {
  std::vector<Definition> definitions;
  const ClosedObject<ZnDbBlockTableRecord> block(
      OpenForRead<ZnDbBlockTableRecord>(reference_.blockTableRecord()));
  if (block == nullptr || !block->hasAttributeDefinitions()) return definitions;
  const auto iterator = NewEntityIterator(*block);
  if (iterator == nullptr) return definitions;
  for (; !iterator->done(); iterator->step(true, true)) {
    const ClosedObject<ZnDbObject> entity(OpenEntity(*iterator));
    if (entity == nullptr || !IsDefinition(*entity)) continue;
    const auto& definition = static_cast<const ZnDbAttributeDefinition&>(*entity);
    definitions.push_back({ReadText(definition, &ZnDbAttributeDefinition::tag).value_or(L""),
                           ReadText(definition, &ZnDbAttributeDefinition::prompt).value_or(L"")});
  }
  return definitions;
}

}  // namespace ZDXEngine
