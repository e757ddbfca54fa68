#include "backends/database/dwg/records/ObjectMap.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <string>

#include "backends/database/dwg/bits/BitReader.h"
#include "backends/database/dwg/bits/Checksums.h"

namespace zdx::dwg {
namespace {

constexpr std::uint64_t kPageSizeSize = 2;

// Far more than any drawing has; what a damaged map promises beyond isn't followed.
constexpr std::size_t kMostPages = std::size_t{1} << 18;
constexpr std::size_t kMostSorted = std::size_t{1} << 20;

constexpr std::uint64_t kMarkEvery = 16;
// Two steps of ten bytes.
constexpr std::uint64_t kMostEntrySize = 20;

// Goes through entries.  There may be millions, all of whole bytes.
class EntryReader {
 public:
  explicit EntryReader(std::string_view bytes) : bytes_(bytes) {}

  std::size_t position() const { return at_; }

  // Steps to the next entry; false if there are no more.
  bool Step(std::uint64_t& handle, std::uint64_t& place) {
    std::uint64_t handleStep = 0;
    std::uint64_t placeStep = 0;
    if (!Read(0, handleStep) || !Read(kSign, placeStep)) return false;
    const bool isBack = (static_cast<std::uint8_t>(bytes_[at_ - 1]) & kSign) != 0;
    handle += handleStep;
    place += isBack ? 0 - placeStep : placeStep;
    return true;
  }

 private:
  static constexpr unsigned kMore = 0x80;
  static constexpr unsigned kSign = 0x40;
  static constexpr unsigned kMostBits = 64;

  // A number of pieces of seven bits, the low one first.  In the last one `other` isn't its own.
  bool Read(unsigned other, std::uint64_t& number) {
    for (unsigned shift = 0; shift < kMostBits && at_ < bytes_.size(); shift += 7) {
      const auto byte = static_cast<std::uint8_t>(bytes_[at_++]);
      if ((byte & kMore) == 0) {
        number |= std::uint64_t{byte & ~other} << shift;
        return true;
      }
      number |= std::uint64_t{byte & (kMore - 1)} << shift;
    }
    at_ = bytes_.size();
    return false;
  }

