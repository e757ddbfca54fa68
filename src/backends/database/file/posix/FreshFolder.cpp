#include "backends/database/file/FreshFolder.h"

#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "ZDXEngine/Utf8.h"

namespace zdx::file {

std::variant<std::wstring, WriteError> MakeFreshFolder() {
  std::error_code error;
  std::filesystem::path above = std::filesystem::temp_directory_path(error);
  if (!error) above = std::filesystem::absolute(above, error);
  std::string name = (above / "zdx-XXXXXX").string();
  int number = error.value();
  if (!error) number = mkdtemp(name.data()) == nullptr ? errno : 0;
  if (number == 0) return ZDXEngine::WideFromUtf8(name);
  const auto unsignedNumber = static_cast<std::uint32_t>(number);
  return WriteError{FailureOf(unsignedNumber), unsignedNumber};
}

void RemoveEmptyFolder(const std::wstring& path) { rmdir(ZDXEngine::BytesFromWide(path).c_str()); }

}  // namespace zdx::file
