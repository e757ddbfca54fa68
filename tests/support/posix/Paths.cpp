#include "support/Paths.h"

#include "ZDXEngine/Utf8.h"

namespace zdx_test {

std::filesystem::path PathOf(const std::wstring& name) { return ZDXEngine::BytesFromWide(name); }

std::wstring NameOf(const std::filesystem::path& path) {
  return ZDXEngine::WideFromUtf8(path.native());
}

}  // namespace zdx_test
