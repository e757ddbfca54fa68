#include "backends/windows/WindowsFiles.h"

#include <windows.h>

namespace zdx {

static_assert(os::kGenericRead == GENERIC_READ && os::kShareRead == FILE_SHARE_READ &&
              os::kShareWrite == FILE_SHARE_WRITE && os::kOpenExisting == OPEN_EXISTING &&
              os::kAttributeNormal == FILE_ATTRIBUTE_NORMAL && os::kFromBegin == FILE_BEGIN &&
              os::kInvalidFilePointer == INVALID_SET_FILE_POINTER);
static_assert(sizeof(DWORD) == sizeof(std::uint32_t) && sizeof(LONG) == sizeof(std::int32_t));

os::FileHandle WindowsFiles::CreateFileW(const wchar_t* path, std::uint32_t access,
                                         std::uint32_t share, void* security,
                                         std::uint32_t disposition, std::uint32_t attributes,
                                         os::FileHandle templateFile) {
  return ::CreateFileW(path, access, share, static_cast<SECURITY_ATTRIBUTES*>(security),
                       disposition, attributes, templateFile);
}

int WindowsFiles::ReadFile(os::FileHandle file, void* buffer, std::uint32_t size,
                           std::uint32_t* count, void* overlapped) {
  return ::ReadFile(file, buffer, size, reinterpret_cast<DWORD*>(count),
                    static_cast<OVERLAPPED*>(overlapped));
}

std::uint32_t WindowsFiles::SetFilePointer(os::FileHandle file, std::int32_t distance,
                                           std::int32_t* distanceHigh, std::uint32_t method) {
  return ::SetFilePointer(file, distance, reinterpret_cast<LONG*>(distanceHigh), method);
}

int WindowsFiles::CloseHandle(os::FileHandle file) { return ::CloseHandle(file); }

}  // namespace zdx
