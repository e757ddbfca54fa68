#include "backends/database/dwg/PreviewArea.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "backends/database/dwg/Tokens.h"
#include "base/LittleEndian.h"

namespace zdx::dwg {
namespace {

constexpr std::uint64_t kHeadSize = 16 + 4 + 1;
constexpr std::size_t kCountAt = 16 + 4;
constexpr std::uint64_t kEntrySize = 1 + 4 + 4;

// More than all pictures of a real file take together.
constexpr std::uint64_t kMostBytes = std::uint64_t{16} << 20;

struct PictureKind {
  std::uint8_t code;
  model::StoredPicture::Kind kind;
};

constexpr PictureKind kKinds[] = {{2, model::StoredPicture::Kind::kBitmap},
                                  {3, model::StoredPicture::Kind::kMetafile},
                                  {6, model::StoredPicture::Kind::kPng}};

std::optional<model::StoredPicture::Kind> KindOf(std::uint8_t code) {
  for (const PictureKind& row : kKinds) {
    if (row.code == code) return row.kind;
  }
  return std::nullopt;
}

}  // namespace

std::vector<model::StoredPicture> ReadPreviewArea(Section& section, model::Report& report) {
  std::vector<model::StoredPicture> pictures;
  const std::uint64_t place = section.PlaceOf(0);
  const auto warn = [&](const wchar_t* text) { report.Warn({text, place, {}, {}}); };
  Scratch scratch;
  const auto head = section.Bytes(0, kHeadSize, scratch);
  if (!head || head->substr(0, kPreviewMark.size()) != kPreviewMark) {
    warn(L"The preview's mark is wrong, or not there.");
    return pictures;
  }
  const auto count = LittleEndianAt<std::uint8_t>(*head, kCountAt);
  Scratch listScratch;
  const auto list = section.Bytes(kHeadSize, count * kEntrySize, listScratch);
  if (!list) {
    warn(L"The list of preview pictures ends early.");
    return pictures;
  }
  // Pictures don't overlap, and so have no more bytes than the area.
  std::uint64_t left = std::min(section.size(), kMostBytes);
  for (std::string_view entry = *list; !entry.empty(); entry.remove_prefix(kEntrySize)) {
    const auto kind = KindOf(LittleEndian<std::uint8_t>(entry));
    const auto address = LittleEndianAt<std::uint32_t>(entry, 1);
    const auto size = LittleEndianAt<std::uint32_t>(entry, 5);
    if (!kind || size == 0) continue;
    Scratch bytesScratch;
    const auto bytes = address < place || size > left
                           ? std::nullopt
                           : section.Bytes(address - place, size, bytesScratch);
    if (!bytes) {
      warn(L"A preview picture is said to lie outside of the preview.");
      continue;
    }
    left -= size;
    pictures.push_back({*kind, std::string(*bytes), address});
  }
  return pictures;
}

}  // namespace zdx::dwg
