#include "backends/database/file/MappedFile.h"

#include <windows.h>

namespace zdx::file {
namespace {

// Closes a handle at the end of its scope; a mapping outlives it.
class Handle {
 public:
  explicit Handle(HANDLE handle) : handle_(handle) {}
  ~Handle() {
    if (get() != nullptr) CloseHandle(handle_);
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  HANDLE get() const { return handle_ == INVALID_HANDLE_VALUE ? nullptr : handle_; }

 private:
  HANDLE handle_;
};

bool IsFolder(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

}  // namespace

std::variant<MappedFile, Failure> MappedFile::Open(const std::wstring& path) {
  if (path.find(L'\0') != std::wstring::npos) return Failure::kNotFound;
  // Nobody is kept from using the file meanwhile by this handle, which is soon closed.
  const Handle file(CreateFileW(path.c_str(), GENERIC_READ,
                                FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
  if (file.get() == nullptr) {
    const DWORD error = GetLastError();
    return IsFolder(path) ? Failure::kNotAFile : FailureOf(error);
  }
  if (GetFileType(file.get()) != FILE_TYPE_DISK) return Failure::kNotAFile;
  LARGE_INTEGER size = {};
  if (GetFileSizeEx(file.get(), &size) == FALSE) return FailureOf(GetLastError());
  MappedFile mapped;
  if (size.QuadPart == 0) return mapped;
  const Handle mapping(CreateFileMappingW(file.get(), nullptr, PAGE_READONLY, 0, 0, nullptr));
  if (mapping.get() == nullptr) return FailureOf(GetLastError());
  mapped.data_ = static_cast<const char*>(MapViewOfFile(mapping.get(), FILE_MAP_READ, 0, 0, 0));
  if (mapped.data_ == nullptr) return FailureOf(GetLastError());
  mapped.size_ = static_cast<std::size_t>(size.QuadPart);
  return mapped;
}

MappedFile::~MappedFile() {
  if (data_ != nullptr) UnmapViewOfFile(data_);
}

}  // namespace zdx::file
