// What decides how the parts of a file are written.
#pragma once

#include <cstdint>

#include "backends/database/model/Version.h"

namespace zdx::dwg {

struct Format {
  model::Version version = model::kVersion1014;
  std::uint8_t maintenance = 0;

  // Texts and handles stand apart from the other data, and texts are UTF-16.
  bool HasStringStream() const { return version >= model::kVersion1021; }
};

}  // namespace zdx::dwg
