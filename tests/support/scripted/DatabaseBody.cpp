#include "support/scripted/DatabaseBody.h"

#include <utility>

namespace scripted {
namespace {

class DatabaseBody : public zndb::DatabaseBody {
 public:
  DatabaseBody(OpenObjects& objects, const Drawing& drawing, std::string label)
      : objects_(objects), drawing_(drawing), label_(std::move(label)) {
    objects_.Books().Acquire(this, label_);
  }
  ~DatabaseBody() override {
    objects_.Log().Record("", "~ZnDbDatabase", label_);
    objects_.Books().Release(this, label_);
  }

  Zent::ErrorStatus readDwgFile(const wchar_t* path, int openMode, bool allowCodePageConversion,
                                const wchar_t* password) override {
    return Status("readDwgFile", Arguments(path, openMode, allowCodePageConversion, password));
  }
  Zent::ErrorStatus dxfIn(const wchar_t* path, const wchar_t* logPath) override {
    return Status("dxfIn", Arguments(path, logPath));
  }
  Zent::ErrorStatus saveAs(const wchar_t* path, bool backUp, int version,
                           const SecurityParams* security) override {
    const std::string protection = security == nullptr ? "null" : "security";
    return Status("saveAs", Arguments(path, backUp, version, protection));
  }
  Zent::ErrorStatus dxfOut(const wchar_t* path, int decimalPlaces, int version,
                           bool thumbnail) override {
    return Status("dxfOut", Arguments(path, decimalPlaces, version, thumbnail));
  }

  int lastSavedAsVersion() const override {
    Status("lastSavedAsVersion");
    return drawing_.lastSavedAsVersion;
  }
  const wchar_t* originalFileName() const override {
    Status("originalFileName");
    return drawing_.originalFileName.c_str();
  }
  int originalFileVersion() const override {
    Status("originalFileVersion");
    return drawing_.originalFileVersion;
  }
  Zent::ErrorStatus getFilename(const wchar_t*& name) const override {
    name = drawing_.filename ? drawing_.filename->c_str() : nullptr;
    return Status("getFilename");
  }

  Zent::ErrorStatus getSymbolTable(ZnDbBlockTable*& table, int mode) override {
    return GetTable(table, drawing_.blocks, "ZnDbBlockTable", mode);
  }
  Zent::ErrorStatus getSymbolTable(ZnDbLayerTable*& table, int mode) override {
    return GetTable(table, drawing_.layers, "ZnDbLayerTable", mode);
  }
  Zent::ErrorStatus getSymbolTable(ZnDbLinetypeTable*& table, int mode) override {
    return GetTable(table, drawing_.linetypes, "ZnDbLinetypeTable", mode);
  }
  Zent::ErrorStatus getSymbolTable(ZnDbViewTable*& table, int mode) override {
    return GetTable(table, drawing_.views, "ZnDbViewTable", mode);
  }

  ZnDbObjectId namedObjectsDictionaryId() const override {
    const Outcome outcome = objects_.Log().Record("", "namedObjectsDictionaryId");
    return outcome.null ? ZnDbObjectId() : IdOf(drawing_.namedObjects);
  }
  Zent::ErrorStatus getGroupDictionary(ZnDbDictionary*& dictionary, int mode) override {
    return GetDictionary(dictionary, drawing_.groups, "getGroupDictionary", mode);
  }
  Zent::ErrorStatus getMLStyleDictionary(ZnDbDictionary*& dictionary, int mode) override {
    return GetDictionary(dictionary, drawing_.mlineStyles, "getMLStyleDictionary", mode);
  }
  Zent::ErrorStatus getLayoutDictionary(ZnDbDictionary*& dictionary, int mode) override {
    return GetDictionary(dictionary, drawing_.layouts, "getLayoutDictionary", mode);
  }
  Zent::ErrorStatus getNamedObjectsDictionary(ZnDbDictionary*& dictionary, int mode) override {
    return GetDictionary(dictionary, drawing_.namedObjects, "getNamedObjectsDictionary", mode);
  }
  Zent::ErrorStatus getPlotSettingsDictionary(ZnDbDictionary*& dictionary, int mode) override {
    return GetDictionary(dictionary, drawing_.plotSettings, "getPlotSettingsDictionary", mode);
  }

