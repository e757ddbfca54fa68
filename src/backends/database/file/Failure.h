// Why a file can't be used.
#pragma once

#include <cstdint>

namespace zdx::file {

enum class Failure {
  // There is no such file, or no folder to make it in.
  kNotFound,
  // A folder, a device or a pipe.
  kNotAFile,
  // The user may not do it.
  kNoAccess,
  // Another program has the file open in a way that doesn't allow it.
  kInUse,
  // The disk is full, or what the user may have on it.
  kNoRoom,
  kOther,
};

// The kind of the system's error `number`.
Failure FailureOf(std::uint32_t number);

}  // namespace zdx::file
