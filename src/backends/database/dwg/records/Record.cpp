#include "backends/database/dwg/records/Record.h"

#include <algorithm>

#include "backends/database/dwg/bits/Checksums.h"
#include "base/LittleEndian.h"

namespace zdx::dwg {
namespace {

// Both sizes before a record in their longest form.
constexpr std::uint64_t kMostHeadSize = 2 * 5 + 10;
constexpr std::uint64_t kCheckSize = 2;

}  // namespace

Record::Record(Section& objects, std::uint64_t at, Format format, std::uint64_t most)
    : format_(format) {
  if (at >= objects.size()) return;
  const auto head = objects.Bytes(at, std::min(kMostHeadSize, objects.size() - at), scratch_);
  if (!head) return;
  BitReader sizes(*head, 0, head->size() * 8);
  const std::uint64_t size = sizes.MS();
  const std::uint64_t handleBits = format.version >= model::kVersion1024 ? sizes.UMC() : 0;
  const std::uint64_t headSize = sizes.position() / 8;
  if (sizes.failed() || size > objects.size() - at || handleBits > size * 8) return;
  if (headSize + size + kCheckSize > most) return;
  const auto bytes = objects.Bytes(at, headSize + size + kCheckSize, scratch_);
  if (!bytes) return;
  bytes_ = *bytes;
  body_ = bytes_.substr(static_cast<std::size_t>(headSize), static_cast<std::size_t>(size));
  handlesAt_ = size * 8 - handleBits;
  BitReader reader(body_, 0, size * 8);
  type_ = format.version >= model::kVersion1024 ? reader.OT() : reader.BS();
  if (format.version >= model::kVersion1015 && format.version < model::kVersion1024) {
    handlesAt_ = reader.RL();
  }
  handle_ = reader.H().value;
  extendedDataAt_ = reader.position();
  whole_ = !reader.failed() && handlesAt_ <= size * 8;
}

bool Record::CheckIsRight() const {
  const std::size_t end = bytes_.size() - static_cast<std::size_t>(kCheckSize);
  return LittleEndianAt<std::uint16_t>(bytes_, end) == Crc16(bytes_.substr(0, end));
}

void Record::SkipExtendedData(BitReader& reader) const {
  for (std::uint64_t size = reader.BS(); size != 0; size = reader.BS()) {
    reader.H();
    reader.Skip(size * 8);
  }
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
