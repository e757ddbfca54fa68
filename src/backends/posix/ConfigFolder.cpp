#include "backends/posix/ConfigFolder.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <string_view>
#include <vector>

#include "ZDXEngine/Utf8.h"
#include "backends/posix/RealNames.h"

namespace zdx {
namespace {

constexpr mode_t kUserAlone = 0700;
// What a record of the password database needs at most.
constexpr std::size_t kRecordSize = 1 << 16;

// The absolute path in a variable of the environment; empty if there is none.
std::string FolderIn(const char* variable) {
  const char* const value = std::getenv(variable);
  return value != nullptr && value[0] == '/' ? value : std::string();
}

std::string HomeOnRecord() {
  std::vector<char> buffer(kRecordSize);
  passwd record = {};
  passwd* found = nullptr;
  const int failed = getpwuid_r(getuid(), &record, buffer.data(), buffer.size(), &found);
  return failed == 0 && found != nullptr && found->pw_dir != nullptr ? found->pw_dir
                                                                     : std::string();
}

}  // namespace

std::wstring ConfigFolder() {
  if (const std::string own = FolderIn("XDG_CONFIG_HOME"); !own.empty()) {
    return ZDXEngine::WideFromUtf8(own);
  }
  std::string home = FolderIn("HOME");
  if (home.empty()) home = HomeOnRecord();
  return home.starts_with('/') ? ZDXEngine::WideFromUtf8(home + "/.config") : std::wstring();
}

bool MakeConfigFolder(const std::wstring& folder) {
  const std::string name = ZDXEngine::BytesFromWide(folder);
  for (std::size_t at = name.find('/', 1); at != std::string::npos; at = name.find('/', at + 1)) {
    mkdir(name.substr(0, at).c_str(), kUserAlone);
  }
  mkdir(name.c_str(), kUserAlone);
  const std::optional<struct stat> status = StatusOf(name);
  return status && S_ISDIR(status->st_mode);
}

}  // namespace zdx
