#include "formats/dwg/LayersOf.h"

#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>

#include "ZDXEngine/Utf8.h"
#include "backends/database/dwg/DwgDrawing.h"

namespace model = zdx::model;

Told LayersOf(const std::string& bytes, model::TableKind table) {
  const auto path =
      std::filesystem::temp_directory_path() / ("zdx-hostile-" + std::to_string(getpid()));
  std::ofstream(path, std::ios::binary) << bytes;
  const auto begin = std::chrono::steady_clock::now();
  Told told;
  auto report = std::make_shared<model::Report>();
  auto file = zdx::file::MappedFile::Open(ZDXEngine::WideFromUtf8(path.string()));
  auto drawing =
      zdx::dwg::DwgDrawing::Open(std::move(std::get<zdx::file::MappedFile>(file)), report);
  auto& opened = *std::get<std::unique_ptr<model::Drawing>>(drawing);
  for (const auto record : opened.TableRecords(table)) {
    if (auto name = opened.RecordName(table, record)) told.names.insert(*name);
  }
  told.warnings = report->warningCount;
  told.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
  std::filesystem::remove(path);
  return told;
}
