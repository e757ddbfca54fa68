#include "backends/database/dwg/container/CodedContainer.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "backends/database/dwg/container/CodedChecks.h"
#include "backends/database/dwg/container/CodedHeader.h"
#include "backends/database/dwg/container/Decompression.h"
#include "backends/database/dwg/container/PageMap.h"
#include "backends/database/dwg/container/PagedSection.h"
#include "backends/database/dwg/container/ReedSolomon.h"
#include "backends/database/dwg/container/SectionNames.h"
#include "base/LittleEndian.h"

namespace zdx::dwg {
namespace {

// An entry of the page map: size, number.
constexpr std::size_t kCodedPageEntrySize = std::size_t{2} * 8;

// An entry of the section map: eight words, the name, and seven words for each page.
constexpr std::size_t kNameSizeAt = std::size_t{4} * 8;
constexpr std::size_t kEncodingAt = std::size_t{6} * 8;
constexpr std::size_t kCodedPageCountAt = std::size_t{7} * 8;
constexpr std::size_t kSectionHeadSize = std::size_t{8} * 8;
constexpr std::size_t kCodedSectionPageSize = std::size_t{7} * 8;

constexpr std::uint64_t kWithParity = 4;

// Sums of sizes from the file stay far from wrapping.
constexpr std::uint64_t kMostSize = std::uint64_t{1} << 40;

struct CodedSectionEntry {
  std::uint64_t size = 0;
  bool withParity = false;
  std::vector<SectionPage> pages;
};

struct Content {
  std::string bytes;
  bool right = false;
};

class CodedContainer : public Container {
 public:
  CodedContainer(std::string_view bytes, model::Report& report)
      : bytes_(bytes),
        report_(report),
        memory_(Budget::OfMemory(bytes.size())),
        cache_(bytes.size()),
        reading_(Budget::OfReading(bytes.size())),
        pagesLeft_(Budget::OfPages(bytes.size())) {}

  // What keeps the maps from being read; nullopt if nothing does.
  std::optional<model::Finding> ReadMaps();

  Section* Find(SectionId id) override;

 private:
  std::optional<std::string> ReadMap(const CodedMap& map, std::optional<std::uint64_t> address,
                                     std::optional<std::uint64_t> copyAddress, const wchar_t* what);
  std::optional<Content> MapAt(const CodedMap& map, std::uint64_t address, bool mends);
  void ReadPageMap(std::string_view map);
  void ReadSectionMap(std::string_view map);
  std::vector<SectionPage> ReadPages(std::string_view list, const CodedSectionEntry& section);
  std::optional<PageBytes> ReadPage(const CodedSectionEntry& section, const SectionPage& page,
                                    bool again);
  std::optional<PageBytes> ReadCodedPage(const SectionPage& page);
  std::optional<PageBytes> ReadCodedPageAgain(const SectionPage& page);
  std::optional<Content> CodedPage(const SectionPage& page, bool mends, bool checks = true);
  std::optional<std::uint64_t> AddressOf(std::uint64_t page) const;
  void Warn(std::wstring text, std::uint64_t at) { report_.Warn({std::move(text), at, {}, {}}); }

