#include "backends/database/dwg/container/FlatContainer.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "backends/database/dwg/Tokens.h"
#include "backends/database/dwg/bits/BitReader.h"
#include "backends/database/dwg/bits/Checksums.h"
#include "backends/database/dwg/container/FileHead.h"
#include "base/LittleEndian.h"

namespace zdx::dwg {
namespace {

constexpr std::size_t kLocatorCountAt = 21;
constexpr std::size_t kLocatorsAt = kLocatorCountAt + 4;
constexpr std::size_t kLocatorSize = 1 + 4 + 4;
constexpr std::size_t kCrcSize = 2;
// Real files have six at most.
constexpr std::uint32_t kMostLocators = 32;

// A part of the file.
class FlatSection : public Section {
 public:
  FlatSection(std::string_view bytes, std::uint64_t place) : bytes_(bytes), place_(place) {}

  std::uint64_t size() const override { return bytes_.size(); }
  std::optional<std::string_view> Bytes(std::uint64_t at, std::uint64_t count,
                                        Scratch& /*scratch*/) override {
    if (at > bytes_.size() || count > bytes_.size() - at) return std::nullopt;
    return bytes_.substr(static_cast<std::size_t>(at), static_cast<std::size_t>(count));
  }
  std::uint64_t PlaceOf(std::uint64_t at) const override { return place_ + at; }

 private:
  std::string_view bytes_;
  std::uint64_t place_;
};

struct NumberedSection {
  std::uint8_t number;
  SectionId id;
};

constexpr NumberedSection kNumbers[] = {
    {0, SectionId::kHeader}, {1, SectionId::kClasses}, {2, SectionId::kObjectMap}};

class FlatContainer : public Container {
 public:
  explicit FlatContainer(std::string_view bytes) : bytes_(bytes) {
    Put(SectionId::kObjects, 0, bytes.size());
  }

  // False if the section isn't all in the file.
  bool Put(SectionId id, std::uint64_t address, std::uint64_t size) {
    if (address > bytes_.size() || size > bytes_.size() - address) return false;
    sections_.insert_or_assign(id, FlatSection(bytes_.substr(static_cast<std::size_t>(address),
                                                             static_cast<std::size_t>(size)),
                                               address));
    return true;
  }

  Section* Find(SectionId id) override {
    const auto found = sections_.find(id);
    return found == sections_.end() ? nullptr : &found->second;
  }

