#include "backends/database/file/Replacement.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <utility>

#include "ZDXEngine/Utf8.h"

namespace zdx::file {

namespace {

constexpr int kMostLinks = 40;
constexpr int kMostNames = 1000;
constexpr mode_t kPermissions = 0777;
constexpr mode_t kAnyMayWrite = 0222;

WriteError ErrorOf(int number) {
  const auto unsignedNumber = static_cast<std::uint32_t>(number);
  return {FailureOf(unsignedNumber), unsignedNumber};
}

// What the links at `path` lead to, which needn't be there.
std::filesystem::path Followed(std::filesystem::path path) {
  std::error_code error;
  for (int i = 0; i < kMostLinks && std::filesystem::is_symlink(path, error); ++i) {
    path = path.parent_path() / std::filesystem::read_symlink(path, error);
  }
  return path;
}

// Why what stands at `target` can't be replaced; its permissions, if it is there.
std::optional<WriteError> Refusal(const std::string& target, std::optional<mode_t>& permissions) {
  struct stat status = {};
  if (stat(target.c_str(), &status) != 0) {
    return errno == ENOENT ? std::nullopt : std::optional(ErrorOf(errno));
  }
  if (!S_ISREG(status.st_mode)) return WriteError{Failure::kNotAFile, EISDIR};
  // For the superuser too, whom the system lets write it.
  if ((status.st_mode & kAnyMayWrite) == 0) return ErrorOf(EACCES);
  if (faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0) return ErrorOf(errno);
  permissions = status.st_mode & kPermissions;
  return std::nullopt;
}

// A failure leaves the new name in place: it is the disk's record of it that may come late.
void FlushFolder(const std::filesystem::path& file) {
  const std::string folder = file.has_parent_path() ? file.parent_path().string() : ".";
  const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  fsync(descriptor);
  close(descriptor);
}

}  // namespace

class Replacement::NewFile {
 public:
  explicit NewFile(std::string path) : target_(std::move(path)) {}
  ~NewFile() {
    if (descriptor_ >= 0) close(descriptor_);
    if (!name_.empty()) unlink(name_.c_str());
  }
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  std::optional<WriteError> Make() {
    std::optional<mode_t> permissions;
    if (const auto refusal = Refusal(target_, permissions)) return refusal;
    for (int i = 0; i < kMostNames && descriptor_ < 0; ++i) {
      name_ = target_ + ".zdx-" + std::to_string(i);
      descriptor_ = open(name_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
      if (descriptor_ < 0 && errno != EEXIST) break;
    }
    if (descriptor_ < 0) {
      name_.clear();
      return ErrorOf(errno);
    }
    if (permissions && fchmod(descriptor_, *permissions) != 0) return ErrorOf(errno);
    return std::nullopt;
  }

  std::optional<WriteError> Write(std::string_view bytes) {
    while (!bytes.empty()) {
      const ssize_t count = write(descriptor_, bytes.data(), bytes.size());
      if (count < 0 && errno != EINTR) return ErrorOf(errno);
      if (count > 0) bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return std::nullopt;
  }

  std::optional<WriteError> TakePlace() {
    if (fsync(descriptor_) != 0 || close(std::exchange(descriptor_, -1)) != 0 ||
        std::rename(name_.c_str(), target_.c_str()) != 0) {
      return ErrorOf(errno);
    }
    name_.clear();
    FlushFolder(target_);
    return std::nullopt;
  }

 private:
  std::string target_;
  // Empty if there is nothing to take away.
  std::string name_;
  int descriptor_ = -1;
};

Replacement::Replacement(std::unique_ptr<NewFile> file) : file_(std::move(file)) {}
Replacement::~Replacement() = default;
Replacement::Replacement(Replacement&&) noexcept = default;
Replacement& Replacement::operator=(Replacement&&) noexcept = default;

std::variant<Replacement, WriteError> Replacement::Begin(const std::wstring& path) {
  const std::string name = ZDXEngine::BytesFromWide(path);
  if (name.find('\0') != std::string::npos) return ErrorOf(ENOENT);
  auto file = std::make_unique<NewFile>(Followed(name).string());
  if (const auto error = file->Make()) return *error;
  return Replacement(std::move(file));
}

std::optional<WriteError> Replacement::Append(std::string_view bytes) {
  return file_->Write(bytes);
}

std::optional<WriteError> Replacement::Commit() { return file_->TakePlace(); }

}  // namespace zdx::file
