// Plain file calls, with Windows' names and meanings.
#pragma once

#include <cstdint>

namespace os {

// An open file.
using FileHandle = void*;

// What stands for no file.  Not a null pointer, as on Windows.
// NOLINTNEXTLINE(performance-no-int-to-ptr)
inline const FileHandle kInvalidHandle = reinterpret_cast<FileHandle>(~std::uintptr_t{0});

inline constexpr std::uint32_t kGenericRead = 0x80000000;
inline constexpr std::uint32_t kShareRead = 1;
inline constexpr std::uint32_t kShareWrite = 2;
inline constexpr std::uint32_t kOpenExisting = 3;
inline constexpr std::uint32_t kAttributeNormal = 0x80;
inline constexpr std::uint32_t kFromBegin = 0;
// What SetFilePointer answers on failure.
inline constexpr std::uint32_t kInvalidFilePointer = 0xFFFFFFFF;

// Opens a file.  `security` and `templateFile` are always null.  kInvalidHandle on failure; a
// folder is no file.
FileHandle CreateFileW(const wchar_t* path, std::uint32_t access, std::uint32_t share,
                       void* security, std::uint32_t disposition, std::uint32_t attributes,
                       FileHandle templateFile);
// Reads up to `size` bytes from the file's position on into `buffer`, and sets `count` to how many
// came; 0 is the end of the file.  Nonzero on success; on failure `count` is 0.  `overlapped` is
// always null.
int ReadFile(FileHandle file, void* buffer, std::uint32_t size, std::uint32_t* count,
             void* overlapped);
// Moves the file's position to `distance` bytes from the place that `method` names.  A position
// past the end is no failure; one before the begin is.  `distanceHigh` is always null.  The new
// position, or kInvalidFilePointer.
std::uint32_t SetFilePointer(FileHandle file, std::int32_t distance, std::int32_t* distanceHigh,
                             std::uint32_t method);
// Nonzero on success.
int CloseHandle(FileHandle file);

// What stands behind the operations above; each virtual operation is the one of the same name.
class FileProvider {
 public:
  virtual ~FileProvider() = default;
  virtual FileHandle CreateFileW(const wchar_t* path, std::uint32_t access, std::uint32_t share,
                                 void* security, std::uint32_t disposition,
                                 std::uint32_t attributes, FileHandle templateFile) = 0;
  virtual int ReadFile(FileHandle file, void* buffer, std::uint32_t size, std::uint32_t* count,
                       void* overlapped) = 0;
  virtual std::uint32_t SetFilePointer(FileHandle file, std::int32_t distance,
                                       std::int32_t* distanceHigh, std::uint32_t method) = 0;
  virtual int CloseHandle(FileHandle file) = 0;
};

// As os::InstallProvider.
FileProvider* InstallFileProvider(FileProvider* provider);

}  // namespace os
