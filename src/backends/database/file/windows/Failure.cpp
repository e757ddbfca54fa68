#include "backends/database/file/Failure.h"

#include <windows.h>

namespace zdx::file {

Failure FailureOf(std::uint32_t number) {
  switch (number) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_DIRECTORY:
    case ERROR_FILENAME_EXCED_RANGE:
      return Failure::kNotFound;
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
      return Failure::kNoAccess;
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_USER_MAPPED_FILE:
      return Failure::kInUse;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case ERROR_NOT_ENOUGH_QUOTA:
      return Failure::kNoRoom;
    default:
      return Failure::kOther;
  }
}

}  // namespace zdx::file
