// What stands in blocks, and which of them are layouts.
#include <algorithm>
#include <unordered_set>

#include "backends/database/dwg/DwgDrawing.h"
#include "backends/database/dwg/Tokens.h"
#include "base/CaseFold.h"

namespace zdx::dwg {
namespace {

constexpr std::uint64_t kOwnerByHandle = 0;
constexpr std::uint64_t kInPaperSpace = 1;
constexpr std::uint64_t kInModelSpace = 2;

// Whether it is the name of model space, or that of paper space with or without a number.
bool IsNameOfLayout(std::wstring_view name) {
  if (CompareIgnoringCase(name, kModelSpaceName) == 0) return true;
  const auto isDigit = [](wchar_t c) { return c >= L'0' && c <= L'9'; };
  return CompareIgnoringCase(name.substr(0, kPaperSpaceName.size()), kPaperSpaceName) == 0 &&
         std::all_of(name.begin() + kPaperSpaceName.size(), name.end(), isDigit);
}

// Follows a chain, which may be a ring: tells so at the latest when it went around it three times.
class RingWatch {
 public:
  bool IsRing(model::Handle handle) {
    if (handle == mark_) return true;
    if (--left_ > 0) return false;
    mark_ = handle;
    left_ = span_ *= 2;
    return false;
  }

 private:
  model::Handle mark_ = 0;
  std::uint64_t span_ = 1;
  std::uint64_t left_ = 1;
};

}  // namespace

void KeepFirstOfEach(std::vector<model::ObjectKey>& keys) {
  std::unordered_set<model::ObjectKey> known;
  std::erase_if(keys, [&known](model::ObjectKey key) { return !known.insert(key).second; });
}

std::optional<DwgDrawing::Object> DwgDrawing::ReadBlock(model::Handle handle,
                                                        const Question& question,
                                                        Record::Extent extent) {
  std::optional<Object> object = Read(handle, question, extent);
  if (object && object->type != kBlockRecordType) object.reset();
  return object;
}

const DwgDrawing::Spaces& DwgDrawing::SpaceRecords() {
  if (spaces_) return *spaces_;
  spaces_.emplace();
  const std::optional<Object> table = Read(Header().Handle(Key::kBlockTable));
  if (table && table->type == kBlockTableType) {
    spaces_->model = table->fields.Handle(Key::kModelSpace);
    spaces_->paper = table->fields.Handle(Key::kPaperSpace);
  }
  return *spaces_;
}

bool DwgDrawing::IsBlockRecord(model::Handle handle) {
  if (!blockRecords_) {
    blockRecords_.emplace();
    for (const model::ObjectKey record : TableRecords(model::TableKind::kBlock)) {
      blockRecords_->insert(static_cast<model::Handle>(record));
    }
  }
  if (handle == 0 || blockRecords_->contains(handle)) return handle != 0;
  const std::optional<Kind> kind = KindOf(handle);
  return kind && kind->type == kBlockRecordType;
}

bool DwgDrawing::IsLayoutBlock(model::ObjectKey block) {
  const auto handle = static_cast<model::Handle>(block);
  if (handle == SpaceRecords().model || handle == SpaceRecords().paper) return true;
  const auto front = ReadBlock(handle, {Key::kName}, Record::Extent::kFront);
  const auto name = front ? TextOf(front->fields, Key::kName, handle) : std::nullopt;
  if (!name) return false;
  if (IsNameOfLayout(*name)) return true;
  if (format_.version < model::kVersion1015) return false;
  const std::optional<Object> record = ReadBlock(handle, {Key::kLayout});
  return record && record->fields.Handle(Key::kLayout) != 0;
}

std::vector<model::ObjectKey> DwgDrawing::BlockEntities(model::ObjectKey block) {
  const auto handle = static_cast<model::Handle>(block);
  const bool hasList = format_.version >= model::kVersion1018;
  const Question question = {hasList ? Key::kOwned : Key::kLast, Key::kOwned};
  const std::optional<Object> record = ReadBlock(handle, question);
  if (!record) return {};
  if (!hasList) return Chain(handle, record->fields);
  std::vector<model::ObjectKey> entities;
  for (const model::Handle owned : Listed(entityLists_, handle, record->fields, Key::kOwned)) {
    const std::optional<Kind> kind = KindOf(owned);
    if (kind && kind->isEntity && !IsPartOfEntity(kind->type)) {
      entities.push_back(model::ObjectKey{owned});
    }
  }
  return entities;
}

const std::vector<model::Handle>& DwgDrawing::Listed(ListBudget& budget, model::Handle block,
                                                     const FieldValues& fields, Key list) {
  static const std::vector<model::Handle> none;
  const std::vector<model::Handle>& handles = fields.Handles(list);
  if (budget.Take(block, handles.size())) return handles;
  Warn(L"The blocks of the drawing name more objects than it has.", block);
  return none;
}

// The entities of a block, or the attributes of a reference, where each names the one behind it.
// One that belongs to something else ends them: chains that share their entities would cost as much
// as all of them together.
std::vector<model::ObjectKey> DwgDrawing::Chain(model::Handle owner, const FieldValues& fields) {
  const model::Handle last = fields.Handle(Key::kLast);
  std::vector<model::ObjectKey> entities;
  RingWatch watch;
  for (model::Handle next = fields.Handle(Key::kFirst); next != 0;) {
    const std::optional<Object> entity = Read(next, {Key::kNext});
    const bool isRing = watch.IsRing(next);
    if (!entity || !entity->isEntity || OwnerOf(*entity) != owner || isRing) {
      Warn(L"The entities of an object can't be followed to their end.", owner);
      if (isRing) KeepFirstOfEach(entities);
      break;
    }
    const bool isAttribute = entity->type == kAttributeType;
    if (isAttribute != IsBlockRecord(owner) && (isAttribute || !IsPartOfEntity(entity->type))) {
      entities.push_back(model::ObjectKey{next});
    }
    if (next == last) break;
    const bool byNumber = entity->fields.Number(Key::kNeighboursByNumber) != 0;
    next = byNumber ? next + 1 : entity->fields.Handle(Key::kNext);
  }
  return entities;
}

model::Handle DwgDrawing::OwnerOf(const Object& entity) {
  switch (entity.fields.Number(Key::kOwnerMode)) {
    case kOwnerByHandle:
      return entity.fields.Handle(Key::kOwner);
    case kInPaperSpace:
      return SpaceRecords().paper;
    case kInModelSpace:
      return SpaceRecords().model;
    default:
      return 0;
  }
}

std::optional<model::ObjectKey> DwgDrawing::OwnerBlock(model::ObjectKey entity) {
  const auto handle = static_cast<model::Handle>(entity);
  const auto object = Read(handle, {Key::kOwner}, Record::Extent::kFront);
  if (!object || !object->isEntity || !object->whole) return std::nullopt;
  const model::Handle owner = OwnerOf(*object);
  return IsBlockRecord(owner) ? std::optional(model::ObjectKey{owner}) : std::nullopt;
}

}  // namespace zdx::dwg
