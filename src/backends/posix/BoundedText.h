// Copies of texts into buffers, which never write beyond them.
#pragma once

#include <cstddef>
#include <string_view>

#include "platform/os/Paths.h"

namespace zdx {

// What such a copy answers to a buffer or text that isn't there.
inline constexpr os::Errno kInvalidArgument = 22;

// Copies `text` and a terminator into `target`, of `size` characters; 0, or what was wrong, which
// leaves the target empty.
os::Errno CopyBounded(std::wstring_view text, wchar_t* target, std::size_t size);

}  // namespace zdx
