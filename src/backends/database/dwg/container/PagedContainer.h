// The form of AC1018, AC1024, AC1027 and AC1032: sections are cut into compressed pages; a masked
// header leads to a map of the pages and a map of the sections.
#pragma once

#include "backends/database/dwg/container/Container.h"

namespace zdx::dwg {

std::variant<std::unique_ptr<Container>, model::Finding> OpenPaged(std::string_view bytes,
                                                                   model::Report& report);

}  // namespace zdx::dwg
