#include <algorithm>

#include "support/dwg/Bytes.h"
#include "support/dwg/Checksums.h"
#include "support/dwg/Containers.h"
#include "support/dwg/PlainSections.h"
#include "support/dwg/Tokens.h"

namespace dwg {
namespace {

constexpr std::size_t kFirstPage = 0x100;
constexpr std::size_t kPageHeadSize = 0x20;
constexpr std::size_t kUsualPageSize = 0x7400;
constexpr std::size_t kPageUnit = 0x20;
constexpr std::size_t kHiddenHeaderSize = 0x6C;
constexpr std::size_t kHiddenHeaderAt = 0x80;
constexpr std::uint64_t kDataPage = 0x4163043B;
constexpr std::uint32_t kDataPageMask = 0x4164536B;
constexpr std::uint64_t kPageMapPage = 0x41630E3B;
constexpr std::uint64_t kSectionMapPage = 0x4163003B;
// Between the data's last page and the maps', files leave two numbers out.
constexpr std::size_t kSkippedIds = 2;
constexpr std::size_t kMapReserve = 0x100;

struct Page {
  std::size_t id;
  std::size_t address;
  std::size_t size;
  std::size_t stored;
  std::size_t offset;
};

struct Section {
  std::string name;
  std::size_t id = 0;
  std::size_t size = 0;
  std::size_t pageSize = kUsualPageSize;
  bool isCompressed = true;
  bool isEncrypted = false;
  std::vector<Page> pages = {};
};

void XorNumbers(std::string& bytes, std::uint32_t mask) {
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    bytes[i] = static_cast<char>(bytes[i] ^ static_cast<char>(mask >> (8 * (i % 4)) & 0xFF));
  }
}

std::string PageHead(const Section& section, const Page& page, const std::string& stored) {
  std::string head;
  for (const std::uint64_t number :
       {kDataPage, std::uint64_t{section.id}, std::uint64_t{stored.size()},
        std::uint64_t{page.size}, std::uint64_t{page.offset}, std::uint64_t{0}, std::uint64_t{0}}) {
    AppendNumber(head, number, 4);
  }
  const std::uint32_t dataSum = PageSum(0, stored);
  AppendNumber(head, dataSum, 4);
  PutNumber(head, 0x18, PageSum(dataSum, head), 4);
  XorNumbers(head, kDataPageMask ^ static_cast<std::uint32_t>(page.address));
  return head;
}

std::string FilledUp(const std::string& bytes, std::size_t size) {
  return bytes + MaskBytes(size - bytes.size());
}

// Grows page by page.
class PagedBody {
 public:
  explicit PagedBody(const Writing& writing) : writing_(writing) {}

  // Where the data of the next page will stand.
  std::size_t NextData() const { return kFirstPage + bytes_.size() + kPageHeadSize; }

  void AddCompressed(const char* name, std::size_t id, const std::string& bytes) {
    Section section{name, id, bytes.size()};
    if (name == std::string_view(kObjectsSection) && writing_.objectPageSize != 0) {
      section.pageSize = writing_.objectPageSize;
    }
    for (std::size_t at = 0; at < bytes.size(); at += section.pageSize) {
      std::string contents = bytes.substr(at, section.pageSize);
      contents.resize(section.pageSize, '\0');
      AddPage(section, Compressed(contents, writing_.squeeze), at);
    }
    sections_.push_back(section);
  }

  // As it is, in one page of a multiple of `unit`.
  void AddPlain(const char* name, std::size_t id, const std::string& bytes, std::size_t unit) {
    Section section{name, id, bytes.size(), RoundedUp(bytes.size(), unit), false};
    section.isEncrypted = name == std::string_view(kFileListSection);
    std::string contents = bytes;
    contents.resize(section.pageSize, '\0');
    AddPage(section, contents, 0);
    sections_.push_back(section);
  }

  // The maps and, over the whole, the file from its first page on; the head's hidden part is left
  // in `header`.
  std::string Finish(std::string& header);

 private:
  void AddPage(Section& section, const std::string& stored, std::size_t offset) {
    const std::size_t size = RoundedUp(kPageHeadSize + stored.size(), kPageUnit);
    const Page page{sizes_.size() + 1, kFirstPage + bytes_.size(), size, stored.size(), offset};
    bytes_ += FilledUp(PageHead(section, page, stored) + stored, size);
    sizes_.push_back(size);
    section.pages.push_back(page);
  }

  std::string SectionMap() const;
  std::string SystemPage(std::uint64_t type, const std::string& contents) const;

