// In which kind of host the drawing library runs.
#pragma once

namespace ZDXEngine {

// The product code of this engine's kind of host.
inline constexpr int kHostProductCode = 4;

}  // namespace ZDXEngine
