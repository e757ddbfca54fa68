// Plain file calls on POSIX systems.
#pragma once

#include "platform/os/Files.h"

namespace zdx {

// Names become bytes by ZDXEngine::BytesFromWide.  Files are opened for reading alone, and only
// those that exist; others may write to them meanwhile, whatever the share mode.
class PosixFiles : public os::FileProvider {
 public:
  os::FileHandle CreateFileW(const wchar_t* path, std::uint32_t access, std::uint32_t share,
                             void* security, std::uint32_t disposition, std::uint32_t attributes,
                             os::FileHandle templateFile) override;
  // Short only at the end of the file.
  int ReadFile(os::FileHandle file, void* buffer, std::uint32_t size, std::uint32_t* count,
               void* overlapped) override;
  // From the file's begin alone.
  std::uint32_t SetFilePointer(os::FileHandle file, std::int32_t distance,
                               std::int32_t* distanceHigh, std::uint32_t method) override;
  int CloseHandle(os::FileHandle file) override;
};

}  // namespace zdx
