#include "support/dwg/Bytes.h"
#include "support/dwg/Checksums.h"
#include "support/dwg/HeaderVariables.h"

namespace dwg {
namespace {

// In AC1024 and AC1027 later releases have a high part of the size.
constexpr int kLastWithoutHighPart = 3;

bool HasHighPart(const Fields& fields, int maintenance) {
  const Version version = fields.TargetVersion();
  if (version == Version::AC1032) return true;
  const bool mayHave = version == Version::AC1024 || version == Version::AC1027;
  return mayHave && maintenance > kLastWithoutHighPart;
}

// From AC1021 on the length in bits of all but the references stands first, counted from itself.
std::string Contents(const Fields& fields) {
  BitWriter head;
  const bool hasLength = fields.IsSince(Version::AC1021);
  if (hasLength) head.RL(0);
  Fields::Streams streams = fields.Together(head);
  if (hasLength) streams.bits.PutRL(0, streams.references);
  return streams.bits.Bytes();
}

}  // namespace

int MaintenanceOf(const Drawing& drawing) {
  if (drawing.spec.maintenance) return *drawing.spec.maintenance;
  switch (drawing.version) {
    case Version::AC1015:
      return 15;
    case Version::AC1018:
      return 104;
    case Version::AC1021:
      return 50;
    case Version::AC1024:
      return 226;
    case Version::AC1027:
      return 125;
    default:
      return 0;
  }
}

std::string MarkedSection(const Fields& fields, std::string_view mark, int maintenance) {
  const std::string contents = Contents(fields);
  std::string counted = NumberBytes(contents.size(), 4);
  if (HasHighPart(fields, maintenance)) counted += std::string(4, '\0');
  counted += contents;
  AppendNumber(counted, Crc16(counted), 2);
  const std::string start = FromHex(mark);
  return start + counted + Inverted(start);
}

}  // namespace dwg
