// What stands behind a ZnDbDatabase: a drawing that was read, and the objects handed out from it.
#pragma once

#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "backends/database/model/Drawing.h"
#include "backends/database/model/Report.h"
#include "backends/database/zndb/OpenDatabases.h"
#include "backends/database/zndb/OpenDrawingFile.h"
#include "backends/database/zndb/Stub.h"
#include "platform/zndb/Provider.h"

namespace zdx::database {

class EmbeddedDatabase : public ::zndb::DatabaseBody {
 public:
  // Is among `open`, which must outlive it, as long as it lives.
  explicit EmbeddedDatabase(OpenDatabases& open);
  ~EmbeddedDatabase() override;
  EmbeddedDatabase(const EmbeddedDatabase&) = delete;
  EmbeddedDatabase& operator=(const EmbeddedDatabase&) = delete;

  // The drawing that was read; null before, and after a reading that failed.
  model::Drawing* drawing() const { return drawing_.get(); }
  // The path of the last reading, and what was found in it; there is no report before a reading.
  const std::wstring& path() const { return path_; }
  model::Report& report() const { return *report_; }

  // The ids of a table's record, of any other object that the drawing told of, and of the object
  // with a handle, which need not exist.
  ZnDbObjectId RecordId(model::TableKind table, model::ObjectKey record);
  ZnDbObjectId EntityId(model::ObjectKey entity);
  ZnDbObjectId HandleId(model::Handle handle);
  // The handle of the object that `stub` stands for; 0 if it has none.
  model::Handle HandleOf(const ZnDbStub& stub) const;
  // The object that `stub` stands for; null if there is none.
  ZnDbObject* Open(ZnDbStub& stub);

  // What a save writes about redirections of model documents; nullopt for what the file holds.
  const std::optional<std::wstring>& redirections() const { return redirections_; }
  void SetRedirections(std::wstring text) { redirections_ = std::move(text); }

  Zent::ErrorStatus GetGeoDataId(ZnDbObjectId& id);
  bool IsDynamicBlock(const ZnDbStub& record);
  Zent::ErrorStatus GetAnonymousBlockIds(const ZnDbStub& record, ZnDbObjectIdArray& ids);
  // Takes `block` over.
  void Keep(ZnDbDynBlockTableRecord* block) { dynBlocks_.push_back(block); }

  Zent::ErrorStatus readDwgFile(const wchar_t* path, int openMode, bool allowCodePageConversion,
                                const wchar_t* password) override;
  Zent::ErrorStatus dxfIn(const wchar_t* path, const wchar_t* logPath) override;
  Zent::ErrorStatus saveAs(const wchar_t* path, bool backUp, int version,
                           const SecurityParams* security) override;
  Zent::ErrorStatus dxfOut(const wchar_t* path, int decimalPlaces, int version,
                           bool thumbnail) override;
  int lastSavedAsVersion() const override;
  int originalFileVersion() const override;
  const wchar_t* originalFileName() const override { return fullPath_.c_str(); }
  Zent::ErrorStatus getFilename(const wchar_t*& name) const override;

  Zent::ErrorStatus getSymbolTable(ZnDbBlockTable*& table, int mode) override;
  Zent::ErrorStatus getSymbolTable(ZnDbLayerTable*& table, int mode) override;
  Zent::ErrorStatus getSymbolTable(ZnDbLinetypeTable*& table, int mode) override;
  Zent::ErrorStatus getSymbolTable(ZnDbViewTable*& table, int mode) override;

  ZnDbObjectId namedObjectsDictionaryId() const override;
  Zent::ErrorStatus getGroupDictionary(ZnDbDictionary*& dictionary, int mode) override;
  Zent::ErrorStatus getMLStyleDictionary(ZnDbDictionary*& dictionary, int mode) override;
  Zent::ErrorStatus getLayoutDictionary(ZnDbDictionary*& dictionary, int mode) override;
  Zent::ErrorStatus getNamedObjectsDictionary(ZnDbDictionary*& dictionary, int mode) override;
  Zent::ErrorStatus getPlotSettingsDictionary(ZnDbDictionary*& dictionary, int mode) override;

  Zent::ErrorStatus getMenu(ZnString& text) const override;
  Zent::ErrorStatus getProjectName(ZnString& text) const override;
  Zent::ErrorStatus getHyperlinkBase(ZnString& text) const override;
  Zent::ErrorStatus getStyleSheet(ZnString& text) const override;
  Zent::ErrorStatus getDimblk(ZnString& text) const override;
  Zent::ErrorStatus getDimblk1(ZnString& text) const override;
  Zent::ErrorStatus getDimblk2(ZnString& text) const override;
  const wchar_t* dimpost() const override;
  const wchar_t* dimapost() const override;

 private:
  template <class Table>
  Zent::ErrorStatus OpenTable(Table*& table, model::TableKind kind);
  std::unique_ptr<ZnDbObject> MakeRecord(ZnDbStub& stub) const;
  std::unique_ptr<ZnDbObject> MakeObject(ZnDbStub& stub);
  ZnRxClass* ClassNamed(const std::wstring& name, const ZnRxClass* parent);
  Zent::ErrorStatus OpenDictionary(ZnDbObjectId id, ZnDbDictionary*& dictionary);
  Zent::ErrorStatus OpenStandardDictionary(model::DictionaryKind kind, ZnDbDictionary*& dictionary);
  bool Begin(const wchar_t* path);
  Zent::ErrorStatus Read(const wchar_t* path, Wanted wanted);
  void KeepTexts();
  Zent::ErrorStatus GiveSetting(model::Setting setting, ZnString& text) const;

  OpenDatabases& open_;
  std::wstring path_;
  std::wstring fullPath_;
  std::shared_ptr<model::Report> report_;
  std::unique_ptr<model::Drawing> drawing_;
  std::wstring dimpost_;
  std::wstring dimapost_;
  std::optional<std::wstring> redirections_;

  // Stubs stay where they are: ids point at them.
  mutable std::deque<ZnDbStub> stubs_;
  std::unordered_map<std::uint64_t, ZnDbStub*> recordStubs_;
  std::unordered_map<std::uint64_t, ZnDbStub*> entityStubs_;
  std::unordered_map<model::Handle, ZnDbStub*> handleStubs_;
  std::map<model::TableKind, ZnDbStub*> tableStubs_;
  mutable ZnDbStub* rootStub_ = nullptr;
  // The classes of objects that have no operations of their own here.
  std::map<std::pair<std::wstring, const ZnRxClass*>, std::unique_ptr<ZnRxClass>> classes_;
  std::vector<ZnDbDynBlockTableRecord*> dynBlocks_;
};

}  // namespace zdx::database
