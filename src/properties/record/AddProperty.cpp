#include "properties/record/AddProperty.h"

#include <utility>

#include "errors/ComFailure.h"
#include "platform/common/CommonUtils.h"
#include "platform/os/Os.h"

namespace ZDXEngine {
namespace {

// Clears the caller's variant in the end, which is what handing it over means.
class HandedOver {
 public:
  explicit HandedOver(VARIANT& value) : value_(value) {}
  ~HandedOver() { os::VariantClear(&value_); }
  HandedOver(const HandedOver&) = delete;
  HandedOver& operator=(const HandedOver&) = delete;

 private:
  VARIANT& value_;
};

bool IsKnownByNumber(const GUID& formatGuid) {
  return formatGuid == FMTID_SummaryInformation || formatGuid == FMTID_DocSummaryInformation;
}

}  // namespace

void AddProperty(std::vector<_PropData>& properties, VARIANT& value, int typeCode,
                 std::wstring propertyName, const GUID& formatGuid, unsigned long propertyNumber) {
  const HandedOver handedOver(value);
  _PropData record;
  record.formatId = Common::PropertyUtils::GuidToString(formatGuid);
  if (IsKnownByNumber(formatGuid) || propertyName.empty()) {
    record.name = Common::PropertyUtils::PropIdToString(propertyNumber);
  } else {
    record.name = std::move(propertyName);
  }
  record.typeCode = typeCode;
  const HRESULT result = os::VariantCopy(&record.value, &value);
  if (result < 0) throw _com_error(result);
  properties.push_back(record);
}

void AddText(std::vector<_PropData>& properties, const wchar_t* text, std::wstring propertyName,
             const GUID& formatGuid, unsigned long propertyNumber) {
  VARIANT value = MakeTextVariant(text);
  AddProperty(properties, value, kTypeText, std::move(propertyName), formatGuid, propertyNumber);
}

}  // namespace ZDXEngine
