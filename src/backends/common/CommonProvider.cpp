#include "backends/common/CommonProvider.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <string_view>
#include <utility>

#include "base/CaseFold.h"

namespace zdx {
namespace {

constexpr std::wstring_view kPlaceholder = L"%1!s!";

// Appends the lowest `digits` hexadecimal digits of `value`, upper case.
void AppendHex(std::wstring& text, std::uint32_t value, unsigned int digits) {
  for (unsigned int left = digits; left > 0; --left) {
    text.push_back(L"0123456789ABCDEF"[(value >> (4 * (left - 1))) & 0xFu]);
  }
}

}  // namespace

CommonProvider::CommonProvider(StringLoader loadString) : loadString_(std::move(loadString)) {}

std::wstring CommonProvider::LoadStrW(os::ModuleHandle module, unsigned int id) {
  return loadString_(module, id);
}

void CommonProvider::FormatMsg1(std::wstring& out, const std::wstring& format,
                                const std::wstring& argument) {
  std::wstring text;
  std::size_t from = 0;
  for (std::size_t at = format.find(kPlaceholder); at != std::wstring::npos;
       at = format.find(kPlaceholder, from)) {
    text.append(format, from, at - from).append(argument);
    from = at + kPlaceholder.size();
  }
  text.append(format, from);
  out = std::move(text);
}

int CommonProvider::Order(const std::wstring& a, const std::wstring& b,
                          Common::StringOrder /*order*/, Common::StringCase /*caseRule*/) {
  return CompareIgnoringCase(a, b);
}

std::wstring CommonProvider::GuidToString(const GUID& guid) {
  std::wstring text = L"{";
  AppendHex(text, static_cast<std::uint32_t>(guid.Data1), 8);
  text.push_back(L'-');
  AppendHex(text, guid.Data2, 4);
  text.push_back(L'-');
  AppendHex(text, guid.Data3, 4);
  text.push_back(L'-');
  for (std::size_t i = 0; i < std::size(guid.Data4); ++i) {
    if (i == 2) text.push_back(L'-');
    AppendHex(text, guid.Data4[i], 2);
  }
  text.push_back(L'}');
  return text;
}

std::wstring CommonProvider::PropIdToString(unsigned long id) {
  std::wstring text;
  do {
    text.push_back(static_cast<wchar_t>(L'0' + static_cast<wchar_t>(id % 10)));
    id /= 10;
  } while (id != 0);
  std::reverse(text.begin(), text.end());
  return text;
}

unsigned long CommonProvider::StringToPropId(const std::wstring& text) {
  std::uint64_t id = 0;
  for (const wchar_t character : text) {
    if (character < L'0' || character > L'9') return 0;
    id = id * 10 + static_cast<std::uint64_t>(character - L'0');
    if (id > std::numeric_limits<std::uint32_t>::max()) return 0;
  }
  return static_cast<unsigned long>(id);
}

}  // namespace zdx
