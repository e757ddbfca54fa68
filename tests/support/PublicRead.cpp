#include "support/PublicRead.h"

#include "ZDXEngine/Utf8.h"
#include "ZDXEngine/ZDXService.h"
#include "support/Paths.h"
#include "support/Scratch.h"

namespace zdx_test {
namespace {

using ZDXEngine::FilePropertyMgr;

std::string TextOf(const ZDXEngine::_PropData& record) {
  if (record.value.vt != VT_BSTR || record.value.bstrVal == nullptr) return "(no text)";
  return ZDXEngine::Utf8FromWide(record.value.bstrVal);
}

}  // namespace

void StartEngine() {
  static const bool started = [] {
    ZDXEngine::ZDXService::SetupHostApplication();
    ZDXEngine::ZDXService::InitHostApplication();
    return true;
  }();
  (void)started;
}

std::wstring WriteFile(std::string_view bytes, const std::string& suffix) {
  return NameOf(NewFile(bytes, suffix));
}

std::vector<std::string> Reading::Texts(std::wstring_view formatId, std::wstring_view name) const {
  std::vector<std::string> texts;
  for (const ZDXEngine::_PropData& record : properties) {
    if (record.formatId == formatId && record.name == name) texts.push_back(TextOf(record));
  }
  return texts;
}

std::vector<std::pair<std::string, std::string>> Reading::Records(
    std::wstring_view formatId) const {
  std::vector<std::pair<std::string, std::string>> entries;
  for (const ZDXEngine::_PropData& record : properties) {
    if (record.formatId != formatId) continue;
    entries.emplace_back(ZDXEngine::Utf8FromWide(record.name), TextOf(record));
  }
  return entries;
}

Reading ReadFile(const std::wstring& path, FilePropertyMgr::FilePropertiesSet selection) {
  return ReadFile(path, {}, selection);
}

Reading ReadFile(const std::wstring& path, std::vector<ZDXEngine::BlockFilterParam> filters,
                 FilePropertyMgr::FilePropertiesSet selection) {
  StartEngine();
  Reading reading;
  reading.properties = FilePropertyMgr::Instance().GetProperties(path, filters, selection);
  reading.diagnostics = ZDXEngine::Diagnostics::LastOpening();
  return reading;
}

std::vector<ZDXEngine::BlockInfo> ListBlocks(const std::wstring& path) {
  StartEngine();
  return ZDXEngine::ListBlocksWithAttributes(path);
}

ZDXEngine::BlockFilterParam FilterFor(const std::wstring& block, bool usePrompt) {
  constexpr GUID kId = {
      0x5F3C1A52, 0x8B1D, 0x4E0A, {0x9C, 0x43, 0x2F, 0x6B, 0x7D, 0x1E, 0x0A, 0x94}};
  return {block, kId, false, usePrompt};
}

Reading ReadBytes(std::string_view bytes, const std::string& suffix) {
  const ScratchFile file(bytes, suffix);
  return ReadFile(NameOf(file.path()));
}

}  // namespace zdx_test
