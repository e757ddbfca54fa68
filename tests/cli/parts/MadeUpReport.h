// A report made up of texts.
#pragma once

#include <array>
#include <cstddef>
#include <deque>
#include <string>

#include "DrawingReport.h"

namespace zdx {

inline constexpr const wchar_t* kSummarySet = L"{F29F85E0-4FF9-1068-AB91-08002B27B3D9}";
inline constexpr const wchar_t* kCustomSet = L"{D5CDD505-2E9C-101B-9397-08002B2CF9AE}";
inline constexpr const wchar_t* kStorageSet = L"{B725F130-47EF-101A-A5F1-02608C9EEBAC}";

// Its values stay its own: none of them may be released by a record.
class MadeUpReport {
 public:
  MadeUpReport() {
    // Only records that hold nothing are copied as a list grows.
    report_.properties.reserve(kMostProperties);
  }
  MadeUpReport(const MadeUpReport&) = delete;
  MadeUpReport& operator=(const MadeUpReport&) = delete;
  ~MadeUpReport() {
    for (ZDXEngine::_PropData& property : report_.properties) property.value.vt = VT_EMPTY;
  }

  // A property without a value yet; at most kMostProperties.
  VARIANT& Add(const wchar_t* set, const wchar_t* name, std::int32_t typeCode) {
    ZDXEngine::_PropData& property = report_.properties.emplace_back();
    property.formatId = set;
    property.name = name;
    property.typeCode = typeCode;
    return property.value;
  }

  void AddText(const wchar_t* set, const wchar_t* name, const wchar_t* text) {
    VARIANT& value = Add(set, name, ZDXEngine::kTypeText);
    value.vt = VT_BSTR;
    value.bstrVal = text == nullptr ? nullptr : texts_.emplace_back(text).data();
  }

  DrawingReport& Report() { return report_; }

 private:
  static constexpr std::size_t kMostProperties = 16;
  std::deque<std::wstring> texts_;
  DrawingReport report_;
};

}  // namespace zdx
