#include <algorithm>

#include "support/drawing/DynamicBlocks.h"
#include "support/dwg/Drawing.h"
#include "support/dwg/Tokens.h"

namespace dwg {
namespace {

using drawing::Xref;

bool IsDigit(char letter) { return letter >= '0' && letter <= '9'; }

bool IsHidden(const Drawing& drawing, const PlannedBlock& block) {
  return block.spec != nullptr && IsDynamicHidden(*block.spec, drawing.version);
}

bool IsAnonymous(const Drawing& drawing, const PlannedBlock& block) {
  return block.space == Space::None && (block.name.starts_with('*') || IsHidden(drawing, block));
}

// Names that begin with an asterisk lose their numbers in the block's record.
std::string RecordName(const Drawing& drawing, const PlannedBlock& block) {
  if (IsHidden(drawing, block)) return "*U";
  std::string name = block.name;
  if (name.starts_with('*')) {
    while (IsDigit(name.back())) name.pop_back();
  }
  return name;
}

bool HasOwnedList(const PlannedBlock& block) {
  return block.spec == nullptr || block.spec->xref == Xref::None;
}

// The extension dictionary: what the spec has, and what the block needs besides.
Handle WriteBlockExtension(Drawing& drawing, const PlannedBlock& block) {
  std::vector<NamedObject> entries;
  const std::string stored = StoredName(block.name, drawing.version);
  if (stored != block.name) {
    entries.emplace_back(kRoundTripKey,
                         drawing::Xrecord({{102, kTrueNames}, {1, stored}, {2, block.name}}));
  }
  entries.insert(entries.end(), block.extension.begin(), block.extension.end());
  return WriteExtension(drawing, entries, block.record);
}

void PutFlags(Fields& fields, const Drawing& drawing, const PlannedBlock& block) {
  const Xref xref = block.spec == nullptr ? Xref::None : block.spec->xref;
  fields.B(IsAnonymous(drawing, block));
  fields.B(!block.entities.empty() && block.entities.front().definition != nullptr);
  fields.B(xref != Xref::None && !(xref == Xref::Overlaid && block.spec->isOverlayAlone));
  fields.B(xref == Xref::Overlaid);
  if (drawing::HasUnloadedXrefs(fields.TargetVersion())) {
    fields.B(xref != Xref::None && !block.spec->isUnloaded);
  }
}

void PutDescription(Fields& fields, const PlannedBlock& block) {
  fields.Point3(0.0, 0.0);
  fields.T(block.spec == nullptr ? "" : block.spec->path);
  if (!fields.IsSince(Version::AC1015)) return;
  for (std::size_t i = 0; i < block.inserts.size(); ++i) fields.RC(1);
  fields.RC(0);
  fields.T(block.spec == nullptr ? "" : block.spec->description);
  // No picture of the block.
  fields.BL(0);
  if (!fields.IsSince(Version::AC1021)) return;
  fields.BS(0);
  fields.B(true);
  fields.RC(0);
}

void PutReferences(Fields& fields, const PlannedBlock& block) {
  fields.H(Link::HardOwner, block.begin);
  const std::vector<PlannedEntity>& entities = block.entities;
  if (fields.IsSince(Version::AC1018)) {
    for (const PlannedEntity& planned : entities) fields.H(Link::HardOwner, planned.handle);
  } else if (HasOwnedList(block)) {
    fields.H(Link::SoftPointer, entities.empty() ? 0 : entities.front().handle);
    fields.H(Link::SoftPointer, entities.empty() ? 0 : entities.back().handle);
  }
  fields.H(Link::HardOwner, block.end);
  if (!fields.IsSince(Version::AC1015)) return;
  for (const Handle insert : block.inserts) fields.H(Link::SoftPointer, insert);
  fields.H(Link::HardPointer, block.layout);
}

void WriteRecord(Drawing& drawing, const PlannedBlock& block) {
  const Handle extension = WriteBlockExtension(drawing, block);
  Fields fields = drawing.NewFields(block.record);
  BeginObject(fields, drawing.roots.blocks, {}, extension);
  PutRecordName(drawing, fields, RecordName(drawing, block),
                block.spec == nullptr ? 0 : block.spec->flags);
  PutFlags(fields, drawing, block);
  if (fields.IsSince(Version::AC1018) && HasOwnedList(block)) {
    fields.BL(static_cast<std::int64_t>(block.entities.size()));
  }
  PutDescription(fields, block);
  PutReferences(fields, block);
  RecordHead head{static_cast<unsigned>(Type::BlockRecord)};
  head.data = DataOf(drawing, block.extendedData);
  drawing.Add(head, fields);
}

// A block's first and last entities stand apart from those between.
void WriteEnds(Drawing& drawing, const PlannedBlock& block) {
  const EntitySpec plain;
  const EntityPlace place{block.record, block.PlaceOfEntities()};
  Fields begin = drawing.NewFields(block.begin);
  BeginEntity(drawing, begin, plain, place, {});
  begin.T(StoredName(block.name, drawing.version));
  drawing.AddEntity(Type::Block, begin);
  Fields end = drawing.NewFields(block.end);
  BeginEntity(drawing, end, plain, place, {});
  drawing.AddEntity(Type::BlockEnd, end);
}

}  // namespace

drawing::ReferenceLists ListsOf(const DrawingSpec& spec) {
  return spec.referenceLists.value_or(drawing::ReferenceLists::AsDrawn);
}

// The records come last, for they name the entities that insert their blocks.
void WriteBlocks(Drawing& drawing) {
  for (const PlannedBlock& block : drawing.blocks) {
    WriteEnds(drawing, block);
    WriteEntities(drawing, block);
  }
  for (PlannedBlock& block : drawing.blocks) {
    if (ListsOf(drawing.spec) == drawing::ReferenceLists::Reversed) {
      std::reverse(block.inserts.begin(), block.inserts.end());
    }
    WriteRecord(drawing, block);
  }
}

}  // namespace dwg
