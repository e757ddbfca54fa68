// Properties in words, for expectations that read as a list.
#pragma once

#include <string>
#include <vector>

#include "ZDXEngine/PropData.h"
#include "support/scripted/CallLog.h"

namespace expected {

inline constexpr wchar_t kSummarySet[] = L"{F29F85E0-4FF9-1068-AB91-08002B27B3D9}";
inline constexpr wchar_t kDocSummarySet[] = L"{D5CDD502-2E9C-101B-9397-08002B2CF9AE}";
inline constexpr wchar_t kCustomSet[] = L"{D5CDD505-2E9C-101B-9397-08002B2CF9AE}";
inline constexpr wchar_t kStorageSet[] = L"{B725F130-47EF-101A-A5F1-02608C9EEBAC}";

// "Layer Name=Walls"; "Title=(null)" for a text that is null.
inline std::string Shown(const ZDXEngine::_PropData& property) {
  const std::string name = scripted::Shown(property.name) + "=";
  if (property.value.vt != VT_BSTR) return name + "(no text)";
  if (property.value.bstrVal == nullptr) return name + "(null)";
  return name + scripted::Shown(property.value.bstrVal);
}

inline std::vector<std::string> Shown(const std::vector<ZDXEngine::_PropData>& properties) {
  std::vector<std::string> words;
  for (const ZDXEngine::_PropData& property : properties) words.push_back(Shown(property));
  return words;
}

}  // namespace expected
