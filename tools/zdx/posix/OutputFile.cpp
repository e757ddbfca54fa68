#include "OutputFile.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>

namespace zdx {

namespace {

constexpr int kMostNames = 1000;

// A file that wasn't there before; null if it can't be made, for which errno tells the reason.
std::FILE* MakeBeside(const std::string& path, std::string& name) {
  for (int i = 0; i < kMostNames; ++i) {
    name = path + ".zdx-" + std::to_string(i);
    std::FILE* const file = std::fopen(name.c_str(), "wbx");
    if (file != nullptr || errno != EEXIST) return file;
  }
  return nullptr;
}

bool Flush(std::FILE* file) { return std::fflush(file) == 0 && fsync(fileno(file)) == 0; }

}  // namespace

std::optional<std::string> WriteFile(const std::string& path, std::string_view bytes) {
  std::string name;
  std::FILE* const file = MakeBeside(path, name);
  if (file == nullptr) return std::strerror(errno);
  const bool written =
      std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size() && Flush(file);
  const int reason = errno;
  const bool closed = std::fclose(file) == 0;
  std::error_code failure;
  if (!written) {
    failure.assign(reason, std::generic_category());
  } else if (!closed) {
    failure.assign(errno, std::generic_category());
  } else {
    std::filesystem::rename(name, path, failure);
  }
  if (!failure) return std::nullopt;
  std::remove(name.c_str());
  return failure.message();
}

}  // namespace zdx
