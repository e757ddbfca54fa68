#include "backends/database/dxf/ObjectIndex.h"

#include <algorithm>

#include "backends/database/dxf/FileObjects.h"
#include "backends/database/dxf/Tokens.h"

namespace zdx::dxf {
namespace {

constexpr std::uint64_t kCompactLimit = std::uint64_t{1} << 32;

// After so many objects the number of all is estimated, but for objects below a size no further.
constexpr std::size_t kSample = 4096;
constexpr std::size_t kLeastObjectSize = 64;

// A little more than the objects that `size` bytes hold, if `kSample` of them took `taken` bytes.
std::size_t EstimateCount(std::size_t taken, std::size_t size) {
  const std::size_t count = size / std::max(taken / kSample, kLeastObjectSize);
  return count + count / 8;
}

}  // namespace

// It stands before the first subclass marker: behind one its code may mean something else.
std::uint64_t ReadHandle(const TagStream& stream, const ObjectStart& start) {
  const int handleCode =
      start.type == kDimensionStyleRecord ? kDimensionStyleHandleCode : kHandleCode;
  ObjectTags tags(stream, start.body);
  Tag tag;
  while (tags.Next(tag) && tag.code != kSubclassCode) {
    if (tag.code == handleCode) return ParseHandle(tag.value);
  }
  return 0;
}

ObjectIndex ObjectIndex::Build(const TagStream& stream, std::size_t begin, std::size_t end) {
  ObjectIndex index;
  ObjectStart start = stream.NextObject(begin);
  for (; start.Found() && start.at < end; start = stream.NextObject(start.body)) {
    // A section's begin is no object, but what follows in a header looks like one's tags.
    if (start.type == kSection) continue;
    index.Add(ReadHandle(stream, start), start.at);
    if (MayNameFiles(start.type)) index.fileObjects_.push_back(start.at);
    // Growing by doubling would for a moment take twice what the index needs in the end.
    if (index.compact_.size() == kSample) {
      index.compact_.reserve(EstimateCount(start.at - begin, end - begin));
    }
  }
  const auto sort = [](auto& entries) {
    if (!std::is_sorted(entries.begin(), entries.end())) std::sort(entries.begin(), entries.end());
  };
  sort(index.compact_);
  sort(index.wide_);
  return index;
}

void ObjectIndex::Add(std::uint64_t handle, std::uint64_t at) {
  if (handle == 0) return;
  if (handle < kCompactLimit && at < kCompactLimit) {
    compact_.push_back(handle << 32 | at);
  } else {
    wide_.emplace_back(handle, at);
  }
}

// The compact entries of a handle lie before its wide ones in the file.
std::optional<std::size_t> ObjectIndex::Find(std::uint64_t handle) const {
  if (handle < kCompactLimit) {
    const auto entry = std::lower_bound(compact_.begin(), compact_.end(), handle << 32);
    if (entry != compact_.end() && *entry >> 32 == handle) {
      return static_cast<std::size_t>(*entry & (kCompactLimit - 1));
    }
  }
  const auto entry =
      std::lower_bound(wide_.begin(), wide_.end(), std::pair(handle, std::uint64_t{0}));
  if (entry == wide_.end() || entry->first != handle) return std::nullopt;
  return static_cast<std::size_t>(entry->second);
}

}  // namespace zdx::dxf
