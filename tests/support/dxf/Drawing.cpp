#include "support/dxf/Drawing.h"

#include "support/dxf/Tokens.h"

namespace dxf {

Drawing::Drawing(const DrawingSpec& drawingSpec, TagWriter& writer)
    : spec(drawingSpec), version(writer.TargetVersion()), out(writer), handles(drawingSpec) {
  blocks = PlanBlocks(spec, version, handles);
  classes = ClassesOf(spec, version);
  imageDictionary = handles.Next();
  for (const ImageSpec& image : spec.images) imageDefinitions.push_back(handles.Or(image.handle));
  plotStyle = handles.Next();
  PlanReferences(*this);
}

std::string Drawing::HandleFor(const EntitySpec& entity) {
  const auto given = insertHandles.find(&entity);
  return given == insertHandles.end() ? handles.Or(entity.handle) : given->second;
}

// The blocks of the spec stand behind the spaces.
PlannedBlock* Drawing::BlockNamed(std::string_view name) {
  const std::size_t spaces = blocks.size() - spec.blocks.size();
  for (std::size_t i = 0; i < blocks.size(); ++i) {
    const std::string& called = i < spaces ? blocks[i].name : spec.blocks[i - spaces].name;
    if (IsSameName(called, name)) return &blocks[i];
  }
  return nullptr;
}

void Drawing::PutHandle(const std::string& handle, int code) {
  if (HasObjects(version)) out.Put({code, handle});
}

void Drawing::PutEntityHandle(const std::string& handle) {
  if (HasObjects(version) || spec.hasHandles) out.Put({5, handle});
}

void Drawing::PutOwner(const std::string& owner) {
  if (HasObjects(version) && spec.statesOwners) out.Put({330, owner});
}

void Drawing::PutExtension(const std::vector<NamedObject>& entries, const std::string& host) {
  if (entries.empty() || !HasObjects(version)) return;
  PendingObject dictionary{Dictionary(entries), handles.Next(), host, false};
  dictionary.object.ownsEntries = true;
  out.Put({{102, kExtensionGroup}, {360, dictionary.handle}, {102, kGroupEnd}});
  pending.push_back(std::move(dictionary));
}

void Drawing::BeginSection(const char* name) { out.Put({{0, "SECTION"}, {2, name}}); }

void Drawing::EndSection() { out.Put({0, "ENDSEC"}); }

}  // namespace dxf
