#include "properties/appinfo/CreatorProperties.h"

#include <memory>

#include "properties/appinfo/AppInfoNotifier.h"
#include "properties/appinfo/AppInfoReader.h"
#include "properties/appinfo/Literals.h"
#include "properties/appinfo/PropertySet.h"
#include "properties/appinfo/TypedValue.h"
#include "properties/record/AddProperty.h"

namespace ZDXEngine {
namespace {

// The value of one look-up, released in the end.
class FoundValue {
 public:
  FoundValue() = default;
  ~FoundValue() { ReleaseTypedValue(value_); }
  FoundValue(const FoundValue&) = delete;
  FoundValue& operator=(const FoundValue&) = delete;

  bool LookUp(const PropertySetMap& sets, PROPID number) {
    PROPSPEC wanted = {};
    wanted.ulKind = PRSPEC_PROPID;
    wanted.propid = number;
    return FindPropertyValue(sets, wanted, value_);
  }
  // Null for what isn't a text.
  const wchar_t* Text() const { return value_.vt == VT_LPWSTR ? value_.pwszVal : nullptr; }

 private:
  PROPVARIANT value_ = {};
};

void AddCreatorProperty(std::vector<_PropData>& properties, const PropertySetMap& sets,
                        PROPID number, const wchar_t* name) {
  FoundValue value;
  if (!value.LookUp(sets, number)) return;
  AddText(properties, value.Text(), name, FMTID_Storage, kNamedProperty);
}

}  // namespace

void CollectCreatorProperties(std::vector<_PropData>& properties, const std::wstring& path) {
  const auto sets = std::make_unique<PropertySetMap>();
  AppInfoNotifier notifier(sets.get());
  if (!ReadAppInfo(path, notifier)) return;
  AddCreatorProperty(properties, *sets, kCreatorName, L"DWG Creator Name");
  AddCreatorProperty(properties, *sets, kCreatorVersion, L"DWG Creator Version");
}

}  // namespace ZDXEngine
