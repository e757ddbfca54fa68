#include "backends/database/file/Replacement.h"

#include <windows.h>

#include <algorithm>
#include <utility>

namespace zdx::file {

namespace {

constexpr int kMostNames = 1000;
// Scanners and indexers hold a file for a moment after it was written.
constexpr int kTries = 10;
constexpr DWORD kPause = 100;
constexpr std::size_t kMostBytes = 1 << 20;
constexpr DWORD kKeptAttributes = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM |
                                  FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;

WriteError ErrorOf(DWORD number) { return {FailureOf(number), number}; }

// A file that somebody has open can't be told from one that may not be replaced by what moving
// says.
bool IsOpenElsewhere(const std::wstring& path) {
  const HANDLE file =
      CreateFileW(path.c_str(), DELETE, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return GetLastError() == ERROR_SHARING_VIOLATION;
  CloseHandle(file);
  return false;
}

// Why what stands at `target` can't be replaced; its attributes, 0 if it isn't there.
std::optional<WriteError> Refusal(const std::wstring& target, DWORD& attributes) {
  attributes = GetFileAttributesW(target.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) attributes = 0;
  if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
    return WriteError{Failure::kNotAFile, ERROR_ACCESS_DENIED};
  }
  if ((attributes & FILE_ATTRIBUTE_READONLY) != 0) return ErrorOf(ERROR_ACCESS_DENIED);
  return std::nullopt;
}

}  // namespace

class Replacement::NewFile {
 public:
  explicit NewFile(std::wstring path) : target_(std::move(path)) {}
  ~NewFile() {
    Close();
    if (!name_.empty()) DeleteFileW(name_.c_str());
  }
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  std::optional<WriteError> Make() {
    DWORD attributes = 0;
    if (const auto refusal = Refusal(target_, attributes)) return refusal;
    DWORD error = ERROR_FILE_EXISTS;
    for (int i = 0; i < kMostNames && error == ERROR_FILE_EXISTS; ++i) {
      std::wstring name = target_ + L".zdx-" + std::to_wstring(i);
      handle_ = CreateFileW(name.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                            FILE_ATTRIBUTE_NORMAL, nullptr);
      if (handle_ != INVALID_HANDLE_VALUE) {
        // Names of devices, such as NUL, stand for them whatever follows the first dot.
        if (GetFileType(handle_) != FILE_TYPE_DISK) {
          return WriteError{Failure::kNotAFile, ERROR_BAD_DEVICE};
        }
        name_ = std::move(name);
        return std::nullopt;
      }
      error = GetLastError();
    }
    return ErrorOf(error);
  }

  std::optional<WriteError> Write(std::string_view bytes) {
    while (!bytes.empty()) {
      const auto size = static_cast<DWORD>(std::min(bytes.size(), kMostBytes));
      DWORD written = 0;
      if (WriteFile(handle_, bytes.data(), size, &written, nullptr) == FALSE) {
        return ErrorOf(GetLastError());
      }
      if (written == 0) return ErrorOf(ERROR_DISK_FULL);
      bytes.remove_prefix(written);
    }
    return std::nullopt;
  }

  std::optional<WriteError> TakePlace() {
    if (FlushFileBuffers(handle_) == FALSE) return ErrorOf(GetLastError());
    Close();
    DWORD attributes = 0;
    if (const auto refusal = Refusal(target_, attributes)) return refusal;
    attributes &= kKeptAttributes;
    if (attributes != 0 && SetFileAttributesW(name_.c_str(), attributes) == FALSE) {
      return ErrorOf(GetLastError());
    }
    if (const DWORD error = Move()) return ErrorOf(error);
    name_.clear();
    return std::nullopt;
  }

 private:
  void Close() {
    const HANDLE handle = std::exchange(handle_, INVALID_HANDLE_VALUE);
    if (handle != INVALID_HANDLE_VALUE) CloseHandle(handle);
  }

  // The error's number, 0 for none.
  DWORD Move() const {
    DWORD error = ERROR_SUCCESS;
    for (int i = 0; i < kTries; ++i) {
      if (i > 0) Sleep(kPause);
      if (MoveFileExW(name_.c_str(), target_.c_str(),
                      MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE) {
        return ERROR_SUCCESS;
      }
      error = GetLastError();
      if (error != ERROR_ACCESS_DENIED && error != ERROR_SHARING_VIOLATION) return error;
    }
    return IsOpenElsewhere(target_) ? DWORD{ERROR_SHARING_VIOLATION} : error;
  }

  std::wstring target_;
  // Empty if there is nothing to take away.
  std::wstring name_;
  HANDLE handle_ = INVALID_HANDLE_VALUE;
};

Replacement::Replacement(std::unique_ptr<NewFile> file) : file_(std::move(file)) {}
Replacement::~Replacement() = default;
Replacement::Replacement(Replacement&&) noexcept = default;
Replacement& Replacement::operator=(Replacement&&) noexcept = default;

std::variant<Replacement, WriteError> Replacement::Begin(const std::wstring& path) {
  if (path.find(L'\0') != std::wstring::npos) return ErrorOf(ERROR_INVALID_NAME);
  auto file = std::make_unique<NewFile>(path);
  if (const auto error = file->Make()) return *error;
  return Replacement(std::move(file));
}

std::optional<WriteError> Replacement::Append(std::string_view bytes) {
  return file_->Write(bytes);
}

std::optional<WriteError> Replacement::Commit() { return file_->TakePlace(); }

}  // namespace zdx::file
