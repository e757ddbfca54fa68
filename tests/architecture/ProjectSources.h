// The sources of this project.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace architecture {

inline const std::filesystem::path kProject = ZDX_SOURCE_DIR;

// The C++ files below `folder`, relative to the project.
inline std::vector<std::string> SourcesBelow(const std::string& folder) {
  std::vector<std::string> paths;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(kProject / folder)) {
    const std::filesystem::path extension = entry.path().extension();
    if (entry.is_regular_file() && (extension == ".h" || extension == ".cpp")) {
      paths.push_back(entry.path().lexically_relative(kProject).generic_string());
    }
  }
  return paths;
}

}  // namespace architecture
