// The operating system's own operations; the folder of each system defines what is declared here.
#pragma once

#include <memory>
#include <string>

#include "platform/os/Files.h"
#include "platform/os/Graphics.h"
#include "platform/os/Modules.h"
#include "platform/os/Os.h"
#include "platform/os/Paths.h"

namespace zdx {

std::unique_ptr<os::Provider> MakeSystem();
std::unique_ptr<os::FileProvider> MakeSystemFiles();
std::unique_ptr<os::GraphicsProvider> MakeSystemGraphics();
std::unique_ptr<os::PathProvider> MakeSystemPaths();
std::unique_ptr<os::ModuleProvider> MakeSystemModules();

// `path` from the root on, without "." and ".."; as it is if the system can't tell.
std::wstring FullPath(const std::wstring& path);
// The path, in the system's own form, of the file or folder that `path` means: with the case of
// letters and the separators that it really has.  Empty if there is none.
std::wstring ExistingPath(const std::wstring& path);
// The same text for all paths that lead to one file, and another for every other file; empty if
// there is none.
std::wstring FileIdentity(const std::wstring& path);

// Loads the module `name`, or finds it loaded already; os::GetModuleHandleW finds it by the same
// name then.  Null if it can't be loaded.
os::ModuleHandle LoadModule(const wchar_t* name);
// Gives back what LoadModule took; false if it took nothing of that name.
bool UnloadModule(const wchar_t* name);

// The text `id` in the string table of `module`; empty if there is none.
std::wstring LoadModuleString(os::ModuleHandle module, unsigned int id);

}  // namespace zdx
