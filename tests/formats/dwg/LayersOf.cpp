#include "formats/dwg/LayersOf.h"

#include <chrono>

#include "backends/database/dwg/DwgDrawing.h"
#include "support/Paths.h"
#include "support/Scratch.h"

namespace model = zdx::model;

Told LayersOf(const std::string& bytes, model::TableKind table) {
  const zdx_test::ScratchFile scratch(bytes);
  const auto begin = std::chrono::steady_clock::now();
  Told told;
  auto report = std::make_shared<model::Report>();
  auto file = zdx::file::MappedFile::Open(zdx_test::NameOf(scratch.path()));
  auto drawing =
      zdx::dwg::DwgDrawing::Open(std::move(std::get<zdx::file::MappedFile>(file)), report);
  auto& opened = *std::get<std::unique_ptr<model::Drawing>>(drawing);
  for (const auto record : opened.TableRecords(table)) {
    if (auto name = opened.RecordName(table, record)) told.names.insert(*name);
  }
  told.warnings = report->warningCount;
  told.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
  return told;
}
