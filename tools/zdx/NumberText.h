// Numbers as text.
#pragma once

#include <string>

namespace zdx {

// The shortest text that reads back as `number`.
std::string NumberText(double number);

}  // namespace zdx
