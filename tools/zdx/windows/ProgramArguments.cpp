#include <windows.h>
// After windows.h.
#include <shellapi.h>

#include "SystemNames.h"
#include "ZDXEngine/Utf8.h"

namespace zdx {

std::vector<std::string> ProgramArguments(int /*count*/, const char* const* /*arguments*/) {
  int count = 0;
  wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> arguments;
  for (int i = 1; i < count; ++i) arguments.push_back(ZDXEngine::BytesFromWide(words[i]));
  LocalFree(words);
  return arguments;
}

}  // namespace zdx
