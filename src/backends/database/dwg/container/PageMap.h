// Where the pages of a file stand.
#pragma once

#include <cstdint>
#include <optional>
#include <unordered_map>

namespace zdx::dwg {

struct PlacedPage {
  std::uint64_t address = 0;
  // What the map reserves for it; the last one may run past the end of the file.
  std::uint64_t size = 0;
};

// By page numbers; gaps have none.  The first page of a number counts.
class PageMap {
 public:
  void Add(std::int64_t id, PlacedPage page) { pages_.emplace(id, page); }
  std::optional<PlacedPage> Find(std::int64_t id) const {
    const auto found = pages_.find(id);
    return found == pages_.end() ? std::nullopt : std::optional(found->second);
  }

 private:
  std::unordered_map<std::int64_t, PlacedPage> pages_;
};

}  // namespace zdx::dwg
