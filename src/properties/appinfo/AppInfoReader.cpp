#include "properties/appinfo/AppInfoReader.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "base/LittleEndian.h"
#include "properties/appinfo/BufferedFileReader.h"
#include "properties/appinfo/DwgHeader.h"
#include "properties/appinfo/Literals.h"

namespace ZDXEngine {
namespace {

// The search gives up when it has read this many bytes; the last of them are not compared.
constexpr std::uint32_t kSearchLimit = 4096;

// The bytes in which the sentinel is looked for, the oldest at `oldest`.
struct Ring {
  std::uint8_t bytes[kSentinelSize];
  std::size_t oldest = 0;
};

bool HoldsSentinel(const Ring& ring) {
  const std::size_t newer = kSentinelSize - ring.oldest;
  return std::equal(ring.bytes + ring.oldest, ring.bytes + kSentinelSize, kSentinel) &&
         std::equal(ring.bytes, ring.bytes + ring.oldest, kSentinel + newer);
}

// Reads up to the sentinel's end.
bool FindSentinel(BufferedFileReader& reader) {
  Ring ring;
  if (!reader.ReadBytes(ring.bytes, kSentinelSize)) return false;
  std::uint32_t consumed = kSentinelSize;
  while (!HoldsSentinel(ring)) {
    ++consumed;
    if (!reader.ReadBytes(ring.bytes + ring.oldest, 1) || consumed == kSearchLimit) return false;
    ring.oldest = (ring.oldest + 1) % kSentinelSize;
  }
  return true;
}

bool ReadNumber(BufferedFileReader& reader, std::uint32_t& number) {
  std::uint8_t bytes[sizeof number];
  if (!reader.ReadBytes(bytes, sizeof bytes)) return false;
  number = zdx::LittleEndian<std::uint32_t>(bytes);
  return true;
}

// A word and the block's label, which nobody asks for.
bool SkipLabel(BufferedFileReader& reader) {
  std::uint32_t word = 0;
  std::wstring label;
  return ReadNumber(reader, word) && reader.ReadText(label);
}

bool DeliverEntries(BufferedFileReader& reader, ZnHsAppInfoNotifier& notifier) {
  std::uint32_t count = 0;
  if (!ReadNumber(reader, count)) return false;
  notifier.OnEntryCount(count);
  for (std::uint32_t done = 0; done < count; ++done) {
    GUID formatId = {};
    std::wstring text;
    if (!reader.ReadGuid(formatId) || !reader.ReadText(text)) return false;
    notifier.OnPropertySet(formatId, text);
  }
  return true;
}

}  // namespace

bool ReadAppInfo(const std::wstring& path, ZnHsAppInfoNotifier& notifier) {
  std::uint32_t offset = 0;
  const DwgHeaderKind kind = LocateAppInfo(path, offset);
  if (kind != kDwgHeader1018 && kind != kDwgHeader1021) return false;
  BufferedFileReader reader(path, offset);
  return FindSentinel(reader) && SkipLabel(reader) && DeliverEntries(reader, notifier);
}

}  // namespace ZDXEngine
