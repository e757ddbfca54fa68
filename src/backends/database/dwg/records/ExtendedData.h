// What an application keeps in a record: codes and values.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "backends/database/dwg/records/Format.h"

namespace zdx::dwg {

// The handle of the first reference to an object; nullopt if there is none before the end or bytes
// that make no sense.
std::optional<std::uint64_t> FirstReference(std::string_view bytes, Format format);

}  // namespace zdx::dwg