 private:
  std::string_view bytes_;
  std::map<SectionId, FlatSection> sections_;
};

struct Locator {
  std::uint8_t number = 0;
  std::uint64_t address = 0;
  std::uint64_t size = 0;
  // Where it stands itself.
  std::uint64_t at = 0;
};

struct LocatorList {
  std::vector<Locator> locators;
  // Where it ends and its check stands.
  std::size_t end = 0;
  bool right = false;
};

bool CanBeRight(std::uint32_t count) { return count != 0 && count <= kMostLocators; }

// nullopt if the list can't be one.
std::optional<LocatorList> ReadList(std::string_view bytes) {
  if (bytes.size() < kLocatorsAt) return std::nullopt;
  const auto count = LittleEndianAt<std::uint32_t>(bytes, kLocatorCountAt);
  const std::size_t end = kLocatorsAt + std::min(count, kMostLocators) * kLocatorSize;
  if (!CanBeRight(count) || bytes.size() < end + kCrcSize) return std::nullopt;
  LocatorList list;
  list.end = end;
  for (std::size_t at = kLocatorsAt; at < end; at += kLocatorSize) {
    list.locators.push_back({LittleEndianAt<std::uint8_t>(bytes, at),
                             LittleEndianAt<std::uint32_t>(bytes, at + 1),
                             LittleEndianAt<std::uint32_t>(bytes, at + 5), at});
  }
  list.right = LittleEndianAt<std::uint16_t>(bytes, end) == Crc16(bytes.substr(0, end));
  return list;
}

// The same list as the second head has it, which stands behind the object map: size (4 bytes, from
// here to the inverted mark), its own address, the first 13 bytes of the file, writer, code page,
// the list; other things; a check (2) and 8 bytes more.  nullopt if its check is wrong.
std::optional<LocatorList> ReadCopy(std::string_view bytes) {
  const std::size_t mark = bytes.rfind(kSecondHeadMark);
  if (mark == std::string_view::npos) return std::nullopt;
  const std::size_t begin = mark + kSecondHeadMark.size();
  const std::string_view head = bytes.substr(begin);
  constexpr std::size_t kTailSize = kCrcSize + 8;
  constexpr std::size_t kCopiedSize = 13;
  if (head.size() < 4) return std::nullopt;
  const std::size_t size = LittleEndian<std::uint32_t>(head);
  if (size > head.size() || size < 4 + kTailSize) return std::nullopt;
  const std::size_t end = size - kTailSize;
  if (LittleEndianAt<std::uint16_t>(head, end) != Crc16(head.substr(0, end))) return std::nullopt;
  BitReader reader(head, 32, std::uint64_t{end} * 8);
  reader.BL();
  reader.Skip(std::uint64_t{kCopiedSize} * 8);
  reader.BS();
  reader.RS();
  LocatorList list;
  list.right = true;
  for (unsigned left = reader.BS(); left > 0 && !reader.failed(); --left) {
    Locator locator;
    locator.at = begin + reader.position() / 8;
    locator.number = reader.RC();
    locator.address = reader.BL();
    locator.size = reader.BL();
    list.locators.push_back(locator);
  }
  return reader.failed() ? std::nullopt : std::optional(std::move(list));
}

// The list of the head or, if its check is wrong and the copy's isn't, the copy.
std::optional<LocatorList> FindList(std::string_view bytes, model::Report& report) {
  std::optional<LocatorList> list = ReadList(bytes);
  if (!list || !list->right) {
    const std::uint64_t place = list ? list->end : kLocatorCountAt;
    if (std::optional<LocatorList> copy = ReadCopy(bytes)) {
      report.Warn({L"The file's head is damaged; its copy is used.", place, {}, {}});
      return copy;
    }
    if (list) report.Warn({L"The checksum of the file's head is wrong.", place, {}, {}});
  }
  if (list && bytes.substr(list->end + kCrcSize, kHeadEndMark.size()) != kHeadEndMark) {
    const std::uint64_t place = list->end + kCrcSize;
    report.Warn({L"The mark behind the file's head is wrong.", place, {}, {}});
  }
  return list;
}

model::Finding NoList(std::string_view bytes) {
  if (bytes.size() >= kLocatorsAt &&
      !CanBeRight(LittleEndianAt<std::uint32_t>(bytes, kLocatorCountAt))) {
    return {L"The list of sections can't be right.", kLocatorCountAt, {}, {}};
  }
  return {L"The file ends within its list of sections.", bytes.size(), {}, {}};
}

void Place(const Locator& locator, FlatContainer& container, model::Report& report) {
  for (const NumberedSection& row : kNumbers) {
    if (row.number != locator.number || container.Put(row.id, locator.address, locator.size)) {
      continue;
    }
    report.Warn({L"A section is said to lie outside of the file.", locator.at, {}, {}});
  }
}

}  // namespace

std::variant<std::unique_ptr<Container>, model::Finding> OpenFlat(std::string_view bytes,
                                                                  model::Report& report) {
  const std::optional<FileHead> head = ReadFileHead(bytes);
  if (!head) return model::Finding{L"The file ends within its head.", bytes.size(), {}, {}};
  const std::optional<LocatorList> list = FindList(bytes, report);
  if (!list) return NoList(bytes);
  auto container = std::make_unique<FlatContainer>(bytes);
  for (const Locator& locator : list->locators) Place(locator, *container, report);
  if (head->previewAddress != 0 && head->previewAddress < bytes.size()) {
    container->Put(SectionId::kPreview, head->previewAddress, bytes.size() - head->previewAddress);
  } else if (head->previewAddress != 0) {
    report.Warn({L"The preview is said to lie outside of the file.", kPreviewAddressAt, {}, {}});
  }
  return container;
}

}  // namespace zdx::dwg
