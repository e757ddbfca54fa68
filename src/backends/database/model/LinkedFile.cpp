#include "backends/database/model/LinkedFile.h"

#include <cstddef>

namespace zdx::model {

std::wstring LinkedFile(std::wstring_view connection) {
  // Of the extension that ends here, with its dot.
  std::size_t length = 0;
  for (std::size_t i = 0; i < connection.size(); ++i) {
    const wchar_t c = connection[i];
    if (c == L'!' && length > 1) return std::wstring(connection.substr(0, i));
    if (c == L'.') {
      length = 1;
    } else if (c == L'/' || c == L'\\' || c == L'!') {
      length = 0;
    } else if (length != 0) {
      ++length;
    }
  }
  return std::wstring(connection);
}

}  // namespace zdx::model
