#include "support/scripted/Library.h"

#include <cstdlib>
#include <cwchar>

#include "support/scripted/DatabaseBody.h"
#include "support/scripted/Registry.h"

namespace scripted {

Library::Library(CallLog& calls, Ledger& ledger)
    : calls_(calls), ledger_(ledger), objects_(calls, ledger), registry_(NewRegistry(calls)) {}

Library::~Library() {
  for (void* const block : dynBlocks_) std::free(block);
}

ZnRxDictionary* Library::znrxSysRegistry() {
  calls_.Record("", "znrxSysRegistry");
  return registry_.get();
}

ZnDbHostApplicationServices* Library::zndbHostApplicationServices() {
  calls_.Record("", "zndbHostApplicationServices");
  return services;
}

Zent::ErrorStatus Library::zndbSetHostApplicationServices(ZnDbHostApplicationServices* host) {
  services = host;
  return calls_.Record("", "zndbSetHostApplicationServices").status;
}

Zent::ErrorStatus Library::zndbValidateSetup(const ZnLocale& locale) {
  return calls_.Record("", "zndbValidateSetup", Arguments(locale.id())).status;
}

void Library::zndbCleanUp() { calls_.Record("", "zndbCleanUp"); }

void Library::constructServices(ZnDbHostApplicationServices* /*host*/, int loadTranslations) {
  calls_.Record("", "ZnDbHostApplicationServices", Arguments(loadTranslations));
}

void Library::destroyServices(ZnDbHostApplicationServices* host) {
  calls_.Record("", "~ZnDbHostApplicationServices");
  if (services == host) services = nullptr;
}

int Library::prodcode(const ZnDbHostApplicationServices* host) {
  calls_.Record(NameOf(host), "prodcode");
  return productCode;
}

bool Library::getSubstituteFont(ZnDbHostApplicationServices* /*host*/, ZnFontRequest* request) {
  calls_.Record("", "getSubstituteFont");
  fontRequest = request;
  return hasSubstituteFont;
}

ZnDbDatabase* Library::workingDatabase(const ZnDbHostApplicationServices* host) {
  calls_.Record(NameOf(host), "workingDatabase");
  return working;
}

void Library::setWorkingDatabase(ZnDbHostApplicationServices* host, ZnDbDatabase* database) {
  calls_.Record(NameOf(host), "setWorkingDatabase", NameOf(database));
  working = database;
}

std::unique_ptr<zndb::DatabaseBody> Library::createDatabase(ZnDbDatabase* database,
                                                            bool buildDefault, bool noDocument) {
  calls_.Record("", "ZnDbDatabase", Arguments(buildDefault, noDocument));
  names_[database] = "database " + std::to_string(++databases_);
  return NewDatabaseBody(objects_, drawing, NameOf(database));
}

Zent::ErrorStatus Library::zndbOpenObject(ZnDbObject*& object, ZnDbObjectId id,
                                          const ZnRxClass* expected, int mode, bool openErased) {
  object = nullptr;
  const Node* const node = NodeOf(id);
  const Outcome outcome = calls_.Record(
      "", "zndbOpenObject",
      Arguments(LabelOf(id), expected == nullptr ? L"any" : expected->name(), mode, openErased));
  if (outcome.status != Zent::kOk) return outcome.status;
  if (node == nullptr) return Zent::kUnknownHandle;
  const ZnRxClass* const actual = ClassOf(*node);
  if (expected != nullptr && (actual == nullptr || !actual->isDerivedFrom(expected))) {
    return Zent::kNotOfThatClass;
  }
  object = objects_.Open(*node);
  return Zent::kOk;
}

Zent::ErrorStatus Library::zndbGetSummaryInfo(ZnDbDatabase* /*database*/,
                                              ZnDbDatabaseSummaryInfo*& info) {
  info = nullptr;
  const Outcome outcome = calls_.Record("", "zndbGetSummaryInfo");
  if (outcome.status == Zent::kOk) info = NewSummaryInfo(objects_, drawing.summary);
  return outcome.status;
}

// The id is there even where the status says failure: nobody may take it then.
Zent::ErrorStatus Library::zndbGetGeoDataObjId(ZnDbDatabase* database, ZnDbObjectId& id) {
  const Outcome outcome = calls_.Record("", "zndbGetGeoDataObjId", NameOf(database));
  id = drawing.location && !outcome.null ? IdOf(*drawing.location) : ZnDbObjectId();
  return outcome.status;
}

// From now on the library frees it, and nobody else may.
void Library::keepDynBlock(ZnDbDynBlockTableRecord* block, ZnDbObjectId id) {
  calls_.Record("", "ZnDbDynBlockTableRecord", LabelOf(id));
  ledger_.Release(block, "heap block");
  dynBlocks_.push_back(block);
}

std::uint64_t Library::nonForwardedHandle(ZnDbObjectId id) {
  calls_.Record("", "nonForwardedHandle", LabelOf(id));
  const auto* const record = dynamic_cast<const Record*>(NodeOf(id));
  return record == nullptr ? 0 : record->handle;
}

bool Library::isDynamicBlock(ZnDbObjectId id) {
  const Outcome outcome = calls_.Record("", "isDynamicBlock", LabelOf(id));
  const auto* const record = dynamic_cast<const Record*>(NodeOf(id));
  return record != nullptr && record->dynamic && !outcome.null;
}

// The ids are there even where the status says failure.
Zent::ErrorStatus Library::getAnonymousBlockIds(ZnDbObjectId id, ZnDbObjectIdArray& ids) {
  const Outcome outcome = calls_.Record("", "getAnonymousBlockIds", LabelOf(id));
  ids.clear();
  const auto* const record = dynamic_cast<const Record*>(NodeOf(id));
  if (record == nullptr) return Zent::kUnknownHandle;
  for (const Record* copy : record->copies) ids.push_back(IdOf(*copy));
  return outcome.status;
}

bool Library::zndbGetPreviewBitmapFromDwg(const wchar_t* path, os::HBITMAP& bitmap,
                                          os::HPALETTE& palette) {
  const std::string before = bitmap == nullptr && palette == nullptr ? "null" : "not null";
  const Outcome outcome = calls_.Record("", "zndbGetPreviewBitmapFromDwg", Arguments(path, before));
  if (!preview || outcome.null) return false;
  preview(bitmap, palette);
  return outcome.status == Zent::kOk;
}

const os::BITMAPINFO* Library::zndbGetPreviewBitmap(const wchar_t* path) {
  return calls_.Record("", "zndbGetPreviewBitmap", Arguments(path)).null ? nullptr : previewBlock;
}

void* Library::znHeapAlloc(void* heap, std::size_t size) {
  const bool fits = size >= sizeof(ZnDbDatabase);
  const std::string words = fits ? "enough for a database" : "too little for a database";
  const std::string where = heap == nullptr ? "null" : "heap";
  if (calls_.Record("", "znHeapAlloc", Arguments(where, words)).null) return nullptr;
  void* const block = std::malloc(size);
  ledger_.Acquire(block, "heap block");
  return block;
}

void Library::znHeapFree(void* heap, void* block) {
  calls_.Record("", "znHeapFree", heap == nullptr ? "null" : "heap");
  if (block == nullptr || !ledger_.Release(block, "heap block")) return;
  std::free(block);
}

// A script may make it fail, or succeed and leave the buffer as it was.
Zent::ErrorStatus Library::znutNewString(const wchar_t* source, wchar_t*& buffer) {
  const Outcome outcome = calls_.Record("", "znutNewString", Arguments(source));
  if (outcome.status != Zent::kOk || outcome.null) return outcome.status;
  if (source == nullptr) return Zent::kInvalidInput;
  const std::size_t size = std::wcslen(source) + 1;
  buffer = static_cast<wchar_t*>(std::malloc(size * sizeof(wchar_t)));
  std::wmemcpy(buffer, source, size);
  ledger_.Acquire(buffer, "buffer " + Shown(source));
  return Zent::kOk;
}

void Library::znutDelBuffer(wchar_t*& buffer) {
  calls_.Record("", "znutDelBuffer");
  if (buffer != nullptr && ledger_.Release(buffer, "buffer")) std::free(buffer);
  buffer = nullptr;
}

std::string Library::NameOf(const ZnDbHostApplicationServices* host) const {
  return host == services ? "" : "services not installed";
}

std::string Library::NameOf(const ZnDbDatabase* database) const {
  const auto found = names_.find(database);
  if (database == nullptr) return "null";
  return found == names_.end() ? "unknown database" : found->second;
}

}  // namespace scripted
