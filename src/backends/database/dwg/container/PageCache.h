// The decompressed pages of a file's sections, as many as there may be at a time.
#pragma once

#include <cstdint>
#include <list>
#include <memory>
#include <string>

#include "backends/database/dwg/container/Budget.h"

namespace zdx::dwg {

// What to tell of a page for which there is no room.
inline constexpr const wchar_t* kTooMuch =
    L"A page is left out: it takes more than a file of this size is worth.";

// Lets the pages go that were not used for the longest time.  Those that somebody holds stay.
class PageCache {
 public:
  // A page's place in the cache, which its section keeps; `bytes` is null while it isn't there.
  struct Page {
    std::shared_ptr<const std::string> bytes;
    std::list<Page*>::iterator place;
  };

  explicit PageCache(std::uint64_t fileSize)
      : most_(Budget::OfMemory(fileSize).left()), work_(Budget::OfWork(fileSize)) {}
  PageCache(const PageCache&) = delete;
  PageCache& operator=(const PageCache&) = delete;

  // Before a page of `size` bytes is decompressed: lets others go as far as that takes.  False if
  // there is no room for it, or the file was worth no more work.
  bool MakeRoom(std::uint64_t size);
  // Both need the page to stay where it is as long as the cache lives.
  void Keep(Page& page, std::string bytes);
  void Use(Page& page) { used_.splice(used_.begin(), used_, page.place); }

  // The most bytes that may be joined from pages at a time.
  std::uint64_t MostJoined() const { return most_ / 4; }

 private:
  void LetGo(Page& page);

  std::uint64_t most_;
  Budget work_;
  std::uint64_t kept_ = 0;
  // The one used last stands first.
  std::list<Page*> used_;
};

}  // namespace zdx::dwg
