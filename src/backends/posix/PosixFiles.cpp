#include "backends/posix/PosixFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string>

#include "ZDXEngine/Utf8.h"

namespace zdx {
namespace {

// A handle is the descriptor's number and one, so that none is null.
os::FileHandle HandleOf(int descriptor) {
  const std::intptr_t number = std::intptr_t{descriptor} + 1;
  return reinterpret_cast<os::FileHandle>(number);  // NOLINT(performance-no-int-to-ptr)
}

int DescriptorOf(os::FileHandle file) {
  return static_cast<int>(reinterpret_cast<std::intptr_t>(file) - 1);
}

int OpenForReading(const std::string& name) {
  // Not blocking: opening a pipe that nobody writes to would wait for ever.
  int descriptor = -1;
  do {
    descriptor = open(name.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  } while (descriptor < 0 && errno == EINTR);
  return descriptor;
}

bool IsRegularFile(int descriptor) {
  struct stat status = {};
  return fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

}  // namespace

os::FileHandle PosixFiles::CreateFileW(const wchar_t* path, std::uint32_t access,
                                       std::uint32_t /*share*/, void* /*security*/,
                                       std::uint32_t disposition, std::uint32_t /*attributes*/,
                                       os::FileHandle /*templateFile*/) {
  if (path == nullptr || access != os::kGenericRead || disposition != os::kOpenExisting) {
    return os::kInvalidHandle;
  }
  const int descriptor = OpenForReading(ZDXEngine::BytesFromWide(path));
  if (descriptor < 0) return os::kInvalidHandle;
  if (IsRegularFile(descriptor)) return HandleOf(descriptor);
  close(descriptor);
  return os::kInvalidHandle;
}

int PosixFiles::ReadFile(os::FileHandle file, void* buffer, std::uint32_t size,
                         std::uint32_t* count, void* /*overlapped*/) {
  *count = 0;
  std::uint32_t done = 0;
  while (done < size) {
    const ssize_t came =
        read(DescriptorOf(file), static_cast<char*>(buffer) + done, std::size_t{size} - done);
    if (came < 0 && errno == EINTR) continue;
    if (came < 0) return 0;
    if (came == 0) break;
    done += static_cast<std::uint32_t>(came);
  }
  *count = done;
  return 1;
}

std::uint32_t PosixFiles::SetFilePointer(os::FileHandle file, std::int32_t distance,
                                         std::int32_t* distanceHigh, std::uint32_t method) {
  if (distanceHigh != nullptr || method != os::kFromBegin) return os::kInvalidFilePointer;
  const off_t reached = lseek(DescriptorOf(file), distance, SEEK_SET);
  return reached < 0 ? os::kInvalidFilePointer : static_cast<std::uint32_t>(reached);
}

int PosixFiles::CloseHandle(os::FileHandle file) { return close(DescriptorOf(file)) == 0 ? 1 : 0; }

}  // namespace zdx
