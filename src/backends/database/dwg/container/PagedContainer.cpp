#include "backends/database/dwg/container/PagedContainer.h"

#include <algorithm>
#include <map>
#include <utility>

#include "backends/database/dwg/bits/Checksums.h"
#include "backends/database/dwg/container/Decompression.h"
#include "backends/database/dwg/container/PageMap.h"
#include "backends/database/dwg/container/PagedHeader.h"
#include "backends/database/dwg/container/PagedSection.h"
#include "backends/database/dwg/container/SectionNames.h"
#include "base/LittleEndian.h"

namespace zdx::dwg {
namespace {

// The head of a page with one of the maps: type, size, compressed size, 2, sum.
constexpr std::size_t kSystemHeadSize = std::size_t{5} * 4;
constexpr std::size_t kSystemSumAt = 16;
constexpr std::uint32_t kPageMapType = 0x41630E3B;
constexpr std::uint32_t kSectionMapType = 0x4163003B;

// The head of a page of a section, eight words that are masked by the page's address.
constexpr std::size_t kPageHeadSize = std::size_t{8} * 4;
constexpr std::size_t kPageSectionAt = 4;
constexpr std::size_t kPageStoredAt = 8;
constexpr std::size_t kPageStartAt = 0x10;
constexpr std::size_t kPageHeadSumAt = 0x18;
constexpr std::size_t kPageDataSumAt = 0x1C;
constexpr std::uint32_t kPageType = 0x4163043B;
constexpr int kIdentifyingWords = 3;
constexpr std::uint32_t kPageMask = 0x4164536B;

// An entry of the page map: number, size; a gap has four words more.
constexpr std::size_t kPageEntrySize = std::size_t{2} * 4;
constexpr std::size_t kGapTailSize = std::size_t{4} * 4;

// The section map begins with five words, of which the first is the number of sections.
constexpr std::size_t kSectionMapHeadSize = std::size_t{5} * 4;
// An entry: data size (8), pages (4), page size (4), 1, compression (4), number (4), encryption
// (4), name (64); then one of 16 bytes for each page.
constexpr std::size_t kPageCountAt = 8;
constexpr std::size_t kPageSizeAt = 12;
constexpr std::size_t kCompressionAt = 20;
constexpr std::size_t kSectionNumberAt = 24;
constexpr std::size_t kSectionNameAt = 32;
constexpr std::size_t kSectionNameSize = 64;
constexpr std::size_t kSectionEntrySize = kSectionNameAt + kSectionNameSize;
constexpr std::size_t kSectionPageSize = 4 + 4 + 8;
constexpr std::uint32_t kCompressed = 2;

// More than any page of a real file has.
constexpr std::uint64_t kMostPageSize = std::uint64_t{64} << 20;

struct SectionEntry {
  std::uint64_t size = 0;
  std::uint64_t pageSize = 0;
  bool compressed = false;
  std::uint32_t number = 0;
  std::vector<SectionPage> pages;
};

class PagedContainer : public Container {
 public:
  PagedContainer(std::string_view bytes, model::Report& report)
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
  std::optional<std::string> SystemPage(std::uint64_t address, std::uint32_t type,
                                        const wchar_t* what);
  void ReadPageMap(std::string_view map);
  void ReadSectionMap(std::string_view map);
  std::vector<SectionPage> ReadPages(std::string_view list, const SectionEntry& section);
  std::optional<PageBytes> ReadPage(const SectionEntry& section, const SectionPage& page,
                                    bool again);
  std::string PageHead(std::uint64_t address) const;
  void CheckSums(const std::string& head, std::string_view stored, std::uint64_t address);
  void Warn(std::wstring text, std::uint64_t at) { report_.Warn({std::move(text), at, {}, {}}); }

