// Bytes as text for JSON.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace zdx {

// `bytes` in base64 with the standard alphabet and padding, without line breaks.
std::string Base64(std::span<const std::uint8_t> bytes);

}  // namespace zdx
