#include "support/dwg/ObjectMap.h"

#include "support/dwg/Bytes.h"
#include "support/dwg/Checksums.h"

namespace dwg {
namespace {

void AppendHighFirst(std::string& bytes, std::size_t number) {
  AppendNumber(bytes, number >> 8, 1);
  AppendNumber(bytes, number, 1);
}

// The size counts itself but not the check.
std::string PageOf(const std::string& pairs) {
  std::string page;
  AppendHighFirst(page, pairs.size() + 2);
  page += pairs;
  AppendHighFirst(page, Crc16(page));
  return page;
}

}  // namespace

RecordArea LayOut(const std::map<Handle, std::string>& records, std::size_t base) {
  RecordArea area;
  for (const auto& [handle, record] : records) {
    area.offsets[handle] = base + area.bytes.size();
    area.bytes += record;
  }
  return area;
}

// Each page counts from zero anew; one without pairs ends the map.
std::string ObjectMap(const std::map<Handle, std::size_t>& offsets, std::size_t pageSize) {
  std::string map;
  std::string pairs;
  Handle lastHandle = 0;
  std::int64_t lastOffset = 0;
  for (const auto& [handle, place] : offsets) {
    const auto offset = static_cast<std::int64_t>(place);
    std::string pair = Umc(handle - lastHandle) + Mc(offset - lastOffset);
    if (!pairs.empty() && 2 + pairs.size() + pair.size() > pageSize) {
      map += PageOf(pairs);
      pairs.clear();
      pair = Umc(handle) + Mc(offset);
    }
    pairs += pair;
    lastHandle = handle;
    lastOffset = offset;
  }
  if (!pairs.empty()) map += PageOf(pairs);
  return map + PageOf({});
}

}  // namespace dwg
