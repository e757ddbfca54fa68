#include "properties/read/NamedObjects.h"

#include <memory>

#include "properties/read/HeapText.h"
#include "properties/read/Iterators.h"
#include "properties/read/OpenObject.h"
#include "properties/record/AddProperty.h"

namespace ZDXEngine {
namespace {

using Properties = std::vector<_PropData>;

void AddName(Properties& properties, const wchar_t* text, const std::wstring& propertyName) {
  AddText(properties, text, propertyName, FMTID_Storage, kNamedProperty);
}

void AddRecordName(Properties& properties, const ZnDbSymbolTableRecord& record,
                   const wchar_t* propertyName) {
  HeapText value;
  {
    ZnString name;
    if (record.getName(name) != Zent::kOk || value.Copy(name) != Zent::kOk) return;
  }
  AddName(properties, value.Get(), propertyName);
}

void AddRecordComments(Properties& properties, const ZnDbLinetypeTableRecord& record) {
  HeapText value;
  {
    ZnString comments;
    if (record.comments(comments) != Zent::kOk || value.Copy(comments) != Zent::kOk) return;
  }
  if (value.Get() != nullptr) AddName(properties, value.Get(), L"LineType Comments");
}

// Hands each record that can be opened to `add`.  The status of getRecordId isn't looked at, and
// the iterator steps on before the record is released.
template <class Record, class Add>
void ForEachRecord(const ZnDbSymbolTable& table, Add add) {
  const std::unique_ptr<ZnDbSymbolTableIterator> iterator = NewIterator(table);
  if (iterator == nullptr) return;
  while (!iterator->done()) {
    ZnDbObjectId id;
    iterator->getRecordId(id);
    const ReleasedObject<Record> record(OpenForRead<Record>(id));
    if (record != nullptr) add(*record);
    iterator->step(true, true);
  }
}

template <class Table>
void ListTable(Properties& properties, ZnDbDatabase* database, void (*list)(Properties&, Table*)) {
  Table* opened = nullptr;
  if (database->getSymbolTable(opened, ZnDb::kForRead) != Zent::kOk) return;
  const ClosedObject<Table> table(opened);
  list(properties, table.get());
}

struct StandardDictionary {
  const wchar_t* prefix;
  Zent::ErrorStatus (ZnDbDatabase::*get)(ZnDbDictionary*& dictionary, int mode);
};

constexpr StandardDictionary kDictionaries[] = {
    {L"Group", &ZnDbDatabase::getGroupDictionary},
    {L"MultiLine Style", &ZnDbDatabase::getMLStyleDictionary},
    {L"Layout", &ZnDbDatabase::getLayoutDictionary},
    {L"Named Object", &ZnDbDatabase::getNamedObjectsDictionary},
    {L"Plot Settings", &ZnDbDatabase::getPlotSettingsDictionary},
};

}  // namespace

void ListLayers(std::vector<_PropData>& properties, ZnDbLayerTable* table) {
  ForEachRecord<ZnDbLayerTableRecord>(*table, [&](const ZnDbLayerTableRecord& record) {
    AddRecordName(properties, record, L"Layer Name");
  });
}

void ListLineTypes(std::vector<_PropData>& properties, ZnDbLinetypeTable* table) {
  ForEachRecord<ZnDbLinetypeTableRecord>(*table, [&](const ZnDbLinetypeTableRecord& record) {
    AddRecordName(properties, record, L"LineType Name");
    AddRecordComments(properties, record);
  });
}

// Not as the others: a record whose id can't be had is skipped, and a record is closed unasked and
// before the step.
void ListViews(std::vector<_PropData>& properties, ZnDbViewTable* table) {
  const std::unique_ptr<ZnDbSymbolTableIterator> iterator = NewIterator(*table);
  if (iterator == nullptr) return;
  for (; !iterator->done(); iterator->step(true, true)) {
    ZnDbObjectId id;
    if (iterator->getRecordId(id) != Zent::kOk) continue;
    const ClosedObject<ZnDbViewTableRecord> record(OpenForRead<ZnDbViewTableRecord>(id));
    if (record != nullptr) AddRecordName(properties, *record, L"View Name");
  }
}

void ListSymbolTables(std::vector<_PropData>& properties, ZnDbDatabase* database) {
  ListTable<ZnDbLayerTable>(properties, database, ListLayers);
  ListTable<ZnDbLinetypeTable>(properties, database, ListLineTypes);
  ListTable<ZnDbViewTable>(properties, database, ListViews);
}

void ListDictionaries(std::vector<_PropData>& properties, ZnDbDatabase* database) {
  for (const StandardDictionary& standard : kDictionaries) {
    ZnDbDictionary* opened = nullptr;
    if ((database->*standard.get)(opened, ZnDb::kForRead) != Zent::kOk) continue;
    const ClosedObject<ZnDbDictionary> dictionary(opened);
    ListDictionary(properties, dictionary.get(), standard.prefix);
  }
}

void ListDictionary(std::vector<_PropData>& properties, ZnDbDictionary* dictionary,
                    const std::wstring& prefix) {
  const std::unique_ptr<ZnDbDictionaryIterator> iterator(dictionary->newIterator());
  if (iterator == nullptr) return;
  for (; !iterator->done(); iterator->next()) {
    AddName(properties, iterator->name(), prefix + L" Name");
  }
}

}  // namespace ZDXEngine
