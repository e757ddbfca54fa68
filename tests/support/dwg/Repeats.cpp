#include "support/dwg/Repeats.h"

#include <algorithm>
#include <string>
#include <unordered_map>

namespace dwg {
namespace {

constexpr std::size_t kKeySize = 4;

std::size_t CommonLength(std::string_view bytes, std::size_t from, std::size_t at,
                         std::size_t longest) {
  std::size_t length = 0;
  while (length < longest && at + length < bytes.size() &&
         bytes[from + length] == bytes[at + length]) {
    ++length;
  }
  return length;
}

}  // namespace

std::vector<Repeat> FindRepeats(std::string_view bytes, const RepeatLimits& limits) {
  std::unordered_map<std::string_view, std::size_t> lastSeen;
  std::vector<Repeat> repeats;
  std::size_t begin = 0;
  std::size_t at = 0;
  while (at + kKeySize <= bytes.size()) {
    const std::string_view key = bytes.substr(at, kKeySize);
    const auto seen = lastSeen.find(key);
    std::size_t length = 0;
    std::size_t distance = 0;
    if (seen != lastSeen.end() && at >= limits.leastStart) {
      distance = at - seen->second;
      if (distance <= limits.farthest) {
        length = CommonLength(bytes, seen->second, at, limits.longest);
      }
    }
    lastSeen[key] = at;
    if (length < std::max(limits.shortest, kKeySize)) {
      ++at;
      continue;
    }
    repeats.push_back({bytes.substr(begin, at - begin), length, distance});
    for (std::size_t i = at + 1; i < at + length && i + kKeySize <= bytes.size(); ++i) {
      lastSeen[bytes.substr(i, kKeySize)] = i;
    }
    at += length;
    begin = at;
  }
  repeats.push_back({bytes.substr(begin)});
  return repeats;
}

}  // namespace dwg
