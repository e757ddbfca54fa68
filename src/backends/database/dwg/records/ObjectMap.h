// Where the records of objects stand, by their handles.
//
// The map is cut into pages of some hundred objects: size (2 bytes, high first, of itself and the
// entries), entries, check (2 bytes, high first).  An entry is the step from the handle before and
// from the offset before; each page begins anew from 0.  A page without entries ends the map.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "backends/database/dwg/container/Budget.h"
#include "backends/database/dwg/container/Container.h"
#include "backends/database/model/Drawing.h"
#include "backends/database/model/Report.h"

namespace zdx::dwg {

// Decodes a page when a handle of it is asked for first, and keeps its entries.
class ObjectMap {
 public:
  ObjectMap() = default;
  // Section and report outlive the map, which has as many entries as `entries` allows.
  ObjectMap(Section& section, Budget entries, model::Report& report);

  // Where the record of `handle` begins in the section of the objects.
  std::optional<std::uint64_t> Find(model::Handle handle);

 private:
  using Entry = std::pair<model::Handle, std::uint64_t>;
  struct Page {
    model::Handle first = 0;
    // Of the whole page in the section.
    std::uint64_t at = 0;
    std::uint64_t size = 0;
    std::optional<std::vector<Entry>> entries = {};
  };

  void FindPages();
  std::vector<Entry> Decode(const Page& page);
  void Sort();
  void Warn(const wchar_t* text, std::uint64_t at);

  Section* section_ = nullptr;
  model::Report* report_ = nullptr;
  Budget left_ = Budget::OfEntries(0);
  // In the order of their handles.
  std::vector<Page> pages_;
};

}  // namespace zdx::dwg
