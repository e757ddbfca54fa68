// The checksum by which a truth file knows bytes.
#pragma once

#include <string>
#include <string_view>

namespace zdx_test {

// SHA-256 in 64 lower-case digits.
std::string Sha256(std::string_view bytes);

}  // namespace zdx_test
