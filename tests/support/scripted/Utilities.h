// The utility library of a scripted world: real behaviour, but the texts are the test's.
#pragma once

#include <map>
#include <string>

#include "platform/common/CommonUtils.h"
#include "support/scripted/CallLog.h"

namespace scripted {

class Utilities : public Common::Provider {
 public:
  explicit Utilities(CallLog& calls) : calls_(calls) {}

  // What LoadStrW finds, whatever the module; the rest is missing.
  std::map<unsigned int, std::wstring> texts;

  std::wstring LoadStrW(os::ModuleHandle module, unsigned int id) override;
  void FormatMsg1(std::wstring& out, const std::wstring& format,
                  const std::wstring& argument) override;
  int Order(const std::wstring& a, const std::wstring& b, Common::StringOrder order,
            Common::StringCase caseRule) override;
  std::wstring GuidToString(const GUID& guid) override;
  std::wstring PropIdToString(unsigned long id) override;
  unsigned long StringToPropId(const std::wstring& text) override;

 private:
  CallLog& calls_;
};

}  // namespace scripted
