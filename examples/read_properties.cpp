// Prints the custom entries, layers and line types of a drawing.
#include <cstdio>
#include <string>
#include <vector>

#include "ZDXEngine/FilePropertyMgr.h"
#include "ZDXEngine/Utf8.h"
#include "ZDXEngine/ZDXService.h"
#include "ZDXEngine/ZdxEngineException.h"

namespace service = ZDXEngine::ZDXService;
using ZDXEngine::FilePropertyMgr;

namespace {

void Print(const std::wstring& path, FilePropertyMgr::FilePropertiesSet selection) {
  std::vector<ZDXEngine::BlockFilterParam> noBlocks;
  for (const ZDXEngine::_PropData& property :
       FilePropertyMgr::Instance().GetProperties(path, noBlocks, selection)) {
    if (property.typeCode != ZDXEngine::kTypeText || property.value.bstrVal == nullptr) continue;
    std::printf("%s: %s\n", ZDXEngine::Utf8FromWide(property.name).c_str(),
                ZDXEngine::Utf8FromWide(property.value.bstrVal).c_str());
  }
}

int PrintAll(const std::wstring& path) {
  service::SetupHostApplication();
  service::ValidateHostApplication(1033);
  service::InitHostApplication();
  service::InitializeEConvyEngine();

  int exitCode = 0;
  try {
    Print(path, FilePropertyMgr::CustomSummary);
    Print(path, FilePropertyMgr::SymbolTables);
  } catch (const ZDXEngine::FileError& error) {
    std::fputs(ZDXEngine::Utf8FromWide(error.errorMessage).c_str(), stderr);
    exitCode = 2;
  }

  service::UnInitializeEConveyEngine();
  service::UnInitializeHostApplication();
  return exitCode;
}

}  // namespace

#if defined(_WIN32)
int wmain(int argc, wchar_t** argv) { return argc == 2 ? PrintAll(argv[1]) : 64; }
#else
int main(int argc, char** argv) {
  return argc == 2 ? PrintAll(ZDXEngine::WideFromUtf8(argv[1])) : 64;
}
#endif
