#include "support/handmade/CodedFile.h"

#include "support/handmade/CodeWords.h"
#include "support/handmade/HandMade.h"

namespace handmade {
namespace {

constexpr std::size_t kFirstPage = 0x480;

void Put(std::string& bytes, std::size_t at, std::uint64_t number) {
  bytes.replace(at, 8, Low64(number));
}

std::string SectionMap(const CodedSpec& spec) {
  std::string map;
  std::uint64_t id = 1;
  for (const CodedPart& part : spec.parts) {
    const std::string name = Wide(part.name + '\0');
    map += Low64(part.size) + Low64(0xF800) + Low64(0) + Low64(0) + Low64(name.size()) + Low64(0) +
           Low64(part.withParity ? 4 : 1) + Low64(part.pageCount.value_or(part.pages.size())) +
           name;
    for (const CodedPage& page : part.pages) {
      const std::size_t size = page.contents.size();
      map += Low64(page.start) + Low64(size) + Low64(id++) + Low64(page.size.value_or(size)) +
             Low64(page.storedSize.value_or(size)) + Low64(SlowCodedSum(page.contents)) +
             Low64(SlowCodedCrc(page.contents));
    }
  }
  return map;
}

// A map stands on its page twice.
std::string MapPage(const std::string& map) {
  const std::string once = RoundedUp(map, 8);
  return RoundedUp(InterleavedPage(once + once, Word::kSystem), 0x400);
}

// Stored plain, which a negative size tells.
std::string HeadPage(std::string fields) {
  Put(fields, 0x108, 0);
  Put(fields, 0x108, SlowHeadCrc(fields));
  const std::string data =
      Low64(0) + Low64(0) + Low64(SlowHeadCrc(fields)) + Low32(0xFFFFFEF0) + Low32(0) + fields;
  return Padded(InterleavedPage(Padded(data, 717), Word::kSystem), 0x400);
}

}  // namespace

CodedBytes MakeCoded(const CodedSpec& spec) {
  CodedBytes file;
  std::string pages;
  std::string pageMap;
  std::uint64_t id = 1;
  const auto add = [&](const std::string& page) {
    const std::size_t at = kFirstPage + pages.size();
    pages += page;
    pageMap += Low64(page.size()) + Low64(id++);
    return at;
  };
  for (const CodedPart& part : spec.parts) {
    for (const CodedPage& page : part.pages) {
      const std::string stored = part.withParity
                                     ? InterleavedPage(RoundedUp(page.contents, 8), Word::kData)
                                     : page.contents;
      file.pages.push_back(add(RoundedUp(stored, 0x20)));
    }
  }
  const std::string sectionMap = SectionMap(spec);
  const std::uint64_t sectionMapId = id;
  file.sectionMapAt = add(MapPage(sectionMap));
  file.sectionMapCopyAt = add(MapPage(sectionMap));
  pageMap += Low64(0x400) + Low64(id) + Low64(0x400) + Low64(id + 1);
  const std::string mapPage = MapPage(pageMap);
  file.pageMapAt = kFirstPage + pages.size();
  file.pageMapCopyAt = file.pageMapAt + mapPage.size();

  std::string fields(0x110, '\0');
  Put(fields, 0x10, SlowCodedCrc(pageMap));
  Put(fields, 0x18, 2);
  Put(fields, 0x28, file.pageMapCopyAt - kFirstPage);
  Put(fields, 0x38, file.pageMapAt - kFirstPage);
  Put(fields, 0x50, pageMap.size());
  Put(fields, 0x58, pageMap.size());
  Put(fields, 0x80, SlowCodedCrc(pageMap));
  Put(fields, 0xA8, SlowCodedCrc(sectionMap));
  Put(fields, 0xB0, sectionMap.size());
  Put(fields, 0xB8, sectionMapId + 1);
  Put(fields, 0xC0, sectionMapId);
  Put(fields, 0xC8, sectionMap.size());
  Put(fields, 0xD0, SlowCodedCrc(sectionMap));
  Put(fields, 0xD8, 2);
  if (spec.editHead) spec.editHead(fields);
  const std::string head = HeadPage(fields);
  file.bytes = Padded("AC1021", 0x80) + head + pages + mapPage + mapPage + head;
  return file;
}

}  // namespace handmade
