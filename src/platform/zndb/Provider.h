// What stands behind the drawing-database library.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "platform/zndb/ZnDbBlocks.h"
#include "platform/zndb/ZnDbDatabase.h"
#include "platform/zndb/ZnDbDatabaseSummaryInfo.h"
#include "platform/zndb/ZnDbGeoData.h"
#include "platform/zndb/ZnDbHostApplicationServices.h"
#include "platform/zndb/ZnDbObjects.h"
#include "platform/zndb/ZnDbPreview.h"
#include "platform/zndb/ZnUt.h"

namespace zndb {

// What stands behind one ZnDbDatabase; each operation is the one of the same name there.
class DatabaseBody {
 public:
  virtual ~DatabaseBody() = default;

  virtual Zent::ErrorStatus readDwgFile(const wchar_t* path, int openMode,
                                        bool allowCodePageConversion, const wchar_t* password) = 0;
  virtual Zent::ErrorStatus dxfIn(const wchar_t* path, const wchar_t* logPath) = 0;
  virtual Zent::ErrorStatus saveAs(const wchar_t* path, bool backUp, int version,
                                   const SecurityParams* security) = 0;
  virtual Zent::ErrorStatus dxfOut(const wchar_t* path, int decimalPlaces, int version,
                                   bool thumbnail) = 0;
  virtual int lastSavedAsVersion() const = 0;
  virtual int originalFileVersion() const = 0;
  virtual const wchar_t* originalFileName() const = 0;
  virtual Zent::ErrorStatus getFilename(const wchar_t*& name) const = 0;

  virtual Zent::ErrorStatus getSymbolTable(ZnDbBlockTable*& table, int mode) = 0;
  virtual Zent::ErrorStatus getSymbolTable(ZnDbLayerTable*& table, int mode) = 0;
  virtual Zent::ErrorStatus getSymbolTable(ZnDbLinetypeTable*& table, int mode) = 0;
  virtual Zent::ErrorStatus getSymbolTable(ZnDbViewTable*& table, int mode) = 0;

  virtual ZnDbObjectId namedObjectsDictionaryId() const = 0;
  virtual Zent::ErrorStatus getGroupDictionary(ZnDbDictionary*& dictionary, int mode) = 0;
  virtual Zent::ErrorStatus getMLStyleDictionary(ZnDbDictionary*& dictionary, int mode) = 0;
  virtual Zent::ErrorStatus getLayoutDictionary(ZnDbDictionary*& dictionary, int mode) = 0;
  virtual Zent::ErrorStatus getNamedObjectsDictionary(ZnDbDictionary*& dictionary, int mode) = 0;
  virtual Zent::ErrorStatus getPlotSettingsDictionary(ZnDbDictionary*& dictionary, int mode) = 0;

  virtual Zent::ErrorStatus getMenu(ZnString& text) const = 0;
  virtual Zent::ErrorStatus getProjectName(ZnString& text) const = 0;
  virtual Zent::ErrorStatus getHyperlinkBase(ZnString& text) const = 0;
  virtual Zent::ErrorStatus getStyleSheet(ZnString& text) const = 0;
  virtual Zent::ErrorStatus getDimblk(ZnString& text) const = 0;
  virtual Zent::ErrorStatus getDimblk1(ZnString& text) const = 0;
  virtual Zent::ErrorStatus getDimblk2(ZnString& text) const = 0;
  virtual const wchar_t* dimpost() const = 0;
  virtual const wchar_t* dimapost() const = 0;
};

// The library itself; each operation is the one of the same name in this folder's other headers,
// unless its comment says more.
class Provider {
 public:
  virtual ~Provider() = default;

  virtual ZnRxDictionary* znrxSysRegistry() = 0;

  virtual ZnDbHostApplicationServices* zndbHostApplicationServices() = 0;
  virtual Zent::ErrorStatus zndbSetHostApplicationServices(
      ZnDbHostApplicationServices* services) = 0;
  virtual Zent::ErrorStatus zndbValidateSetup(const ZnLocale& locale) = 0;
  virtual void zndbCleanUp() = 0;

  // The base class's part of a services object: told of its construction and destruction, and asked
  // what the object doesn't override.
  virtual void constructServices(ZnDbHostApplicationServices* services, int loadTranslations) = 0;
  virtual void destroyServices(ZnDbHostApplicationServices* services) = 0;
  virtual int prodcode(const ZnDbHostApplicationServices* services) = 0;
  virtual bool getSubstituteFont(ZnDbHostApplicationServices* services, ZnFontRequest* request) = 0;
  virtual ZnDbDatabase* workingDatabase(const ZnDbHostApplicationServices* services) = 0;
  virtual void setWorkingDatabase(ZnDbHostApplicationServices* services,
                                  ZnDbDatabase* database) = 0;

  // What stands behind a new ZnDbDatabase, built with these two arguments.  May throw.
  virtual std::unique_ptr<DatabaseBody> createDatabase(ZnDbDatabase* database, bool buildDefault,
                                                       bool noDocument) = 0;
  virtual Zent::ErrorStatus zndbOpenObject(ZnDbObject*& object, ZnDbObjectId id,
                                           const ZnRxClass* expected, int mode,
                                           bool openErased) = 0;
  virtual std::uint64_t nonForwardedHandle(ZnDbObjectId id) = 0;
  virtual Zent::ErrorStatus zndbGetSummaryInfo(ZnDbDatabase* database,
                                               ZnDbDatabaseSummaryInfo*& info) = 0;
  virtual Zent::ErrorStatus zndbGetGeoDataObjId(ZnDbDatabase* database, ZnDbObjectId& id) = 0;

  // Of ZnDbDynBlockTableRecord: told of each that is made, of the record `id`; the operations get
  // that id.
  virtual void keepDynBlock(ZnDbDynBlockTableRecord* block, ZnDbObjectId id) = 0;
  virtual bool isDynamicBlock(ZnDbObjectId id) = 0;
  virtual Zent::ErrorStatus getAnonymousBlockIds(ZnDbObjectId id, ZnDbObjectIdArray& ids) = 0;

  virtual bool zndbGetPreviewBitmapFromDwg(const wchar_t* path, os::HBITMAP& bitmap,
                                           os::HPALETTE& palette) = 0;
  virtual const os::BITMAPINFO* zndbGetPreviewBitmap(const wchar_t* path) = 0;

  virtual void* znHeapAlloc(void* heap, std::size_t size) = 0;
  virtual void znHeapFree(void* heap, void* block) = 0;
  virtual Zent::ErrorStatus znutNewString(const wchar_t* source, wchar_t*& buffer) = 0;
  virtual void znutDelBuffer(wchar_t*& buffer) = 0;
};

// As os::InstallProvider.
Provider* InstallProvider(Provider* provider);

}  // namespace zndb
