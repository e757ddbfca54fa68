#include "platform/os/Files.h"

#include "platform/ProviderSlot.h"

namespace os {
namespace {

constinit platform::ProviderSlot<FileProvider> fileSlot;

}  // namespace

FileProvider* InstallFileProvider(FileProvider* provider) { return fileSlot.Install(provider); }

FileHandle CreateFileW(const wchar_t* path, std::uint32_t access, std::uint32_t share,
                       void* security, std::uint32_t disposition, std::uint32_t attributes,
                       FileHandle templateFile) {
  return fileSlot.Get().CreateFileW(path, access, share, security, disposition, attributes,
                                    templateFile);
}

int ReadFile(FileHandle file, void* buffer, std::uint32_t size, std::uint32_t* count,
             void* overlapped) {
  return fileSlot.Get().ReadFile(file, buffer, size, count, overlapped);
}

std::uint32_t SetFilePointer(FileHandle file, std::int32_t distance, std::int32_t* distanceHigh,
                             std::uint32_t method) {
  return fileSlot.Get().SetFilePointer(file, distance, distanceHigh, method);
}

int CloseHandle(FileHandle file) { return fileSlot.Get().CloseHandle(file); }

}  // namespace os
