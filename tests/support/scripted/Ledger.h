// Everything that was handed out and must come back.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace scripted {

class Ledger {
 public:
  void Acquire(const void* what, std::string words) { live_[what] = std::move(words); }
  // True if `what` was out; otherwise it is noted as misuse.
  bool Release(const void* what, const std::string& words);
  bool IsOut(const void* what) const { return live_.contains(what); }
  void Misuse(std::string words) { misuses_.push_back(std::move(words)); }

  // What is still out, then every misuse: empty after a clean run.
  std::vector<std::string> Leftovers() const;

 private:
  std::map<const void*, std::string> live_;
  std::vector<std::string> misuses_;
};

}  // namespace scripted
