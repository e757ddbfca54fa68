#include "backends/System.h"

#include "backends/posix/PosixFiles.h"
#include "backends/posix/PosixProvider.h"
#include "backends/posix/graphics/PosixGraphics.h"

namespace zdx {

std::unique_ptr<os::Provider> MakeSystem() { return std::make_unique<PosixProvider>(); }
std::unique_ptr<os::FileProvider> MakeSystemFiles() { return std::make_unique<PosixFiles>(); }
std::unique_ptr<os::GraphicsProvider> MakeSystemGraphics() {
  return std::make_unique<PosixGraphics>();
}

}  // namespace zdx
