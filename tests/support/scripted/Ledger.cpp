#include "support/scripted/Ledger.h"

namespace scripted {

bool Ledger::Release(const void* what, const std::string& words) {
  if (live_.erase(what) != 0) return true;
  Misuse("given back twice, or never handed out: " + words);
  return false;
}

std::vector<std::string> Ledger::Leftovers() const {
  std::vector<std::string> all;
  for (const auto& [what, words] : live_) all.push_back("still out: " + words);
  all.insert(all.end(), misuses_.begin(), misuses_.end());
  return all;
}

}  // namespace scripted
