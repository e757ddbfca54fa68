// A vertical module: files that a drawing needs and doesn't know of itself.
//
// They stand in a text file beside the drawing, "plan.links" for "plan.dwg": UTF-8, a path on each
// line, from the drawing's folder on if it is relative; empty lines and those that begin with "#"
// are left out.
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "ZDXEngine/FileReferenceService.h"
#include "ZDXEngine/Utf8.h"
#include "ZDXEngine/VerticalModule.h"

namespace fs = std::filesystem;
namespace key = ZDXEngine::VerticalKey;

namespace {

// Nobody needs more.
constexpr std::uintmax_t kLargest = 1 << 20;

// The engine's texts as paths of the system, and back.
fs::path PathOf(const std::wstring& text) {
  const std::string bytes = ZDXEngine::BytesFromWide(text);
  return fs::path(std::u8string(bytes.begin(), bytes.end()));
}

std::wstring TextOf(const fs::path& path) {
  const std::u8string bytes = path.u8string();
  return ZDXEngine::WideFromUtf8(std::string(bytes.begin(), bytes.end()));
}

fs::path SideFileOf(const ZnDbDatabase* database) {
  return PathOf(ZDXEngine::DrawingPath(database)).replace_extension(".links");
}

// All lines, the ones that name no file, too.  None if there is no such file.
std::vector<std::string> LinesOf(const fs::path& path) {
  std::error_code error;
  std::vector<std::string> lines;
  if (!fs::is_regular_file(path, error) || fs::file_size(path, error) > kLargest) return lines;
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);) {
    if (line.ends_with('\r')) line.pop_back();
    lines.push_back(line);
  }
  return lines;
}

bool NamesAFile(const std::string& line) { return !line.empty() && line.front() != '#'; }

// What tells the reference on a line from all others, those of the drawing among them.
std::wstring IdOf(std::size_t line) { return L"links:" + std::to_wstring(line + 1); }

}  // namespace

ZDX_MODULE_EXPORT std::vector<ZDXEngine::VerticalRecord> GetDependencies(
    const ZnDbDatabase* database) {
  const fs::path sideFile = SideFileOf(database);
  const std::vector<std::string> lines = LinesOf(sideFile);
  std::vector<ZDXEngine::VerticalRecord> records;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (!NamesAFile(lines[i])) continue;
    const std::wstring link = ZDXEngine::WideFromUtf8(lines[i]);
    ZDXEngine::VerticalRecord record = {{key::kRefId, IdOf(i)}, {key::kFilePath, link}};
    const fs::path whole = sideFile.parent_path() / PathOf(link);
    std::error_code error;
    if (fs::exists(whole, error)) record[key::kAbsolutePath] = TextOf(whole.lexically_normal());
    records.push_back(record);
  }
  return records;
}

// Writes the new paths into the side file.
ZDX_MODULE_EXPORT std::vector<std::wstring> UpdateDependencies(
    ZnDbDatabase* database, ZDXEngine::VerticalRecord& destinations) {
  const fs::path sideFile = SideFileOf(database);
  std::vector<std::string> lines = LinesOf(sideFile);
  bool isChanged = false;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const auto destination = destinations.find(IdOf(i));
    if (destination == destinations.end() || destination->second.empty()) continue;
    lines[i] = ZDXEngine::Utf8FromWide(destination->second);
    isChanged = true;
  }
  if (!isChanged) return {};
  std::ofstream file(sideFile);
  for (const std::string& line : lines) file << line << '\n';
  if (!file.flush()) throw fs::filesystem_error("can't write", sideFile, std::error_code());
  return {};
}
