// Why one file couldn't be told.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "ZDXEngine/Diagnostics.h"

namespace zdx {

// All texts are UTF-8.
struct Failure {
  // The class of the exception, without its namespace.
  std::string className;
  // The engine's error code or the HRESULT; nothing for the standard library's exceptions.
  std::optional<std::int64_t> code;
  // A sentence without white space at its end.
  std::string message;
  // What exactly was wrong in the file, and where; empty if it isn't known.
  std::string reason;
  ZDXEngine::DiagnosticPlace place;
};

// Describes the exception that is being handled; called in a handler only.  Rethrows what isn't one
// of the engine's, COM's or the standard library's.
Failure DescribeCurrentException();

}  // namespace zdx
