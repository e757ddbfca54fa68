// A notifier that keeps what it was told.
#pragma once

#include <string>
#include <vector>

#include "ZDXEngine/Utf8.h"
#include "properties/appinfo/ZnHsAppInfoNotifier.h"

namespace appinfo {

class Heard final : public ZDXEngine::ZnHsAppInfoNotifier {
 public:
  void OnEntryCount(std::uint32_t count) override {
    words.push_back("count " + std::to_string(count));
  }
  void OnPropertySet(const GUID& formatId, const std::wstring& text) override {
    words.push_back(ZDXEngine::Utf8FromWide(text));
    ids.push_back(formatId);
  }

  // "count 2", then the texts.
  std::vector<std::string> words;
  std::vector<GUID> ids;
};

}  // namespace appinfo
