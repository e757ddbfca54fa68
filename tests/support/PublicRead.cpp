#include "support/PublicRead.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "ZDXEngine/Utf8.h"
#include "ZDXEngine/ZDXService.h"

namespace zdx_test {
namespace {

using ZDXEngine::FilePropertyMgr;

// A folder that is removed when the process ends.
class ScratchFolder {
 public:
  ScratchFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "zdx-test-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no scratch folder");
    path_ = pattern;
  }
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

void StartEngineOnce() {
  static const bool started = [] {
    ZDXEngine::ZDXService::SetupHostApplication();
    ZDXEngine::ZDXService::InitHostApplication();
    return true;
  }();
  (void)started;
}

std::string TextOf(const ZDXEngine::_PropData& record) {
  if (record.value.vt != VT_BSTR || record.value.bstrVal == nullptr) return "(no text)";
  return ZDXEngine::Utf8FromWide(record.value.bstrVal);
}

}  // namespace

std::wstring WriteFile(std::string_view bytes, const std::string& suffix) {
  static const ScratchFolder folder;
  static int count = 0;
  const std::filesystem::path path = folder.path() / (std::to_string(count++) + suffix);
  std::ofstream file(path, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) throw std::runtime_error("can't write " + path.string());
  return ZDXEngine::WideFromUtf8(path.string());
}

std::vector<std::string> Reading::Texts(std::wstring_view formatId, std::wstring_view name) const {
  std::vector<std::string> texts;
  for (const ZDXEngine::_PropData& record : properties) {
    if (record.formatId == formatId && record.name == name) texts.push_back(TextOf(record));
  }
  return texts;
}

std::vector<std::pair<std::string, std::string>> Reading::Custom() const {
  std::vector<std::pair<std::string, std::string>> entries;
  for (const ZDXEngine::_PropData& record : properties) {
    if (record.formatId != kCustom) continue;
    entries.emplace_back(ZDXEngine::Utf8FromWide(record.name), TextOf(record));
  }
  return entries;
}

Reading ReadFile(const std::wstring& path, FilePropertyMgr::FilePropertiesSet selection) {
  StartEngineOnce();
  std::vector<ZDXEngine::BlockFilterParam> filters;
  Reading reading;
  reading.properties = FilePropertyMgr::Instance().GetProperties(path, filters, selection);
  reading.diagnostics = ZDXEngine::Diagnostics::LastOpening();
  return reading;
}

Reading ReadBytes(std::string_view bytes, const std::string& suffix) {
  const std::wstring path = WriteFile(bytes, suffix);
  Reading reading = ReadFile(path);
  std::filesystem::remove(ZDXEngine::BytesFromWide(path));
  return reading;
}

}  // namespace zdx_test
