// What a shared library shows to its clients.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace architecture {

// The symbols that the library defines for others, as the linker knows them.  Throws
// std::runtime_error if it can't be read.
std::vector<std::string> ExportsOf(const std::filesystem::path& library);

}  // namespace architecture