  Zent::ErrorStatus getMenu(ZnString& text) const override {
    return GetText(text, drawing_.settings.menu, "getMenu");
  }
  Zent::ErrorStatus getProjectName(ZnString& text) const override {
    return GetText(text, drawing_.settings.projectName, "getProjectName");
  }
  Zent::ErrorStatus getHyperlinkBase(ZnString& text) const override {
    return GetText(text, drawing_.settings.hyperlinkBase, "getHyperlinkBase");
  }
  Zent::ErrorStatus getStyleSheet(ZnString& text) const override {
    return GetText(text, drawing_.settings.styleSheet, "getStyleSheet");
  }
  Zent::ErrorStatus getDimblk(ZnString& text) const override {
    return GetText(text, drawing_.settings.dimblk, "getDimblk");
  }
  Zent::ErrorStatus getDimblk1(ZnString& text) const override {
    return GetText(text, drawing_.settings.dimblk1, "getDimblk1");
  }
  Zent::ErrorStatus getDimblk2(ZnString& text) const override {
    return GetText(text, drawing_.settings.dimblk2, "getDimblk2");
  }
  const wchar_t* dimpost() const override {
    Status("dimpost");
    return drawing_.settings.dimpost.c_str();
  }
  const wchar_t* dimapost() const override {
    Status("dimapost");
    return drawing_.settings.dimapost.c_str();
  }

 private:
  Zent::ErrorStatus Status(std::string_view operation, std::string_view arguments = {}) const {
    return objects_.Log().Record("", operation, arguments).status;
  }

  // The text is there even where the status says failure: nobody may take it then.
  Zent::ErrorStatus GetText(ZnString& text, const std::wstring& value,
                            std::string_view operation) const {
    text = value.c_str();
    return Status(operation);
  }

  template <class T>
  Zent::ErrorStatus GetTable(T*& table, const Table& source, const std::string& className,
                             int mode) {
    table = nullptr;
    const Zent::ErrorStatus status = Status("getSymbolTable", Arguments(className, mode));
    if (status == Zent::kOk) table = static_cast<T*>(objects_.Open(source));
    return status;
  }

  Zent::ErrorStatus GetDictionary(ZnDbDictionary*& dictionary, const Dictionary& source,
                                  std::string_view operation, int mode) {
    dictionary = nullptr;
    const Zent::ErrorStatus status = Status(operation, Arguments(mode));
    if (status == Zent::kOk) dictionary = static_cast<ZnDbDictionary*>(objects_.Open(source));
    return status;
  }

  OpenObjects& objects_;
  const Drawing& drawing_;
  std::string label_;
};

class SummaryInfo : public ZnDbDatabaseSummaryInfo {
 public:
  SummaryInfo(OpenObjects& objects, const Summary& summary) : objects_(objects), summary_(summary) {
    objects_.Books().Acquire(this, "summary");
  }
  ~SummaryInfo() override {
    objects_.Log().Record("summary", "delete");
    objects_.Books().Release(this, "summary");
  }

  Zent::ErrorStatus getTitle(ZnString& text) const override {
    return GetText(text, summary_.title, "getTitle");
  }
  Zent::ErrorStatus getSubject(ZnString& text) const override {
    return GetText(text, summary_.subject, "getSubject");
  }
  Zent::ErrorStatus getAuthor(ZnString& text) const override {
    return GetText(text, summary_.author, "getAuthor");
  }
  Zent::ErrorStatus getKeywords(ZnString& text) const override {
    return GetText(text, summary_.keywords, "getKeywords");
  }
  Zent::ErrorStatus getComments(ZnString& text) const override {
    return GetText(text, summary_.comments, "getComments");
  }
  Zent::ErrorStatus getLastSavedBy(ZnString& text) const override {
    return GetText(text, summary_.lastSavedBy, "getLastSavedBy");
  }
  Zent::ErrorStatus getRevisionNumber(ZnString& text) const override {
    return GetText(text, summary_.revisionNumber, "getRevisionNumber");
  }
  int numCustomInfo() const override {
    objects_.Log().Record("", "numCustomInfo");
    return summary_.customCount.value_or(static_cast<int>(summary_.custom.size()));
  }
  Zent::ErrorStatus getCustomSummaryInfo(int index, ZnString& key, ZnString& value) const override {
    const auto& [storedKey, storedValue] = summary_.custom.at(static_cast<std::size_t>(index));
    key = storedKey.c_str();
    value = storedValue.c_str();
    return objects_.Log().Record("", "getCustomSummaryInfo", Arguments(index)).status;
  }

 private:
  Zent::ErrorStatus GetText(ZnString& text, const std::wstring& value,
                            std::string_view operation) const {
    text = value.c_str();
    return objects_.Log().Record("", operation).status;
  }

  OpenObjects& objects_;
  const Summary& summary_;
};

}  // namespace

std::unique_ptr<zndb::DatabaseBody> NewDatabaseBody(OpenObjects& objects, const Drawing& drawing,
                                                    std::string label) {
  return std::make_unique<DatabaseBody>(objects, drawing, std::move(label));
}

ZnDbDatabaseSummaryInfo* NewSummaryInfo(OpenObjects& objects, const Summary& summary) {
  return new SummaryInfo(objects, summary);
}

}  // namespace scripted
