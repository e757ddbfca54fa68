#include "backends/posix/PosixPaths.h"

namespace zdx {

HRESULT PosixPaths::SHGetFolderPathW(void* /*owner*/, int /*which*/, void* /*token*/,
                                     std::uint32_t /*flags*/, wchar_t* /*path*/) {
  return 0;
}

int PosixPaths::PathAppendW(wchar_t* /*path*/, const wchar_t* /*name*/) { return 0; }

int PosixPaths::PathFileExistsW(const wchar_t* /*path*/) { return 0; }

int PosixPaths::PathIsRelativeW(const wchar_t* /*path*/) { return 0; }

wchar_t* PosixPaths::PathCombineW(wchar_t* /*path*/, const wchar_t* /*folder*/,
                                  const wchar_t* /*file*/) {
  return nullptr;
}

int PosixPaths::PathRemoveFileSpecW(wchar_t* /*path*/) { return 0; }

std::uint32_t PosixPaths::SearchPathW(const wchar_t* /*folders*/, const wchar_t* /*name*/,
                                      const wchar_t* /*extension*/, std::uint32_t /*size*/,
                                      wchar_t* /*path*/, wchar_t** /*leaf*/) {
  return 0;
}

int PosixPaths::CreateDirectoryW(const wchar_t* /*path*/, void* /*security*/) { return 0; }

std::uint32_t PosixPaths::GetModuleFileNameW(void* /*module*/, wchar_t* /*path*/,
                                             std::uint32_t /*size*/) {
  return 0;
}

os::Errno PosixPaths::_wsplitpath_s(const wchar_t* /*path*/, wchar_t* /*drive*/,
                                    std::size_t /*driveSize*/, wchar_t* /*directory*/,
                                    std::size_t /*directorySize*/, wchar_t* /*name*/,
                                    std::size_t /*nameSize*/, wchar_t* /*extension*/,
                                    std::size_t /*extensionSize*/) {
  return 0;
}

os::Errno PosixPaths::wcscpy_s(wchar_t* /*target*/, std::size_t /*size*/,
                               const wchar_t* /*source*/) {
  return 0;
}

os::Errno PosixPaths::wcscat_s(wchar_t* /*target*/, std::size_t /*size*/,
                               const wchar_t* /*source*/) {
  return 0;
}

os::Errno PosixPaths::wcsncpy_s(wchar_t* /*target*/, std::size_t /*size*/,
                                const wchar_t* /*source*/, std::size_t /*count*/) {
  return 0;
}

}  // namespace zdx
