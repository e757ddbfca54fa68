#include "support/Paths.h"

#include "ZDXEngine/Utf8.h"

namespace zdx_test {

std::filesystem::path PathOf(std::string_view name) {
  return PathOf(ZDXEngine::WideFromUtf8(name));
}

std::string BytesOf(const std::filesystem::path& path) {
  return ZDXEngine::BytesFromWide(NameOf(path));
}

}  // namespace zdx_test
