#include <array>

#include "support/dwg/Bytes.h"
#include "support/dwg/Checksums.h"
#include "support/dwg/Containers.h"
#include "support/dwg/HeaderVariables.h"
#include "support/dwg/ObjectMap.h"
#include "support/dwg/PlainSections.h"
#include "support/dwg/Tokens.h"

namespace dwg {
namespace {

constexpr std::size_t kLocatorSize = 9;
constexpr std::size_t kMarkSize = 16;
constexpr std::size_t kListAt = 0x15;
constexpr unsigned kTemplateNumber = 4;
constexpr unsigned kUnknownTailSize = 8;

struct Locator {
  unsigned number;
  std::size_t address;
  std::size_t size;
};

std::size_t HeadSize(std::size_t locators) {
  return kListAt + 4 + locators * kLocatorSize + 2 + kMarkSize;
}

std::string Head(const Drawing& drawing, std::size_t previewAddress,
                 const std::vector<Locator>& locators) {
  std::string head = FileHead(drawing, previewAddress);
  AppendNumber(head, locators.size(), 4);
  for (const Locator& locator : locators) {
    AppendNumber(head, locator.number, 1);
    AppendNumber(head, locator.address, 4);
    AppendNumber(head, locator.size, 4);
  }
  AppendNumber(head, Crc16(head), 2);
  return head + FromHex(kHeadMark);
}

void PutHandles(BitWriter& bits, const Drawing& drawing) {
  const Roots& roots = drawing.roots;
  const std::array<Handle, 14> handles = {drawing.HandleSeed(),
                                          roots.blocks,
                                          roots.layers,
                                          roots.styles,
                                          roots.linetypes,
                                          roots.views,
                                          roots.ucs,
                                          roots.viewports,
                                          roots.applications,
                                          roots.dimensionStyles,
                                          roots.viewportHeaders,
                                          roots.named,
                                          roots.mlineStyles,
                                          roots.groups};
  bits.BS(static_cast<std::int64_t>(handles.size()));
  unsigned index = 0;
  for (const Handle handle : handles) {
    BitWriter digits;
    digits.Reference(0, handle);
    // The count in a byte of its own, the index behind it.
    const std::string& bytes = digits.Bytes();
    bits.RC(static_cast<unsigned>(bytes.size() - 1));
    bits.RC(index++);
    bits.Raw(std::string_view(bytes).substr(1));
  }
}

// The head's numbers once more, for readers of files whose head is damaged.
std::string SecondHeader(const Drawing& drawing, std::size_t address,
                         const std::vector<Locator>& locators) {
  BitWriter bits;
  bits.RL(0);
  bits.BL(static_cast<std::int64_t>(address));
  const std::string head = FileHead(drawing, 0);
  bits.Raw(std::string_view(head).substr(0, 13));
  bits.BS(static_cast<unsigned char>(head[0x11]) | static_cast<unsigned char>(head[0x12]) << 8);
  bits.RS(drawing.codePage);
  bits.BS(static_cast<std::int64_t>(locators.size()));
  for (const Locator& locator : locators) {
    bits.RC(locator.number);
    bits.BL(static_cast<std::int64_t>(locator.number == kTemplateNumber ? 0 : locator.address));
    bits.BL(static_cast<std::int64_t>(locator.size));
  }
  PutHandles(bits, drawing);
  std::string counted = bits.Bytes();
  PutNumber(counted, 0, counted.size() + 2 + kUnknownTailSize, 4);
  AppendNumber(counted, Crc16(counted), 2);
  const std::string mark = FromHex(kSecondHeaderMark);
  return mark + counted + std::string(kUnknownTailSize, '\x5A') + Inverted(mark);
}

}  // namespace

// Head, preview, header variables, classes, records, object map, second header, template.
std::string FlatFile(Drawing& drawing) {
  const bool hasAuxHeader = drawing.IsSince(Version::AC1015);
  const std::string auxHeader = hasAuxHeader ? AuxHeaderSection(drawing) : std::string();
  const std::size_t auxAddress = HeadSize(hasAuxHeader ? 6 : 5);
  const std::size_t previewAddress = auxAddress + auxHeader.size();
  const std::string preview = PreviewSection(drawing.spec.previews, previewAddress);
  const std::string header = HeaderSection(drawing);
  const std::string classes = ClassesSection(drawing);
  const std::size_t headerAddress = previewAddress + preview.size();
  const std::size_t recordsAddress = headerAddress + header.size() + classes.size();
  const RecordArea area = LayOut(drawing.records, recordsAddress);
  const std::string map = ObjectMap(area.offsets, drawing.writing.mapPageSize);
  const std::size_t mapAddress = recordsAddress + area.bytes.size();
  const std::string last = TemplateSection(drawing.version);

  std::vector<Locator> locators = {{0, headerAddress, header.size()},
                                   {1, headerAddress + header.size(), classes.size()},
                                   {2, mapAddress, map.size()},
                                   {3, 0, 0},
                                   {kTemplateNumber, 0, last.size()}};
  if (hasAuxHeader) locators.push_back({5, auxAddress, auxHeader.size()});
  const std::size_t secondAddress = mapAddress + map.size();
  const std::string second = SecondHeader(drawing, secondAddress, locators);
  locators[kTemplateNumber].address = secondAddress + second.size();
  return Head(drawing, previewAddress, locators) + auxHeader + preview + header + classes +
         area.bytes + map + second + last;
}

}  // namespace dwg
