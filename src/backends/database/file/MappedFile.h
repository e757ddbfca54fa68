// A file seen as bytes, without reading it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>

#include "backends/database/file/Failure.h"

namespace zdx::file {

// The bytes of a file, mapped for reading and never changed.  An empty file has no bytes and is
// mapped all the same.  Another program that shortens the file while it is mapped, which Windows
// refuses, makes the lost bytes unreadable for the process, and so does a network or a medium that
// goes away: drawings are written by replacing them, so this isn't handled.
class MappedFile {
 public:
  // Maps the file at `path`, whose wide form is turned into a file name as Utf8.h tells.
  static std::variant<MappedFile, Failure> Open(const std::wstring& path);

  MappedFile() = default;
  ~MappedFile();
  MappedFile(MappedFile&& other) noexcept;
  MappedFile& operator=(MappedFile&& other) noexcept;

  // Valid as long as the object.
  std::string_view bytes() const { return {data_, size_}; }

 private:
  const char* data_ = nullptr;
  std::size_t size_ = 0;
};

}  // namespace zdx::file
