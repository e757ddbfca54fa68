// Files and folders for a while.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace zdx_test {

// A new empty folder, which goes away with its object, and all in it.
class ScratchFolder {
 public:
  ScratchFolder();
  ~ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }
  // Whether a file can have that name (see PathOf) here.
  bool Takes(std::string_view name) const;
  // Writes a file of that name and gives its path.
  std::filesystem::path Write(std::string_view name, std::string_view bytes) const;

 private:
  std::filesystem::path path_;
};

// A new file of `bytes` whose name ends in `suffix`; it goes away with the process.
std::filesystem::path NewFile(std::string_view bytes, const std::string& suffix);

// Such a file that goes away with its object.
class ScratchFile {
 public:
  explicit ScratchFile(std::string_view bytes, const std::string& suffix = ".dwg")
      : path_(NewFile(bytes, suffix)) {}
  ~ScratchFile();
  ScratchFile(const ScratchFile&) = delete;
  ScratchFile& operator=(const ScratchFile&) = delete;

  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

// Makes a pipe among the files, to which nobody writes; false if the system has no such thing.
bool MakePipe(const std::filesystem::path& path);

// All that the file holds.  Throws std::runtime_error if it can't be read.
std::string ContentsOf(const std::filesystem::path& path);

}  // namespace zdx_test
