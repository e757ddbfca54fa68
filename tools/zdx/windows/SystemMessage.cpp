#include "SystemMessage.h"

#include <windows.h>

#include "ZDXEngine/Utf8.h"

namespace zdx {

std::string SystemMessage(std::uint32_t number) {
  wchar_t* buffer = nullptr;
  // Its lines become one, which ends in a blank.
  const DWORD flags = FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM |
                      FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK;
  const DWORD size =
      FormatMessageW(flags, nullptr, number, 0, reinterpret_cast<wchar_t*>(&buffer), 0, nullptr);
  std::wstring text(buffer == nullptr ? L"" : buffer, size);
  LocalFree(buffer);
  const std::size_t last = text.find_last_not_of(L" \r\n");
  text.erase(last == std::wstring::npos ? 0 : last + 1);
  if (text.empty()) return "error " + std::to_string(number);
  return ZDXEngine::Utf8FromWide(text);
}

}  // namespace zdx
