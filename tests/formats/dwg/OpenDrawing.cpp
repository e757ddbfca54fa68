#include "formats/dwg/OpenDrawing.h"

#include <stdexcept>
#include <variant>

#include "ZDXEngine/Utf8.h"
#include "backends/database/dwg/DwgDrawing.h"
#include "support/Paths.h"
#include "support/Scratch.h"
#include "support/dwg/DwgMaker.h"

using zdx::model::ObjectKey;
using zdx::model::TableKind;

OpenDrawing::OpenDrawing(const std::string& bytes)
    : report(std::make_shared<zdx::model::Report>()) {
  const zdx_test::ScratchFile file(bytes);
  auto mapped = zdx::file::MappedFile::Open(zdx_test::NameOf(file.path()));
  auto opened =
      zdx::dwg::DwgDrawing::Open(std::move(std::get<zdx::file::MappedFile>(mapped)), report);
  drawing = std::move(std::get<std::unique_ptr<zdx::model::Drawing>>(opened));
}

OpenDrawing::OpenDrawing(const drawing::DrawingSpec& spec) : OpenDrawing(dwg::Make(spec)) {}

std::vector<std::string> OpenDrawing::BlockNames() {
  std::vector<std::string> names;
  for (const ObjectKey record : drawing->TableRecords(TableKind::kBlock)) {
    names.push_back(
        ZDXEngine::Utf8FromWide(drawing->RecordName(TableKind::kBlock, record).value_or(L"?")));
  }
  return names;
}

ObjectKey OpenDrawing::Block(const std::wstring& name) {
  for (const ObjectKey record : drawing->TableRecords(TableKind::kBlock)) {
    if (drawing->HasName(TableKind::kBlock, record, name)) return record;
  }
  throw std::invalid_argument("no such block: " + ZDXEngine::Utf8FromWide(name));
}
