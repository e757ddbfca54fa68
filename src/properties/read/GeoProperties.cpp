#include "properties/read/GeoProperties.h"

#include <charconv>
#include <limits>
#include <string>

#include "platform/zndb/ZnDbGeoData.h"
#include "properties/read/GeoNames.h"
#include "properties/read/OpenObject.h"
#include "properties/record/AddProperty.h"

namespace ZDXEngine {
namespace {

constexpr int kDecimals = 6;
// What a formatted text can hold.
constexpr std::size_t kLongestText = 259;

// With six decimals and a point, whatever the locale.
std::wstring Decimal(double number) {
  // The digits of the greatest number, sign, point and decimals.
  char digits[std::numeric_limits<double>::max_exponent10 + 3 + kDecimals];
  const auto end = std::to_chars(std::begin(digits), std::end(digits), number,
                                 std::chars_format::fixed, kDecimals);
  return std::wstring(std::begin(digits), end.ptr);
}

// The blank before the second comma is part of the format.
std::wstring Formatted(double x, double y, double z) {
  std::wstring text = L"(" + Decimal(x) + L", " + Decimal(y) + L" , " + Decimal(z) + L")";
  if (text.size() > kLongestText) text.resize(kLongestText);
  return text;
}

std::wstring Formatted(const ZnGePoint3d& point) { return Formatted(point.x, point.y, point.z); }
std::wstring Formatted(const ZnGeVector3d& vector) {
  return Formatted(vector.x, vector.y, vector.z);
}
// The text has three fields all the same.
std::wstring Formatted(const ZnGeVector2d& vector) { return Formatted(vector.x, vector.y, 0); }

// Adds values under the engine's own set.
class GeoList {
 public:
  explicit GeoList(std::vector<_PropData>& properties) : properties_(properties) {}

  void Number(const wchar_t* name, double number) {
    VARIANT value = {};
    value.vt = VT_R8;
    value.dblVal = number;
    AddProperty(properties_, value, kTypeNumber, name, FMTID_Storage, kNamedProperty);
  }
  void Flag(const wchar_t* name, bool flag) {
    VARIANT value = {};
    value.vt = VT_BOOL;
    value.boolVal = flag ? VARIANT_TRUE : VARIANT_FALSE;
    AddProperty(properties_, value, kTypeFlag, name, FMTID_Storage, kNamedProperty);
  }
  // A text that is null gives a property all the same.
  void Text(const wchar_t* name, const wchar_t* text) {
    AddText(properties_, text, name, FMTID_Storage, kNamedProperty);
  }
  void Text(const wchar_t* name, const std::wstring& text) { Text(name, text.c_str()); }

 private:
  std::vector<_PropData>& properties_;
};

void AddLocation(std::vector<_PropData>& properties, const ZnDbGeoData& location) {
  GeoList list(properties);
  list.Number(L"CoordinateProjectionRadius", location.coordinateProjectionRadius());
  list.Text(L"CoordinateSystem", location.coordinateSystem());
  list.Text(L"coordinateType", GetCoordinateTypeName(location.coordinateType()));
  list.Text(L"designPoint", Formatted(location.designPoint()));
  list.Flag(L"doSeaLevelCorrection", location.doSeaLevelCorrection());
  list.Text(L"GeoRSS", location.geoRSSTag());
  list.Text(L"horizontalUnits", GetUnitName(location.horizontalUnits()));
  list.Number(L"horizontalUnitScale", location.horizontalUnitScale());
  list.Number(L"northDirection", location.northDirection());
  list.Text(L"northDirectionVector", Formatted(location.northDirectionVector()));
  list.Text(L"observationCoverage", location.observationCoverage());
  list.Text(L"observationFrom", location.observationFrom());
  list.Text(L"observationTo", location.observationTo());
  list.Text(L"referencePoint", Formatted(location.referencePoint()));
  list.Number(L"scaleFactor", location.scaleFactor());
  list.Number(L"seaLevelElevation", location.seaLevelElevation());
  list.Text(L"upDirection", Formatted(location.upDirection()));
  list.Text(L"verticalUnits", GetUnitName(location.verticalUnits()));
  list.Number(L"verticalUnitScale", location.verticalUnitScale());
}

}  // namespace

void CollectGeoProperties(std::vector<_PropData>& properties, ZnDbDatabase* database) {
  ZnDbObjectId id;
  if (zndbGetGeoDataObjId(database, id) != Zent::kOk || id.isNull()) return;
  const ReleasedObject<ZnDbGeoData> location(OpenForRead<ZnDbGeoData>(id));
  if (location != nullptr) AddLocation(properties, *location);
}

}  // namespace ZDXEngine
