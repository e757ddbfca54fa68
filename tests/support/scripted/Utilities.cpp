#include "support/scripted/Utilities.h"

#include <algorithm>
#include <cstdint>

#include "support/scripted/CaseFold.h"

namespace scripted {
namespace {

std::wstring Hex(std::uint64_t value, int digits) {
  std::wstring text(static_cast<std::size_t>(digits), L'0');
  for (auto at = text.rbegin(); at != text.rend(); ++at, value >>= 4) {
    *at = L"0123456789ABCDEF"[value & 0xF];
  }
  return text;
}

bool IsDigit(wchar_t character) { return character >= L'0' && character <= L'9'; }

}  // namespace

std::wstring Utilities::LoadStrW(os::ModuleHandle module, unsigned int id) {
  calls_.Record("", "LoadStrW", Arguments(reinterpret_cast<std::uintptr_t>(module), id));
  const auto found = texts.find(id);
  return found == texts.end() ? std::wstring() : found->second;
}

void Utilities::FormatMsg1(std::wstring& out, const std::wstring& format,
                           const std::wstring& argument) {
  calls_.Record("", "FormatMsg1", Arguments(format, argument));
  const std::wstring placeholder = L"%1!s!";
  const std::size_t at = format.find(placeholder);
  out = format;
  if (at != std::wstring::npos) out.replace(at, placeholder.size(), argument);
}

int Utilities::Order(const std::wstring& a, const std::wstring& b, Common::StringOrder order,
                     Common::StringCase caseRule) {
  calls_.Record("", "Order", Arguments(a, b, static_cast<int>(order), static_cast<int>(caseRule)));
  return FoldCase(a).compare(FoldCase(b));
}

std::wstring Utilities::GuidToString(const GUID& guid) {
  calls_.Record("", "GuidToString");
  std::wstring text =
      L"{" + Hex(guid.Data1, 8) + L"-" + Hex(guid.Data2, 4) + L"-" + Hex(guid.Data3, 4) + L"-";
  for (std::size_t i = 0; i < 8; ++i) {
    if (i == 2) text += L"-";
    text += Hex(guid.Data4[i], 2);
  }
  return text + L"}";
}

std::wstring Utilities::PropIdToString(unsigned long id) {
  calls_.Record("", "PropIdToString", Arguments(id));
  return std::to_wstring(id);
}

unsigned long Utilities::StringToPropId(const std::wstring& text) {
  calls_.Record("", "StringToPropId", Arguments(text));
  if (text.empty() || !std::ranges::all_of(text, IsDigit)) return 0;
  std::uint64_t value = 0;
  for (const wchar_t digit : text) {
    value = value * 10 + static_cast<std::uint64_t>(digit - L'0');
    if (value > UINT32_MAX) return 0;
  }
  return static_cast<unsigned long>(value);
}

}  // namespace scripted
