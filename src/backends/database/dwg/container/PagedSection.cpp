#include "backends/database/dwg/container/PagedSection.h"

#include <algorithm>
#include <utility>

namespace zdx::dwg {
namespace {

// Of what a question joins from several pages, the zeros of those that aren't written: they cost
// the file nothing.
constexpr std::uint64_t kMostZeros = std::uint64_t{1} << 20;

bool StartsEarlier(const SectionPage& left, const SectionPage& right) {
  return left.start < right.start;
}

}  // namespace

PagedSection::PagedSection(std::uint64_t size, std::vector<SectionPage> pages, PageCache& cache,
                           ReadPage read)
    : size_(size), pages_(std::move(pages)), cache_(cache), read_(std::move(read)) {
  std::stable_sort(pages_.begin(), pages_.end(), StartsEarlier);
}

bool PagedSection::IsIn(std::size_t page, std::uint64_t at) const {
  return pages_[page].start <= at && at - pages_[page].start < pages_[page].size;
}

// The page that has the byte at `at`, or kNoPage.  Of those that overlap it is the last.
std::size_t PagedSection::PageAt(std::uint64_t at) const {
  if (lastPage_ != kNoPage && IsIn(lastPage_, at) &&
      (lastPage_ + 1 == pages_.size() || pages_[lastPage_ + 1].start > at)) {
    return lastPage_;
  }
  SectionPage wanted;
  wanted.start = at;
  const auto behind = std::upper_bound(pages_.begin(), pages_.end(), wanted, StartsEarlier);
  if (behind == pages_.begin()) return kNoPage;
  const auto page = static_cast<std::size_t>(std::prev(behind) - pages_.begin());
  if (!IsIn(page, at)) return kNoPage;
  lastPage_ = page;
  return page;
}

void PagedSection::ReadContent(std::size_t page, Content& content) {
  std::optional<PageBytes> bytes = read_(pages_[page], content.wasRead);
  content.wasRead = true;
  content.canBeRead = bytes.has_value();
  if (!bytes) return;
  content.plain = bytes->view;
  content.isDecompressed = !bytes->own.empty();
  if (content.isDecompressed) cache_.Keep(content.cached, std::move(bytes->own));
}

// The bytes of a page, which `holder` keeps from being let go.
std::optional<std::string_view> PagedSection::PageContent(
    std::size_t page, std::shared_ptr<const std::string>& holder) {
  if (page != lastContentPage_) {
    lastContent_ = &contents_[page];
    lastContentPage_ = page;
    if (lastContent_->cached.bytes != nullptr) cache_.Use(lastContent_->cached);
  }
  Content& content = *lastContent_;
  const bool isThere = content.isDecompressed ? content.cached.bytes != nullptr : content.wasRead;
  if (!isThere && content.canBeRead) {
    holder.reset();
    ReadContent(page, content);
  }
  if (!content.canBeRead) return std::nullopt;
  holder = content.cached.bytes;
  return holder != nullptr ? std::string_view(*holder) : content.plain;
}

std::optional<std::string_view> PagedSection::Bytes(std::uint64_t at, std::uint64_t count,
                                                    Scratch& scratch) {
  if (at > size_ || count > size_ - at) return std::nullopt;
  if (const std::size_t page = PageAt(at); page != kNoPage) {
    const std::optional<std::string_view> content = PageContent(page, scratch.page);
    if (!content) return std::nullopt;
    const std::uint64_t within = at - pages_[page].start;
    if (within <= content->size() && count <= content->size() - within) {
      return content->substr(static_cast<std::size_t>(within), static_cast<std::size_t>(count));
    }
  }
  if (count > cache_.MostJoined()) return std::nullopt;
  scratch.page.reset();
  scratch.joined.clear();
  scratch.joined.reserve(static_cast<std::size_t>(count));
  if (!Append(at, count, scratch.joined)) return std::nullopt;
  return scratch.joined;
}

bool PagedSection::Append(std::uint64_t at, std::uint64_t count, std::string& out) {
  std::uint64_t zeros = 0;
  std::shared_ptr<const std::string> holder;
  while (count > 0) {
    const std::size_t page = PageAt(at);
    if (page == kNoPage) {
      SectionPage wanted;
      wanted.start = at;
      const auto next = std::upper_bound(pages_.begin(), pages_.end(), wanted, StartsEarlier);
      const std::uint64_t gap = next == pages_.end() ? count : std::min(count, next->start - at);
      zeros += gap;
      if (zeros > kMostZeros) return false;
      out.append(static_cast<std::size_t>(gap), '\0');
      at += gap;
      count -= gap;
      continue;
    }
    const std::optional<std::string_view> content = PageContent(page, holder);
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
