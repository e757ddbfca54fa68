#include "backends/database/dwg/records/ObjectMap.h"

#include <algorithm>
#include <string>

#include "backends/database/dwg/bits/BitReader.h"
#include "backends/database/dwg/bits/Checksums.h"

namespace zdx::dwg {
namespace {

constexpr std::uint64_t kSizeSize = 2;
constexpr std::uint64_t kCheckSize = 2;

// Far more than any drawing has; what a damaged map promises beyond isn't followed.
constexpr std::size_t kMostPages = std::size_t{1} << 20;
constexpr std::size_t kMostSorted = std::size_t{1} << 21;

std::uint16_t HighFirst(std::string_view bytes) {
  return static_cast<std::uint16_t>(static_cast<std::uint8_t>(bytes[0]) << 8 |
                                    static_cast<std::uint8_t>(bytes[1]));
}

}  // namespace

ObjectMap::ObjectMap(Section& section, model::Report& report)
    : section_(&section), report_(&report), ended_(false) {}

// Finds the pages up to the first that begins behind `handle`.  Pages that aren't in order are all
// found, and sorted.
void ObjectMap::FindPages(model::Handle handle) {
  while (!ended_ && (pages_.empty() || pages_.back().first <= handle)) {
    ended_ = !FindPage();
    const std::size_t count = pages_.size();
    if (count < 2 || pages_[count - 2].first < pages_[count - 1].first) continue;
    while (FindPage()) continue;
    ended_ = true;
    Sort();
  }
}

// Finds the next page; false if there is none.
bool ObjectMap::FindPage() {
  std::string scratch;
  const auto head = section_->Bytes(next_, kSizeSize, scratch);
  const std::uint64_t size = head ? HighFirst(*head) : 0;
  if (size == kSizeSize) return false;
  const std::uint64_t left = section_->size() - std::min(next_, section_->size());
  const bool whole = size > kSizeSize && size + kCheckSize <= left;
  // A step takes ten bytes at most.
  const std::uint64_t stepSize = whole ? std::min<std::uint64_t>(size - kSizeSize, 10) : 0;
  const auto step = section_->Bytes(next_ + kSizeSize, stepSize, scratch);
  if (!whole || !step || pages_.size() == kMostPages) {
    Warn(L"The object map ends early.", pages_.empty() ? 0 : pages_.back().at);
    return false;
  }
  const model::Handle first = BitReader(*step, 0, step->size() * 8).UMC();
  pages_.push_back({first, next_, size + kCheckSize});
  next_ += size + kCheckSize;
  return true;
}

std::vector<ObjectMap::Entry> ObjectMap::Decode(const Page& page) {
  std::vector<Entry> entries;
  std::string scratch;
  const auto bytes = section_->Bytes(page.at, page.size, scratch);
  if (!bytes) {
    Warn(L"A page of the object map can't be read.", page.at);
    return entries;
  }
  const std::size_t checked = bytes->size() - kCheckSize;
  if (Crc16(bytes->substr(0, checked)) != HighFirst(bytes->substr(checked))) {
    Warn(L"The checksum of a page of the object map is wrong.", page.at);
  }
  BitReader reader(*bytes, kSizeSize * 8, checked * 8);
  Entry entry = {0, 0};
  while (reader.Left() > 0) {
    entry.first += reader.UMC();
    entry.second += static_cast<std::uint64_t>(reader.MC());
    if (reader.failed()) break;
    entries.push_back(entry);
  }
  return entries;
}

// For a map that isn't in order, which no sound file has.
void ObjectMap::Sort() {
  Warn(L"The object map isn't in order.", 0);
  for (const Page& page : pages_) {
    const std::vector<Entry> entries = Decode(page);
    if (entries.size() > kMostSorted - decoded_.size()) break;
    decoded_.insert(decoded_.end(), entries.begin(), entries.end());
  }
  std::stable_sort(decoded_.begin(), decoded_.end(),
                   [](const Entry& left, const Entry& right) { return left.first < right.first; });
  sorted_ = true;
}

std::optional<std::uint64_t> ObjectMap::Find(model::Handle handle) {
  FindPages(handle);
  if (!sorted_) {
    const auto behind = std::upper_bound(
        pages_.begin(), pages_.end(), handle,
        [](model::Handle wanted, const Page& page) { return wanted < page.first; });
    if (behind == pages_.begin()) return std::nullopt;
    const auto page = static_cast<std::size_t>(behind - pages_.begin()) - 1;
    if (page != decodedPage_) decoded_ = Decode(pages_[page]);
    decodedPage_ = page;
  }
  const auto found = std::lower_bound(
      decoded_.begin(), decoded_.end(), handle,
      [](const Entry& entry, model::Handle wanted) { return entry.first < wanted; });
  if (found == decoded_.end() || found->first != handle) return std::nullopt;
  return found->second;
}

void ObjectMap::Warn(const wchar_t* text, std::uint64_t at) {
  report_->Warn({text, section_->PlaceOf(at), {}, {}});
}

}  // namespace zdx::dwg
