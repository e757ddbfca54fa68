#include "support/dwg/Record.h"

#include "support/dwg/Bytes.h"
#include "support/dwg/Checksums.h"

namespace dwg {
namespace {

void PutData(BitWriter& bits, const std::vector<ApplicationData>& data) {
  for (const ApplicationData& item : data) {
    bits.BS(static_cast<std::int64_t>(item.bytes.size()));
    bits.Reference(static_cast<unsigned>(Link::HardPointer), item.application);
    bits.Raw(item.bytes);
  }
  bits.BS(0);
}

struct Begun {
  BitWriter bits;
  // Of the 32 bits that tell where the references begin, in the versions that have them.
  std::size_t placeOfStart = 0;
};

Begun Begin(const RecordHead& head, const Fields& fields) {
  Begun begun;
  BitWriter& bits = begun.bits;
  if (fields.IsSince(Version::AC1024)) {
    bits.OT(head.type);
  } else {
    bits.BS(head.type);
  }
  const bool isStartEarly = fields.IsSince(Version::AC1015) && !fields.IsSince(Version::AC1024);
  begun.placeOfStart = bits.Size();
  if (isStartEarly) bits.RL(0);
  bits.Reference(0, fields.Own());
  PutData(bits, head.data);
  // No picture.
  if (head.isEntity) bits.B(false);
  if (!fields.IsSince(Version::AC1015)) {
    begun.placeOfStart = bits.Size();
    bits.RL(0);
  }
  return begun;
}

}  // namespace

std::string AssembleRecord(const RecordHead& head, const Fields& fields) {
  const Begun begun = Begin(head, fields);
  Fields::Streams streams = fields.Together(begun.bits);
  const bool tellsSize = fields.IsSince(Version::AC1024);
  if (!tellsSize) streams.bits.PutRL(begun.placeOfStart, streams.references);
  const std::string& contents = streams.bits.Bytes();
  std::string bytes = Ms(contents.size());
  if (tellsSize) bytes += Umc(contents.size() * 8 - streams.references);
  bytes += contents;
  AppendNumber(bytes, Crc16(bytes), 2);
  return bytes;
}

}  // namespace dwg
