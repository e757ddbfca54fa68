#include "backends/database/file/MappedFile.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "ZDXEngine/Utf8.h"

namespace zdx::file {
namespace {

Failure Last() { return FailureOf(static_cast<std::uint32_t>(errno)); }

// Closes a descriptor at the end of its scope; a mapping outlives it.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() {
    if (number_ >= 0) close(number_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int number() const { return number_; }

 private:
  int number_;
};

}  // namespace

std::variant<MappedFile, Failure> MappedFile::Open(const std::wstring& path) {
  const std::string name = ZDXEngine::BytesFromWide(path);
  if (name.find('\0') != std::string::npos) return Failure::kNotFound;
  // Not blocking: opening a pipe that nobody writes to would wait for ever.
  const Descriptor descriptor(open(name.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (descriptor.number() < 0) return Last();
  struct stat status = {};
  if (fstat(descriptor.number(), &status) != 0) return Last();
  if (!S_ISREG(status.st_mode)) return Failure::kNotAFile;
  MappedFile mapped;
  mapped.size_ = static_cast<std::size_t>(status.st_size);
  if (mapped.size_ == 0) return mapped;
  void* const data = mmap(nullptr, mapped.size_, PROT_READ, MAP_PRIVATE, descriptor.number(), 0);
  if (data == MAP_FAILED) {
    mapped.size_ = 0;
    return Last();
  }
  mapped.data_ = static_cast<const char*>(data);
  return mapped;
}

MappedFile::~MappedFile() {
  if (data_ != nullptr) munmap(const_cast<char*>(data_), size_);
}

}  // namespace zdx::file
