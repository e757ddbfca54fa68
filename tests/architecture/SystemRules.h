// Which source may call a system by its own headers.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace architecture {

// What is wrong with the source at `path`, which is relative to the project: one sentence for each
// header of one system that is included, and each question which system it is, outside a folder of
// that system's name.
std::vector<std::string> SystemViolations(const std::string& path, std::string_view source);

}  // namespace architecture
