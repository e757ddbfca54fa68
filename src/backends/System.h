// The operating system's own operations; the folder of each system defines what is declared here.
#pragma once

#include <memory>
#include <string>

#include "platform/os/Files.h"
#include "platform/os/Graphics.h"
#include "platform/os/Os.h"

namespace zdx {

std::unique_ptr<os::Provider> MakeSystem();
std::unique_ptr<os::FileProvider> MakeSystemFiles();
std::unique_ptr<os::GraphicsProvider> MakeSystemGraphics();

// The text `id` in the string table of `module`; empty if there is none.
std::wstring LoadModuleString(os::ModuleHandle module, unsigned int id);

}  // namespace zdx
