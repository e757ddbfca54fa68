// Where the records of objects stand, by their handles.
//
// The map is cut into pages of some hundred objects: size (2 bytes, high first, of itself and the
// entries), entries, check (2 bytes, high first).  An entry is the step from the handle before and
// from the offset before; each page begins anew from 0.  A page without entries ends the map.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "backends/database/dwg/container/Container.h"
#include "backends/database/model/Drawing.h"
#include "backends/database/model/Report.h"

namespace zdx::dwg {

// Looks for pages no further than a question needs, goes through a page when a handle of it is
// asked for first, and keeps marks in it: whoever leaps between pages reads each of them once.
class ObjectMap {
 public:
  ObjectMap() = default;
  // Both outlive the map.
  ObjectMap(Section& section, model::Report& report);

  // Where the record of `handle` begins in the section of the objects.
  std::optional<std::uint64_t> Find(model::Handle handle);
  // Calls `visit` with each handle and its place, by ascending handles, until that is false.  It
  // may ask the map.
  using Visit = std::function<bool(model::Handle handle, std::uint64_t place)>;
  void ForEach(const Visit& visit);

 private:
  // A handle and its offset.
  using Entry = std::pair<model::Handle, std::uint64_t>;
  struct Mark {
    Entry entry;
    // Where in the page the next entry begins.
    std::uint32_t next = 0;
  };
  struct Page {
    model::Handle first = 0;
    // Of the whole page in the section.
    std::uint64_t at = 0;
    std::uint64_t size = 0;
    // Of every so manieth entry.
    std::vector<Mark> marks;
    bool isMarked = false;
  };

  void FindPages(model::Handle handle);
  bool FindPage();
  std::optional<std::uint64_t> FindKnown(model::Handle handle);
  bool VisitPage(const Page& page, const Visit& visit) const;
  void CheckSum(std::string_view bytes, const Page& page);
  void SetMarks(Page& page);
  std::optional<std::uint64_t> FindIn(Page& page, model::Handle handle);
  void Sort();
  void Warn(const wchar_t* text, std::uint64_t at);

  Section* section_ = nullptr;
  model::Report* report_ = nullptr;
  // Those that were found so far, where the next one is looked for, and whether there is none.
  std::vector<Page> pages_;
  std::uint64_t next_ = 0;
  bool ended_ = true;
  // Set if the pages aren't in order: the entries of all of them, which are.
  std::optional<std::vector<Entry>> sorted_;
};

}  // namespace zdx::dwg
