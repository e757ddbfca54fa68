#include <algorithm>

#include "support/dwg/Bytes.h"
#include "support/dwg/CodedChecksums.h"
#include "support/dwg/Containers.h"
#include "support/dwg/PlainSections.h"
#include "support/dwg/ReedSolomon.h"
#include "support/dwg/Tokens.h"

namespace dwg {
namespace {

constexpr std::size_t kFirstPage = 0x480;
constexpr std::size_t kHeadPageSize = 0x400;
constexpr std::size_t kHeadWords = 3;
constexpr std::size_t kHeadDataSize = 0x110;
constexpr std::size_t kHeadCopies = 3;
constexpr std::size_t kUsualPageSize = 0xF800;
constexpr std::size_t kPageUnit = 0x20;
constexpr std::size_t kReserveUnit = 0x80;
constexpr std::size_t kLeastMapPage = 0x400;
constexpr std::size_t kRepeats = 2;
constexpr std::uint64_t kMeaningless = 0x1C6E5A93D4B78F20;

struct KnownSection {
  const char* name;
  std::uint64_t hash;
};

// What files tell beside a section's name.
constexpr KnownSection kHashes[] = {
    {kHeaderSection, 0x32B803D9},         {kAuxHeaderSection, 0x54F0050A},
    {kClassesSection, 0x3F54045F},        {kHandlesSection, 0x3F6E0450},
    {kTemplateSection, 0x4A1404CE},       {kObjectsSection, 0x674C05A9},
    {kRevisionsSection, 0x60A205B3},      {kSummarySection, 0x717A060F},
    {kPreviewSection, 0x40AA0473},        {kAppInfoSection, 0x3FA0043E},
    {kAppInfoHistorySection, 0x96DE0737}, {kFileListSection, 0x6C4205CA}};

struct CodedPage {
  std::size_t id;
  std::size_t size;
  std::size_t offset;
  std::string contents;
  // As `contents` if compression doesn't make it shorter.
  std::string stored;
};

struct CodedSection {
  std::string name;
  std::size_t size = 0;
  std::size_t pageSize = kUsualPageSize;
  bool isCoded = true;
  bool isEncrypted = false;
  std::vector<CodedPage> pages = {};
};

std::string Shortest(const std::string& bytes, Squeeze squeeze) {
  if (squeeze == Squeeze::LiteralsOnly) return bytes;
  std::string compressed = CodedCompressed(bytes, squeeze);
  return compressed.size() < bytes.size() ? compressed : bytes;
}

std::string Resized(std::string bytes, std::size_t size) {
  bytes.resize(size, '\0');
  return bytes;
}

// A map as it stands on its page.
struct CodedMap {
  CodedMap(const std::string& contents, Squeeze squeeze)
      : stored(Shortest(contents, squeeze)),
        size(contents.size()),
        crc(CodedCrc64(contents)),
        storedCrc(CodedCrc64(stored)) {
    const std::string padded = Resized(stored, RoundedUp(stored.size(), 8));
    std::string repeated;
    for (std::size_t i = 0; i < kRepeats; ++i) repeated += padded;
    page = Protected(repeated, kSystemWords);
  }

