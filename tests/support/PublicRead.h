// Reading a drawing through the public interface alone.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ZDXEngine/Diagnostics.h"
#include "ZDXEngine/FilePropertyMgr.h"

namespace zdx_test {

// The texts of the format ids, as records carry them.
inline constexpr std::wstring_view kSummary = L"{F29F85E0-4FF9-1068-AB91-08002B27B3D9}";
inline constexpr std::wstring_view kCustom = L"{D5CDD505-2E9C-101B-9397-08002B2CF9AE}";
inline constexpr std::wstring_view kStorage = L"{B725F130-47EF-101A-A5F1-02608C9EEBAC}";

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
  // Names and values of the custom entries.
  std::vector<std::pair<std::string, std::string>> Custom() const;
};

// Reads the file at `path`; the engine is started at the first call.
Reading ReadFile(const std::wstring& path, ZDXEngine::FilePropertyMgr::FilePropertiesSet selection =
                                               ZDXEngine::FilePropertyMgr::AllProperties);
// Writes `bytes` to a file and reads it.
Reading ReadBytes(std::string_view bytes, const std::string& suffix = ".dxf");

}  // namespace zdx_test
