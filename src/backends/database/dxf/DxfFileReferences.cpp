// The files that the drawing names, and what free records hold.
#include <algorithm>
#include <set>
#include <utility>

#include "backends/database/dxf/ByteChunks.h"
#include "backends/database/dxf/DxfDrawing.h"
#include "backends/database/dxf/FileObjects.h"
#include "backends/database/dxf/GroupedTags.h"
#include "backends/database/dxf/Lines.h"
#include "backends/database/dxf/Tokens.h"
#include "backends/database/model/ReferenceNames.h"

namespace zdx::dxf {
namespace {

using model::FileReference;
using model::FileUse;
using model::ObjectKey;

// Of a block's flags.
constexpr std::int64_t kAttachedFlag = 4;
constexpr std::int64_t kOverlaidFlag = 8;
// Of the flags of blocks and of records.
constexpr std::int64_t kDependentFlag = 16;
// Of a text style's flags.
constexpr std::int64_t kShapesFlag = 1;

// What the tags of a block or a text style tell.
struct StoredRecord {
  std::int64_t flags = 0;
  std::optional<Tag> path;
  std::optional<Tag> name;
  std::optional<Tag> font;
  std::optional<Tag> bigFont;
  std::size_t damagedAt = kNowhere;
};

StoredRecord ReadRecord(const TagStream& stream, std::size_t body) {
  StoredRecord record;
  std::optional<Tag> flags;
  const std::pair<int, std::optional<Tag>*> wanted[] = {{kFlagsCode, &flags},
                                                        {kPathCode, &record.path},
                                                        {kNameCode, &record.name},
                                                        {kFontCode, &record.font},
                                                        {kBigFontCode, &record.bigFont}};
  GroupedTags tags(stream, body);
  Tag tag;
  while (tags.Next(tag)) {
    if (!tags.IsOwn()) continue;
    for (const auto& [code, kept] : wanted) {
      if (tag.code == code && !*kept) *kept = tag;
    }
  }
  if (flags && !ParseInteger(stream.form(), flags->value, record.flags)) record.flags = 0;
  record.damagedAt = tags.tags().damagedAt();
  return record;
}

bool IsDrawing(const StoredRecord& block) {
  return (block.flags & (kAttachedFlag | kOverlaidFlag)) != 0;
}

FileUse UseOfDrawing(const StoredRecord& block) {
  return (block.flags & kOverlaidFlag) != 0 ? FileUse::kOverlaidDrawing : FileUse::kAttachedDrawing;
}

// An empty path is none.
void Take(FileReference reference, std::vector<FileReference>& references) {
  if (!reference.path.empty()) references.push_back(std::move(reference));
}

}  // namespace

model::Handle DxfDrawing::HandleOf(ObjectKey object) {
  return ReadHandle(stream_, StartOf(object));
}

// Goes behind the marker of a free record; false if it has none.
bool DxfDrawing::GoToFreeValues(ObjectTags& tags) {
  Tag tag;
  while (tags.Next(tag)) {
    if (tag.code == kSubclassCode && Trimmed(tag.value) == kXrecordMarker) return true;
  }
  return false;
}

std::vector<model::FreeValue> DxfDrawing::FreeValues(ObjectKey record) {
  std::vector<model::FreeValue> values;
  const ObjectStart start = StartOf(record);
  ObjectTags tags(stream_, start.body);
  if (start.type != kXrecord || !GoToFreeValues(tags)) return values;
  Tag tag;
  // Extended data isn't the record's own.
  for (bool isFirst = true; tags.Next(tag) && tag.code != kApplicationCode; isFirst = false) {
    if (isFirst && tag.code == kCloningCode) continue;
    model::FreeValue& value = values.emplace_back();
    value.code = tag.code;
    const ValueKind kind = KindOf(tag.code);
    if (kind == ValueKind::kText && !IsHandle(tag.code)) {
      value.text = Text(tag, model::TextUse::kValue);
    } else if (kind == ValueKind::kBytes && !AppendChunk(value.bytes, tag, stream_.form())) {
      Warn(L"A chunk holds what isn't a byte in hexadecimal digits.", tag.at);
      values.pop_back();
      return values;
    }
  }
  WarnOfDamage(tags);
  return values;
}

std::vector<FileReference> DxfDrawing::FileReferences() {
  std::vector<FileReference> references;
  TakeDrawings(references);
  TakeObjects(references);
  TakeFonts(references);
  TakeSetting(FileUse::kStyleSheet, model::Setting::kStyleSheet, references);
  TakeSetting(FileUse::kMenu, model::Setting::kMenu, references);
  std::stable_sort(references.begin(), references.end(),
                   [](const FileReference& a, const FileReference& b) { return a.use < b.use; });
  return references;
}

void DxfDrawing::TakeDrawings(std::vector<FileReference>& references) {
  for (const ObjectKey key : Blocks().order()) {
    const Block* const block = Blocks().Find(key);
    if (block == nullptr || block->isLayout || block->end == 0) continue;
    const StoredRecord stored = ReadRecord(stream_, block->begin);
    if (stored.damagedAt != kNowhere) WarnOfDamage(stored.damagedAt);
    if (!IsDrawing(stored) || !stored.path) continue;
    FileReference reference;
    reference.use = UseOfDrawing(stored);
    reference.handle = HandleOf(key);
    reference.path = Text(*stored.path, model::TextUse::kValue);
    reference.name = RecordName(model::TableKind::kBlock, key).value_or(L"");
    reference.isDependent =
        (stored.flags & kDependentFlag) != 0 || model::IsDependentName(reference.name);
    Take(std::move(reference), references);
  }
}

bool DxfDrawing::IsOverlayBlock(ObjectKey block) {
  const Block* const found = Blocks().Find(block);
  if (found == nullptr || found->isLayout || found->end == 0) return false;
  const StoredRecord stored = ReadRecord(stream_, found->begin);
  return IsDrawing(stored) && UseOfDrawing(stored) == FileUse::kOverlaidDrawing;
}

// Those in the root's dictionaries in their order, then the others by their handles.
void DxfDrawing::TakeObjects(std::vector<FileReference>& references) {
  const std::vector<std::size_t>& places = IndexOfObjects().fileObjects();
  if (places.empty()) return;
  std::vector<bool> isTold(places.size());
  for (const NamedObject& named : ObjectsOfRoot()) {
    const auto place = std::lower_bound(places.begin(), places.end(), named.at);
    if (place == places.end() || *place != named.at) continue;
    const auto number = static_cast<std::size_t>(place - places.begin());
    if (isTold[number]) continue;
    isTold[number] = true;
    TakeObject(named.at, Text(named.key, model::TextUse::kName), references);
  }
  std::vector<std::pair<model::Handle, std::size_t>> others;
  for (std::size_t i = 0; i < places.size(); ++i) {
    if (!isTold[i]) others.emplace_back(HandleOf(ObjectKey{places[i]}), places[i]);
  }
  std::sort(others.begin(), others.end());
  for (const auto& other : others) TakeObject(other.second, {}, references);
}

// What stands in the dictionaries of the root.  Each is read once, however many keys it has.
std::vector<DxfDrawing::NamedObject> DxfDrawing::ObjectsOfRoot() {
  std::vector<NamedObject> objects;
  const std::optional<ObjectKey> root = RootDictionary();
  if (!root) return objects;
  const ObjectIndex& index = IndexOfObjects();
  std::set<std::size_t> known;
  for (const StoredEntry& entry : StoredEntries(*root)) {
    const std::optional<std::size_t> dictionary = index.Find(entry.target);
    if (!dictionary || !IsDictionary(stream_.ObjectAt(*dictionary).type)) continue;
    if (!known.insert(*dictionary).second) continue;
    for (const StoredEntry& inner : StoredEntries(ObjectKey{*dictionary})) {
      if (const auto at = index.Find(inner.target)) objects.push_back({inner.key, *at});
    }
  }
  return objects;
}

void DxfDrawing::TakeObject(std::size_t at, const std::wstring& name,
                            std::vector<FileReference>& references) {
  const ObjectStart start = stream_.ObjectAt(at);
  const FileTags files = ReadFileTags(stream_, start);
  if (files.damagedAt != kNowhere) WarnOfDamage(files.damagedAt);
  for (const FileTag& file : files.tags) {
    FileReference reference;
    reference.use = file.use;
    reference.handle = ReadHandle(stream_, start);
    reference.path = Text(file.tag, model::TextUse::kValue);
    if (file.use == FileUse::kLinkedData) {
      reference.path.resize(model::FileOfConnection(reference.path).size());
    }
    reference.name = name;
    reference.isDependent = model::IsDependentName(name);
    Take(std::move(reference), references);
  }
}

void DxfDrawing::TakeFonts(std::vector<FileReference>& references) {
  for (const ObjectKey key : ReadTables().styles) {
    const StoredRecord stored = ReadRecord(stream_, StartOf(key).body);
    if (stored.damagedAt != kNowhere) WarnOfDamage(stored.damagedAt);
    FileReference reference;
    reference.handle = HandleOf(key);
    if (stored.name) reference.name = Text(*stored.name, model::TextUse::kName);
    reference.isDependent =
        (stored.flags & kDependentFlag) != 0 || model::IsDependentName(reference.name);
    const bool hasShapes = (stored.flags & kShapesFlag) != 0;
    reference.use = hasShapes ? FileUse::kShapeFile : FileUse::kFont;
    if (stored.font) reference.path = Text(*stored.font, model::TextUse::kValue);
    Take(reference, references);
    if (hasShapes || !stored.bigFont) continue;
    reference.use = FileUse::kBigFont;
    reference.path = Text(*stored.bigFont, model::TextUse::kValue);
    Take(std::move(reference), references);
  }
}

void DxfDrawing::TakeSetting(FileUse use, model::Setting setting,
                             std::vector<FileReference>& references) {
  FileReference reference;
  reference.use = use;
  reference.path = SettingText(setting).value_or(L"");
  Take(std::move(reference), references);
}

}  // namespace zdx::dxf
