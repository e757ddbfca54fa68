// What a drawing holds: its tables, dictionaries and objects, and its settings.
#include "backends/database/zndb/BlockObjects.h"
#include "backends/database/zndb/EmbeddedDatabase.h"
#include "backends/database/zndb/GeoObject.h"
#include "backends/database/zndb/Objects.h"
#include "base/CaseFold.h"

namespace zdx::database {

ZnDbObjectId EmbeddedDatabase::RecordId(model::TableKind table, model::ObjectKey record) {
  ZnDbStub*& stub = recordStubs_[static_cast<std::uint64_t>(record)];
  if (stub == nullptr) stub = &stubs_.emplace_back(this, table, record);
  return ZnDbObjectId(stub);
}

ZnDbObjectId EmbeddedDatabase::HandleId(model::Handle handle) {
  ZnDbStub*& stub = handleStubs_[handle];
  if (stub == nullptr) stub = &stubs_.emplace_back(this, handle);
  return ZnDbObjectId(stub);
}

ZnDbObjectId EmbeddedDatabase::EntityId(model::ObjectKey entity) {
  ZnDbStub*& stub = entityStubs_[static_cast<std::uint64_t>(entity)];
  if (stub == nullptr) stub = &stubs_.emplace_back(this, entity);
  return ZnDbObjectId(stub);
}

model::Handle EmbeddedDatabase::HandleOf(const ZnDbStub& stub) const {
  return stub.handle != 0 || !stub.key ? stub.handle : drawing_->HandleOf(*stub.key);
}

ZnDbObject* EmbeddedDatabase::Open(ZnDbStub& stub) {
  if (stub.object == nullptr) {
    if (!stub.key) stub.key = drawing_->Find(stub.handle);
    if (!stub.key) return nullptr;
    stub.object = stub.table ? MakeRecord(stub) : MakeObject(stub);
  }
  return stub.object.get();
}

std::unique_ptr<ZnDbObject> EmbeddedDatabase::MakeRecord(ZnDbStub& stub) const {
  switch (*stub.table) {
    case model::TableKind::kLayer:
      return std::make_unique<EmbeddedRecord<ZnDbLayerTableRecord>>(&stub);
    case model::TableKind::kLinetype:
      return std::make_unique<EmbeddedLinetype>(&stub);
    case model::TableKind::kView:
      return std::make_unique<EmbeddedRecord<ZnDbViewTableRecord>>(&stub);
    default:
      return std::make_unique<EmbeddedBlockRecord>(&stub);
  }
}

std::unique_ptr<ZnDbObject> EmbeddedDatabase::MakeObject(ZnDbStub& stub) {
  using Kind = model::ObjectDescription::Kind;
  model::ObjectDescription description = drawing_->Describe(*stub.key);
  switch (description.kind) {
    case Kind::kDictionary:
      return std::make_unique<EmbeddedDictionary>(&stub, drawing_->DictionaryEntries(*stub.key));
    case Kind::kProxy:
      return std::make_unique<EmbeddedProxy>(&stub, std::move(description.className));
    case Kind::kGeoData: {
      auto data = drawing_->ReadGeoData(*stub.key);
      if (!data) return nullptr;
      return std::make_unique<EmbeddedGeoData>(&stub, *std::move(data));
    }
    case Kind::kEntity:
      return std::make_unique<PlainEntity>(&stub,
                                           ClassNamed(description.className, ZnDbEntity::desc()));
    case Kind::kText:
      return std::make_unique<EmbeddedText>(&stub);
    case Kind::kMText:
      return std::make_unique<EmbeddedMText>(&stub);
    case Kind::kAttribute:
      return std::make_unique<EmbeddedAttribute>(&stub, drawing_->ReadAttribute(*stub.key));
    case Kind::kAttributeDefinition:
      return std::make_unique<EmbeddedAttributeDefinition>(&stub,
                                                           drawing_->ReadAttribute(*stub.key));
    case Kind::kBlockReference:
      return std::make_unique<EmbeddedBlockReference>(&stub);
    default:
      return std::make_unique<EmbeddedObject>(
          &stub, ClassNamed(description.className, ZnDbObject::desc()));
  }
}

ZnRxClass* EmbeddedDatabase::ClassNamed(const std::wstring& name, const ZnRxClass* parent) {
  std::unique_ptr<ZnRxClass>& known = classes_[{name, parent}];
  if (known == nullptr) known = std::make_unique<ZnRxClass>(name, parent);
  return known.get();
}

Zent::ErrorStatus EmbeddedDatabase::GetGeoDataId(ZnDbObjectId& id) {
  id = ZnDbObjectId();
  if (drawing_ == nullptr) return Zent::kNotApplicable;
  const std::optional<model::ObjectKey> object = drawing_->GeoDataObject();
  if (!object) return Zent::kKeyNotFound;
  id = EntityId(*object);
  return Zent::kOk;
}

bool EmbeddedDatabase::IsDynamicBlock(const ZnDbStub& record) {
  return record.table == model::TableKind::kBlock && drawing_->IsDynamicBlock(*record.key);
}

Zent::ErrorStatus EmbeddedDatabase::GetAnonymousBlockIds(const ZnDbStub& record,
                                                         ZnDbObjectIdArray& ids) {
  ids.clear();
  if (!IsDynamicBlock(record)) return Zent::kNotApplicable;
  for (const model::ObjectKey copy : drawing_->AnonymousCopies(*record.key)) {
    ids.push_back(RecordId(model::TableKind::kBlock, copy));
  }
  return Zent::kOk;
}

template <class Table>
Zent::ErrorStatus EmbeddedDatabase::OpenTable(Table*& table, model::TableKind kind) {
  table = nullptr;
  if (drawing_ == nullptr) return Zent::kNotApplicable;
  ZnDbStub*& stub = tableStubs_[kind];
  if (stub == nullptr) {
    stub = &stubs_.emplace_back(this, 0);
    stub->object = std::make_unique<EmbeddedTable<Table>>(stub, kind);
  }
  table = static_cast<Table*>(stub->object.get());
  return Zent::kOk;
}

Zent::ErrorStatus EmbeddedDatabase::getSymbolTable(ZnDbBlockTable*& table, int /*mode*/) {
  return OpenTable(table, model::TableKind::kBlock);
}

Zent::ErrorStatus EmbeddedDatabase::getSymbolTable(ZnDbLayerTable*& table, int /*mode*/) {
  return OpenTable(table, model::TableKind::kLayer);
}

Zent::ErrorStatus EmbeddedDatabase::getSymbolTable(ZnDbLinetypeTable*& table, int /*mode*/) {
  return OpenTable(table, model::TableKind::kLinetype);
}

Zent::ErrorStatus EmbeddedDatabase::getSymbolTable(ZnDbViewTable*& table, int /*mode*/) {
  return OpenTable(table, model::TableKind::kView);
}

ZnDbObjectId EmbeddedDatabase::namedObjectsDictionaryId() const {
  if (drawing_ == nullptr) return {};
  if (rootStub_ == nullptr) {
    const std::optional<model::ObjectKey> root = drawing_->RootDictionary();
    if (!root) return {};
    rootStub_ = &stubs_.emplace_back(const_cast<EmbeddedDatabase*>(this), 0);
    rootStub_->key = root;
  }
  return ZnDbObjectId(rootStub_);
}

Zent::ErrorStatus EmbeddedDatabase::OpenDictionary(ZnDbObjectId id, ZnDbDictionary*& dictionary) {
  return zndbOpenObject(dictionary, id, ZnDbDictionary::desc(), ZnDb::kForRead, false);
}

Zent::ErrorStatus EmbeddedDatabase::OpenStandardDictionary(model::DictionaryKind kind,
                                                           ZnDbDictionary*& dictionary) {
  ZnDbDictionary* root = nullptr;
  if (const auto status = OpenDictionary(namedObjectsDictionaryId(), root); status != Zent::kOk) {
    return status;
  }
  ZnDbObjectId id;
  const auto status = root->getAt(drawing_->DictionaryName(kind).c_str(), id);
  return status != Zent::kOk ? status : OpenDictionary(id, dictionary);
}

Zent::ErrorStatus EmbeddedDatabase::getNamedObjectsDictionary(ZnDbDictionary*& dictionary,
                                                              int /*mode*/) {
  return OpenDictionary(namedObjectsDictionaryId(), dictionary);
}

Zent::ErrorStatus EmbeddedDatabase::getGroupDictionary(ZnDbDictionary*& dictionary, int /*mode*/) {
  return OpenStandardDictionary(model::DictionaryKind::kGroup, dictionary);
}

Zent::ErrorStatus EmbeddedDatabase::getMLStyleDictionary(ZnDbDictionary*& dictionary,
                                                         int /*mode*/) {
  return OpenStandardDictionary(model::DictionaryKind::kMlineStyle, dictionary);
}

Zent::ErrorStatus EmbeddedDatabase::getLayoutDictionary(ZnDbDictionary*& dictionary, int /*mode*/) {
  return OpenStandardDictionary(model::DictionaryKind::kLayout, dictionary);
}

Zent::ErrorStatus EmbeddedDatabase::getPlotSettingsDictionary(ZnDbDictionary*& dictionary,
                                                              int /*mode*/) {
  return OpenStandardDictionary(model::DictionaryKind::kPlotSettings, dictionary);
}

Zent::ErrorStatus EmbeddedDatabase::GiveSetting(model::Setting setting, ZnString& text) const {
  if (drawing_ == nullptr) return Zent::kNotApplicable;
  const std::optional<std::wstring> value = drawing_->SettingText(setting);
  if (!value) return Zent::kNotApplicable;
  text = ZnString(value->c_str());
  return Zent::kOk;
}

Zent::ErrorStatus EmbeddedDatabase::getMenu(ZnString& text) const {
  return GiveSetting(model::Setting::kMenu, text);
}

Zent::ErrorStatus EmbeddedDatabase::getProjectName(ZnString& text) const {
  return GiveSetting(model::Setting::kProjectName, text);
}

Zent::ErrorStatus EmbeddedDatabase::getHyperlinkBase(ZnString& text) const {
  return GiveSetting(model::Setting::kHyperlinkBase, text);
}

Zent::ErrorStatus EmbeddedDatabase::getStyleSheet(ZnString& text) const {
  return GiveSetting(model::Setting::kStyleSheet, text);
}

Zent::ErrorStatus EmbeddedDatabase::getDimblk(ZnString& text) const {
  return GiveSetting(model::Setting::kDimblk, text);
}

Zent::ErrorStatus EmbeddedDatabase::getDimblk1(ZnString& text) const {
  return GiveSetting(model::Setting::kDimblk1, text);
}

Zent::ErrorStatus EmbeddedDatabase::getDimblk2(ZnString& text) const {
  return GiveSetting(model::Setting::kDimblk2, text);
}

const wchar_t* EmbeddedDatabase::dimpost() const { return dimpost_.c_str(); }
const wchar_t* EmbeddedDatabase::dimapost() const { return dimapost_.c_str(); }

}  // namespace zdx::database