  std::string_view bytes_;
  std::size_t at_ = 0;
};

// The entries of a page, all of whose bytes are given.
EntryReader EntriesOf(std::string_view page) {
  return EntryReader(page.substr(kPageSizeSize, page.size() - kPageSizeSize - kCrcSize));
}

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
  Scratch scratch;
  const auto head = section_->Bytes(next_, kPageSizeSize, scratch);
  const std::uint64_t size = head ? HighFirst(*head) : 0;
  if (size == kPageSizeSize) return false;
  const std::uint64_t left = section_->size() - std::min(next_, section_->size());
  const bool whole = size > kPageSizeSize && size + kCrcSize <= left;
  // A step takes ten bytes at most.
  const std::uint64_t stepSize = whole ? std::min<std::uint64_t>(size - kPageSizeSize, 10) : 0;
  const auto step = section_->Bytes(next_ + kPageSizeSize, stepSize, scratch);
  if (!whole || !step || pages_.size() == kMostPages) {
    Warn(L"The object map ends early.", pages_.empty() ? 0 : pages_.back().at);
    return false;
  }
  const model::Handle first = BitReader(*step, 0, step->size() * 8).UMC();
  pages_.push_back({first, next_, size + kCrcSize, {}, false});
  next_ += size + kCrcSize;
  return true;
}

void ObjectMap::CheckSum(std::string_view bytes, const Page& page) {
  const std::size_t checked = bytes.size() - kCrcSize;
  if (Crc16(bytes.substr(0, checked)) != HighFirst(bytes.substr(checked))) {
    Warn(L"The checksum of a page of the object map is wrong.", page.at);
  }
}

void ObjectMap::SetMarks(Page& page) {
  page.isMarked = true;
  Scratch scratch;
  const auto bytes = section_->Bytes(page.at, page.size, scratch);
  if (!bytes) {
    Warn(L"A page of the object map can't be read.", page.at);
    return;
  }
  CheckSum(*bytes, page);
  EntryReader reader = EntriesOf(*bytes);
  Entry entry = {0, 0};
  for (std::size_t count = 0; reader.Step(entry.first, entry.second); ++count) {
    if (count % kMarkEvery != 0) continue;
    page.marks.push_back({entry, static_cast<std::uint32_t>(kPageSizeSize + reader.position())});
  }
}

// For a map that isn't in order, which no sound file has.
void ObjectMap::Sort() {
  Warn(L"The object map isn't in order.", 0);
  sorted_.emplace();
  Scratch scratch;
  for (const Page& page : pages_) {
    const auto bytes = section_->Bytes(page.at, page.size, scratch);
    if (!bytes) continue;
    CheckSum(*bytes, page);
    EntryReader reader = EntriesOf(*bytes);
    Entry entry = {0, 0};
    while (sorted_->size() < kMostSorted && reader.Step(entry.first, entry.second)) {
      sorted_->push_back(entry);
    }
  }
  std::stable_sort(sorted_->begin(), sorted_->end(),
                   [](const Entry& left, const Entry& right) { return left.first < right.first; });
}

std::optional<std::uint64_t> ObjectMap::Find(model::Handle handle) {
  FindPages(handle);
  const auto found = FindKnown(handle);
  if (found || ended_) return found;
  // Pages that aren't in order may have it all the same.
  FindPages(std::numeric_limits<model::Handle>::max());
  return sorted_ ? FindKnown(handle) : std::nullopt;
}

std::optional<std::uint64_t> ObjectMap::FindKnown(model::Handle handle) {
  if (sorted_) {
    const auto found = std::lower_bound(
        sorted_->begin(), sorted_->end(), handle,
        [](const Entry& entry, model::Handle wanted) { return entry.first < wanted; });
    if (found == sorted_->end() || found->first != handle) return std::nullopt;
    return found->second;
  }
  const auto behind =
      std::upper_bound(pages_.begin(), pages_.end(), handle,
                       [](model::Handle wanted, const Page& page) { return wanted < page.first; });
  return behind == pages_.begin() ? std::nullopt : FindIn(*std::prev(behind), handle);
}

std::optional<std::uint64_t> ObjectMap::FindIn(Page& page, model::Handle handle) {
  if (!page.isMarked) SetMarks(page);
  auto mark = std::lower_bound(
      page.marks.begin(), page.marks.end(), handle,
      [](const Mark& earlier, model::Handle wanted) { return earlier.entry.first < wanted; });
  // From the last one before the handle, if there is any.
  if (mark != page.marks.begin()) --mark;
  if (mark == page.marks.end()) return std::nullopt;
  const std::uint64_t left = page.size - kCrcSize - mark->next;
  Scratch scratch;
  const auto bytes =
      section_->Bytes(page.at + mark->next, std::min(left, kMarkEvery * kMostEntrySize), scratch);
  if (!bytes) return std::nullopt;
  EntryReader reader(*bytes);
  Entry entry = mark->entry;
  while (entry.first < handle && reader.Step(entry.first, entry.second)) {
  }
  return entry.first == handle ? std::optional(entry.second) : std::nullopt;
}

void ObjectMap::ForEach(const Visit& visit) {
  FindPages(std::numeric_limits<model::Handle>::max());
  if (!sorted_) {
    for (const Page& page : pages_) {
      if (!VisitPage(page, visit)) return;
    }
    return;
  }
  for (std::size_t i = 0; i < sorted_->size(); ++i) {
    const Entry& entry = (*sorted_)[i];
    // Of those with the same handle the first counts.
    if (i > 0 && (*sorted_)[i - 1].first == entry.first) continue;
    if (!visit(entry.first, entry.second)) return;
  }
}

bool ObjectMap::VisitPage(const Page& page, const Visit& visit) const {
  Scratch scratch;
  const auto bytes = section_->Bytes(page.at, page.size, scratch);
  if (!bytes) return true;
  EntryReader reader = EntriesOf(*bytes);
  Entry entry = {0, 0};
  while (reader.Step(entry.first, entry.second)) {
    if (!visit(entry.first, entry.second)) return false;
  }
  return true;
}

void ObjectMap::Warn(const wchar_t* text, std::uint64_t at) {
  report_->Warn({text, section_->PlaceOf(at), {}, {}});
}

}  // namespace zdx::dwg
