#include "backends/database/zndb/DatabaseProvider.h"

#include <algorithm>
#include <cstdlib>
#include <cwchar>
#include <memory>
#include <optional>

#include "backends/database/zndb/EmbeddedDatabase.h"
#include "backends/database/zndb/OpenDatabases.h"
#include "backends/database/zndb/Preview.h"
#include "backends/database/zndb/Runtime.h"
#include "backends/database/zndb/Stub.h"
#include "backends/database/zndb/SummaryInfo.h"

namespace zdx::database {
namespace {

// The product code of a library that runs inside a host of the engine's kind.
constexpr int kHostedProduct = 4;

class Provider : public ::zndb::Provider {
 public:
  ZnRxDictionary* znrxSysRegistry() override { return &registry_; }

  ZnDbHostApplicationServices* zndbHostApplicationServices() override { return services_; }

  Zent::ErrorStatus zndbSetHostApplicationServices(ZnDbHostApplicationServices* services) override {
    services_ = services;
    return Zent::kOk;
  }

  // Nothing here depends on the locale.
  Zent::ErrorStatus zndbValidateSetup(const ZnLocale& /*locale*/) override { return Zent::kOk; }
  // Nothing is held for the process.
  void zndbCleanUp() override {}

  void constructServices(ZnDbHostApplicationServices* /*services*/,
                         int /*loadTranslations*/) override {}

  void destroyServices(ZnDbHostApplicationServices* services) override {
    if (services_ == services) services_ = nullptr;
  }

  int prodcode(const ZnDbHostApplicationServices* /*services*/) override { return kHostedProduct; }

  // No fonts are needed to read a drawing.
  bool getSubstituteFont(ZnDbHostApplicationServices* /*services*/,
                         ZnFontRequest* /*request*/) override {
    return false;
  }

  ZnDbDatabase* workingDatabase(const ZnDbHostApplicationServices* /*services*/) override {
    return workingDatabase_;
  }

  void setWorkingDatabase(ZnDbHostApplicationServices* /*services*/,
                          ZnDbDatabase* database) override {
    workingDatabase_ = database;
  }

  std::unique_ptr<::zndb::DatabaseBody> createDatabase(ZnDbDatabase* /*database*/,
                                                       bool /*buildDefault*/,
                                                       bool /*noDocument*/) override {
    return std::make_unique<EmbeddedDatabase>(open_);
  }

  Zent::ErrorStatus zndbOpenObject(ZnDbObject*& object, ZnDbObjectId id, const ZnRxClass* expected,
                                   int /*mode*/, bool /*openErased*/) override {
    object = nullptr;
    if (id.isNull()) return Zent::kUnknownHandle;
    ZnDbObject* const found = id.stub()->owner->Open(*id.stub());
    if (found == nullptr) return Zent::kUnknownHandle;
    if (expected != nullptr && !found->isA()->isDerivedFrom(expected)) return Zent::kNotOfThatClass;
    object = found;
    return Zent::kOk;
  }

  std::uint64_t nonForwardedHandle(ZnDbObjectId id) override {
    return id.isNull() ? 0 : id.stub()->owner->HandleOf(*id.stub());
  }

  Zent::ErrorStatus zndbGetSummaryInfo(ZnDbDatabase* database,
                                       ZnDbDatabaseSummaryInfo*& info) override {
    info = nullptr;
    if (database == nullptr) return Zent::kNullDatabase;
    model::Drawing* const drawing = static_cast<EmbeddedDatabase&>(database->body()).drawing();
    if (drawing == nullptr) return Zent::kNotApplicable;
    auto summary = drawing->ReadSummary();
    if (!summary) return Zent::kNotApplicable;
    info = new SummaryInfo(*std::move(summary));
    return Zent::kOk;
  }

  Zent::ErrorStatus zndbGetGeoDataObjId(ZnDbDatabase* database, ZnDbObjectId& id) override {
    id = ZnDbObjectId();
    if (database == nullptr) return Zent::kNullDatabase;
    return static_cast<EmbeddedDatabase&>(database->body()).GetGeoDataId(id);
  }

  // One of no drawing is nobody's.
  void keepDynBlock(ZnDbDynBlockTableRecord* block, ZnDbObjectId id) override {
    if (!id.isNull()) id.stub()->owner->Keep(block);
  }

  bool isDynamicBlock(ZnDbObjectId id) override {
    return !id.isNull() && id.stub()->owner->IsDynamicBlock(*id.stub());
  }

  Zent::ErrorStatus getAnonymousBlockIds(ZnDbObjectId id, ZnDbObjectIdArray& ids) override {
    if (id.isNull()) return Zent::kUnknownHandle;
    return id.stub()->owner->GetAnonymousBlockIds(*id.stub(), ids);
  }

  bool zndbGetPreviewBitmapFromDwg(const wchar_t* path, os::HBITMAP& bitmap,
                                   os::HPALETTE& palette) override {
    if (path == nullptr) return false;
    const auto preview = PreviewOf(path, open_);
    return preview && MakeBitmap(*preview, bitmap, palette);
  }

  const os::BITMAPINFO* zndbGetPreviewBitmap(const wchar_t* path) override {
    preview_.reset();
    if (path != nullptr) preview_ = PreviewOf(path, open_);
    return preview_ ? preview_->info() : nullptr;
  }

  void* znHeapAlloc(void* /*heap*/, std::size_t size) override { return std::malloc(size); }
  void znHeapFree(void* /*heap*/, void* block) override { std::free(block); }

  Zent::ErrorStatus znutNewString(const wchar_t* source, wchar_t*& buffer) override {
    if (source == nullptr) return Zent::kInvalidInput;
    const std::size_t units = std::wcslen(source) + 1;
    auto* const copy = static_cast<wchar_t*>(std::malloc(units * sizeof(wchar_t)));
    if (copy == nullptr) return Zent::kOutOfMemory;
    std::copy_n(source, units, copy);
    buffer = copy;
    return Zent::kOk;
  }

  void znutDelBuffer(wchar_t*& buffer) override {
    std::free(buffer);
    buffer = nullptr;
  }

 private:
  RuntimeRegistry registry_;
  ZnDbHostApplicationServices* services_ = nullptr;
  ZnDbDatabase* workingDatabase_ = nullptr;
  OpenDatabases open_;
  // Handed out by pointer.
  std::optional<preview::Dib> preview_;
};

}  // namespace

::zndb::Provider* EmbeddedProvider() {
  // Never destroyed: objects that die when the process exits still call it.
  static auto* const provider = new Provider();
  return provider;
}

}  // namespace zdx::database
