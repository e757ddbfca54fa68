#include "support/scripted/Files.h"

#include <algorithm>
#include <cstring>
#include <iomanip>
#include <sstream>

namespace scripted {
namespace {

std::string Hex(std::uint32_t value) {
  std::ostringstream words;
  words << "0x" << std::hex << std::uppercase << value;
  return words.str();
}

}  // namespace

os::FileHandle Files::CreateFileW(const wchar_t* path, std::uint32_t access, std::uint32_t share,
                                  void* security, std::uint32_t disposition,
                                  std::uint32_t attributes, os::FileHandle templateFile) {
  const std::string words = Arguments(path, Hex(access), share, Given(security), disposition,
                                      Hex(attributes), Given(templateFile));
  const Outcome outcome = calls_.Record("", "CreateFileW", words);
  const auto found = contents.find(path);
  if (outcome.status != 0 || found == contents.end()) return os::kInvalidHandle;
  const std::string label = "file " + std::to_string(files_.size() + 1);
  OpenFile& file = files_.emplace_back(OpenFile{label, &found->second});
  ledger_.Acquire(&file, label);
  return &file;
}

int Files::ReadFile(os::FileHandle handle, void* buffer, std::uint32_t size, std::uint32_t* count,
                    void* overlapped) {
  *count = 0;
  OpenFile* const file = Find(handle, "ReadFile");
  if (file == nullptr) return 0;
  std::string words = Arguments(file->label, size);
  if (overlapped != nullptr) words += ", overlapped";
  if (calls_.Record("", "ReadFile", words).status != 0) {
    std::memset(buffer, 0x53, size);
    *count = countOfFailedRead;
    return 0;
  }
  std::size_t most = size;
  if (!readSizes.empty()) {
    most = std::min<std::size_t>(most, readSizes.front());
    readSizes.pop_front();
  }
  const std::size_t begin = std::min(file->position, file->bytes->size());
  const std::size_t came = std::min(most, file->bytes->size() - begin);
  std::memcpy(buffer, file->bytes->data() + begin, came);
  file->position = begin + came;
  *count = static_cast<std::uint32_t>(came);
  return readAnswer;
}

std::uint32_t Files::SetFilePointer(os::FileHandle handle, std::int32_t distance,
                                    std::int32_t* distanceHigh, std::uint32_t method) {
  OpenFile* const file = Find(handle, "SetFilePointer");
  if (file == nullptr) return os::kInvalidFilePointer;
  const std::string words = Arguments(file->label, distance, Given(distanceHigh), method);
  const bool fails = calls_.Record("", "SetFilePointer", words).status != 0;
  if (fails || distance < 0 || method != os::kFromBegin) return os::kInvalidFilePointer;
  file->position = static_cast<std::size_t>(distance);
  return static_cast<std::uint32_t>(distance);
}

int Files::CloseHandle(os::FileHandle handle) {
  OpenFile* const file = Find(handle, "CloseHandle");
  if (file == nullptr) return 0;
  const bool fails = calls_.Record("", "CloseHandle", file->label).status != 0;
  ledger_.Release(file, file->label);
  return fails ? 0 : 1;
}

Files::OpenFile* Files::Find(os::FileHandle handle, const std::string& operation) {
  if (handle != nullptr && ledger_.IsOut(handle)) return static_cast<OpenFile*>(handle);
  ledger_.Misuse(operation + " of a file that is not open");
  return nullptr;
}

}  // namespace scripted
