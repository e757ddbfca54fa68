#include "backends/database/zndb/OpenDrawingFile.h"

#include <utility>
#include <variant>

#include "backends/database/dxf/DxfDrawing.h"
#include "backends/database/dxf/Recognition.h"
#include "backends/database/file/MappedFile.h"

namespace zdx::database {
namespace {

struct FailureRow {
  Zent::ErrorStatus status;
  const wchar_t* reason;
};

FailureRow RowOf(file::OpenFailure failure) {
  switch (failure) {
    case file::OpenFailure::kNotFound:
      return {Zent::kFileNotFound, L"There is no such file."};
    case file::OpenFailure::kNotAFile:
      return {Zent::kFileAccess, L"This isn't a file."};
    case file::OpenFailure::kNoAccess:
      return {Zent::kFileAccess, L"The file may not be read."};
    default:
      return {Zent::kFileAccess, L"The system can't open the file."};
  }
}

OpenedDrawing Fail(model::Report& report, Zent::ErrorStatus status, model::Finding reason) {
  report.errors.push_back(std::move(reason));
  return {nullptr, status};
}

}  // namespace

OpenedDrawing OpenDrawingFile(const std::wstring& path, Wanted wanted,
                              const std::shared_ptr<model::Report>& report) {
  auto opened = file::MappedFile::Open(path);
  if (const auto* failure = std::get_if<file::OpenFailure>(&opened)) {
    const FailureRow row = RowOf(*failure);
    return Fail(*report, row.status, {row.reason, {}, {}, {}});
  }
  if (wanted == Wanted::kDwg) {
    return Fail(*report, Zent::kNotADrawing,
                {L"This version reads DXF drawings alone.", {}, {}, {}});
  }
  auto& mapped = std::get<file::MappedFile>(opened);
  dxf::Recognition recognition = dxf::Recognise(mapped.bytes());
  if (!recognition.form) {
    return Fail(*report, Zent::kNotADrawing, std::move(recognition.refusal));
  }
  return {std::make_unique<dxf::DxfDrawing>(std::move(mapped), *recognition.form, report),
          Zent::kOk};
}

}  // namespace zdx::database
