#pragma once

#include <string>

#include "support/dwg/Drawing.h"

namespace dwg {

// The sections of the header variables and of the classes, from their marks on to those at their
// ends.
std::string HeaderSection(Drawing& drawing);
std::string ClassesSection(const Drawing& drawing);

// `fields` between the marks, with size and check.
std::string MarkedSection(const Fields& fields, std::string_view mark, int maintenance);

// The release byte at the head of the file.
int MaintenanceOf(const Drawing& drawing);

}  // namespace dwg
