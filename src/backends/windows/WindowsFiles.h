// Plain file calls on Windows: each is the system's call of the same name.
#pragma once

#include "platform/os/Files.h"

namespace zdx {

class WindowsFiles : public os::FileProvider {
 public:
  os::FileHandle CreateFileW(const wchar_t* path, std::uint32_t access, std::uint32_t share,
                             void* security, std::uint32_t disposition, std::uint32_t attributes,
                             os::FileHandle templateFile) override;
  int ReadFile(os::FileHandle file, void* buffer, std::uint32_t size, std::uint32_t* count,
               void* overlapped) override;
  std::uint32_t SetFilePointer(os::FileHandle file, std::int32_t distance,
                               std::int32_t* distanceHigh, std::uint32_t method) override;
  int CloseHandle(os::FileHandle file) override;
};

}  // namespace zdx
