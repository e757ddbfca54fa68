#include "backends/database/dxf/ObjectIndex.h"

#include <algorithm>

#include "backends/database/dxf/Tokens.h"

namespace zdx::dxf {
namespace {

// The handle of the object whose tags begin at `body`; 0 if it has none.  It stands before the
// first subclass marker: behind one its code may mean something else.
std::uint64_t HandleOf(const TagStream& stream, const ObjectStart& start) {
  const int handleCode =
      start.type == kDimensionStyleRecord ? kDimensionStyleHandleCode : kHandleCode;
  ObjectTags tags(stream, start.body);
  Tag tag;
  while (tags.Next(tag) && tag.code != kSubclassCode) {
    if (tag.code == handleCode) return ParseHandle(tag.value);
  }
  return 0;
}

// After so many objects the number of all is estimated.
constexpr std::size_t kSample = 4096;

// A little more than the objects that `size` bytes hold, if `counted` of them took `taken` bytes.
std::size_t EstimateCount(std::size_t counted, std::size_t taken, std::size_t size) {
  const std::size_t bytesEach = std::max<std::size_t>(taken / counted, 1);
  return size / bytesEach + size / bytesEach / 8;
}

}  // namespace

ObjectIndex ObjectIndex::Build(const TagStream& stream, std::size_t begin, std::size_t end) {
  ObjectIndex index;
  ObjectStart start = stream.NextObject(begin);
  for (; start.Found() && start.at < end; start = stream.NextObject(start.body)) {
    const std::uint64_t handle = HandleOf(stream, start);
    if (handle == 0) continue;
    // Growing by doubling would for a moment take twice what the index needs in the end.
    if (index.entries_.size() == kSample) {
      index.entries_.reserve(EstimateCount(kSample, start.at - begin, end - begin));
    }
    index.entries_.push_back({handle, start.at});
  }
  const auto byHandle = [](const Entry& a, const Entry& b) { return a.handle < b.handle; };
  auto& entries = index.entries_;
  if (!std::is_sorted(entries.begin(), entries.end(), byHandle)) {
    std::stable_sort(entries.begin(), entries.end(), byHandle);
  }
  entries.shrink_to_fit();
  return index;
}

std::optional<std::size_t> ObjectIndex::Find(std::uint64_t handle) const {
  const auto entry =
      std::lower_bound(entries_.begin(), entries_.end(), handle,
                       [](const Entry& e, std::uint64_t value) { return e.handle < value; });
  if (entry == entries_.end() || entry->handle != handle) return std::nullopt;
  return static_cast<std::size_t>(entry->at);
}

}  // namespace zdx::dxf
