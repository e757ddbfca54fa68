// What stands behind the platform interfaces unless a test says otherwise.
#pragma once

namespace ZDXEngine {

// Installs the embedded drawing database, the walker, the utilities and this system's operations.
// Called once, when the library is loaded.
void InstallDefaultProviders();

}  // namespace ZDXEngine
