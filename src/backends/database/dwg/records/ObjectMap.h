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

#include "backends/database/dwg/container/Container.h"
#include "backends/database/model/Drawing.h"
#include "backends/database/model/Report.h"

namespace zdx::dwg {

// Looks for pages no further than a question needs, and decodes one when a handle of it is asked
// for.
class ObjectMap {
 public:
  ObjectMap() = default;
  // Both outlive the map.
  ObjectMap(Section& section, model::Report& report);

  // Where the record of `handle` begins in the section of the objects.
  std::optional<std::uint64_t> Find(model::Handle handle);

 private:
  struct Page {
    model::Handle first = 0;
    // Of the whole page in the section.
    std::uint64_t at = 0;
    std::uint64_t size = 0;
  };
  using Entry = std::pair<model::Handle, std::uint64_t>;

  void FindPages(model::Handle handle);
  bool FindPage();
  std::vector<Entry> Decode(const Page& page);
  void Sort();
  void Warn(const wchar_t* text, std::uint64_t at);

  Section* section_ = nullptr;
  model::Report* report_ = nullptr;
  // Those that were found so far, where the next one is looked for, and whether there is none.
  std::vector<Page> pages_;
  std::uint64_t next_ = 0;
  bool ended_ = true;
  // The page that was decoded last.
  std::size_t decodedPage_ = ~std::size_t{0};
  std::vector<Entry> decoded_;
  // Set if the pages aren't in order: `decoded_` has the entries of all of them then.
  bool sorted_ = false;
};

}  // namespace zdx::dwg
