#include "support/Paths.h"

namespace zdx_test {

std::filesystem::path PathOf(const std::wstring& name) { return name; }

std::wstring NameOf(const std::filesystem::path& path) { return path.native(); }

}  // namespace zdx_test