  std::string stored;
  std::size_t size;
  std::uint64_t crc;
  std::uint64_t storedCrc;
  std::string page;
};

std::size_t MapPageSize(std::size_t contents) {
  const std::size_t words = WordCount(RoundedUp(contents, 8) * kRepeats, kSystemWords);
  return std::max(kLeastMapPage, RoundedUp(words * kWordSize, kPageUnit));
}

std::uint64_t HashOf(const std::string& name) {
  for (const KnownSection& known : kHashes) {
    if (name == known.name) return known.hash;
  }
  return 0;
}

void AppendNumbers(std::string& bytes, std::initializer_list<std::uint64_t> numbers) {
  for (const std::uint64_t number : numbers) AppendNumber(bytes, number, 8);
}

void AppendSection(std::string& map, const CodedSection& section) {
  const std::string name = section.name.empty() ? "" : Utf16(section.name) + std::string(2, '\0');
  AppendNumbers(
      map, {section.size, section.pageSize, section.isEncrypted ? 2u : 0u, HashOf(section.name),
            name.size(), 0, section.isCoded ? 4u : 1u, section.pages.size()});
  map += name;
  for (const CodedPage& page : section.pages) {
    AppendNumbers(map, {page.offset, RoundedUp(page.contents.size(), kReserveUnit), page.id,
                        page.contents.size(), page.stored.size(), CodedPageSum(page.contents),
                        CodedCrc64(page.stored)});
  }
}

// The head page tells itself three times over, or as often as it has room.
std::string HeadPage(const std::string& data, Squeeze squeeze) {
  const std::string stored = CodedCompressed(data, squeeze);
  std::string block;
  AppendNumbers(block, {kMeaningless, ~kMeaningless, HeadCrc64(stored), stored.size()});
  block += stored;
  block.resize(RoundedUp(block.size(), 8), '\0');
  std::string copies;
  for (std::size_t i = 0;
       i < kHeadCopies && copies.size() + block.size() <= kHeadWords * kSystemWords.dataSize; ++i) {
    copies += block;
  }
  copies.resize(kHeadWords * kSystemWords.dataSize, '\0');
  return Resized(Protected(copies, kSystemWords), kHeadPageSize);
}

class CodedBody {
 public:
  explicit CodedBody(const Writing& writing) : writing_(writing) {}

  void AddCoded(const char* name, const std::string& bytes) {
    CodedSection section{name, bytes.size()};
    if (name == std::string_view(kObjectsSection) && writing_.objectPageSize != 0) {
      section.pageSize = writing_.objectPageSize;
    }
    for (std::size_t at = 0; at < bytes.size(); at += section.pageSize) {
      const std::string contents = bytes.substr(at, section.pageSize);
      const std::string stored = Shortest(contents, writing_.squeeze);
      const std::string page = Protected(Resized(stored, RoundedUp(stored.size(), 8)), kDataWords);
      AddPage(section, page, RoundedUp(page.size(), kPageUnit), at, contents, stored);
    }
    sections_.push_back(section);
  }

  // As it is, in one page of a multiple of `unit`, with room for the bytes that would protect it.
  void AddPlain(const char* name, const std::string& bytes, std::size_t unit) {
    CodedSection section{name, bytes.size(), RoundedUp(bytes.size(), unit), false};
    section.isEncrypted = name == std::string_view(kFileListSection);
    const std::size_t parity =
        WordCount(section.pageSize, kDataWords) * (kWordSize - kDataWords.dataSize);
    AddPage(section, bytes, RoundedUp(section.pageSize + parity, kPageUnit), 0, bytes, bytes);
    sections_.push_back(section);
  }

  // Behind the page map and its copy, of `mapPages` bytes together.
  std::size_t NextData(std::size_t mapPages) const { return kFirstPage + mapPages + bytes_.size(); }

  std::size_t PageCount() const { return sizes_.size(); }

  // Head page, pages and the copy of the head page.
  std::string Finish(std::size_t mapPage);

 private:
  void AddPage(CodedSection& section, const std::string& page, std::size_t size, std::size_t offset,
               const std::string& contents, const std::string& stored) {
    section.pages.push_back({sizes_.size() + 1, size, offset, contents, stored});
    bytes_ += Resized(page, size);
    sizes_.push_back(size);
  }

  std::string SectionMap() const;
  std::string PageMap(std::size_t mapPage) const;

