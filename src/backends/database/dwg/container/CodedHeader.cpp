#include "backends/database/dwg/container/CodedHeader.h"

#include <string>

#include "backends/database/dwg/container/CodedChecks.h"
#include "backends/database/dwg/container/Decompression.h"
#include "backends/database/dwg/container/ReedSolomon.h"
#include "base/LittleEndian.h"

namespace zdx::dwg {
namespace {

constexpr std::size_t kHeadPageAt = 0x80;
constexpr std::size_t kHeadPageSize = 0x400;
constexpr std::size_t kWords = 3;
static_assert(kHeadPageAt + kHeadPageSize == kFirstCodedPage);

// Before the compressed fields: a key and its check, the fields' check, their size, 0.
constexpr std::size_t kStoredCheckAt = 16;
constexpr std::size_t kSizeAt = 24;
constexpr std::size_t kFieldsAt = 32;
constexpr std::size_t kFieldsSize = 0x110;
constexpr std::size_t kFieldsCheckAt = 0x108;

struct HeadContent {
  std::string fields;
  bool right = false;
};

// The fields in the data of a head page, and whether both checks are right.
std::optional<HeadContent> FieldsOf(const std::string& data) {
  const auto size = static_cast<std::int32_t>(LittleEndianAt<std::uint32_t>(data, kSizeAt));
  const std::size_t stored = size < 0 ? kFieldsSize : static_cast<std::size_t>(size);
  if (stored > data.size() - kFieldsAt) return std::nullopt;
  const std::string_view bytes = std::string_view(data).substr(kFieldsAt, stored);
  HeadContent content;
  content.fields = size < 0 ? std::string(bytes) : DecompressCoded(bytes, kFieldsSize).bytes;
  if (content.fields.size() < kFieldsSize) return std::nullopt;
  std::string checked = content.fields;
  checked.replace(kFieldsCheckAt, 8, 8, '\0');
  content.right =
      LittleEndianAt<std::uint64_t>(data, kStoredCheckAt) == CodedHeadCrc(bytes) &&
      LittleEndianAt<std::uint64_t>(content.fields, kFieldsCheckAt) == CodedHeadCrc(checked);
  return content;
}

struct FieldPlaces {
  std::size_t place, copyPlace, compressedSize, size, repeats, compressedCrc, crc;
};
constexpr FieldPlaces kPageMapFields = {0x38, 0x28, 0x50, 0x58, 0x18, 0x10, 0x80};
constexpr FieldPlaces kSectionMapFields = {0xC0, 0xB8, 0xB0, 0xC8, 0xD8, 0xD0, 0xA8};

CodedMap MapOf(std::string_view fields, const FieldPlaces& places) {
  const auto at = [fields](std::size_t place) {
    return LittleEndianAt<std::uint64_t>(fields, place);
  };
  return {at(places.place), at(places.copyPlace), at(places.compressedSize),
          at(places.size),  at(places.repeats),   at(places.compressedCrc),
          at(places.crc)};
}

CodedHeader HeaderOf(std::string_view fields) {
  CodedHeader header = {MapOf(fields, kPageMapFields), MapOf(fields, kSectionMapFields)};
  header.pageMap.place += kFirstCodedPage;
  header.pageMap.copyPlace += kFirstCodedPage;
  return header;
}

}  // namespace

std::optional<CodedHeader> ReadCodedHeader(std::string_view bytes, model::Report& report) {
  if (bytes.size() < kFirstCodedPage) return std::nullopt;
  const std::string_view first = bytes.substr(kHeadPageAt, kHeadPageSize);
  auto content = FieldsOf(TakeData(first, kWords, ParityKind::kSystemPage));
  if (content && content->right) return HeaderOf(content->fields);
  auto mended = FieldsOf(TakeMendedData(first, kWords, ParityKind::kSystemPage));
  if (mended && mended->right) {
    report.Warn({L"The file's header is damaged; it was mended.", kHeadPageAt, {}, {}});
    return HeaderOf(mended->fields);
  }
  const std::string_view copy = bytes.substr(bytes.size() - kHeadPageSize);
  mended = FieldsOf(TakeMendedData(copy, kWords, ParityKind::kSystemPage));
  if (mended && mended->right) {
    report.Warn({L"The file's header is damaged; its copy is used.", kHeadPageAt, {}, {}});
    return HeaderOf(mended->fields);
  }
  if (!content) return std::nullopt;
  report.Warn({L"The checksum of the file's header is wrong.", kHeadPageAt, {}, {}});
  return HeaderOf(content->fields);
}

}  // namespace zdx::dwg
