#include "SystemNames.h"

namespace zdx {

std::vector<std::string> ProgramArguments(int count, const char* const* arguments) {
  return count < 2 ? std::vector<std::string>()
                   : std::vector<std::string>(arguments + 1, arguments + count);
}

std::vector<std::string> FilesMeantBy(const std::string& name) { return {name}; }

std::wstring CallablePath(const std::wstring& path) { return path; }

}  // namespace zdx
