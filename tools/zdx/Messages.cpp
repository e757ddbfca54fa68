#include "Messages.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "ReadableText.h"
#include "StandardStreams.h"

namespace zdx {

namespace {

std::string Head(const std::wstring& path, const ZDXEngine::DiagnosticPlace& place) {
  std::string head = ReadableText(path) + ": ";
  const std::string where = PlaceText(place);
  return where.empty() ? head : head + where + ": ";
}

void AppendPart(std::string& text, std::string_view word, const std::string& value) {
  if (!text.empty()) text += ", ";
  text.append(word).append(" ").append(value);
}

}  // namespace

void Complain(std::string_view text) {
  // In one piece, so that lines of several processes don't mix.
  std::string line = "zdx: ";
  line.append(text).push_back('\n');
  // There is nobody to tell a failure to.
  Write(Stream::kError, line);
}

void ComplainAboutFailure(const std::wstring& path, const Failure& failure) {
  std::string text = Head(path, failure.place) + ReadableText(failure.message);
  if (!failure.reason.empty()) text += " (" + ReadableText(failure.reason) + ")";
  Complain(text);
}

void ComplainAboutWarnings(const ZDXEngine::Diagnostics& diagnostics) {
  for (const ZDXEngine::DiagnosticMessage& warning : diagnostics.warnings) {
    Complain(Head(diagnostics.path, warning.place) + "warning: " + ReadableText(warning.text));
  }
  const std::uint64_t more = WarningsLeftOut(diagnostics);
  if (more > 0) {
    Complain(Head(diagnostics.path, {}) + "warning: " + std::to_string(more) + " more like these");
  }
}

std::string PlaceText(const ZDXEngine::DiagnosticPlace& place) {
  std::string text;
  if (place.line) AppendPart(text, "line", std::to_string(*place.line));
  if (place.offset) AppendPart(text, "offset", std::to_string(*place.offset));
  if (place.handle) AppendPart(text, "handle", HandleText(*place.handle));
  return text;
}

std::string HandleText(std::uint64_t handle) {
  std::array<char, 16> digits = {};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), handle, 16).ptr;
  std::transform(digits.data(), end, digits.data(), [](char digit) {
    return digit >= 'a' ? static_cast<char>(digit - 'a' + 'A') : digit;
  });
  return {digits.data(), end};
}

std::uint64_t WarningsLeftOut(const ZDXEngine::Diagnostics& diagnostics) {
  const std::uint64_t kept = diagnostics.warnings.size();
  return diagnostics.warningCount > kept ? diagnostics.warningCount - kept : 0;
}

}  // namespace zdx
