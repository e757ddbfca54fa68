#include "StandardStreams.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <string>

#include "Messages.h"

#if !defined(_WIN32)
#include <fcntl.h>
#include <unistd.h>
#endif

namespace zdx {

void PrepareStandardStreams() {
#if !defined(_WIN32)
  std::signal(SIGPIPE, SIG_IGN);
  // Opened for reading only, so that a write to a stream that was closed still fails.
  int stream = 0;
  do {
    stream = open("/dev/null", O_RDONLY);
  } while (stream >= 0 && stream <= STDERR_FILENO);
  if (stream >= 0) close(stream);
#endif
}

bool WriteOutput(std::string_view text) {
  const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
  if (written && std::fflush(stdout) == 0) return true;
  Complain(std::string("standard output: ") + std::strerror(errno));
  return false;
}

}  // namespace zdx
