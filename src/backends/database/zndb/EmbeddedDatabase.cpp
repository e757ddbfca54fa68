#include "backends/database/zndb/EmbeddedDatabase.h"

#include <utility>
#include <variant>

#include "backends/database/dwg/DwgDrawing.h"
#include "backends/database/dxf/DxfDrawing.h"
#include "backends/database/dxf/Recognition.h"
#include "backends/database/file/MappedFile.h"
#include "backends/database/zndb/Objects.h"

namespace zdx::database {
namespace {

struct FailureRow {
  Zent::ErrorStatus status;
  model::Finding reason;
};

model::Finding Unplaced(const wchar_t* text) { return {text, {}, {}, {}}; }

FailureRow RowOf(file::OpenFailure failure) {
  switch (failure) {
    case file::OpenFailure::kNotFound:
      return {Zent::kFileNotFound, Unplaced(L"There is no such file.")};
    case file::OpenFailure::kNotAFile:
      return {Zent::kFileAccess, Unplaced(L"This isn't a file.")};
    case file::OpenFailure::kNoAccess:
      return {Zent::kFileAccess, Unplaced(L"The file may not be read.")};
    default:
      return {Zent::kFileAccess, Unplaced(L"The system can't open the file.")};
  }
}

Zent::ErrorStatus StatusOf(dwg::RefusalKind kind) {
  switch (kind) {
    case dwg::RefusalKind::kNotADrawing:
      return Zent::kNotADrawing;
    case dwg::RefusalKind::kProtected:
      return Zent::kEncrypted;
    case dwg::RefusalKind::kVersionNotKnown:
      return Zent::kUnknownVersion;
    default:
      return Zent::kDamaged;
  }
}

}  // namespace

// Takes up the reading of `path`; false if a drawing was read already, whose objects are handed
// out.
bool EmbeddedDatabase::Begin(const wchar_t* path) {
  if (drawing_ != nullptr) return false;
  path_ = path;
  report_ = model::Report::Begin(path_);
  return true;
}

Zent::ErrorStatus EmbeddedDatabase::Fail(Zent::ErrorStatus status, model::Finding reason) {
  report_->errors.push_back(std::move(reason));
  return status;
}

Zent::ErrorStatus EmbeddedDatabase::Fail(file::OpenFailure failure) {
  FailureRow row = RowOf(failure);
  return Fail(row.status, std::move(row.reason));
}

Zent::ErrorStatus EmbeddedDatabase::readDwgFile(const wchar_t* path, int /*openMode*/,
                                                bool /*allowCodePageConversion*/,
                                                const wchar_t* /*password*/) {
  if (!Begin(path)) return Zent::kNotApplicable;
  auto opened = file::MappedFile::Open(path_);
  if (const auto* failure = std::get_if<file::OpenFailure>(&opened)) {
    return Fail(*failure);
  }
  auto drawing = dwg::DwgDrawing::Open(std::move(std::get<file::MappedFile>(opened)), report_);
  if (auto* const refusal = std::get_if<dwg::Refusal>(&drawing)) {
    return Fail(StatusOf(refusal->kind), std::move(refusal->reason));
  }
  drawing_ = std::move(std::get<std::unique_ptr<model::Drawing>>(drawing));
  KeepTexts();
  return Zent::kOk;
}

Zent::ErrorStatus EmbeddedDatabase::dxfIn(const wchar_t* path, const wchar_t* /*logPath*/) {
  if (!Begin(path)) return Zent::kNotApplicable;
  auto opened = file::MappedFile::Open(path_);
  if (const auto* failure = std::get_if<file::OpenFailure>(&opened)) {
    return Fail(*failure);
  }
  auto& mapped = std::get<file::MappedFile>(opened);
  dxf::Recognition recognition = dxf::Recognise(mapped.bytes());
  if (!recognition.form) return Fail(Zent::kNotADrawing, std::move(recognition.refusal));
  drawing_ = std::make_unique<dxf::DxfDrawing>(std::move(mapped), *recognition.form, report_);
  KeepTexts();
  return Zent::kOk;
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
