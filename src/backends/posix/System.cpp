#include "backends/System.h"

#include "backends/posix/PosixFiles.h"
#include "backends/posix/PosixModules.h"
#include "backends/posix/PosixPaths.h"
#include "backends/posix/PosixProvider.h"
#include "backends/posix/graphics/PosixGraphics.h"

namespace zdx {

std::unique_ptr<os::Provider> MakeSystem() { return std::make_unique<PosixProvider>(); }
std::unique_ptr<os::PathProvider> MakeSystemPaths() { return std::make_unique<PosixPaths>(); }
std::unique_ptr<os::ModuleProvider> MakeSystemModules() { return std::make_unique<PosixModules>(); }
std::unique_ptr<os::FileProvider> MakeSystemFiles() { return std::make_unique<PosixFiles>(); }
std::unique_ptr<os::GraphicsProvider> MakeSystemGraphics() {
  return std::make_unique<PosixGraphics>();
}

}  // namespace zdx
