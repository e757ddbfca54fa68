#include "support/Scratch.h"

#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>

#include "support/Paths.h"

namespace zdx_test {

ScratchFolder::ScratchFolder() {
  std::random_device random;
  do {
    path_ = std::filesystem::temp_directory_path() / ("zdx-test-" + std::to_string(random()));
  } while (!std::filesystem::create_directory(path_));
}

ScratchFolder::~ScratchFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

bool ScratchFolder::Takes(std::string_view name) const {
  const std::filesystem::path path = path_ / PathOf(name);
  const bool isMade = std::ofstream(path).is_open();
  std::error_code ignored;
  std::filesystem::remove(path, ignored);
  return isMade;
}

std::filesystem::path ScratchFolder::Write(std::string_view name, std::string_view bytes) const {
  std::filesystem::path path = path_ / PathOf(name);
  std::ofstream file(path, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) throw std::runtime_error("can't write " + BytesOf(path));
  return path;
}

std::filesystem::path NewFile(std::string_view bytes, const std::string& suffix) {
  static const ScratchFolder folder;
  static int count = 0;
  return folder.Write(std::to_string(count++) + suffix, bytes);
}

ScratchFile::~ScratchFile() {
  std::error_code ignored;
  std::filesystem::remove(path_, ignored);
}

std::string ContentsOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("can't read " + BytesOf(path));
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace zdx_test
