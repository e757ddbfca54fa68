#include "resources/Constants.h"

namespace ZDXEngine {

const std::wstring kEmptyText;
const std::wstring kLineFeedText = L"\n";

}  // namespace ZDXEngine
