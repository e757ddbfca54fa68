// The form of AC1014 and AC1015: sections stand in the file as they are, and a list behind the head
// tells where.
//
//   OFFSET  SIZE  MEANING
//     21      4   number of locators
//     25      9n  locators: number (1), address (4), size (4)
//   25+9n     2   check of everything before it
//   27+9n    16   mark
#pragma once

#include <map>

#include "backends/database/dwg/container/Container.h"

namespace zdx::dwg {

std::variant<std::unique_ptr<Container>, model::Finding> OpenFlat(std::string_view bytes,
                                                                  model::Report& report);

}  // namespace zdx::dwg
