#include "backends/database/dwg/records/ObjectMap.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "backends/database/dwg/bits/BitReader.h"
#include "backends/database/dwg/bits/Checksums.h"

namespace zdx::dwg {
namespace {

constexpr std::uint64_t kSizeSize = 2;
constexpr std::uint64_t kCheckSize = 2;

std::uint16_t HighFirst(std::string_view bytes) {
  return static_cast<std::uint16_t>(static_cast<std::uint8_t>(bytes[0]) << 8 |
                                    static_cast<std::uint8_t>(bytes[1]));
}

}  // namespace

ObjectMap::ObjectMap(Section& section, Budget entries, model::Report& report)
    : section_(&section), report_(&report), left_(entries) {
  FindPages();
  const auto later = [](const Page& left, const Page& right) { return left.first >= right.first; };
  if (std::adjacent_find(pages_.begin(), pages_.end(), later) != pages_.end()) Sort();
}

void ObjectMap::FindPages() {
  std::string scratch;
  for (std::uint64_t at = 0;;) {
    const auto head = section_->Bytes(at, kSizeSize, scratch);
    const std::uint64_t size = head ? HighFirst(*head) : 0;
    if (size == kSizeSize) return;
    if (size < kSizeSize || size + kCheckSize > section_->size() - at) break;
    if (pages_.size() == left_.left()) break;
    const std::uint64_t begin = at + kSizeSize;
    // A step takes ten bytes at most.
    const auto entry =
        section_->Bytes(begin, std::min<std::uint64_t>(size - kSizeSize, 10), scratch);
    if (!entry) break;
    const model::Handle first = BitReader(*entry, 0, entry->size() * 8).UMC();
    pages_.push_back({first, at, size + kCheckSize});
    at += size + kCheckSize;
  }
  Warn(L"The object map ends early.", pages_.empty() ? 0 : pages_.back().at);
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
    if (!left_.Take(1)) {
      Warn(L"The object map has more entries than the file can have.", page.at);
      break;
    }
    entries.push_back(entry);
  }
  entries.shrink_to_fit();
  return entries;
}

// For a map that isn't in order, which no sound file has: makes one page of all.
void ObjectMap::Sort() {
  Warn(L"The object map isn't in order.", 0);
  std::vector<Entry> all;
  for (const Page& page : pages_) {
    const std::vector<Entry> entries = Decode(page);
    all.insert(all.end(), entries.begin(), entries.end());
  }
  std::stable_sort(all.begin(), all.end(),
                   [](const Entry& left, const Entry& right) { return left.first < right.first; });
  pages_.clear();
  pages_.push_back({0, 0, 0, std::move(all)});
}

std::optional<std::uint64_t> ObjectMap::Find(model::Handle handle) {
  const auto behind =
      std::upper_bound(pages_.begin(), pages_.end(), handle,
                       [](model::Handle wanted, const Page& page) { return wanted < page.first; });
  if (behind == pages_.begin()) return std::nullopt;
  Page& page = *std::prev(behind);
  if (!page.entries) page.entries = Decode(page);
  const auto found = std::lower_bound(
      page.entries->begin(), page.entries->end(), handle,
      [](const Entry& entry, model::Handle wanted) { return entry.first < wanted; });
  if (found == page.entries->end() || found->first != handle) return std::nullopt;
  return found->second;
}

void ObjectMap::Warn(const wchar_t* text, std::uint64_t at) {
  report_->Warn({text, section_->PlaceOf(at), {}, {}});
}

}  // namespace zdx::dwg
