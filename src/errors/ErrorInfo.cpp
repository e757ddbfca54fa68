#include "ZDXEngine/ErrorInfo.h"

#include <utility>

namespace ZDXEngine {

ErrorInfo::ErrorInfo(const std::wstring& ref, FileState state, const std::wstring& message)
    : errorMessage(message), fileState(state), refId(ref) {}

ErrorInfo::ErrorInfo(const ErrorInfo& other) = default;
ErrorInfo& ErrorInfo::operator=(const ErrorInfo& other) = default;
ErrorInfo::~ErrorInfo() = default;

// A moved-from string holds anything; a moved-from record holds empty ones.
ErrorInfo::ErrorInfo(ErrorInfo&& other) noexcept
    : errorMessage(std::exchange(other.errorMessage, {})),
      fileState(other.fileState),
      refId(std::exchange(other.refId, {})) {}

ErrorInfo& ErrorInfo::operator=(ErrorInfo&& other) noexcept {
  if (this == &other) return *this;
  errorMessage = std::exchange(other.errorMessage, {});
  fileState = other.fileState;
  refId = std::exchange(other.refId, {});
  return *this;
}

const std::wstring& ErrorInfo::GetErrorMessage() { return errorMessage; }
const FileState& ErrorInfo::GetFileState() { return fileState; }
const std::wstring& ErrorInfo::GetRefId() const { return refId; }

}  // namespace ZDXEngine
