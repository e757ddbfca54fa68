#include "support/scripted/CallLog.h"

#include <algorithm>
#include <ostream>

#include "ZDXEngine/Utf8.h"

namespace scripted {
namespace {

// A mirrored call is one line.
std::string OneLine(std::string words) {
  for (std::size_t at = 0; (at = words.find('\n', at)) != std::string::npos; at += 2) {
    words.replace(at, 1, "\\n");
  }
  return words;
}

}  // namespace

Outcome CallLog::Record(std::string_view receiver, std::string_view operation,
                        std::string_view arguments) {
  std::string place(receiver);
  if (!place.empty()) place += '.';
  place += operation;
  const std::string text = OneLine(place + "(" + std::string(arguments) + ")");
  calls_.push_back({std::string(operation), text});
  Mirror(calls_.back());

  Outcome outcome;
  for (Script& script : scripts_) {
    if (script.call != operation && script.call != place && script.call != text) continue;
    ++script.seen;
    if (script.nth != kEveryCall && script.nth != script.seen) continue;
    if (script.throws) throw Fault(text);
    outcome = script.outcome;
  }
  return outcome;
}

void CallLog::Mirror(const Call& call) const {
  if (mirror_ != nullptr) *mirror_ << call.operation << '\t' << call.text << '\n' << std::flush;
}

std::vector<std::string> Texts(const std::vector<Call>& calls) {
  std::vector<std::string> texts;
  for (const Call& call : calls) texts.push_back(call.text);
  return texts;
}

std::vector<std::string> Texts(const std::vector<Call>& calls,
                               std::initializer_list<std::string_view> operations) {
  std::vector<std::string> texts;
  for (const Call& call : calls) {
    if (std::ranges::find(operations, call.operation) != operations.end()) {
      texts.push_back(call.text);
    }
  }
  return texts;
}

std::string Shown(const wchar_t* text) {
  return text == nullptr ? "null" : ZDXEngine::Utf8FromWide(text);
}

std::string Shown(const std::wstring& text) { return ZDXEngine::Utf8FromWide(text); }
std::string Shown(bool value) { return value ? "true" : "false"; }

std::string Given(const void* pointer) { return pointer == nullptr ? "null" : "given"; }

}  // namespace scripted
