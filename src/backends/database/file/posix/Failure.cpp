#include "backends/database/file/Failure.h"

#include <cerrno>

namespace zdx::file {

Failure FailureOf(std::uint32_t number) {
  switch (static_cast<int>(number)) {
    case ENOENT:
    case ENOTDIR:
    case ENAMETOOLONG:
      return Failure::kNotFound;
    case EISDIR:
      return Failure::kNotAFile;
    case EACCES:
    case EPERM:
    case EROFS:
      return Failure::kNoAccess;
    case EAGAIN:  // another program has a lease on it
    case EBUSY:
    case ETXTBSY:
      return Failure::kInUse;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return Failure::kNoRoom;
    default:
      return Failure::kOther;
  }
}

}  // namespace zdx::file
