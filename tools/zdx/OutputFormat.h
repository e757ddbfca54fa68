// The forms in which commands tell what they found.
#pragma once

namespace zdx {

enum class OutputFormat { kText, kJson, kDot, kHtml };

}  // namespace zdx
