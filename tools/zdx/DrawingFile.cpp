#include "DrawingFile.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "AsciiCase.h"
#include "SystemNames.h"
#include "ZDXEngine/Utf8.h"

namespace zdx {

namespace {

using ZDXEngine::Diagnostics;

constexpr std::wstring_view kExtensions[] = {L".dwg", L".dws", L".dwt", L".dxf"};

// The engine goes by a file's extension: what follows the last dot, if that isn't the first
// character.
bool HasDrawingExtension(std::wstring_view path) {
  const std::size_t dot = path.rfind(L'.');
  if (dot == std::wstring_view::npos || dot == 0) return false;
  return std::any_of(std::begin(kExtensions), std::end(kExtensions), [&](auto extension) {
    return EqualsIgnoringAsciiCase(path.substr(dot), extension);
  });
}

}  // namespace

DrawingFile::DrawingFile(const std::wstring& path) : given_(path), called_(CallablePath(path)) {}

// A failure may come before anything was opened, and the engine still tells of the file before
// then.
Diagnostics DrawingFile::FoundAtOpening() const {
  Diagnostics diagnostics = Diagnostics::LastOpening();
  if (diagnostics.path != called_) diagnostics = {};
  diagnostics.path = given_;
  return diagnostics;
}

Failure DrawingFile::DescribeCurrentFailure() const {
  Failure failure = DescribeCurrentException();
  // The engine's sentence, with the name as it was given.
  const std::string called = ZDXEngine::Utf8FromWide(called_);
  const std::size_t at = called_ == given_ ? std::string::npos : failure.message.find(called);
  if (at != std::string::npos) {
    failure.message.replace(at, called.size(), ZDXEngine::Utf8FromWide(given_));
  }
  const Diagnostics diagnostics = FoundAtOpening();
  if (!diagnostics.errors.empty()) {
    failure.reason = ZDXEngine::Utf8FromWide(diagnostics.errors.front().text);
    failure.place = diagnostics.errors.front().place;
  } else if (!HasDrawingExtension(given_)) {
    failure.reason = "Its name doesn't end in .dwg, .dwt, .dws or .dxf.";
  }
  return failure;
}

}  // namespace zdx
