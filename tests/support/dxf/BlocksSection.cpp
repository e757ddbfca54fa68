#include "support/dxf/Drawing.h"
#include "support/dxf/Tokens.h"

namespace dxf {
namespace {

void PutCommon(Drawing& drawing, const PlannedBlock& block) {
  drawing.PutOwner(block.recordHandle);
  drawing.out.Put({100, kEntityMarker});
  if (block.isPaper) drawing.out.Put({67, 1});
  drawing.out.Put({8, "0"});
}

void WriteBegin(Drawing& drawing, const PlannedBlock& block) {
  drawing.out.Put({0, "BLOCK"});
  drawing.PutHandle(block.beginHandle);
  PutCommon(drawing, block);
  drawing.out.Put({{100, kBlockBeginMarker}, {2, block.name}, {70, block.flags}});
  drawing.out.PutPoint(10, 0.0, 0.0);
  drawing.out.Put({{3, block.name}, {1, block.path}});
  if (!block.description.empty()) drawing.out.Put({4, block.description});
}

void WriteEnd(Drawing& drawing, const PlannedBlock& block) {
  drawing.out.Put({0, "ENDBLK"});
  drawing.PutEntityHandle(block.endHandle);
  PutCommon(drawing, block);
  drawing.out.Put({100, kBlockEndMarker});
}

void WriteContents(Drawing& drawing, const PlannedBlock& block) {
  if (block.definitions != nullptr) {
    for (const AttributeSpec& definition : *block.definitions) {
      WriteAttributeDefinition(drawing, definition, block);
    }
  }
  for (const EntitySpec& entity : *block.entities) WriteEntity(drawing, entity, block);
}

}  // namespace

void WriteBlocks(Drawing& drawing) {
  drawing.BeginSection("BLOCKS");
  for (const PlannedBlock& block : drawing.blocks) {
    if (block.isActiveSpace && !HasObjects(drawing.version) && !drawing.spec.hasSpaceBlocks) {
      continue;
    }
    WriteBegin(drawing, block);
    if (!block.isActiveSpace) WriteContents(drawing, block);
    WriteEnd(drawing, block);
  }
  drawing.EndSection();
}

void WriteEntities(Drawing& drawing) {
  drawing.BeginSection("ENTITIES");
  for (const PlannedBlock& block : drawing.blocks) {
    if (!block.isActiveSpace) continue;
    WriteContents(drawing, block);
    if (!block.isPaper) WriteImages(drawing, block);
  }
  drawing.EndSection();
}

}  // namespace dxf
