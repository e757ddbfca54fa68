// A file that another program has for itself.
#pragma once

#include <cstdint>
#include <filesystem>

namespace zdx_test {

// Keeps everybody from opening a file as long as this lives.
class HeldFile {
 public:
  explicit HeldFile(const std::filesystem::path& path);
  ~HeldFile();
  HeldFile(const HeldFile&) = delete;
  HeldFile& operator=(const HeldFile&) = delete;

  // False where the system or the folder's file system doesn't let a program do so.
  bool holds() const { return holds_; }

 private:
  bool holds_ = false;
  // The file, as the system tells it.
  std::intptr_t file_ = -1;
};

}  // namespace zdx_test
