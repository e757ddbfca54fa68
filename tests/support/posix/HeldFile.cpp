#include "support/HeldFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <csignal>

namespace zdx_test {

// A lease: whoever opens the file has to wait, or is sent away if he won't.
HeldFile::HeldFile(const std::filesystem::path& path) {
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  file_ = file;
  // By it the system asks for the file back.
  std::signal(SIGIO, SIG_IGN);
  holds_ = file >= 0 && fcntl(file, F_SETLEASE, F_WRLCK) == 0;
}

HeldFile::~HeldFile() {
  const int file = static_cast<int>(file_);
  if (file < 0) return;
  if (holds_) fcntl(file, F_SETLEASE, F_UNLCK);
  close(file);
}

}  // namespace zdx_test
