#include "support/drawing/DrawingSpec.h"

#include <algorithm>

namespace drawing {

bool IsSameName(std::string_view one, std::string_view other) {
  const auto small = [](char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 32) : letter;
  };
  return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                    [&](char a, char b) { return small(a) == small(b); });
}

BlockSpec XrefBlock(std::string name, std::string path, Xref xref) {
  BlockSpec block;
  block.name = std::move(name);
  block.path = std::move(path);
  block.xref = xref;
  return block;
}

TextStyleSpec ShapeFile(std::string file, std::string handle) {
  TextStyleSpec style("", std::move(file));
  style.flags = 1;
  style.handle = std::move(handle);
  return style;
}

}  // namespace drawing
