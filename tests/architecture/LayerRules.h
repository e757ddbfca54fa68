// Which folder may include what, as cmake/layers.txt says, and whether a source keeps to it.
#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace architecture {

// The table of layers.
struct LayerRules {
  // In the order of the table's lines.
  std::vector<std::string> layers;
  // For each layer the others that it may include.
  std::map<std::string, std::set<std::string>> allowed;

  // Reads "layer: other layers" lines; a line that begins with '#' is a comment.  Throws
  // std::invalid_argument for a line without a colon and for a layer named twice.
  static LayerRules Parse(std::string_view table);
};

// The layer of the source at `path`, which is relative to the project: the folder below src/ or
// include/, or the folder and its parent elsewhere, as "tools/zdx".
std::string LayerOfFile(const std::string& path);

// What is wrong with the #include "..." lines of `source`, whose file is `path`: one sentence each.
// A name without a folder is a file beside the source.
std::vector<std::string> Violations(const LayerRules& rules, const std::string& path,
                                    std::string_view source);

}  // namespace architecture
