// Reads a file forward through a buffer of its own.
#pragma once

#include <cstdint>
#include <string>

#include "ZDXEngine/Automation.h"
#include "platform/os/Files.h"

namespace ZDXEngine {

// Owns the file and closes it in the end, or as soon as a read fails; from then on every read of a
// byte or more fails.
class BufferedFileReader {
 public:
  // Opens the file at `path` and goes to `offset`, in bytes from the begin; an offset beyond 31
  // bits can't be reached.  If either fails, the first read does.
  BufferedFileReader(const std::wstring& path, std::uint32_t offset);
  ~BufferedFileReader();
  BufferedFileReader(const BufferedFileReader&) = delete;
  BufferedFileReader& operator=(const BufferedFileReader&) = delete;

  // True if exactly `count` bytes came; otherwise `destination` holds those that did.
  bool ReadBytes(void* destination, std::uint32_t count);
  // `result` is set only if all 16 bytes came.
  bool ReadGuid(GUID& result);
  // Reads a stored text: its length in UTF-16 code units as two bytes, then the units.  `result` is
  // set to those before the first zero, if there is one, and only if all came.
  bool ReadText(std::wstring& result);

 private:
  static constexpr std::uint32_t kBufferSize = 2048;

  void Close();
  void Refill();

  os::FileHandle handle_;
  std::uint8_t buffer_[kBufferSize];
  std::uint32_t filled_ = 0;
  std::uint32_t position_ = 0;
};

}  // namespace ZDXEngine