  std::string_view bytes_;
  model::Report& report_;
  // For the maps.
  Budget memory_;
  PageCache cache_;
  // The pages that had to be mended.
  std::set<std::int64_t> mended_;
  Budget reading_;
  Budget pagesLeft_;
  PageMap pageMap_;
  std::map<SectionId, CodedSectionEntry> entries_;
  std::map<SectionId, PagedSection> sections_;
};

std::uint64_t RoundedUp(std::uint64_t size) { return (size + 7) & ~std::uint64_t{7}; }

std::uint64_t WordCount(std::uint64_t size, ParityKind kind) {
  return (size + DataSize(kind) - 1) / DataSize(kind);
}

// The content of data that are stored plain where compression gained nothing.
Decompressed Expanded(std::string_view stored, std::uint64_t size) {
  if (stored.size() >= size) {
    return {std::string(stored.substr(0, static_cast<std::size_t>(size))), true};
  }
  return DecompressCoded(stored, static_cast<std::size_t>(size));
}

std::optional<model::Finding> CodedContainer::ReadMaps() {
  const std::optional<CodedHeader> header = ReadCodedHeader(bytes_, report_);
  if (!header) return model::Finding{L"The file's header can't be read.", 0x80, {}, {}};
  const CodedMap& pageMap = header->pageMap;
  const auto pages = ReadMap(pageMap, pageMap.place, pageMap.copyPlace, L"page map");
  if (!pages) return model::Finding{L"The page map can't be read.", pageMap.place, {}, {}};
  ReadPageMap(*pages);
  const CodedMap& sectionMap = header->sectionMap;
  const auto address = AddressOf(sectionMap.place);
  const auto sections =
      ReadMap(sectionMap, address, AddressOf(sectionMap.copyPlace), L"section map");
  if (!sections) return model::Finding{L"The section map can't be read.", address, {}, {}};
  ReadSectionMap(*sections);
  return std::nullopt;
}

std::optional<std::uint64_t> CodedContainer::AddressOf(std::uint64_t page) const {
  const auto placed = pageMap_.Find(static_cast<std::int64_t>(page));
  return placed ? std::optional(placed->address) : std::nullopt;
}

// Tries the first page as it is, then mended, then the copy.  Of damaged ones the first counts.
std::optional<std::string> CodedContainer::ReadMap(const CodedMap& map,
                                                   std::optional<std::uint64_t> address,
                                                   std::optional<std::uint64_t> copyAddress,
                                                   const wchar_t* what) {
  std::optional<Content> first;
  if (address) first = MapAt(map, *address, false);
  if (first && first->right) return std::move(first->bytes);
  const std::wstring name = L"The " + std::wstring(what);
  for (const auto& place : {address, copyAddress}) {
    std::optional<Content> mended;
    if (place) mended = MapAt(map, *place, true);
    if (!mended || !mended->right) continue;
    Warn(name + (place == address ? L" is damaged; it was mended."
                                  : L" is damaged; its copy is used."),
         address.value_or(*place));
    return std::move(mended->bytes);
  }
  if (!first) return std::nullopt;
  Warn(name + L" is damaged.", *address);
  return std::move(first->bytes);
}

std::optional<Content> CodedContainer::MapAt(const CodedMap& map, std::uint64_t address,
                                             bool mends) {
  if (map.compressedSize > kMostSize || map.repeats == 0 || map.repeats > kMostSize ||
      address > bytes_.size() || !memory_.Take(map.size)) {
    return std::nullopt;
  }
  const std::string_view page = bytes_.substr(static_cast<std::size_t>(address));
  const std::uint64_t once = RoundedUp(map.compressedSize);
  if (once > page.size() || map.repeats > page.size()) return std::nullopt;
  const std::uint64_t words = WordCount(once * map.repeats, ParityKind::kSystemPage);
  if (words > page.size() / kWordSize) return std::nullopt;
  const auto count = static_cast<std::size_t>(words);
  const std::string data = mends ? TakeMendedData(page, count, ParityKind::kSystemPage)
                                 : TakeData(page, count, ParityKind::kSystemPage);
  const std::string_view stored =
      std::string_view(data).substr(0, static_cast<std::size_t>(map.compressedSize));
  Decompressed expanded = Expanded(stored, map.size);
  const bool right = expanded.whole && CodedPageCrc(stored) == map.compressedCrc &&
                     CodedPageCrc(expanded.bytes) == map.crc;
  return Content{std::move(expanded.bytes), right};
}

void CodedContainer::ReadPageMap(std::string_view map) {
  std::uint64_t address = kFirstCodedPage;
  for (; map.size() >= kCodedPageEntrySize; map.remove_prefix(kCodedPageEntrySize)) {
    const auto size = LittleEndian<std::uint64_t>(map);
    const auto id = static_cast<std::int64_t>(LittleEndianAt<std::uint64_t>(map, 8));
    if (size > kMostSize || address > kMostSize) return;
    if (id >= 0 && size != 0 && address < bytes_.size()) pageMap_.Add(id, {address, size});
    address += size;
  }
}

void CodedContainer::ReadSectionMap(std::string_view map) {
  while (map.size() >= kSectionHeadSize) {
    CodedSectionEntry section;
    section.size = std::min(LittleEndian<std::uint64_t>(map), kMostSize);
    const auto nameSize = LittleEndianAt<std::uint64_t>(map, kNameSizeAt);
    section.withParity = LittleEndianAt<std::uint64_t>(map, kEncodingAt) == kWithParity;
    const auto count = LittleEndianAt<std::uint64_t>(map, kCodedPageCountAt);
    map.remove_prefix(kSectionHeadSize);
    if (nameSize > map.size()) return;
    std::string name;
    for (std::size_t i = 0; i + 1 < nameSize && map[i] != '\0'; i += 2) name.push_back(map[i]);
    map.remove_prefix(static_cast<std::size_t>(nameSize));
    const std::size_t listSize = static_cast<std::size_t>(std::min<std::uint64_t>(
                                     count, map.size() / kCodedSectionPageSize)) *
                                 kCodedSectionPageSize;
    if (const std::optional<SectionId> id = SectionByName(name)) {
      section.pages = ReadPages(map.substr(0, listSize), section);
      entries_.emplace(*id, std::move(section));
    }
    map.remove_prefix(listSize);
  }
}

std::vector<SectionPage> CodedContainer::ReadPages(std::string_view list,
                                                   const CodedSectionEntry& section) {
  std::vector<SectionPage> pages;
  for (; !list.empty(); list.remove_prefix(kCodedSectionPageSize)) {
    const auto word = [list](std::size_t i) { return LittleEndianAt<std::uint64_t>(list, 8 * i); };
    SectionPage page;
    page.start = word(0);
    page.id = static_cast<std::int64_t>(word(2));
    page.size = word(3);
    page.storedSize = word(4);
    page.checksum = word(5);
    page.crc = word(6);
    if (page.start >= section.size || page.size > kMostSize) continue;
    page.address = AddressOf(word(2)).value_or(0);
    if (!section.withParity && page.storedSize >= page.size) page.plainAt = page.address;
    if (!pagesLeft_.Take(1)) {
      Warn(L"A section is said to have more pages than the file has room for.", page.address);
      break;
    }
    pages.push_back(page);
  }
  return pages;
}

Section* CodedContainer::Find(SectionId id) {
  const auto entry = entries_.find(id);
  if (entry == entries_.end()) return nullptr;
  auto found = sections_.find(id);
  if (found == sections_.end()) {
    CodedSectionEntry& section = entry->second;
    const auto read = [this, &section](const SectionPage& page, bool again) {
      return ReadPage(section, page, again);
    };
    found = sections_.try_emplace(id, section.size, std::move(section.pages), cache_, read).first;
  }
  return &found->second;
}

std::optional<PageBytes> CodedContainer::ReadPage(const CodedSectionEntry& section,
                                                  const SectionPage& page, bool again) {
  if (page.address < kFirstCodedPage || page.address > bytes_.size()) {
    Warn(L"A page isn't in the file.", page.address);
    return std::nullopt;
  }
  if (section.withParity) return again ? ReadCodedPageAgain(page) : ReadCodedPage(page);
  const std::string_view behind = bytes_.substr(static_cast<std::size_t>(page.address));
  const bool isCompressed = page.storedSize < page.size;
  if (page.storedSize > behind.size() || (!again && !reading_.Take(page.storedSize)) ||
      (isCompressed && !cache_.MakeRoom(page.size))) {
    Warn(kTooMuch, page.address);
    return std::nullopt;
  }
  const std::string_view stored = behind.substr(0, static_cast<std::size_t>(page.storedSize));
  if (!isCompressed) {
    const std::string_view data = stored.substr(0, static_cast<std::size_t>(page.size));
    if (CodedPageSum(data) != page.checksum) {
      Warn(L"The checksum of a page is wrong.", page.address);
    }
    return PageBytes{{}, data};
  }
  Decompressed data = DecompressCoded(stored, static_cast<std::size_t>(page.size));
  if (!again && (!data.whole || CodedPageSum(data.bytes) != page.checksum)) {
    Warn(L"The checksum of a page is wrong.", page.address);
  }
  return PageBytes{std::move(data.bytes), {}};
}

std::optional<PageBytes> CodedContainer::ReadCodedPage(const SectionPage& page) {
  if (!reading_.Take(page.storedSize) || !cache_.MakeRoom(page.size)) {
    Warn(kTooMuch, page.address);
    return std::nullopt;
  }
  std::optional<Content> content = CodedPage(page, false);
  if (!content) {
    Warn(L"A page isn't all in the file.", page.address);
    return std::nullopt;
  }
  if (!content->right) {
    // A page may be large: there is never more than one form of it.
    content.reset();
    content = CodedPage(page, true);
    if (content->right) {
      Warn(L"A page is damaged; it was mended.", page.address);
      mended_.insert(page.id);
    } else {
      Warn(L"The checksum of a page is wrong.", page.address);
      content.reset();
      content = CodedPage(page, false);
    }
  }
  return PageBytes{std::move(content->bytes), {}};
}

// Its checks were looked at before.  Mending is slow, so that doing it again isn't free.
std::optional<PageBytes> CodedContainer::ReadCodedPageAgain(const SectionPage& page) {
  if (!cache_.MakeRoom(page.size)) {
    Warn(kTooMuch, page.address);
    return std::nullopt;
  }
  const bool mends = mended_.contains(page.id) && reading_.Take(page.storedSize);
  std::optional<Content> content = CodedPage(page, mends, false);
  return content ? std::optional(PageBytes{std::move(content->bytes), {}}) : std::nullopt;
}

// The content of a page with parity, and whether its two checks are right.
std::optional<Content> CodedContainer::CodedPage(const SectionPage& page, bool mends, bool checks) {
  const std::string_view behind = bytes_.substr(static_cast<std::size_t>(page.address));
  if (page.storedSize > behind.size()) return std::nullopt;
  const std::uint64_t words = WordCount(RoundedUp(page.storedSize), ParityKind::kDataPage);
  if (words > behind.size() / kWordSize) return std::nullopt;
  const auto count = static_cast<std::size_t>(words);
  const std::string data = mends ? TakeMendedData(behind, count, ParityKind::kDataPage)
                                 : TakeData(behind, count, ParityKind::kDataPage);
  const std::string_view stored =
      std::string_view(data).substr(0, static_cast<std::size_t>(page.storedSize));
  Decompressed expanded = Expanded(stored, page.size);
  const bool right = !checks || (expanded.whole && CodedPageSum(expanded.bytes) == page.checksum &&
                                 CodedPageCrc(stored) == page.crc);
  return Content{std::move(expanded.bytes), right};
}

}  // namespace

std::variant<std::unique_ptr<Container>, model::Finding> OpenCoded(std::string_view bytes,
                                                                   model::Report& report) {
  auto container = std::make_unique<CodedContainer>(bytes, report);
  if (auto refusal = container->ReadMaps()) return *std::move(refusal);
  return container;
}

}  // namespace zdx::dwg
