#include "StandardStreams.h"

#include <windows.h>

#include <algorithm>

#include "ConsolePieces.h"
#include "SystemMessage.h"
#include "ZDXEngine/Utf8.h"

namespace zdx {

namespace {

// Consoles have refused more than some 32,000 units at once.
constexpr std::size_t kMostUnitsAtOnce = 8192;
constexpr std::size_t kMostBytesAtOnce = 1 << 20;

// Whether the stream takes characters.  Its mode isn't asked for: a shell may have opened the
// console for writing alone, and then the mode can't be read.
bool IsConsole(HANDLE stream) {
  DWORD written = 0;
  return GetFileType(stream) == FILE_TYPE_CHAR &&
         WriteConsoleW(stream, L"", 0, &written, nullptr) != FALSE;
}

bool WriteCharacters(HANDLE console, std::wstring_view text) {
  while (!text.empty()) {
    const auto size = static_cast<DWORD>(FirstPiece(text, kMostUnitsAtOnce));
    DWORD written = 0;
    if (WriteConsoleW(console, text.data(), size, &written, nullptr) == FALSE) return false;
    text.remove_prefix(std::clamp<DWORD>(written, 1, size));
  }
  return true;
}

bool WriteBytes(HANDLE file, std::string_view text) {
  while (!text.empty()) {
    const auto size = static_cast<DWORD>(std::min(text.size(), kMostBytesAtOnce));
    DWORD written = 0;
    if (::WriteFile(file, text.data(), size, &written, nullptr) == FALSE) return false;
    if (written == 0) {
      SetLastError(ERROR_WRITE_FAULT);
      return false;
    }
    text.remove_prefix(written);
  }
  return true;
}

}  // namespace

// A failed write ends no process, and files get no number of a stream's.
void PrepareStandardStreams() {}

std::optional<std::string> Write(Stream stream, std::string_view text) {
  const HANDLE handle =
      GetStdHandle(stream == Stream::kOutput ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE);
  // A process without the stream has no handle, for which no call was made that could fail.
  if (handle == nullptr) return SystemMessage(ERROR_INVALID_HANDLE);
  const bool written = IsConsole(handle) ? WriteCharacters(handle, ZDXEngine::WideFromUtf8(text))
                                         : WriteBytes(handle, text);
  if (written) return std::nullopt;
  return SystemMessage(GetLastError());
}

}  // namespace zdx
