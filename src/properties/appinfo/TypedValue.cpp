#include "properties/appinfo/TypedValue.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <ctime>
#include <cwchar>
#include <iterator>

#include "properties/appinfo/Literals.h"

namespace ZDXEngine {
namespace {

// Null if memory ran out.
wchar_t* Duplicate(const std::wstring& text) {
  const std::size_t size = std::wcslen(text.c_str()) + 1;
  auto* const copy = static_cast<wchar_t*>(std::malloc(size * sizeof(wchar_t)));
  return copy == nullptr ? nullptr : std::wmemcpy(copy, text.c_str(), size);
}

[[noreturn]] void RefuseDate() {
  static_cast<void>(std::time(nullptr));
  throw ATL::CAtlException(E_FAIL);
}

// How many fields were scanned doesn't matter.
void StoreValue(const std::wstring& text, PROPVARIANT& value) {
  switch (value.vt) {
    case VT_LPWSTR:
      value.pwszVal = Duplicate(text);
      break;
    case VT_R8:
      std::swscanf(text.c_str(), L"%lf", &value.dblVal);
      break;
    case VT_INT:
      std::swscanf(text.c_str(), L"%i", &value.intVal);
      break;
    case VT_UINT:
      std::swscanf(text.c_str(), L"%u", &value.uintVal);
      break;
    case VT_FILETIME:
      RefuseDate();
    default:  // VT_BOOL: true is 1 here, not the usual -1
      value.boolVal = text == kTrueText ? 1 : 0;
  }
}

}  // namespace

bool ReadTypedValue(const std::wstring& element, PROPVARIANT& value) {
  if (element.find(kTagBegin) != 0) return false;
  const std::size_t tagEnd = element.find(kTagEnd);
  if (tagEnd == std::wstring::npos) return false;
  const std::wstring tag = element.substr(1, tagEnd - 1);
  const auto* const known = std::ranges::find(kValueTags, std::wstring_view(tag), &ValueTag::tag);
  if (known == std::end(kValueTags)) return false;
  value.vt = known->type;
  const std::wstring closingTag = std::wstring(kClosingTagBegin) + tag + kTagEnd;
  const std::size_t closing = element.find(closingTag);
  if (closing == std::wstring::npos) return false;
  const std::size_t begin = tagEnd + 1;
  StoreValue(element.substr(begin, closing - begin), value);
  return true;
}

void ReleaseTypedValue(PROPVARIANT& value) {
  if (value.vt == VT_LPWSTR) std::free(value.pwszVal);
  value = PROPVARIANT{};
}

}  // namespace ZDXEngine
