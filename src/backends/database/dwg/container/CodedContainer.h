// The form of AC1021: as that of AC1018, but pages are protected by an error-correcting code and
// compressed in another way.
#pragma once

#include "backends/database/dwg/container/Container.h"

namespace zdx::dwg {

std::variant<std::unique_ptr<Container>, model::Finding> OpenCoded(std::string_view bytes,
                                                                   model::Report& report);

}  // namespace zdx::dwg
