#include "walker/MadeUpWorld.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "backends/walker/Walk.h"

namespace walker_test {
namespace {

using zdx::model::FileReference;
using zdx::model::FileUse;

class CountedDatabase : public ZnDbDatabase {
 public:
  explicit CountedDatabase(MadeUpWorld& world) : ZnDbDatabase(false, true), world_(world) {
    world_.mostOpen = std::max(world_.mostOpen, ++world_.open);
  }
  ~CountedDatabase() override { --world_.open; }

 private:
  MadeUpWorld& world_;
};

}  // namespace

FileReference Reference(FileUse use, std::wstring path, std::uint64_t handle) {
  FileReference reference;
  reference.use = use;
  reference.path = std::move(path);
  reference.handle = handle;
  return reference;
}

FileReference Attached(std::wstring path, std::uint64_t handle) {
  return Reference(FileUse::kAttachedDrawing, std::move(path), handle);
}

FileReference Overlaid(std::wstring path, std::uint64_t handle) {
  return Reference(FileUse::kOverlaidDrawing, std::move(path), handle);
}

zdx::walker::Reading MadeUpWorld::Read(const std::wstring& path) {
  opened.push_back(path);
  const Drawing& drawing = drawings.at(path);
  zdx::walker::Reading reading;
  reading.condition = drawing.condition;
  reading.reason = drawing.reason;
  if (drawing.condition != zdx::walker::ErrorCondition::kNoError) return reading;
  reading.database.reset(new CountedDatabase(*this));
  reading.references = drawing.references;
  return reading;
}

std::wstring MadeUpWorld::Find(const std::wstring& name, ZnDbDatabase* /*asking*/, int hint) {
  asked.push_back({name, hint});
  if (!forbidden.empty() && name == forbidden) throw std::runtime_error("forbidden");
  const auto file = files.find(name);
  if (file != files.end()) return file->second;
  return drawings.count(name) != 0 ? name : std::wstring();
}

std::wstring MadeUpWorld::Identity(const std::wstring& path) {
  const auto other = otherNames.find(path);
  return other == otherNames.end() ? path : other->second;
}

Nodes WalkFrom(MadeUpWorld& world, const std::wstring& path,
               ZnDwgDepends::DwgDependsSettings settings, bool directOnly) {
  return zdx::walker::WalkDrawing(world, path, settings, directOnly);
}

std::vector<std::wstring> NamesOf(const Nodes& nodes) {
  std::vector<std::wstring> names;
  for (const auto& node : nodes) names.emplace_back(node->filename());
  return names;
}

std::vector<std::wstring> NamesOf(const std::vector<ZnDwgDepends::File*>& files) {
  std::vector<std::wstring> names;
  for (const ZnDwgDepends::File* const file : files) names.emplace_back(file->filename());
  return names;
}

}  // namespace walker_test
