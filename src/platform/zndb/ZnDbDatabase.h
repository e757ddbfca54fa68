// One drawing in memory.
#pragma once

#include <cstddef>
#include <memory>

#include "platform/zndb/Status.h"
#include "platform/zndb/ZnDbObjects.h"
#include "platform/zndb/ZnString.h"

struct SecurityParams;

namespace zndb {
class DatabaseBody;
}  // namespace zndb

// A drawing database.  Built on the caller's stack, or on the library's heap by `new`.
class ZnDbDatabase {
 public:
  // `buildDefault` true: a database to work in while no file is open, whose contents nobody asks
  // for; false: it waits for a file, and reads one only. `noDocument` is always true: no document
  // is tied to it.
  ZnDbDatabase(bool buildDefault, bool noDocument);
  virtual ~ZnDbDatabase();
  ZnDbDatabase(const ZnDbDatabase&) = delete;
  ZnDbDatabase& operator=(const ZnDbDatabase&) = delete;

  // The library's heap; null, and no construction, if it has no block.
  static void* operator new(std::size_t size) noexcept;
  static void operator delete(void* block) noexcept;

  // Reads a drawing file.  `openMode` 4 is for reading alone, 3 for reading and writing back.
  // Statuses that callers tell apart: 76 no such file, 314 not a drawing, those of protection.
  Zent::ErrorStatus readDwgFile(const wchar_t* path, int openMode, bool allowCodePageConversion,
                                const wchar_t* password);
  // Reads a DXF file; statuses as above.
  Zent::ErrorStatus dxfIn(const wchar_t* path, const wchar_t* logPath);
  // Writes a drawing file in `version`.
  Zent::ErrorStatus saveAs(const wchar_t* path, bool backUp, int version,
                           const SecurityParams* security);
  // Writes a DXF file in `version` with `decimalPlaces` digits behind the point.
  Zent::ErrorStatus dxfOut(const wchar_t* path, int decimalPlaces, int version, bool thumbnail);

  // The version of the last save; 0 if there is none.
  int lastSavedAsVersion() const;
  // The version of the file as it was read; 0 if none was.
  int originalFileVersion() const;
  // The full path from which the database was read; empty, never null, if none was.  Valid as long
  // as the database.
  const wchar_t* originalFileName() const;
  // The database's file name; `name` is valid as long as the database.
  Zent::ErrorStatus getFilename(const wchar_t*& name) const;

  // The symbol tables, open for read; the pointer is null unless the status is 0.
  Zent::ErrorStatus getSymbolTable(ZnDbBlockTable*& table, int mode);
  Zent::ErrorStatus getSymbolTable(ZnDbLayerTable*& table, int mode);
  Zent::ErrorStatus getSymbolTable(ZnDbLinetypeTable*& table, int mode);
  Zent::ErrorStatus getSymbolTable(ZnDbViewTable*& table, int mode);

  // The root dictionary; null if the drawing has none.
  ZnDbObjectId namedObjectsDictionaryId() const;
  // The standard dictionaries, open for read; pointers as above.
  Zent::ErrorStatus getGroupDictionary(ZnDbDictionary*& dictionary, int mode);
  Zent::ErrorStatus getMLStyleDictionary(ZnDbDictionary*& dictionary, int mode);
  Zent::ErrorStatus getLayoutDictionary(ZnDbDictionary*& dictionary, int mode);
  Zent::ErrorStatus getNamedObjectsDictionary(ZnDbDictionary*& dictionary, int mode);
  Zent::ErrorStatus getPlotSettingsDictionary(ZnDbDictionary*& dictionary, int mode);

  // Text settings.  A status tells a setting that the drawing's version can't hold.
  Zent::ErrorStatus getMenu(ZnString& text) const;
  Zent::ErrorStatus getProjectName(ZnString& text) const;
  Zent::ErrorStatus getHyperlinkBase(ZnString& text) const;
  Zent::ErrorStatus getStyleSheet(ZnString& text) const;
  // The names of the arrow blocks, as the block table spells them; empty for the default arrow.
  Zent::ErrorStatus getDimblk(ZnString& text) const;
  Zent::ErrorStatus getDimblk1(ZnString& text) const;
  Zent::ErrorStatus getDimblk2(ZnString& text) const;
  // These never fail; the text is valid as long as the database.
  virtual const wchar_t* dimpost() const;
  virtual const wchar_t* dimapost() const;

  // What the provider keeps for this database.
  zndb::DatabaseBody& body() const { return *body_; }

 private:
  std::unique_ptr<zndb::DatabaseBody> body_;
};
