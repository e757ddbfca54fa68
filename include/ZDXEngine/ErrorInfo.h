// How a batch operation reports the failure of one file without throwing.
#pragma once

#include <cstdint>
#include <string>

#include "ZDXEngine/Export.h"

namespace ZDXEngine {

// The state of one file in an ErrorInfo, a plain number to the engine.
enum class FileState : std::int32_t {};

// One failure.  A moved-from record holds two empty texts and keeps its state.
class ZDXENGINE_API ErrorInfo {
 public:
  ErrorInfo(const std::wstring& refId, FileState state, const std::wstring& message);
  ErrorInfo(const ErrorInfo& other);
  ErrorInfo(ErrorInfo&& other) noexcept;
  ErrorInfo& operator=(const ErrorInfo& other);
  ErrorInfo& operator=(ErrorInfo&& other) noexcept;
  ~ErrorInfo();

  // The finished sentence.
  const std::wstring& GetErrorMessage();
  const FileState& GetFileState();
  // The reference that failed.
  const std::wstring& GetRefId() const;

 private:
  std::wstring errorMessage;
  FileState fileState;
  std::wstring refId;
};

}  // namespace ZDXEngine
