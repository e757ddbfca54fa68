// A drawing of a few lines, as text.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace zdx_test {

// All texts are UTF-8, without line ends.
struct SmallDrawing {
  std::string title = "Ground floor";
  std::string author = "Ada";
  // Keys and values.
  std::vector<std::pair<std::string, std::string>> custom = {{"Client", "Harbour Trust"}};
  std::string projectName = "Quay";
  std::vector<std::string> layers = {"0", "Walls"};
  // Names and comments.
  std::vector<std::pair<std::string, std::string>> linetypes = {{"Continuous", "Solid line"},
                                                                {"Dashed", ""}};
  std::string namedObject = "SITE_DATA";
  // A bitmap without the head of a file; empty for no picture.
  std::string picture = {};
};

// The bytes of the drawing as a DXF file.
std::string DxfText(const SmallDrawing& drawing = {});

}  // namespace zdx_test
