#pragma once

#include <string>
#include <string_view>

#include "generate/LargeDrawing.h"
#include "generate/TitledDrawing.h"

namespace bench {

// Whether `text` is a count of at least 1, which goes to `count`.
bool ReadCount(std::string_view text, int& count);

// Whether `text` names a kind of titled drawing: "titles" or "nested-titles".
bool ReadPlace(std::string_view text, Place& place);

// These throw std::runtime_error if the file can't be written.
void WriteBytes(const std::string& path, std::string_view bytes);
// Beside the drawing at `path`.
void WriteExpected(const std::string& path, const Expected& expected);

}  // namespace bench
