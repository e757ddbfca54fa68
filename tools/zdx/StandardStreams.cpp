#include "StandardStreams.h"

#include "Messages.h"

namespace zdx {

bool WriteOutput(std::string_view text) {
  const std::optional<std::string> failure = Write(Stream::kOutput, text);
  if (!failure) return true;
  Complain("standard output: " + *failure);
  return false;
}

}  // namespace zdx
