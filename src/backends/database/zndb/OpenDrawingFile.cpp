#include "backends/database/zndb/OpenDrawingFile.h"

#include <utility>
#include <variant>

#include "backends/database/dwg/DwgDrawing.h"
#include "backends/database/dwg/Recognition.h"
#include "backends/database/dxf/DxfDrawing.h"
#include "backends/database/dxf/Recognition.h"
#include "backends/database/file/MappedFile.h"

namespace zdx::database {
namespace {

struct FailureRow {
  Zent::ErrorStatus status;
  const wchar_t* reason;
};

FailureRow RowOf(file::Failure failure) {
  switch (failure) {
    case file::Failure::kNotFound:
      return {Zent::kFileNotFound, L"There is no such file."};
    case file::Failure::kNotAFile:
      return {Zent::kFileAccess, L"This isn't a file."};
    case file::Failure::kInUse:
      return {Zent::kSharingViolation, L"Another program has the file open and doesn't share it."};
    case file::Failure::kNoAccess:
      return {Zent::kFileAccess, L"The file may not be read."};
    default:
      return {Zent::kFileAccess, L"The system can't open the file."};
  }
}

OpenedDrawing Fail(model::Report& report, Zent::ErrorStatus status, model::Finding reason) {
  report.errors.push_back(std::move(reason));
  return {nullptr, status};
}

Zent::ErrorStatus StatusOf(dwg::RefusalKind kind) {
  switch (kind) {
    case dwg::RefusalKind::kNotADrawing:
      return Zent::kNotADrawing;
    case dwg::RefusalKind::kVersionNotKnown:
      return Zent::kUnknownVersion;
    case dwg::RefusalKind::kProtected:
      return Zent::kEncrypted;
    default:
      return Zent::kDamaged;
  }
}

OpenedDrawing OpenDwg(file::MappedFile file, const std::shared_ptr<model::Report>& report) {
  if (!dwg::HasMagic(file.bytes()) && dxf::Recognise(file.bytes()).form) {
    return Fail(*report, Zent::kNotADrawing,
                {L"The file is a DXF drawing, whatever its name says.", 0, {}, {}});
  }
  auto drawing = dwg::DwgDrawing::Open(std::move(file), report);
  if (auto* const refusal = std::get_if<dwg::Refusal>(&drawing)) {
    return Fail(*report, StatusOf(refusal->kind), std::move(refusal->reason));
  }
  return {std::move(std::get<std::unique_ptr<model::Drawing>>(drawing)), Zent::kOk};
}

OpenedDrawing OpenDxf(file::MappedFile file, const std::shared_ptr<model::Report>& report) {
  dxf::Recognition recognition = dxf::Recognise(file.bytes());
  if (!recognition.form) {
    return Fail(*report, Zent::kNotADrawing, std::move(recognition.refusal));
  }
  return {std::make_unique<dxf::DxfDrawing>(std::move(file), *recognition.form, report), Zent::kOk};
}

}  // namespace

OpenedDrawing OpenDrawingFile(const std::wstring& path, Wanted wanted,
                              const std::shared_ptr<model::Report>& report) {
  auto opened = file::MappedFile::Open(path);
  if (const auto* failure = std::get_if<file::Failure>(&opened)) {
    const FailureRow row = RowOf(*failure);
    return Fail(*report, row.status, {row.reason, {}, {}, {}});
  }
  auto& mapped = std::get<file::MappedFile>(opened);
  const bool asDwg =
      wanted == Wanted::kDwg || (wanted == Wanted::kAny && dwg::HasMagic(mapped.bytes()));
  return asDwg ? OpenDwg(std::move(mapped), report) : OpenDxf(std::move(mapped), report);
}

}  // namespace zdx::database
