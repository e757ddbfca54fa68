#include "backends/database/model/Version.h"

namespace zdx::model {
namespace {

struct MagicRow {
  int number;  // the digits of the magic
  Version version;
};

// Ascending; a magic counts as the last row that isn't above it.
constexpr MagicRow kMagics[] = {
    {0, 1},  // older than any that is told apart
    {1009, kVersion1009},
    {1012, kVersion1012},
    {1014, kVersion1014},
    {1015, kVersion1015},
    {1018, kVersion1018},
    {1021, kVersion1021},
    {1024, kVersion1024},
    {1027, kVersion1027},
    {1032, kVersion1032},
    {1033, kVersionUnknownNewer},
};

}  // namespace

std::optional<Version> VersionByMagic(std::string_view magic) {
  if (magic.size() < 5 || magic.size() > 6 || magic.substr(0, 2) != "AC") return std::nullopt;
  int number = 0;
  for (const char c : magic.substr(2)) {
    // The earliest magics have a point in their number ("AC2.10").
    if (c == '.') return kMagics[0].version;
    if (c < '0' || c > '9') return std::nullopt;
    number = number * 10 + (c - '0');
  }
  Version version = kMagics[0].version;
  for (const MagicRow& row : kMagics) {
    if (row.number <= number) version = row.version;
  }
  return version;
}

}  // namespace zdx::model
