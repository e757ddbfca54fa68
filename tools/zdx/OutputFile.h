// Writing a file whole or not at all.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zdx {

// Writes `bytes` to a new file beside `path`, which then takes its place.  Why it failed, in the
// system's words; the file at `path` is as it was then, and the new one gone.
std::optional<std::string> WriteFile(const std::string& path, std::string_view bytes);

}  // namespace zdx
