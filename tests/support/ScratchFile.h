// A file that lives as long as its object.
#pragma once

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "ZDXEngine/Utf8.h"

namespace zdx_test {

class ScratchFile {
 public:
  explicit ScratchFile(std::string_view bytes, const std::string& suffix = ".dwg") {
    static int count = 0;
    path_ = std::filesystem::temp_directory_path() /
            ("zdx-" + std::to_string(getpid()) + "-" + std::to_string(count++) + suffix);
    std::ofstream(path_, std::ios::binary)
        .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  }
  ~ScratchFile() { std::filesystem::remove(path_); }
  ScratchFile(const ScratchFile&) = delete;
  ScratchFile& operator=(const ScratchFile&) = delete;

  std::wstring path() const { return ZDXEngine::WideFromUtf8(path_.string()); }

 private:
  std::filesystem::path path_;
};

}  // namespace zdx_test
