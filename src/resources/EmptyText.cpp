#include "resources/EmptyText.h"

namespace ZDXEngine {

const std::wstring& EmptyText() {
  static const std::wstring text;
  return text;
}

}  // namespace ZDXEngine
