// What paths lead to.
#include "backends/System.h"

namespace zdx {

std::wstring FullPath(const std::wstring& path) { return path; }

std::wstring ExistingPath(const std::wstring& path) { return path; }

std::wstring FileIdentity(const std::wstring& path) { return path; }

}  // namespace zdx
