#include "support/HeldFile.h"

#include <windows.h>

namespace zdx_test {

HeldFile::HeldFile(const std::filesystem::path& path) {
  const HANDLE file =
      CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  file_ = reinterpret_cast<std::intptr_t>(file);
  holds_ = file != INVALID_HANDLE_VALUE;
}

HeldFile::~HeldFile() {
  if (holds_) CloseHandle(reinterpret_cast<HANDLE>(file_));
}

}  // namespace zdx_test
