// A drawing's name as it was given and as the engine gets it, and what the engine says of the file.
#pragma once

#include <string>
#include <utility>
#include <variant>

#include "Failure.h"
#include "ZDXEngine/Diagnostics.h"

namespace zdx {

class DrawingFile {
 public:
  explicit DrawingFile(const std::wstring& path);

  // The name that the engine is called with.
  const std::wstring& CalledName() const { return called_; }
  // What the last opening found, under the name as it was given; nothing but that name if it was
  // another file's.
  ZDXEngine::Diagnostics FoundAtOpening() const;
  // Describes the exception that is being handled; called in a handler only.
  Failure DescribeCurrentFailure() const;

 private:
  std::wstring given_;
  std::wstring called_;
};

// Calls `read` with the name that the engine takes for the drawing at `path`; gives its report,
// with the `diagnostics` of that opening, or why it failed.
template <class Read>
auto ReadFile(const std::wstring& path, Read read) -> std::variant<decltype(read(path)), Failure> {
  const DrawingFile file(path);
  try {
    auto report = read(file.CalledName());
    report.diagnostics = file.FoundAtOpening();
    return report;
  } catch (...) {
    return file.DescribeCurrentFailure();
  }
}

}  // namespace zdx
