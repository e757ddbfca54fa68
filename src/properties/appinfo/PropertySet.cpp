#include "properties/appinfo/PropertySet.h"

#include <cstddef>
#include <cstdint>
#include <stdexcept>

#include "ZDXEngine/FormatIds.h"
#include "platform/os/Os.h"
#include "properties/appinfo/Literals.h"
#include "properties/appinfo/TypedValue.h"

namespace ZDXEngine {
namespace {

constexpr PROPID kHighestNumber = 0x7FFFFFFF;

bool CanBeLookedUp(const PROPSPEC& wanted) {
  if (wanted.ulKind == PRSPEC_PROPID) return wanted.propid <= kHighestNumber;
  return wanted.lpwstr != nullptr && wanted.lpwstr[0] != L'\0';
}

std::wstring OpeningTag(const PROPSPEC& wanted) {
  const bool numbered = wanted.ulKind == PRSPEC_PROPID;
  std::wstring tag(numbered ? kNumberedPropertyBegin : kNamedPropertyBegin);
  tag += numbered ? std::to_wstring(wanted.propid) : std::wstring(wanted.lpwstr);
  return tag.append(kPropertyTagEnd);
}

}  // namespace

bool FindPropertyValue(const PropertySetMap& sets, const PROPSPEC& wanted, PROPVARIANT& value) {
  std::wstring text;
  return GetSummaryPropertySet(sets, text) && ReadPropertySetValue(text, wanted, value);
}

bool GetSummaryPropertySet(const PropertySetMap& sets, std::wstring& text) {
  const auto found = sets.find(FMTID_SummaryInformation);
  if (found == sets.end()) return false;
  text = found->second;
  return true;
}

bool ReadPropertySetValue(const std::wstring& text, const PROPSPEC& wanted, PROPVARIANT& value) {
  if (!CanBeLookedUp(wanted)) return false;
  GUID formatId = {};
  if (!ReadPropertySetFormatId(text, formatId) || formatId != FMTID_SummaryInformation) {
    return false;
  }
  const std::wstring openingTag = OpeningTag(wanted);
  const std::size_t opening = text.find(openingTag);
  if (opening == std::wstring::npos) return false;
  const std::size_t start = opening + openingTag.size();
  const std::size_t end = text.find(kPropertyEnd);
  if (end == std::wstring::npos) return false;
  // The first property's end bounds every element: behind it the length wraps and the element runs
  // to the end of the text, where the value's own closing tag bounds it.
  return ReadTypedValue(text.substr(start, end - start), value);
}

bool ReadPropertySetFormatId(const std::wstring& text, GUID& formatId) {
  // Without a head this wraps to one less than the head's length.
  const std::size_t begin = text.find(kHeadBegin) + kHeadBegin.size();
  const std::size_t end = text.find(kHeadEnd, begin);
  if (text.size() < begin) throw std::out_of_range("invalid string position");
  return os::CLSIDFromString(text.substr(begin, end - begin).c_str(), &formatId) == S_OK;
}

}  // namespace ZDXEngine
