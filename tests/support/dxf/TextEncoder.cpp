#include "support/dxf/TextEncoder.h"

namespace dxf {

std::string TextEncoder::Encode(std::string_view utf8) const {
  std::string escaped;
  for (const char letter : utf8) {
    if (static_cast<unsigned char>(letter) < ' ') {
      escaped += {'^', static_cast<char>(letter + 64)};
    } else if (letter == '^') {
      escaped += "^ ";
    } else {
      escaped += letter;
    }
  }
  return page_.Encode(escaped);
}

}  // namespace dxf
