// What paths lead to.
#include <sys/stat.h>

#include <cstdlib>

#include "ZDXEngine/Utf8.h"
#include "backends/System.h"
#include "backends/posix/PathText.h"
#include "backends/posix/RealNames.h"

namespace zdx {
namespace {

std::string IdentityOf(const std::string& name) {
  const std::optional<struct stat> status = StatusOf(name);
  if (!status) return std::string();
  return std::to_string(status->st_dev) + ":" + std::to_string(status->st_ino);
}

// The name with every link followed; empty if that fails.
std::wstring LinksFollowed(const std::string& name) {
  char* const real = realpath(name.c_str(), nullptr);
  if (real == nullptr) return std::wstring();
  std::wstring path = ZDXEngine::WideFromUtf8(real);
  std::free(real);
  return path;
}

}  // namespace

std::wstring FullPath(const std::wstring& path) {
  const std::wstring dotted = FromRoot(path);
  if (path.empty() || dotted.empty()) return path;
  std::wstring full = WithoutDots(dotted);
  // Behind a link, ".." is another folder than the one before it.
  const std::string name = ZDXEngine::BytesFromWide(dotted);
  if (IdentityOf(name) != IdentityOf(ZDXEngine::BytesFromWide(full))) {
    if (std::wstring real = LinksFollowed(name); !real.empty()) return real;
  }
  return full;
}

std::wstring ExistingPath(const std::wstring& path) {
  const std::optional<std::string> name = RealName(path);
  return name ? ZDXEngine::WideFromUtf8(*name) : std::wstring();
}

std::wstring FileIdentity(const std::wstring& path) {
  const std::optional<std::string> name = RealName(path);
  return name ? ZDXEngine::WideFromUtf8(IdentityOf(*name)) : std::wstring();
}

}  // namespace zdx
