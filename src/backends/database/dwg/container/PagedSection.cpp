#include "backends/database/dwg/container/PagedSection.h"

#include <algorithm>
#include <utility>

namespace zdx::dwg {
namespace {

// More than any real record or map has; what a question joins from several pages is no larger.
constexpr std::uint64_t kMostJoined = std::uint64_t{16} << 20;

bool StartsEarlier(const SectionPage& left, const SectionPage& right) {
  return left.start < right.start;
}

}  // namespace

PagedSection::PagedSection(std::uint64_t size, std::vector<SectionPage> pages, ReadPage read)
    : size_(size), pages_(std::move(pages)), read_(std::move(read)) {
  std::stable_sort(pages_.begin(), pages_.end(), StartsEarlier);
}

// The page that has the byte at `at`, or kNoPage.
std::size_t PagedSection::PageAt(std::uint64_t at) const {
  SectionPage wanted;
  wanted.start = at;
  const auto behind = std::upper_bound(pages_.begin(), pages_.end(), wanted, StartsEarlier);
  if (behind == pages_.begin()) return kNoPage;
  const auto page = std::prev(behind);
  return at - page->start < page->size ? static_cast<std::size_t>(page - pages_.begin()) : kNoPage;
}

std::optional<std::string_view> PagedSection::PageContent(std::size_t page) {
  auto found = contents_.find(page);
  if (found == contents_.end()) {
    found = contents_.emplace(page, read_(pages_[page])).first;
    // A short text moves with its string, so its view is made where it stays.
    auto& content = found->second;
    if (content && !content->own.empty()) content->view = content->own;
  }
  return found->second ? std::optional(found->second->view) : std::nullopt;
}

std::optional<std::string_view> PagedSection::Bytes(std::uint64_t at, std::uint64_t count,
                                                    std::string& scratch) {
  if (at > size_ || count > size_ - at) return std::nullopt;
  if (const std::size_t page = PageAt(at); page != kNoPage) {
    const std::optional<std::string_view> content = PageContent(page);
    if (!content) return std::nullopt;
    const std::uint64_t within = at - pages_[page].start;
    if (within <= content->size() && count <= content->size() - within) {
      return content->substr(static_cast<std::size_t>(within), static_cast<std::size_t>(count));
    }
  }
  if (count > kMostJoined) return std::nullopt;
  scratch.clear();
  if (!Append(at, count, scratch)) return std::nullopt;
  return scratch;
}

bool PagedSection::Append(std::uint64_t at, std::uint64_t count, std::string& out) {
  while (count > 0) {
    const std::size_t page = PageAt(at);
    if (page == kNoPage) {
      SectionPage wanted;
      wanted.start = at;
      const auto next = std::upper_bound(pages_.begin(), pages_.end(), wanted, StartsEarlier);
      const std::uint64_t gap = next == pages_.end() ? count : std::min(count, next->start - at);
      out.append(static_cast<std::size_t>(gap), '\0');
      at += gap;
      count -= gap;
      continue;
    }
    const std::optional<std::string_view> content = PageContent(page);
    const std::uint64_t within = at - pages_[page].start;
    if (!content || within >= content->size()) return false;
    const std::string_view piece = content->substr(
        static_cast<std::size_t>(within),
        static_cast<std::size_t>(std::min<std::uint64_t>(count, content->size() - within)));
    out += piece;
    at += piece.size();
    count -= piece.size();
  }
  return true;
}

std::uint64_t PagedSection::PlaceOf(std::uint64_t at) const {
  const std::size_t page = PageAt(at);
  if (page == kNoPage) return 0;
  const SectionPage& found = pages_[page];
  return found.plainAt ? *found.plainAt + (at - found.start) : found.address;
}

}  // namespace zdx::dwg
