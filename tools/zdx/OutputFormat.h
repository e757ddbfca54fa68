// The forms in which commands tell what they found.
#pragma once

namespace zdx {

enum class OutputFormat { kText, kJson };

}  // namespace zdx
