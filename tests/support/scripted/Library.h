// The drawing-database library of a scripted world.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/zndb/Provider.h"
#include "support/scripted/OpenObjects.h"

namespace scripted {

class Library : public zndb::Provider {
 public:
  Library(CallLog& calls, Ledger& ledger);
  ~Library() override;

  // What every database of this library holds.
  Drawing drawing;
  // What the services object answers.
  int productCode = 4;
  bool hasSubstituteFont = true;
  ZnDbHostApplicationServices* services = nullptr;
  ZnDbDatabase* working = nullptr;
  // The last request that came to getSubstituteFont.
  ZnFontRequest* fontRequest = nullptr;
  // Makes the handles of a file's preview; without it no file has one.
  std::function<void(os::HBITMAP& bitmap, os::HPALETTE& palette)> preview;
  // The same preview as one block.
  const os::BITMAPINFO* previewBlock = nullptr;

  ZnRxDictionary* znrxSysRegistry() override;

  ZnDbHostApplicationServices* zndbHostApplicationServices() override;
  Zent::ErrorStatus zndbSetHostApplicationServices(ZnDbHostApplicationServices* host) override;
  Zent::ErrorStatus zndbValidateSetup(const ZnLocale& locale) override;
  void zndbCleanUp() override;

  void constructServices(ZnDbHostApplicationServices* host, int loadTranslations) override;
  void destroyServices(ZnDbHostApplicationServices* host) override;
  int prodcode(const ZnDbHostApplicationServices* host) override;
  bool getSubstituteFont(ZnDbHostApplicationServices* host, ZnFontRequest* request) override;
  ZnDbDatabase* workingDatabase(const ZnDbHostApplicationServices* host) override;
  void setWorkingDatabase(ZnDbHostApplicationServices* host, ZnDbDatabase* database) override;

  std::unique_ptr<zndb::DatabaseBody> createDatabase(ZnDbDatabase* database, bool buildDefault,
                                                     bool noDocument) override;
  Zent::ErrorStatus zndbOpenObject(ZnDbObject*& object, ZnDbObjectId id, const ZnRxClass* expected,
                                   int mode, bool openErased) override;
  Zent::ErrorStatus zndbGetSummaryInfo(ZnDbDatabase* database,
                                       ZnDbDatabaseSummaryInfo*& info) override;
  Zent::ErrorStatus zndbGetGeoDataObjId(ZnDbDatabase* database, ZnDbObjectId& id) override;

  void keepDynBlock(ZnDbDynBlockTableRecord* block, ZnDbObjectId id) override;
  std::uint64_t nonForwardedHandle(ZnDbObjectId id) override;
  bool isDynamicBlock(ZnDbObjectId id) override;
  Zent::ErrorStatus getAnonymousBlockIds(ZnDbObjectId id, ZnDbObjectIdArray& ids) override;

  // A script with a status makes it answer false and hand out the handles all the same.
  bool zndbGetPreviewBitmapFromDwg(const wchar_t* path, os::HBITMAP& bitmap,
                                   os::HPALETTE& palette) override;
  const os::BITMAPINFO* zndbGetPreviewBitmap(const wchar_t* path) override;

  void* znHeapAlloc(void* heap, std::size_t size) override;
  void znHeapFree(void* heap, void* block) override;
  Zent::ErrorStatus znutNewString(const wchar_t* source, wchar_t*& buffer) override;
  void znutDelBuffer(wchar_t*& buffer) override;

  // "database 1" for the first that was made, "null" for none.
  std::string NameOf(const ZnDbDatabase* database) const;

 private:
  // Nothing for the installed services, so that their calls are told plainly.
  std::string NameOf(const ZnDbHostApplicationServices* host) const;

  CallLog& calls_;
  Ledger& ledger_;
  OpenObjects objects_;
  std::unique_ptr<ZnRxDictionary> registry_;
  std::map<const ZnDbDatabase*, std::string> names_;
  int databases_ = 0;
  std::vector<void*> dynBlocks_;
};

}  // namespace scripted
