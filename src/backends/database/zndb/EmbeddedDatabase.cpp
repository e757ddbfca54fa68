#include "backends/database/zndb/EmbeddedDatabase.h"

#include <utility>

#include "backends/System.h"
#include "backends/database/zndb/Objects.h"

namespace zdx::database {

EmbeddedDatabase::EmbeddedDatabase(OpenDatabases& open) : open_(open) { open_.Add(this); }

EmbeddedDatabase::~EmbeddedDatabase() {
  for (ZnDbDynBlockTableRecord* const block : dynBlocks_) znHeapFree(nullptr, block);
  open_.Remove(this);
}

// Takes up the reading of `path`; false if a drawing was read already, whose objects are handed
// out.
bool EmbeddedDatabase::Begin(const wchar_t* path) {
  if (drawing_ != nullptr) return false;
  path_ = path;
  fullPath_ = FullPath(path_);
  report_ = model::Report::Begin(path_);
  return true;
}

Zent::ErrorStatus EmbeddedDatabase::Read(const wchar_t* path, Wanted wanted) {
  if (!Begin(path)) return Zent::kNotApplicable;
  OpenedDrawing opened = OpenDrawingFile(path_, wanted, report_);
  if (opened.drawing == nullptr) return opened.status;
  drawing_ = std::move(opened.drawing);
  KeepTexts();
  return Zent::kOk;
}

Zent::ErrorStatus EmbeddedDatabase::readDwgFile(const wchar_t* path, int /*openMode*/,
                                                bool /*allowCodePageConversion*/,
                                                const wchar_t* /*password*/) {
  return Read(path, Wanted::kDwg);
}

Zent::ErrorStatus EmbeddedDatabase::dxfIn(const wchar_t* path, const wchar_t* /*logPath*/) {
  return Read(path, Wanted::kDxf);
}

// These two are handed out by pointer.
void EmbeddedDatabase::KeepTexts() {
  dimpost_ = drawing_->SettingText(model::Setting::kDimpost).value_or(L"");
  dimapost_ = drawing_->SettingText(model::Setting::kDimapost).value_or(L"");
}

Zent::ErrorStatus EmbeddedDatabase::saveAs(const wchar_t* /*path*/, bool /*backUp*/,
                                           int /*version*/, const SecurityParams* /*security*/) {
  return Zent::kNotApplicable;
}

Zent::ErrorStatus EmbeddedDatabase::dxfOut(const wchar_t* /*path*/, int /*decimalPlaces*/,
                                           int /*version*/, bool /*thumbnail*/) {
  return Zent::kNotApplicable;
}

int EmbeddedDatabase::lastSavedAsVersion() const { return 0; }

int EmbeddedDatabase::originalFileVersion() const {
  return drawing_ == nullptr ? 0 : drawing_->version();
}

Zent::ErrorStatus EmbeddedDatabase::getFilename(const wchar_t*& name) const {
  name = path_.c_str();
  return path_.empty() ? Zent::kNotApplicable : Zent::kOk;
}

}  // namespace zdx::database
