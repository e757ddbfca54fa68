// Reading a drawing through the public interface alone.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ZDXEngine/BlockListing.h"
#include "ZDXEngine/Diagnostics.h"
#include "ZDXEngine/FilePropertyMgr.h"

namespace zdx_test {

// The texts of the format ids, as records carry them.
inline constexpr std::wstring_view kSummary = L"{F29F85E0-4FF9-1068-AB91-08002B27B3D9}";
inline constexpr std::wstring_view kCustom = L"{D5CDD505-2E9C-101B-9397-08002B2CF9AE}";
inline constexpr std::wstring_view kStorage = L"{B725F130-47EF-101A-A5F1-02608C9EEBAC}";

// Starts the engine at the first call.
void StartEngine();

// The name of a new file of `bytes`, which goes away with the process; it ends in `suffix`.
std::wstring WriteFile(std::string_view bytes, const std::string& suffix = ".dxf");

// The properties of a drawing, and what was told of its opening.
struct Reading {
  std::vector<ZDXEngine::_PropData> properties;
  ZDXEngine::Diagnostics diagnostics;

  // The values, as UTF-8, of the records of that set and name, in their order.
  std::vector<std::string> Texts(std::wstring_view formatId, std::wstring_view name) const;
  // Those of the engine's own set.
  std::vector<std::string> Texts(std::wstring_view name) const { return Texts(kStorage, name); }
  // Names and values of all records of that set, in their order.
  std::vector<std::pair<std::string, std::string>> Records(std::wstring_view formatId) const;
  // Those of the custom entries.
  std::vector<std::pair<std::string, std::string>> Custom() const { return Records(kCustom); }
};

// Reads the file at `path`; the engine is started at the first call.
Reading ReadFile(const std::wstring& path, ZDXEngine::FilePropertyMgr::FilePropertiesSet selection =
                                               ZDXEngine::FilePropertyMgr::AllProperties);
// The same with values of the blocks that `filters` name.
Reading ReadFile(const std::wstring& path, std::vector<ZDXEngine::BlockFilterParam> filters,
                 ZDXEngine::FilePropertyMgr::FilePropertiesSet selection);
// What is told of the blocks that carry attributes; the engine is started at the first call.
std::vector<ZDXEngine::BlockInfo> ListBlocks(const std::wstring& path);

// The set under which the tests' filters publish values, and one such filter.
inline constexpr std::wstring_view kBlockSet = L"{5F3C1A52-8B1D-4E0A-9C43-2F6B7D1E0A94}";
ZDXEngine::BlockFilterParam FilterFor(const std::wstring& block, bool usePrompt);

// Writes `bytes` to a file and reads it.
Reading ReadBytes(std::string_view bytes, const std::string& suffix = ".dxf");

}  // namespace zdx_test
