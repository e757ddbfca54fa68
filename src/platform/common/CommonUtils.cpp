#include "platform/common/CommonUtils.h"

#include "platform/ProviderSlot.h"

namespace Common {
namespace {

constinit platform::ProviderSlot<Provider> slot;

}  // namespace

Provider* InstallProvider(Provider* provider) { return slot.Install(provider); }

std::wstring StringUtils::LoadStrW(os::ModuleHandle module, unsigned int id) {
  return slot.Get().LoadStrW(module, id);
}

void StringUtils::FormatMsg1(std::wstring& out, const std::wstring& format,
                             const std::wstring& argument) {
  slot.Get().FormatMsg1(out, format, argument);
}

int StringUtils::Order(const std::wstring& a, const std::wstring& b, StringOrder order,
                       StringCase caseRule) {
  return slot.Get().Order(a, b, order, caseRule);
}

std::wstring PropertyUtils::GuidToString(const GUID& guid) { return slot.Get().GuidToString(guid); }

std::wstring PropertyUtils::PropIdToString(unsigned long id) {
  return slot.Get().PropIdToString(id);
}

unsigned long PropertyUtils::StringToPropId(const std::wstring& text) {
  return slot.Get().StringToPropId(text);
}

}  // namespace Common
