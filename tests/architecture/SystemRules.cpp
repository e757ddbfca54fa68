#include "architecture/SystemRules.h"

#include <algorithm>
#include <array>
#include <sstream>

namespace architecture {
namespace {

// A header by its name, or by the folder that it begins with; some are of both systems.
constexpr std::array kOfPosix = {"unistd.h", "fcntl.h",   "spawn.h",  "iconv.h",  "dlfcn.h",
                                 "malloc.h", "pthread.h", "poll.h",   "signal.h", "sys/",
                                 "netdb.h",  "termios.h", "dirent.h", "pwd.h",    "langinfo.h"};
constexpr std::array kOfWindows = {
    "windows.h", "fcntl.h",    "io.h",      "objbase.h", "oleauto.h",     "oaidl.h",
    "propidl.h", "comdef.h",   "comutil.h", "psapi.h",   "propvarutil.h", "atlexcept.h",
    "atlbase.h", "shellapi.h", "shlobj.h",  "shlwapi.h", "winver.h",      "winbase.h",
    "wingdi.h",  "winnt.h",    "direct.h",  "process.h", "malloc.h",      "share.h"};
constexpr std::array kQuestions = {"_WIN32", "_WIN64", "__MINGW", "__linux__", "__unix__"};

std::string WithoutBlanks(std::string line) {
  std::erase_if(line, [](char c) { return c == ' ' || c == '\t' || c == '\r'; });
  return line;
}

// What stands in <> behind #include; empty if the line says something else.
std::string IncludedBy(const std::string& line) {
  constexpr std::string_view kBegin = "#include<";
  const std::size_t end = line.find('>');
  if (!line.starts_with(kBegin) || end == std::string::npos) return {};
  return line.substr(kBegin.size(), end - kBegin.size());
}

bool AsksForTheSystem(const std::string& line) {
  return (line.starts_with("#if") || line.starts_with("#elif")) &&
         std::ranges::any_of(kQuestions,
                             [&](const char* word) { return line.find(word) != line.npos; });
}

template <class Headers>
bool Holds(const Headers& headers, const std::string& name) {
  return std::ranges::any_of(headers, [&](std::string_view header) {
    return header.ends_with('/') ? name.starts_with(header) : name == header;
  });
}

bool StandsBelow(const std::string& path, const std::string& folder) {
  return ("/" + path).find("/" + folder + "/") != std::string::npos;
}

}  // namespace

std::vector<std::string> SystemViolations(const std::string& path, std::string_view source) {
  const bool ofPosix = StandsBelow(path, "posix");
  const bool ofWindows = StandsBelow(path, "windows");
  std::vector<std::string> violations;
  std::istringstream lines{std::string(source)};
  for (std::string line; std::getline(lines, line);) {
    line = WithoutBlanks(line);
    const std::string header = IncludedBy(line);
    const bool isPosix = Holds(kOfPosix, header);
    const bool isWindows = Holds(kOfWindows, header);
    if ((isPosix || isWindows) && !(isPosix && ofPosix) && !(isWindows && ofWindows)) {
      violations.push_back(path + " may not include " + header);
    }
    if (AsksForTheSystem(line)) violations.push_back(path + " asks which system it is");
  }
  return violations;
}

}  // namespace architecture
