#include "backends/System.h"

#include "backends/windows/WindowsFiles.h"
#include "backends/windows/WindowsGraphics.h"
#include "backends/windows/WindowsModules.h"
#include "backends/windows/WindowsPaths.h"
#include "backends/windows/WindowsProvider.h"

namespace zdx {

std::unique_ptr<os::Provider> MakeSystem() { return std::make_unique<WindowsProvider>(); }
std::unique_ptr<os::PathProvider> MakeSystemPaths() { return std::make_unique<WindowsPaths>(); }
std::unique_ptr<os::ModuleProvider> MakeSystemModules() {
  return std::make_unique<WindowsModules>();
}
std::unique_ptr<os::FileProvider> MakeSystemFiles() { return std::make_unique<WindowsFiles>(); }
std::unique_ptr<os::GraphicsProvider> MakeSystemGraphics() {
  return std::make_unique<WindowsGraphics>();
}

}  // namespace zdx
