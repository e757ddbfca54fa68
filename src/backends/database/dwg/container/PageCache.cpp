#include "backends/database/dwg/container/PageCache.h"

#include <iterator>
#include <utility>

namespace zdx::dwg {
namespace {

// What a page takes beside its bytes, about.
constexpr std::uint64_t kOverhead = 128;

std::uint64_t SizeOf(const PageCache::Page& page) { return page.bytes->capacity() + kOverhead; }

}  // namespace

bool PageCache::MakeRoom(std::uint64_t size) {
  if (size > most_ || !work_.Take(size)) return false;
  const std::uint64_t mostOthers = most_ - size;
  for (auto next = used_.end(); kept_ > mostOthers && next != used_.begin();) {
    Page& page = **--next;
    if (page.bytes.use_count() > 1) continue;
    // LetGo() removes the page's place.
    ++next;
    LetGo(page);
  }
  return kept_ <= mostOthers;
}

void PageCache::LetGo(Page& page) {
  kept_ -= SizeOf(page);
  page.bytes.reset();
  used_.erase(page.place);
}

void PageCache::Keep(Page& page, std::string bytes) {
  page.bytes = std::make_shared<const std::string>(std::move(bytes));
  page.place = used_.insert(used_.begin(), &page);
  kept_ += SizeOf(page);
}

}  // namespace zdx::dwg
