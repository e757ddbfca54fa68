#include "support/drawing/Version.h"

#include <array>
#include <stdexcept>
#include <string>

namespace drawing {
namespace {

constexpr std::array<std::string_view, 9> kNames = {
    "AC1009", "AC1012", "AC1014", "AC1015", "AC1018", "AC1021", "AC1024", "AC1027", "AC1032"};
static_assert(kNames.size() == static_cast<std::size_t>(Version::AC1032) + 1);

}  // namespace

Version VersionOf(std::string_view name) {
  for (std::size_t i = 0; i < kNames.size(); ++i) {
    if (kNames[i] == name) return static_cast<Version>(i);
  }
  throw std::invalid_argument("no such version: " + std::string(name));
}

}  // namespace drawing
