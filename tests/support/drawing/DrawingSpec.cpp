#include "support/drawing/DrawingSpec.h"

namespace drawing {

BlockSpec XrefBlock(std::string name, std::string path, Xref xref) {
  BlockSpec block;
  block.name = std::move(name);
  block.path = std::move(path);
  block.xref = xref;
  return block;
}

}  // namespace drawing