  const Writing& writing_;
  std::string bytes_;
  // Of the pages, whose ids count from 1.
  std::vector<std::size_t> sizes_;
  std::vector<Section> sections_;
};

std::string PagedBody::SystemPage(std::uint64_t type, const std::string& contents) const {
  const std::string stored = Compressed(contents, writing_.squeeze);
  std::string head = NumberBytes(type, 4);
  for (const std::uint64_t number :
       {std::uint64_t{contents.size()}, std::uint64_t{stored.size()}, std::uint64_t{2}}) {
    AppendNumber(head, number, 4);
  }
  const std::uint32_t sum = PageSum(PageSum(0, head + std::string(4, '\0')), stored);
  AppendNumber(head, sum, 4);
  return head + stored;
}

void AppendSection(std::string& map, const Section& section) {
  AppendNumber(map, section.size, 8);
  for (const std::uint64_t number :
       {std::uint64_t{section.pages.size()}, std::uint64_t{section.pageSize}, std::uint64_t{1},
        std::uint64_t{section.isCompressed ? 2u : 1u}, std::uint64_t{section.id},
        std::uint64_t{section.isEncrypted ? 2u : 0u}}) {
    AppendNumber(map, number, 4);
  }
  std::string name = section.name;
  name.resize(64, '\0');
  map += name;
  for (const Page& page : section.pages) {
    AppendNumber(map, page.id, 4);
    AppendNumber(map, page.stored, 4);
    AppendNumber(map, page.offset, 8);
  }
}

// The nameless section first, then the others from the last to the first.
std::string PagedBody::SectionMap() const {
  std::vector<Section> all = sections_;
  std::sort(all.begin(), all.end(),
            [](const Section& one, const Section& other) { return one.id > other.id; });
  all.insert(all.begin(), Section());
  std::string map;
  for (const std::uint64_t number :
       {std::uint64_t{all.size()}, std::uint64_t{2}, std::uint64_t{kUsualPageSize},
        std::uint64_t{0}, std::uint64_t{all.size()}}) {
    AppendNumber(map, number, 4);
  }
  for (const Section& section : all) AppendSection(map, section);
  return map;
}

// What the hidden part of the head tells.
struct Layout {
  std::size_t lastPage;
  std::size_t end;
  std::size_t copyAt;
  std::size_t pageCount;
  std::size_t pageMapAt;
  std::size_t sectionMapId;
};

std::string HiddenHeader(const Layout& layout) {
  std::string header(kPagedHeaderId);
  header.resize(kHiddenHeaderSize, '\0');
  PutNumber(header, 0x10, kHiddenHeaderSize, 4);
  PutNumber(header, 0x14, 4, 4);
  PutNumber(header, 0x24, 1, 4);
  PutNumber(header, 0x28, layout.lastPage, 4);
  PutNumber(header, 0x2C, layout.end - kFirstPage, 8);
  PutNumber(header, 0x34, layout.copyAt, 8);
  PutNumber(header, 0x40, layout.pageCount, 4);
  PutNumber(header, 0x44, 0x20, 4);
  PutNumber(header, 0x48, 0x80, 4);
  PutNumber(header, 0x4C, 0x40, 4);
  PutNumber(header, 0x50, layout.lastPage, 4);
  PutNumber(header, 0x54, layout.pageMapAt - kFirstPage, 8);
  PutNumber(header, 0x5C, layout.sectionMapId, 4);
  PutNumber(header, 0x60, layout.lastPage, 4);
  PutNumber(header, 0x68, Crc32(header), 4);
  const std::string mask = MaskBytes(kHiddenHeaderSize);
  for (std::size_t i = 0; i < header.size(); ++i) {
    header[i] = static_cast<char>(header[i] ^ mask[i]);
  }
  return header;
}

// The page map's page tells a size of its own that is larger than what is written of it.
std::string PagedBody::Finish(std::string& header) {
  const std::string sectionMap = SystemPage(kSectionMapPage, SectionMap());
  const std::size_t sectionMapSize = RoundedUp(sectionMap.size(), kPageUnit);
  bytes_ += FilledUp(sectionMap, sectionMapSize);
  const std::size_t pageMapAt = kFirstPage + bytes_.size();
  const std::size_t sectionMapId = sizes_.size() + 1 + kSkippedIds;
  const std::size_t pageMapId = sectionMapId + 1;
  const std::size_t reserve =
      RoundedUp(kPageHeadSize + 8 * (sizes_.size() + 2), kPageUnit) + kMapReserve;

  std::string map;
  for (std::size_t i = 0; i < sizes_.size(); ++i) {
    AppendNumber(map, i + 1, 4);
    AppendNumber(map, sizes_[i], 4);
  }
  for (const auto& [id, size] : {std::pair(sectionMapId, sectionMapSize), {pageMapId, reserve}}) {
    AppendNumber(map, id, 4);
    AppendNumber(map, size, 4);
  }
  bytes_ += SystemPage(kPageMapPage, map);
  header = HiddenHeader({pageMapId, pageMapAt + reserve, kFirstPage + bytes_.size(),
                         sizes_.size() + 2, pageMapAt, sectionMapId});
  return bytes_;
}

}  // namespace

std::string PagedFile(Drawing& drawing) {
  PagedBody body(drawing.writing);
  std::vector<PlainSection> sections = RecordSections(drawing);
  std::size_t id = sections.size();
  std::size_t summaryAt = 0;
  std::size_t appInfoAt = 0;
  std::size_t historyAt = 0;
  if (drawing.spec.hasSummary) {
    summaryAt = body.NextData();
    body.AddPlain(kSummarySection, ++id, SummarySection(drawing), 0x80);
  }
  const std::size_t previewAt = body.NextData();
  body.AddPlain(kPreviewSection, ++id, PreviewSection(drawing.spec.previews, previewAt),
                drawing.spec.previews.empty() ? 0x80 : 0x400);
  const std::string appInfo = AppInfoSection(drawing);
  if (!appInfo.empty()) {
    appInfoAt = body.NextData();
    body.AddPlain(kAppInfoSection, ++id, appInfo, 0x80);
  }
  const std::string history = AppInfoHistorySection(drawing);
  if (!history.empty()) {
    historyAt = body.NextData();
    body.AddPlain(kAppInfoHistorySection, ++id, history, 0x80);
  }
  body.AddPlain(kFileListSection, ++id, FileListSection(drawing), 0x80);
  for (std::size_t i = sections.size(); i > 0; --i) {
    body.AddCompressed(sections[i - 1].name, i, sections[i - 1].bytes);
  }

  std::string header;
  const std::string pages = body.Finish(header);
  std::string head = FileHead(drawing, previewAt);
  PutPagedHead(head, summaryAt, appInfoAt, historyAt);
  const std::string mask = MaskBytes(kFirstPage).substr(kHiddenHeaderAt + kHiddenHeaderSize);
  return head + header + mask + pages + header;
}

}  // namespace dwg
