// The utility library's own implementation, the same on every system.
#pragma once

#include <functional>
#include <string>

#include "platform/common/CommonUtils.h"

namespace zdx {

// Loads the string table entry `id` of `module`; empty if there is none.
using StringLoader = std::function<std::wstring(os::ModuleHandle module, unsigned int id)>;

class CommonProvider : public Common::Provider {
 public:
  // Texts come from `loadString`; everything else depends on the arguments alone.
  explicit CommonProvider(StringLoader loadString);

  std::wstring LoadStrW(os::ModuleHandle module, unsigned int id) override;
  void FormatMsg1(std::wstring& out, const std::wstring& format,
                  const std::wstring& argument) override;
  int Order(const std::wstring& a, const std::wstring& b, Common::StringOrder order,
            Common::StringCase caseRule) override;
  std::wstring GuidToString(const GUID& guid) override;
  std::wstring PropIdToString(unsigned long id) override;
  unsigned long StringToPropId(const std::wstring& text) override;

 private:
  StringLoader loadString_;
};

}  // namespace zdx
