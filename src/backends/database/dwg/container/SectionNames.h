// The sections that are read, by their names.
#pragma once

#include <optional>
#include <string_view>

#include "backends/database/dwg/container/Container.h"

namespace zdx::dwg {

// nullopt for a section that nobody here asks for.
std::optional<SectionId> SectionByName(std::string_view name);

}  // namespace zdx::dwg
