// Where blocks are shown.
#include <algorithm>
#include <unordered_set>

#include "backends/database/dwg/DwgDrawing.h"

namespace zdx::dwg {
namespace {

bool IsReference(ObjectType type) { return type == kReferenceType || type == kReferenceArrayType; }

}  // namespace

std::vector<model::ObjectKey> DwgDrawing::BlockReferences(model::ObjectKey block) {
  const auto handle = static_cast<model::Handle>(block);
  std::vector<model::ObjectKey> keys;
  if (format_.version >= model::kVersion1015) {
    const std::optional<Object> record = ReadBlock(handle, {Key::kInserts, Key::kInserts});
    if (!record) return keys;
    std::unordered_set<model::Handle> known;
    const auto& inserts = Listed(referenceLists_, handle, record->fields, Key::kInserts);
    for (const model::Handle insert : inserts) {
      if (!known.insert(insert).second) continue;
      // Lists name tables, too, which show a block of their own.
      const std::optional<Kind> kind = KindOf(insert);
      if (kind && IsReference(kind->type)) keys.push_back(model::ObjectKey{insert});
    }
    if (!keys.empty() || AnyBlockListsReferences()) return keys;
  }
  FindReferences();
  const auto begin = std::lower_bound(
      references_->begin(), references_->end(), handle,
      [](const Reference& reference, model::Handle wanted) { return reference.block < wanted; });
  for (auto at = begin; at != references_->end() && at->block == handle; ++at) {
    keys.push_back(model::ObjectKey{at->handle});
  }
  return keys;
}

// Some writers never list them.
bool DwgDrawing::AnyBlockListsReferences() {
  if (anyBlockListsReferences_) return *anyBlockListsReferences_;
  const auto& records = TableRecords(model::TableKind::kBlock);
  anyBlockListsReferences_ =
      std::any_of(records.begin(), records.end(), [this](model::ObjectKey record) {
        const auto block = ReadBlock(static_cast<model::Handle>(record), {Key::kInsertCount},
                                     Record::Extent::kFront);
        return block && block->fields.Number(Key::kInsertCount) != 0;
      });
  return *anyBlockListsReferences_;
}

// Goes through all objects once.
void DwgDrawing::FindReferences() {
  if (references_) return;
  references_.emplace();
  Section* const objects = Objects();
  if (objects == nullptr) return;
  Budget budget = Budget::OfObjects(file_.bytes().size());
  Map().ForEach([&](model::Handle handle, std::uint64_t place) {
    if (!budget.Take(1)) {
      Warn(L"The drawing has too many objects to find all references of blocks.", handle);
      return false;
    }
    const Record record(*objects, place, format_, Record::Extent::kHead);
    if (record.Whole() && IsReference(record.type())) TakeReference(handle, place);
    return true;
  });
  std::stable_sort(
      references_->begin(), references_->end(),
      [](const Reference& left, const Reference& right) { return left.block < right.block; });
}

void DwgDrawing::TakeReference(model::Handle handle, std::uint64_t place) {
  const auto reference = ReadAt(handle, place, {Key::kBlock}, Record::Extent::kFront);
  const model::Handle block = reference ? reference->fields.Handle(Key::kBlock) : 0;
  if (block != 0) references_->push_back({block, handle});
}

model::BlockReference DwgDrawing::ReadBlockReference(model::ObjectKey entity) {
  const auto handle = static_cast<model::Handle>(entity);
  const std::optional<Object> object = Read(handle);
  if (!object || !IsReference(object->type)) return {};
  model::BlockReference reference;
  const model::Handle block = object->fields.Handle(Key::kBlock);
  if (IsBlockRecord(block)) reference.block = model::ObjectKey{block};
  if (format_.version < model::kVersion1018) {
    reference.attributes = Chain(handle, object->fields);
    return reference;
  }
  for (const model::Handle attribute : object->fields.Handles(Key::kAttributes)) {
    const auto key = Find(attribute);
    if (key && IsPartOf(handle, attribute)) reference.attributes.push_back(*key);
  }
  KeepFirstOfEach(reference.attributes);
  return reference;
}

}  // namespace zdx::dwg