  const Writing& writing_;
  std::string bytes_;
  // Of the pages behind the page maps, whose ids count from 1.
  std::vector<std::size_t> sizes_;
  std::vector<CodedSection> sections_;
};

std::string CodedBody::SectionMap() const {
  std::string map;
  for (const CodedSection& section : sections_) AppendSection(map, section);
  AppendSection(map, CodedSection());
  return map;
}

std::string CodedBody::PageMap(std::size_t mapPage) const {
  std::string map;
  AppendNumbers(map, {mapPage, sizes_.size() + 1, mapPage, sizes_.size() + 2});
  for (std::size_t i = 0; i < sizes_.size(); ++i) AppendNumbers(map, {sizes_[i], i + 1});
  return map;
}

struct Layout {
  std::size_t pagesSize;
  std::size_t pageCount;
  std::size_t sectionCount;
  std::size_t mapPage;
  std::size_t sectionMapId;
};

std::string HeadData(const Layout& layout, const CodedMap& pageMap, const CodedMap& sectionMap) {
  const std::size_t count = layout.pageCount;
  std::string data;
  AppendNumbers(data, {0x70,
                       kFirstPage + layout.pagesSize + kHeadPageSize,
                       pageMap.storedCrc,
                       kRepeats,
                       kMeaningless >> 8,
                       layout.mapPage,
                       count,
                       0,
                       count - 1,
                       layout.pagesSize,
                       pageMap.stored.size(),
                       pageMap.size,
                       count,
                       count,
                       0x20,
                       0x40,
                       pageMap.crc,
                       0xF800,
                       4,
                       1,
                       layout.sectionCount,
                       sectionMap.crc,
                       sectionMap.stored.size(),
                       layout.sectionMapId + 1,
                       layout.sectionMapId,
                       sectionMap.size,
                       sectionMap.storedCrc,
                       kRepeats,
                       kMeaningless >> 9,
                       0x60100,
                       0,
                       kMeaningless >> 3,
                       kMeaningless >> 4,
                       0});
  PutNumber(data, kHeadDataSize - 8, HeadCrc64(data), 8);
  return data;
}

// The page map and its copy come first, the section map and its copy last.
std::string CodedBody::Finish(std::size_t mapPage) {
  const CodedMap sectionMap(SectionMap(), writing_.squeeze);
  const std::size_t sectionMapId = sizes_.size() + 1;
  const std::size_t sectionMapPage = MapPageSize(sectionMap.stored.size());
  for (int copy = 0; copy < 2; ++copy) {
    bytes_ += Resized(sectionMap.page, sectionMapPage);
    sizes_.push_back(sectionMapPage);
  }
  const CodedMap pageMap(PageMap(mapPage), writing_.squeeze);
  const std::string maps = Resized(pageMap.page, mapPage);
  const Layout layout{2 * mapPage + bytes_.size(), sizes_.size() + 2, sections_.size() + 1, mapPage,
                      sectionMapId};
  const std::string head = HeadPage(HeadData(layout, pageMap, sectionMap), writing_.squeeze);
  return head + maps + maps + bytes_ + head;
}

// The preview's pictures are told by their addresses, for which the size of the page map must be
// known; `mapPage` is it.
std::string FileWithMapPage(Drawing& drawing, const std::vector<PlainSection>& sections,
                            std::size_t& mapPage) {
  CodedBody body(drawing.writing);
  std::size_t summaryAt = 0;
  std::size_t appInfoAt = 0;
  std::size_t historyAt = 0;
  if (drawing.spec.hasSummary) {
    summaryAt = body.NextData(2 * mapPage);
    body.AddPlain(kSummarySection, SummarySection(drawing), 0x80);
  }
  const std::size_t previewAt = body.NextData(2 * mapPage);
  body.AddPlain(kPreviewSection, PreviewSection(drawing.spec.previews, previewAt), 0x400);
  const std::string appInfo = AppInfoSection(drawing);
  if (!appInfo.empty()) {
    appInfoAt = body.NextData(2 * mapPage);
    body.AddPlain(kAppInfoSection, appInfo, 0x80);
  }
  const std::string history = AppInfoHistorySection(drawing);
  if (!history.empty()) {
    historyAt = body.NextData(2 * mapPage);
    body.AddPlain(kAppInfoHistorySection, history, 0x80);
  }
  if (!drawing.spec.fileList.files.empty()) {
    body.AddPlain(kFileListSection, FileListSection(drawing), 0x80);
  }
  for (std::size_t i = sections.size(); i > 0; --i) {
    body.AddCoded(sections[i - 1].name, sections[i - 1].bytes);
  }
  constexpr std::size_t kMapPages = 4;
  constexpr std::size_t kEntrySize = 16;
  mapPage = MapPageSize((body.PageCount() + kMapPages) * kEntrySize);
  std::string head = FileHead(drawing, previewAt);
  PutPagedHead(head, summaryAt, appInfoAt, historyAt);
  return head + body.Finish(mapPage);
}

}  // namespace

std::string CodedFile(Drawing& drawing) {
  const std::vector<PlainSection> sections = RecordSections(drawing);
  std::size_t mapPage = 0;
  FileWithMapPage(drawing, sections, mapPage);
  return FileWithMapPage(drawing, sections, mapPage);
}

}  // namespace dwg
