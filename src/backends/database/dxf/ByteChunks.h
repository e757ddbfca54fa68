// Bytes, which files keep in chunks of a limited size.
#pragma once

#include <string>

#include "backends/database/dxf/TagStream.h"

namespace zdx::dxf {

// Appends what the chunk holds; false, with nothing appended, if it isn't made of bytes.
bool AppendChunk(std::string& bytes, const Tag& chunk, Form form);

}  // namespace zdx::dxf
