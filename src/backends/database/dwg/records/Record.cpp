#include "backends/database/dwg/records/Record.h"

#include <algorithm>
#include <utility>

#include "backends/database/dwg/bits/Checksums.h"
#include "base/LittleEndian.h"

namespace zdx::dwg {
namespace {

// Both sizes before a record in their longest form, and what its body begins with.
constexpr std::uint64_t kMostSizesSize = 2 * 5 + 10;
constexpr std::uint64_t kMostHeadSize = kMostSizesSize + 3 + 4 + 9;

// A record of more bytes is long; its front has that many behind the begin of the handles.
constexpr std::uint64_t kLong = std::uint64_t{64} << 10;
constexpr std::uint64_t kFrontHandles = std::uint64_t{4} << 10;

}  // namespace

Record::Record(Section& objects, std::uint64_t at, Format format, Extent extent, std::uint64_t most)
    : format_(format) {
  if (at >= objects.size()) return;
  const std::uint64_t left = objects.size() - at;
  const auto begin = objects.Bytes(at, std::min(kMostHeadSize, left), scratch_);
  if (!begin) return;
  BitReader sizes(*begin, 0, begin->size() * 8);
  const std::uint64_t size = sizes.MS();
  const std::uint64_t handleBits = format.version >= model::kVersion1024 ? sizes.UMC() : 0;
  const std::uint64_t sizesSize = sizes.position() / 8;
  if (sizes.failed() || size > left || handleBits > size * 8) return;
  if (!ReadHead(begin->substr(static_cast<std::size_t>(sizesSize)), size, handleBits)) return;
  if (extent == Extent::kHead) {
    whole_ = true;
    return;
  }
  const std::uint64_t front = handlesAt_ / 8 + kFrontHandles;
  isCut_ = extent == Extent::kFront && format.version >= model::kVersion1018 && size > kLong &&
           front < size;
  const std::uint64_t read = sizesSize + (isCut_ ? front : size + kCrcSize);
  const auto bytes = read <= most ? objects.Bytes(at, read, scratch_) : std::nullopt;
  if (!bytes) return;
  bytes_ = *bytes;
  body_ = bytes_.substr(static_cast<std::size_t>(sizesSize),
                        static_cast<std::size_t>(isCut_ ? front : size));
  whole_ = true;
}

bool Record::CheckIsRight() const {
  const std::size_t end = bytes_.size() - kCrcSize;
  return LittleEndianAt<std::uint16_t>(bytes_, end) == Crc16(bytes_.substr(0, end));
}

// Reads what stands before the extended data, from the begin of a body of `size` bytes.
bool Record::ReadHead(std::string_view bytes, std::uint64_t size, std::uint64_t handleBits) {
  handlesAt_ = size * 8 - handleBits;
  BitReader reader(bytes, 0, size * 8);
  type_ = format_.version >= model::kVersion1024 ? reader.OT() : reader.BS();
  if (format_.version >= model::kVersion1015 && format_.version < model::kVersion1024) {
    handlesAt_ = reader.RL();
  }
  handle_ = reader.H().value;
  extendedDataAt_ = reader.position();
  return !reader.failed() && handlesAt_ <= size * 8;
}

void Record::SkipExtendedData(BitReader& reader) const {
  for (std::uint64_t size = reader.BS(); size != 0; size = reader.BS()) {
    reader.H();
    reader.Skip(size * 8);
  }
}

std::vector<std::pair<HandleReference, std::string>> Record::ExtendedData() const {
  std::vector<std::pair<HandleReference, std::string>> data;
  BitReader reader(body_, extendedDataAt_, std::uint64_t{body_.size()} * 8);
  for (std::uint64_t size = reader.BS(); size != 0; size = reader.BS()) {
    const HandleReference application = reader.H();
    std::string bytes = reader.Bytes(size);
    if (reader.failed()) break;
    data.emplace_back(application, std::move(bytes));
  }
  return data;
}

void Record::SkipPicture(BitReader& reader) const {
  if (!reader.B()) return;
  const std::uint64_t size =
      format_.version >= model::kVersion1024 ? reader.BLL() : std::uint64_t{reader.RL()};
  // A size that would wrap runs past the end all the same.
  reader.Skip(std::min(size, reader.end()) * 8);
}

std::optional<Streams> Record::Fields(bool isEntity) {
  const std::uint64_t end = std::uint64_t{body_.size()} * 8;
  BitReader reader(body_, extendedDataAt_, end);
  SkipExtendedData(reader);
  if (isEntity) SkipPicture(reader);
  if (format_.version < model::kVersion1015) handlesAt_ = reader.RL();
  if (reader.failed() || handlesAt_ < reader.position() || handlesAt_ > end) return std::nullopt;
  return Streams::OfRecord(format_, body_, reader.position(), handlesAt_, end);
}

}  // namespace zdx::dwg
