// The least that anything can do with a text drawing: looks at every byte of a mapped file once,
// for its line ends.  Prints how many there are and how long the pass took.

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <string_view>
#include <vector>

namespace {

std::uint64_t CountLineEnds(std::string_view bytes) {
  std::uint64_t count = 0;
  const char* at = bytes.data();
  const char* const end = at + bytes.size();
  while (at != end) {
    at = static_cast<const char*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at)));
    if (at == nullptr) break;
    ++at;
    ++count;
  }
  return count;
}

// The whole of `path`, mapped until the process ends; empty if it can't be.
std::string_view Map(const char* path) {
  const int file = open(path, O_RDONLY | O_CLOEXEC);
  struct stat status {};
  if (file < 0 || fstat(file, &status) != 0 || status.st_size == 0) return {};
  const auto size = static_cast<std::size_t>(status.st_size);
  void* bytes = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file, 0);
  close(file);
  return bytes == MAP_FAILED ? std::string_view()
                             : std::string_view(static_cast<const char*>(bytes), size);
}

}  // namespace

int main(int argc, char** argv) {
  int runs = 1;
  if (argc == 3) std::from_chars(argv[2], argv[2] + std::strlen(argv[2]), runs);
  if (argc < 2 || argc > 3 || runs < 1) {
    std::cerr << "usage: line_pass FILE [RUNS]\n";
    return 2;
  }
  const std::string_view bytes = Map(argv[1]);
  if (bytes.empty()) {
    std::perror(argv[1]);
    return 1;
  }
  std::uint64_t count = 0;
  std::vector<double> seconds;
  for (int run = 0; run < runs; ++run) {
    const auto start = std::chrono::steady_clock::now();
    count = CountLineEnds(bytes);
    seconds.push_back(
        std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
  }
  std::sort(seconds.begin(), seconds.end());
  std::cout << "line ends " << count << "\nseconds " << seconds[seconds.size() / 2] << '\n';
}
