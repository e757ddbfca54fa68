// The system's own sentences.
#pragma once

#include <cstdint>
#include <string>

namespace zdx {

// What the system says of its error `number`, in the person's language and on one line; its number
// if it has no sentence for it.
std::string SystemMessage(std::uint32_t number);

}  // namespace zdx
