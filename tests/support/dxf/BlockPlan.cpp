#include <algorithm>

#include "support/drawing/DynamicBlocks.h"
#include "support/dxf/Drawing.h"
#include "support/dxf/Tokens.h"

namespace dxf {
namespace {

constexpr int kHasDefinitions = 2;
constexpr int kIsXref = 4;
constexpr int kIsOverlay = 8;
constexpr int kIsResolved = 32;

struct SpaceNames {
  const char* model;
  const char* paper;
};

SpaceNames NamesOfSpaces(Version version) {
  if (!HasObjects(version)) return {"$MODEL_SPACE", "$PAPER_SPACE"};
  if (!HasLayouts(version)) return {"*MODEL_SPACE", "*PAPER_SPACE"};
  return {"*Model_Space", "*Paper_Space"};
}

void GiveHandles(PlannedBlock& block, Handles& handles, const std::string& chosen = {}) {
  block.recordHandle = handles.Or(chosen);
  block.beginHandle = handles.Next();
  block.endHandle = handles.Next();
}

PlannedBlock Space(std::string name, const std::vector<EntitySpec>& entities, Version version,
                   Handles& handles) {
  PlannedBlock block;
  block.name = std::move(name);
  block.entities = &entities;
  GiveHandles(block, handles);
  if (HasLayouts(version)) block.layoutHandle = handles.Next();
  return block;
}

int FlagsOf(const BlockSpec& block) {
  int flags = block.flags;
  for (const AttributeSpec& definition : block.definitions) {
    if ((definition.flags & kConstant) == 0) flags |= kHasDefinitions;
  }
  if (block.xref != Xref::None) flags |= kIsXref | kIsResolved;
  if (block.xref == Xref::Overlaid) flags |= kIsOverlay;
  return flags;
}

// A number that no block of the spec has.
std::string HiddenName(const DrawingSpec& spec, std::size_t number) {
  const auto isTaken = [&](const std::string& name) {
    return std::any_of(spec.blocks.begin(), spec.blocks.end(),
                       [&](const BlockSpec& block) { return IsSameName(block.name, name); });
  };
  std::string name;
  do {
    name = "*U" + std::to_string(number);
    number += spec.blocks.size();
  } while (isTaken(name));
  return name;
}

PlannedBlock Planned(const BlockSpec& spec, Handles& handles) {
  PlannedBlock block;
  block.name = spec.name;
  block.flags = FlagsOf(spec);
  block.path = spec.path;
  block.description = spec.description;
  block.definitions = &spec.definitions;
  block.entities = &spec.entities;
  GiveHandles(block, handles, spec.handle);
  return block;
}

// The handle of the record of the block that `block` is a copy of; "0" for none.
std::string OriginalOf(const DrawingSpec& spec, const BlockSpec& block,
                       const std::vector<PlannedBlock>& blocks, std::size_t spaces) {
  for (std::size_t i = 0; i < spec.blocks.size(); ++i) {
    if (IsSameName(spec.blocks[i].name, block.copyOf)) return blocks[spaces + i].recordHandle;
  }
  return "0";
}

// The first layout's paper is the active one; the others are numbered from 0.
std::string PaperName(const char* name, std::size_t layout) {
  return layout == 0 ? name : name + std::to_string(layout - 1);
}

}  // namespace

std::vector<PlannedBlock> PlanBlocks(const DrawingSpec& spec, Version version, Handles& handles) {
  static const std::vector<EntitySpec> kNone;
  const SpaceNames names = NamesOfSpaces(version);
  std::vector<PlannedBlock> blocks;
  blocks.push_back(Space(names.model, spec.entities, version, handles));
  blocks.back().definitions = &spec.definitions;
  blocks.back().extension = spec.modelExtension;
  blocks.back().isActiveSpace = true;

  const std::size_t papers = HasLayouts(version) ? spec.layouts.size() : 1;
  for (std::size_t i = 0; i < papers; ++i) {
    const auto& entities = i < spec.layouts.size() ? spec.layouts[i].entities : kNone;
    blocks.push_back(Space(PaperName(names.paper, i), entities, version, handles));
    blocks.back().isPaper = true;
    blocks.back().isActiveSpace = i == 0;
  }
  const std::size_t spaces = blocks.size();
  for (const BlockSpec& block : spec.blocks) {
    blocks.push_back(Planned(block, handles));
    if (IsDynamicHidden(block, version)) blocks.back().name = HiddenName(spec, blocks.size());
  }
  for (std::size_t i = 0; i < spec.blocks.size(); ++i) {
    const BlockSpec& block = spec.blocks[i];
    blocks[spaces + i].extension = RecordExtension(block, version);
    blocks[spaces + i].extendedData =
        RecordData(block, version, OriginalOf(spec, block, blocks, spaces));
  }
  return blocks;
}

void PlanReferences(Drawing& drawing) {
  const ReferenceLists lists = drawing.spec.referenceLists.value_or(ReferenceLists::None);
  if (lists == ReferenceLists::None || !HasLayouts(drawing.version)) return;
  for (const PlannedBlock& block : drawing.blocks) {
    for (const EntitySpec& entity : *block.entities) {
      if (entity.type != kInsert) continue;
      const std::string handle = drawing.handles.Or(entity.handle);
      drawing.insertHandles[&entity] = handle;
      PlannedBlock* const inserted = drawing.BlockNamed(InsertedBlock(entity));
      if (inserted != nullptr) inserted->inserts.push_back(handle);
    }
  }
  if (lists == ReferenceLists::AsDrawn) return;
  for (PlannedBlock& block : drawing.blocks) {
    std::reverse(block.inserts.begin(), block.inserts.end());
  }
}

}  // namespace dxf
