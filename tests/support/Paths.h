// The names of files, as the engine, the tool and the standard library spell them.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace zdx_test {

// The path that a name of the engine's stands for, and back.
std::filesystem::path PathOf(const std::wstring& name);
std::wstring NameOf(const std::filesystem::path& path);

// The same for a name as the tool's command line and output have it: in UTF-8, or the bytes of a
// name that isn't text.
std::filesystem::path PathOf(std::string_view name);
std::string BytesOf(const std::filesystem::path& path);

}  // namespace zdx_test
