#include "support/handmade/PagedFile.h"

#include "support/handmade/HandMade.h"

namespace handmade {
namespace {

constexpr std::size_t kHeaderSize = 0x6C;

std::string Mask(std::size_t size) {
  std::string mask;
  std::uint32_t state = 1;
  for (std::size_t i = 0; i < size; ++i) {
    state = state * 0x343FD + 0x269EC3;
    mask.push_back(static_cast<char>(state >> 16 & 0xFF));
  }
  return mask;
}

std::string Xored(std::string bytes, const std::string& mask) {
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    bytes[i] = static_cast<char>(bytes[i] ^ mask[i % mask.size()]);
  }
  return bytes;
}

void Put(std::string& bytes, std::size_t at, const std::string& piece) {
  bytes.replace(at, piece.size(), piece);
}

// 255 for each zero byte, and what the last one says.
std::string Extension(std::size_t more) {
  std::string bytes;
  for (; more > 255; more -= 255) bytes.push_back('\0');
  return bytes + static_cast<char>(more);
}

std::string RunOf(const std::string& bytes) {
  if (bytes.size() <= 18) return static_cast<char>(bytes.size() - 3) + bytes;
  return '\0' + Extension(bytes.size() - 18) + bytes;
}

std::string DataPage(const PagedPage& page, std::size_t section, std::size_t address) {
  const std::size_t size = (0x20 + page.stored.size() + 0x1F) / 0x20 * 0x20;
  std::string head = Low32(0x4163043B) + Low32(section) + Low32(page.stored.size()) + Low32(size) +
                     Low64(page.start) + Low64(0);
  if (page.edit) page.edit(head);
  const std::uint32_t sum = SlowPageSum(0, page.stored);
  Put(head, 0x1C, Low32(sum));
  Put(head, 0x18, Low32(SlowPageSum(sum, head)));
  return Padded(Xored(head, Low32(0x4164536B ^ address)) + page.stored, size);
}

std::string SystemPage(std::uint32_t type, const std::string& stored, std::size_t size) {
  const std::string head = Low32(type) + Low32(size) + Low32(stored.size()) + Low32(2);
  const std::uint32_t sum = SlowPageSum(SlowPageSum(0, head + Low32(0)), stored);
  return RoundedUp(head + Low32(sum) + stored, 0x20);
}

std::string SectionMap(const PagedSpec& spec) {
  std::string map =
      Low32(spec.parts.size()) + Low32(2) + Low32(0x7400) + Low32(0) + Low32(spec.parts.size());
  std::uint32_t number = 1;
  std::uint32_t id = 1;
  for (const PagedPart& part : spec.parts) {
    const std::size_t count =
        part.pageCount.value_or(static_cast<std::uint32_t>(part.pages.size()));
    map += Low64(part.size) + Low32(count) + Low32(part.pageSize) + Low32(1) +
           Low32(part.compressed ? 2 : 1) + Low32(number++) + Low32(0) + Padded(part.name, 64);
    for (const PagedPage& page : part.pages) {
      map += Low32(page.id.value_or(id)) + Low32(page.stored.size()) + Low64(page.start);
      ++id;
    }
  }
  return map;
}

std::string Header(std::uint64_t pageMapAt, std::uint32_t sectionMapId) {
  std::string header(kHeaderSize, '\0');
  Put(header, 0x10, Low32(kHeaderSize));
  Put(header, 0x14, Low32(4));
  Put(header, 0x54, Low64(pageMapAt - 0x100));
  Put(header, 0x5C, Low32(sectionMapId));
  Put(header, 0x68, Low32(SlowCrc32(header)));
  return Xored(header, Mask(kHeaderSize));
}

}  // namespace

std::string OneRun(const std::string& bytes) { return RunOf(bytes) + std::string("\x11\0\0", 3); }

std::string Repeating(const std::string& pattern, std::size_t size) {
  const std::size_t distance = pattern.size() - 1;
  return RunOf(pattern) + "\x20" + Extension(size - pattern.size() - 33) +
         static_cast<char>(distance << 2 & 0xFC) + static_cast<char>(distance >> 6) +
         std::string("\x11\0\0", 3);
}

PagedBytes MakePaged(const PagedSpec& spec) {
  PagedBytes file;
  std::string pageMap;
  std::string pages;
  std::uint32_t id = 1;
  const auto add = [&](const std::string& page) {
    pages += page;
    pageMap += Low32(id++) + Low32(page.size());
  };
  for (std::size_t i = 0; i < spec.parts.size(); ++i) {
    for (const PagedPage& page : spec.parts[i].pages) {
      file.pages.push_back(0x100 + pages.size());
      add(DataPage(page, i + 1, file.pages.back()));
    }
  }
  file.sectionMapAt = 0x100 + pages.size();
  const std::uint32_t sectionMapId = spec.sectionMapId.value_or(id);
  std::string sectionMap = SectionMap(spec);
  if (spec.editSectionMap) spec.editSectionMap(sectionMap);
  add(spec.sectionMap ? SystemPage(0x4163003B, spec.sectionMap->first, spec.sectionMap->second)
                      : SystemPage(0x4163003B, OneRun(sectionMap), sectionMap.size()));
  file.pageMapAt = 0x100 + pages.size();
  pageMap += Low32(id) + Low32(0x1000);
  if (spec.editPageMap) spec.editPageMap(pageMap);
  pages += SystemPage(0x41630E3B, OneRun(pageMap), pageMap.size());

  const std::string header = Header(spec.pageMapAt.value_or(file.pageMapAt), sectionMapId);
  std::string head = Padded(spec.magic, 0x80);
  head[0x0B] = 6;
  head[0x13] = 30;
  file.bytes = head + header + Mask(0x100).substr(0xEC) + pages + header;
  return file;
}

}  // namespace handmade
