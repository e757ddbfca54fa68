#include "StandardStreams.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>

namespace zdx {

void PrepareStandardStreams() {
  std::signal(SIGPIPE, SIG_IGN);
  // Opened for reading only, so that a write to a stream that was closed still fails.
  int stream = 0;
  do {
    stream = open("/dev/null", O_RDONLY);
  } while (stream >= 0 && stream <= STDERR_FILENO);
  if (stream >= 0) close(stream);
}

std::optional<std::string> Write(Stream stream, std::string_view text) {
  std::FILE* const file = stream == Stream::kOutput ? stdout : stderr;
  const bool written = std::fwrite(text.data(), 1, text.size(), file) == text.size();
  if (written && std::fflush(file) == 0) return std::nullopt;
  return std::strerror(errno);
}

}  // namespace zdx
