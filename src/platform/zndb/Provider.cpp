#include "platform/zndb/Provider.h"

#include "platform/ProviderSlot.h"

namespace {

constinit platform::ProviderSlot<zndb::Provider> slot;

}  // namespace

namespace zndb {

Provider* InstallProvider(Provider* provider) { return slot.Install(provider); }

}  // namespace zndb

ZnRxDictionary* znrxSysRegistry() { return slot.Get().znrxSysRegistry(); }

ZnDbHostApplicationServices* zndbHostApplicationServices() {
  return slot.Get().zndbHostApplicationServices();
}

Zent::ErrorStatus zndbSetHostApplicationServices(ZnDbHostApplicationServices* services) {
  return slot.Get().zndbSetHostApplicationServices(services);
}

Zent::ErrorStatus zndbValidateSetup(const ZnLocale& locale) {
  return slot.Get().zndbValidateSetup(locale);
}

void zndbCleanUp() { slot.Get().zndbCleanUp(); }

ZnDbHostApplicationServices::ZnDbHostApplicationServices(int loadTranslations) {
  slot.Get().constructServices(this, loadTranslations);
}

ZnDbHostApplicationServices::~ZnDbHostApplicationServices() { slot.Get().destroyServices(this); }

int ZnDbHostApplicationServices::prodcode() const { return slot.Get().prodcode(this); }

bool ZnDbHostApplicationServices::getSubstituteFont(ZnFontRequest* request) {
  return slot.Get().getSubstituteFont(this, request);
}

ZnDbDatabase* ZnDbHostApplicationServices::workingDatabase() const {
  return slot.Get().workingDatabase(this);
}

void ZnDbHostApplicationServices::setWorkingDatabase(ZnDbDatabase* database) {
  slot.Get().setWorkingDatabase(this, database);
}

Zent::ErrorStatus zndbOpenObject(ZnDbObject*& object, ZnDbObjectId id, const ZnRxClass* expected,
                                 int mode, bool openErased) {
  return slot.Get().zndbOpenObject(object, id, expected, mode, openErased);
}

std::uint64_t ZnDbObjectId::nonForwardedHandle() const {
  return slot.Get().nonForwardedHandle(*this);
}

Zent::ErrorStatus zndbGetSummaryInfo(ZnDbDatabase* database, ZnDbDatabaseSummaryInfo*& info) {
  return slot.Get().zndbGetSummaryInfo(database, info);
}

Zent::ErrorStatus zndbGetGeoDataObjId(ZnDbDatabase* database, ZnDbObjectId& id) {
  return slot.Get().zndbGetGeoDataObjId(database, id);
}

bool zndbGetPreviewBitmapFromDwg(const wchar_t* path, os::HBITMAP& bitmap, os::HPALETTE& palette) {
  return slot.Get().zndbGetPreviewBitmapFromDwg(path, bitmap, palette);
}

const os::BITMAPINFO* zndbGetPreviewBitmap(const wchar_t* path) {
  return slot.Get().zndbGetPreviewBitmap(path);
}

void* znHeapAlloc(void* heap, std::size_t size) { return slot.Get().znHeapAlloc(heap, size); }
void znHeapFree(void* heap, void* block) { slot.Get().znHeapFree(heap, block); }

Zent::ErrorStatus znutNewString(const wchar_t* source, wchar_t*& buffer) {
  return slot.Get().znutNewString(source, buffer);
}

void znutDelBuffer(wchar_t*& buffer) { slot.Get().znutDelBuffer(buffer); }

ZnDbDatabase::ZnDbDatabase(bool buildDefault, bool noDocument)
    : body_(slot.Get().createDatabase(this, buildDefault, noDocument)) {}

ZnDbDatabase::~ZnDbDatabase() = default;

void* ZnDbDatabase::operator new(std::size_t size) noexcept { return znHeapAlloc(nullptr, size); }
void ZnDbDatabase::operator delete(void* block) noexcept { znHeapFree(nullptr, block); }

ZnDbDynBlockTableRecord::ZnDbDynBlockTableRecord(ZnDbObjectId id) : id_(id) {
  slot.Get().keepDynBlock(this, id);
}

void* ZnDbDynBlockTableRecord::operator new(std::size_t size) noexcept {
  return znHeapAlloc(nullptr, size);
}
void ZnDbDynBlockTableRecord::operator delete(void* block) noexcept { znHeapFree(nullptr, block); }

bool ZnDbDynBlockTableRecord::isDynamicBlock() const { return slot.Get().isDynamicBlock(id_); }

Zent::ErrorStatus ZnDbDynBlockTableRecord::getAnonymousBlockIds(ZnDbObjectIdArray& ids) const {
  return slot.Get().getAnonymousBlockIds(id_, ids);
}
