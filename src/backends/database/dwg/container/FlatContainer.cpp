#include "backends/database/dwg/container/FlatContainer.h"

#include <array>
#include <utility>

#include "backends/database/dwg/Tokens.h"
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
                                        std::string& /*scratch*/) override {
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

void ReadLocator(std::string_view bytes, std::size_t at, FlatContainer& container,
                 model::Report& report) {
  const auto number = LittleEndianAt<std::uint8_t>(bytes, at);
  const auto address = LittleEndianAt<std::uint32_t>(bytes, at + 1);
  const auto size = LittleEndianAt<std::uint32_t>(bytes, at + 5);
  for (const NumberedSection& row : kNumbers) {
    if (row.number != number || container.Put(row.id, address, size)) continue;
    report.Warn({L"A section is said to lie outside of the file.", at, {}, {}});
  }
}

}  // namespace

std::variant<std::unique_ptr<Container>, model::Finding> OpenFlat(std::string_view bytes,
                                                                  model::Report& report) {
  const std::optional<FileHead> head = ReadFileHead(bytes);
  if (!head) return model::Finding{L"The file ends within its head.", bytes.size(), {}, {}};
  const auto count = LittleEndianAt<std::uint32_t>(bytes, kLocatorCountAt);
  if (count == 0 || count > kMostLocators) {
    return model::Finding{L"The list of sections can't be right.", kLocatorCountAt, {}, {}};
  }
  const std::size_t end = kLocatorsAt + count * kLocatorSize;
  if (bytes.size() < end + kCrcSize) {
    return model::Finding{L"The file ends within its list of sections.", bytes.size(), {}, {}};
  }
  if (LittleEndianAt<std::uint16_t>(bytes, end) != Crc16(bytes.substr(0, end))) {
    report.Warn({L"The checksum of the file's head is wrong.", end, {}, {}});
  }
  if (bytes.substr(end + kCrcSize, kHeadEndMark.size()) != kHeadEndMark) {
    report.Warn({L"The mark behind the file's head is wrong.", end + kCrcSize, {}, {}});
  }
  auto container = std::make_unique<FlatContainer>(bytes);
  for (std::size_t at = kLocatorsAt; at < end; at += kLocatorSize) {
    ReadLocator(bytes, at, *container, report);
  }
  if (head->previewAddress != 0 && head->previewAddress < bytes.size()) {
    container->Put(SectionId::kPreview, head->previewAddress, bytes.size() - head->previewAddress);
  } else if (head->previewAddress != 0) {
    report.Warn({L"The preview is said to lie outside of the file.", kPreviewAddressAt, {}, {}});
  }
  return container;
}

}  // namespace zdx::dwg