  std::string_view bytes_;
  model::Report& report_;
  // For the maps.
  Budget memory_;
  PageCache cache_;
  Budget reading_;
  Budget pagesLeft_;
  PageMap pageMap_;
  std::map<SectionId, SectionEntry> entries_;
  std::map<SectionId, PagedSection> sections_;
};

std::optional<model::Finding> PagedContainer::ReadMaps() {
  const std::optional<PagedHeader> header = ReadPagedHeader(bytes_, report_);
  if (!header) return model::Finding{L"The file's header can't be read.", kFirstPage / 2, {}, {}};
  const auto pages = SystemPage(header->pageMapAddress, kPageMapType, L"page map");
  if (!pages) {
    return model::Finding{L"The page map can't be read.", header->pageMapAddress, {}, {}};
  }
  ReadPageMap(*pages);
  const std::optional<PlacedPage> page = pageMap_.Find(header->sectionMapPage);
  const auto sections =
      page ? SystemPage(page->address, kSectionMapType, L"section map") : std::nullopt;
  if (!sections) {
    return model::Finding{
        L"The section map can't be read.", page ? page->address : header->pageMapAddress, {}, {}};
  }
  ReadSectionMap(*sections);
  return std::nullopt;
}

// The content of a page with one of the maps.
std::optional<std::string> PagedContainer::SystemPage(std::uint64_t address, std::uint32_t type,
                                                      const wchar_t* what) {
  if (address > bytes_.size() || bytes_.size() - address < kSystemHeadSize) return std::nullopt;
  const std::string_view page = bytes_.substr(static_cast<std::size_t>(address));
  std::string head(page.substr(0, kSystemHeadSize));
  const auto size = LittleEndianAt<std::uint32_t>(head, 4);
  const auto stored = LittleEndianAt<std::uint32_t>(head, 8);
  const auto sum = LittleEndianAt<std::uint32_t>(head, kSystemSumAt);
  if (LittleEndian<std::uint32_t>(head) != type || stored > page.size() - kSystemHeadSize ||
      !memory_.Take(size)) {
    return std::nullopt;
  }
  const std::string_view data = page.substr(kSystemHeadSize, stored);
  head.replace(kSystemSumAt, sizeof sum, sizeof sum, '\0');
  if (PageSum(PageSum(0, head), data) != sum) {
    Warn(L"The checksum of the " + std::wstring(what) + L" is wrong.", address);
  }
  Decompressed map = DecompressPaged(data, size);
  if (!map.whole) Warn(L"The " + std::wstring(what) + L" is damaged.", address);
  return std::move(map.bytes);
}

void PagedContainer::ReadPageMap(std::string_view map) {
  std::uint64_t address = kFirstPage;
  while (map.size() >= kPageEntrySize) {
    const auto id = static_cast<std::int32_t>(LittleEndian<std::uint32_t>(map));
    const auto size = LittleEndianAt<std::uint32_t>(map, 4);
    if (id >= 0 && size != 0 && address < bytes_.size()) pageMap_.Add(id, {address, size});
    address += size;
    map.remove_prefix(std::min(map.size(), kPageEntrySize + (id < 0 ? kGapTailSize : 0)));
  }
}

void PagedContainer::ReadSectionMap(std::string_view map) {
  if (map.size() < kSectionMapHeadSize) return;
  auto left = LittleEndian<std::uint32_t>(map);
  map.remove_prefix(kSectionMapHeadSize);
  for (; left > 0 && map.size() >= kSectionEntrySize; --left) {
    SectionEntry section;
    section.size = LittleEndian<std::uint64_t>(map);
    const auto count = LittleEndianAt<std::uint32_t>(map, kPageCountAt);
    section.pageSize = LittleEndianAt<std::uint32_t>(map, kPageSizeAt);
    section.compressed = LittleEndianAt<std::uint32_t>(map, kCompressionAt) == kCompressed;
    section.number = LittleEndianAt<std::uint32_t>(map, kSectionNumberAt);
    const std::string_view field = map.substr(kSectionNameAt, kSectionNameSize);
    const std::string_view name = field.substr(0, field.find('\0'));
    map.remove_prefix(kSectionEntrySize);
    const std::size_t listSize =
        std::min<std::size_t>(count, map.size() / kSectionPageSize) * kSectionPageSize;
    if (const std::optional<SectionId> id = SectionByName(name)) {
      section.pages = ReadPages(map.substr(0, listSize), section);
      entries_.emplace(*id, std::move(section));
    }
    map.remove_prefix(listSize);
  }
}

std::vector<SectionPage> PagedContainer::ReadPages(std::string_view list,
                                                   const SectionEntry& section) {
  std::vector<SectionPage> pages;
  for (; !list.empty(); list.remove_prefix(kSectionPageSize)) {
    SectionPage page;
    page.id = static_cast<std::int32_t>(LittleEndian<std::uint32_t>(list));
    page.storedSize = LittleEndianAt<std::uint32_t>(list, 4);
    page.start = LittleEndianAt<std::uint64_t>(list, 8);
    if (page.start >= section.size) continue;
    page.size = std::min(section.pageSize, section.size - page.start);
    if (const auto placed = pageMap_.Find(page.id)) page.address = placed->address;
    if (!section.compressed) page.plainAt = page.address + kPageHeadSize;
    if (!pagesLeft_.Take(1)) {
      Warn(L"A section is said to have more pages than the file has room for.", page.address);
      break;
    }
    pages.push_back(page);
  }
  return pages;
}

Section* PagedContainer::Find(SectionId id) {
  const auto entry = entries_.find(id);
  if (entry == entries_.end()) return nullptr;
  auto found = sections_.find(id);
  if (found == sections_.end()) {
    SectionEntry& section = entry->second;
    const auto read = [this, &section](const SectionPage& page, bool again) {
      return ReadPage(section, page, again);
    };
    found = sections_.try_emplace(id, section.size, std::move(section.pages), cache_, read).first;
  }
  return &found->second;
}

// The eight words before a page's data, unmasked.
std::string PagedContainer::PageHead(std::uint64_t address) const {
  const std::uint32_t mask = kPageMask ^ static_cast<std::uint32_t>(address);
  std::string head(bytes_.substr(static_cast<std::size_t>(address), kPageHeadSize));
  for (std::size_t i = 0; i < head.size(); ++i) {
    head[i] = static_cast<char>(head[i] ^ static_cast<char>(mask >> 8 * (i % 4)));
  }
  return head;
}

void PagedContainer::CheckSums(const std::string& head, std::string_view stored,
                               std::uint64_t address) {
  const std::uint32_t sum = PageSum(0, stored);
  std::string summed = head;
  summed.replace(kPageHeadSumAt, 4, 4, '\0');
  const bool dataRight = LittleEndianAt<std::uint32_t>(head, kPageDataSumAt) == sum;
  if (!dataRight) Warn(L"The checksum of a page is wrong.", address);
  if (dataRight && LittleEndianAt<std::uint32_t>(head, kPageHeadSumAt) != PageSum(sum, summed)) {
    Warn(L"The checksum of a page's head is wrong.", address);
  }
}

// How many of the words of a head that tell which page it is say that it is this one.
int AgreeingWords(std::string_view head, const SectionEntry& section, const SectionPage& page) {
  return (LittleEndian<std::uint32_t>(head) == kPageType ? 1 : 0) +
         (LittleEndianAt<std::uint32_t>(head, kPageSectionAt) == section.number ? 1 : 0) +
         (LittleEndianAt<std::uint64_t>(head, kPageStartAt) == page.start ? 1 : 0);
}

// The stored size that the head tells or, if only that of the section map agrees with the sum of
// the data, that one.
std::uint64_t StoredSize(std::string_view head, const SectionPage& page, std::string_view data) {
  const std::uint64_t told = LittleEndianAt<std::uint32_t>(head, kPageStoredAt);
  if (told == page.storedSize || page.storedSize > data.size()) return told;
  const auto mapped = data.substr(0, static_cast<std::size_t>(page.storedSize));
  const bool agrees = LittleEndianAt<std::uint32_t>(head, kPageDataSumAt) == PageSum(0, mapped);
  return agrees ? page.storedSize : told;
}

std::optional<PageBytes> PagedContainer::ReadPage(const SectionEntry& section,
                                                  const SectionPage& page, bool again) {
  const std::uint64_t address = page.address;
  if (address < kFirstPage || address > bytes_.size() || bytes_.size() - address < kPageHeadSize) {
    Warn(L"A page isn't in the file.", address);
    return std::nullopt;
  }
  const std::string head = PageHead(address);
  const int agreeing = AgreeingWords(head, section, page);
  const bool headRight = agreeing == kIdentifyingWords;
  if (!headRight && !again) Warn(L"The head of a page is damaged.", address);
  const std::string_view behind = bytes_.substr(static_cast<std::size_t>(address) + kPageHeadSize);
  const std::uint64_t storedSize = headRight ? StoredSize(head, page, behind) : page.storedSize;
  // With more than one word wrong it is some other part of the file.
  if (agreeing < kIdentifyingWords - 1 || storedSize > behind.size() ||
      (!again && !reading_.Take(storedSize))) {
    Warn(L"A page can't be read.", address);
    return std::nullopt;
  }
  const std::string_view stored = behind.substr(0, static_cast<std::size_t>(storedSize));
  if (headRight && !again) CheckSums(head, stored, address);
  if (!section.compressed) return PageBytes{{}, stored};
  if (section.pageSize > kMostPageSize || !cache_.MakeRoom(section.pageSize)) {
    Warn(kTooMuch, address);
    return std::nullopt;
  }
  Decompressed data = DecompressPaged(stored, static_cast<std::size_t>(section.pageSize));
  if (!data.whole && !again) Warn(L"The compressed data of a page are damaged.", address);
  return PageBytes{std::move(data.bytes), {}};
}

}  // namespace

std::variant<std::unique_ptr<Container>, model::Finding> OpenPaged(std::string_view bytes,
                                                                   model::Report& report) {
  auto container = std::make_unique<PagedContainer>(bytes, report);
  if (auto refusal = container->ReadMaps()) return *std::move(refusal);
  return container;
}

}  // namespace zdx::dwg
