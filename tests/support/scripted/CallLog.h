// What the engine called, in order, and what those calls are told to do.
#pragma once

#include <concepts>
#include <initializer_list>
#include <iosfwd>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "platform/zndb/Status.h"

namespace scripted {

// One call in words: "layer 0.getName()", or "dxfIn(C:\a.dxf, null)" where the receiver is plain.
struct Call {
  std::string operation;
  std::string text;
};

// What a test made a call do; a call without a script succeeds.
struct Outcome {
  Zent::ErrorStatus status = Zent::kOk;
  bool null = false;
};

// What a call throws that was told to throw.
class Fault : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

inline constexpr int kEveryCall = 0;

// A call is scripted by its operation ("getName"), by receiver and operation ("layer 0.getName") or
// by its whole text.  `nth` counts the calls that fit, from 1, after the script was given.
struct Script {
  std::string call;
  Outcome outcome;
  bool throws = false;
  int nth = kEveryCall;
  int seen = 0;
};

class CallLog {
 public:
  // Notes the call and carries out its script.  Throws Fault if that says so.
  Outcome Record(std::string_view receiver, std::string_view operation,
                 std::string_view arguments = {});
  void Add(Script script) { scripts_.push_back(std::move(script)); }

  const std::vector<Call>& Calls() const { return calls_; }
  void ForgetScripts() { scripts_.clear(); }
  void Forget() { calls_.clear(); }
  // From now on each call is also written to `mirror`, at once: its operation, a tab and its text
  // on a line.
  void MirrorTo(std::ostream& mirror) { mirror_ = &mirror; }

 private:
  void Mirror(const Call& call) const;

  std::vector<Call> calls_;
  std::vector<Script> scripts_;
  std::ostream* mirror_ = nullptr;
};

// The texts of `calls`; with `operations`, of those alone.
std::vector<std::string> Texts(const std::vector<Call>& calls);
std::vector<std::string> Texts(const std::vector<Call>& calls,
                               std::initializer_list<std::string_view> operations);

// Values in words.
std::string Shown(const wchar_t* text);
std::string Shown(const std::wstring& text);
std::string Shown(bool value);
std::string Shown(std::integral auto value) { return std::to_string(value); }
inline std::string Shown(const std::string& words) { return words; }
std::string Given(const void* pointer);

// "a, b, c".
template <class First, class... Rest>
std::string Arguments(const First& first, const Rest&... rest) {
  std::string words = Shown(first);
  ((words += ", " + Shown(rest)), ...);
  return words;
}

}  // namespace scripted
