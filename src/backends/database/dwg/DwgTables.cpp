// The symbol tables, and the names of their records.
#include <algorithm>
#include <iterator>
#include <unordered_set>
#include <utility>

#include "backends/database/dwg/DwgDrawing.h"
#include "backends/database/dwg/Tokens.h"
#include "backends/database/dwg/records/FreeRecord.h"
#include "base/CaseFold.h"

namespace zdx::dwg {

struct DwgDrawing::Table {
  // The header variable that names the table.
  Key variable;
  ObjectType type;
  // The records that the table names apart from its list, and that come first.
  Key firstApart = Key::kNone;
  Key secondApart = Key::kNone;
};

namespace {

struct TableRow {
  model::TableKind kind;
  Key variable;
  ObjectType type;
  ObjectType recordType;
  // Of the records apart.
  Key first = Key::kNone;
  Key second = Key::kNone;
};

constexpr TableRow kTables[] = {
    {model::TableKind::kBlock, Key::kBlockTable, kBlockTableType, kBlockRecordType,
     Key::kModelSpace, Key::kPaperSpace},
    {model::TableKind::kLayer, Key::kLayerTable, kLayerTableType, kLayerType},
    {model::TableKind::kLinetype, Key::kLinetypeTable, kLinetypeTableType, kLinetypeType,
     Key::kByBlock, Key::kByLayer},
    {model::TableKind::kView, Key::kViewTable, kViewTableType, kViewType},
};

const TableRow& RowOf(model::TableKind kind) {
  return *std::find_if(std::begin(kTables), std::end(kTables),
                       [kind](const TableRow& row) { return row.kind == kind; });
}

// Groups of the record that has the true spelling of names.
constexpr int kSpellingGroupCode = 102;
constexpr int kTrueNameCode = 2;

// The names of these records are cut behind their kind.
bool IsAnonymous(const std::wstring& name) { return !name.empty() && name.front() == L'*'; }

}  // namespace

const std::vector<model::ObjectKey>& DwgDrawing::TableRecords(model::TableKind table) {
  const auto found = tables_.find(table);
  if (found != tables_.end()) return found->second;
  const TableRow& row = RowOf(table);
  return tables_.emplace(table, CollectRecords({row.variable, row.type, row.first, row.second}))
      .first->second;
}

std::vector<model::ObjectKey> DwgDrawing::TextStyles() {
  return CollectRecords({Key::kTextStyleTable, kTextStyleTableType});
}

// Tables of sound files may name nothing, or records that aren't there.
std::vector<model::ObjectKey> DwgDrawing::CollectRecords(const Table& row) {
  const FieldValues::Value* const variable = Header().Find(row.variable);
  if (variable == nullptr) return {};
  const model::Handle table = variable->number;
  const std::optional<Object> object = Read(table);
  if (!object || object->type != row.type) {
    Warn(L"A symbol table can't be read.", table);
    return {};
  }
  std::vector<model::ObjectKey> records;
  // A record that stands in both places is told once.
  std::unordered_set<model::Handle> known;
  const auto add = [&](model::Handle handle) {
    if (!known.insert(handle).second) return;
    if (const auto record = Find(handle)) records.push_back(*record);
  };
  for (const Key key : {row.firstApart, row.secondApart}) {
    if (const FieldValues::Value* const apart = object->fields.Find(key)) add(apart->number);
  }
  for (const model::Handle entry : object->fields.Handles(Key::kEntries)) add(entry);
  return records;
}

std::optional<std::wstring> DwgDrawing::RecordName(model::TableKind table,
                                                   model::ObjectKey record) {
  const auto handle = static_cast<model::Handle>(record);
  const Key last = table == model::TableKind::kBlock ? Key::kBlockBegin : Key::kName;
  const std::optional<Object> object = Read(handle, {last}, Record::Extent::kFront);
  if (!object) return std::nullopt;
  const FieldValues::Value* const name = object->fields.Find(Key::kName);
  if (object->type != RowOf(table).recordType || name == nullptr) {
    Warn(L"A record of a symbol table can't be read.", handle);
    return std::nullopt;
  }
  std::wstring text = Text(name->bytes, model::TextUse::kName, handle);
  if (table == model::TableKind::kBlock && IsAnonymous(text)) {
    return FullBlockName(std::move(text), object->fields, handle);
  }
  return text;
}

// The name in the block's begin, which isn't cut.
std::wstring DwgDrawing::FullBlockName(std::wstring cut, const FieldValues& block,
                                       model::Handle handle) {
  const model::Handle beginHandle = block.Handle(Key::kBlockBegin);
  if (beginHandle == 0 || !IsPartOf(handle, beginHandle)) return cut;
  const std::optional<Object> object = Read(beginHandle);
  if (!object || object->type != kBlockBeginType) return cut;
  const FieldValues::Value* const name = object->fields.Find(Key::kName);
  if (name == nullptr || name->bytes.empty()) return cut;
  return Text(name->bytes, model::TextUse::kName, beginHandle);
}

// AC1014 stores names in capitals, and they are told so; but people may know the true spelling.
bool DwgDrawing::HasName(model::TableKind table, model::ObjectKey record,
                         const std::wstring& name) {
  if (Drawing::HasName(table, record, name)) return true;
  if (format_.version > model::kVersion1014) return false;
  const auto spelling = TrueSpelling(static_cast<model::Handle>(record));
  return spelling && CompareIgnoringCase(*spelling, name) == 0;
}

// The spelling stands in a free record of the record's extension dictionary: a group that begins
// the spellings, then the name in capitals and the true one.
std::optional<std::wstring> DwgDrawing::TrueSpelling(model::Handle handle) {
  const std::optional<Object> record = Read(handle, {Key::kExtension});
  if (!record) return std::nullopt;
  const auto spellings = ExtensionEntry(handle, record->fields, kSpellingKey);
  if (!spellings || *spellings == 0 || !IsPartOf(handle, *spellings)) return std::nullopt;
  const std::optional<Object> object = Read(*spellings);
  const FieldValues::Value* const content =
      object && object->like == kFreeRecordType ? object->fields.Find(Key::kBytes) : nullptr;
  if (content == nullptr) return std::nullopt;
  GroupReader groups(content->bytes, format_);
  bool within = false;
  while (const std::optional<Group> group = groups.Next()) {
    if (!group->isText) continue;
    const std::wstring text =
        GroupText(group->text, group->codePage, model::TextUse::kValue, *spellings);
    if (group->code == kSpellingGroupCode) within = text == kSpellingGroup;
    if (within && group->code == kTrueNameCode) return text;
  }
  return std::nullopt;
}

std::optional<std::wstring> DwgDrawing::LinetypeComments(model::ObjectKey record) {
  const auto handle = static_cast<model::Handle>(record);
  const std::optional<Object> object = Read(handle);
  if (!object) return std::nullopt;
  const FieldValues::Value* const comments = object->fields.Find(Key::kComments);
  if (comments == nullptr) return std::nullopt;
  return Text(comments->bytes, model::TextUse::kValue, handle);
}

}  // namespace zdx::dwg
