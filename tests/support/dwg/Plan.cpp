#include <sstream>

#include "support/drawing/DynamicBlocks.h"
#include "support/dwg/Drawing.h"
#include "support/dwg/Tokens.h"

namespace dwg {
namespace {

using drawing::HasLayouts;

PlannedBlock PlannedSpace(Drawing& drawing, std::string name, Space space) {
  PlannedBlock block;
  block.name = std::move(name);
  block.space = space;
  block.record = drawing.NextHandle();
  block.begin = drawing.NextHandle();
  block.end = drawing.NextHandle();
  if (HasLayouts(drawing.version)) block.layout = drawing.NextHandle();
  return block;
}

PlannedBlock Planned(Drawing& drawing, const drawing::BlockSpec& spec) {
  PlannedBlock block;
  block.name = spec.name;
  block.spec = &spec;
  block.record = drawing.NextHandle(spec.handle);
  block.begin = drawing.NextHandle();
  block.end = drawing.NextHandle();
  return block;
}

void PlanEntities(Drawing& drawing, PlannedBlock& block, const std::vector<EntitySpec>& entities) {
  for (const EntitySpec& entity : entities) {
    block.entities.push_back({drawing.NextHandle(entity.handle), &entity});
  }
}

void PlanDefinitions(Drawing& drawing, PlannedBlock& block,
                     const std::vector<AttributeSpec>& definitions) {
  for (const AttributeSpec& definition : definitions) {
    block.entities.push_back({drawing.NextHandle(definition.handle), nullptr, &definition});
  }
}

// As free values spell it.
std::string Written(Handle handle) {
  std::ostringstream digits;
  digits << std::hex << std::uppercase << handle;
  return digits.str();
}

// The first layout's paper is the active one; the others are numbered from 0.
std::string PaperName(std::size_t layout) {
  return layout == 0 ? kPaperSpaceName : kPaperSpaceName + std::to_string(layout - 1);
}

// Model space comes first, so that it has the handle that is kept for it.
void PlanBlocks(Drawing& drawing) {
  const DrawingSpec& spec = drawing.spec;
  drawing.blocks.push_back(PlannedSpace(drawing, kModelSpaceName, Space::Model));
  drawing.blocks.back().extension = spec.modelExtension;
  const std::size_t papers = HasLayouts(drawing.version) ? spec.layouts.size() : 1;
  for (std::size_t i = 0; i < papers; ++i) {
    drawing.blocks.push_back(PlannedSpace(drawing, PaperName(i), Space::Paper));
    drawing.blocks.back().isInactive = i != 0;
  }
  for (const drawing::BlockSpec& block : spec.blocks) {
    drawing.blocks.push_back(Planned(drawing, block));
  }
  for (PlannedBlock& block : drawing.blocks) {
    if (block.spec == nullptr) continue;
    block.extension = RecordExtension(*block.spec, drawing.version);
    const PlannedBlock* const original = drawing.BlockNamed(block.spec->copyOf);
    block.extendedData = RecordData(*block.spec, drawing.version,
                                    original == nullptr ? "0" : Written(original->record));
  }
}

void PlanContents(Drawing& drawing) {
  const DrawingSpec& spec = drawing.spec;
  std::size_t layout = 0;
  for (PlannedBlock& block : drawing.blocks) {
    if (block.spec != nullptr) {
      PlanDefinitions(drawing, block, block.spec->definitions);
      PlanEntities(drawing, block, block.spec->entities);
    } else if (block.space == Space::Model) {
      PlanDefinitions(drawing, block, spec.definitions);
      PlanEntities(drawing, block, spec.entities);
    } else if (layout < spec.layouts.size()) {
      PlanEntities(drawing, block, spec.layouts[layout++].entities);
    }
  }
  for (const drawing::ImageSpec& image : spec.images) {
    drawing.blocks[0].entities.push_back({drawing.NextHandle(), nullptr, nullptr, &image});
    drawing.imageDefinitions.push_back(drawing.NextHandle(image.handle));
  }
}

void PlanRoots(Drawing& drawing) {
  Roots& roots = drawing.roots;
  for (Handle* handle :
       {&roots.blocks, &roots.layers, &roots.styles, &roots.linetypes, &roots.views, &roots.ucs,
        &roots.viewports, &roots.applications, &roots.dimensionStyles, &roots.byBlock,
        &roots.byLayer, &roots.continuous, &roots.dimensionStyle, &roots.viewport, &roots.named,
        &roots.groups, &roots.mlineStyles}) {
    *handle = drawing.NextHandle();
  }
  if (!drawing.IsSince(Version::AC1018)) roots.viewportHeaders = drawing.NextHandle();
  if (!HasLayouts(drawing.version)) return;
  for (Handle* handle :
       {&roots.layouts, &roots.plotSettings, &roots.plotStyles, &roots.plotStyle}) {
    *handle = drawing.NextHandle();
  }
}

void PlanTables(Drawing& drawing) {
  const DrawingSpec& spec = drawing.spec;
  for (const drawing::LayerSpec& layer : spec.layers) {
    drawing.layers.push_back({layer.name, drawing.NextHandle(layer.handle)});
  }
  for (const drawing::LinetypeSpec& linetype : spec.linetypes) {
    drawing.linetypes.push_back({linetype.name, drawing.NextHandle()});
  }
  for (const drawing::TextStyleSpec& style : spec.textStyles) {
    drawing.styles.push_back({style.name, drawing.NextHandle(style.handle)});
  }
  for (const std::string& application : spec.applications) {
    drawing.applications.push_back({application, drawing.NextHandle()});
  }
}

// Extended data names its application by handle, so the spec's list may need more of them.
class MissingApplications {
 public:
  explicit MissingApplications(Drawing& drawing) : drawing_(drawing) {}

  void Visit() {
    for (const PlannedBlock& block : drawing_.blocks) {
      Visit(block.extendedData);
      for (const PlannedEntity& planned : block.entities) {
        if (planned.entity != nullptr) Visit(planned.entity->extendedData);
      }
    }
    for (const drawing::TextStyleSpec& style : drawing_.spec.textStyles) {
      if (!style.family.empty()) Need(drawing::kApplication);
    }
  }

 private:
  void Visit(const std::vector<Tag>& tags) {
    for (const Tag& tag : tags) {
      if (tag.code == 1001) Need(std::get<std::string>(tag.value));
    }
  }

  void Need(const std::string& name) {
    if (drawing_.ApplicationHandle(name) == 0) {
      drawing_.applications.push_back({name, drawing_.NextHandle()});
    }
  }

  Drawing& drawing_;
};

}  // namespace

void PlanRecords(Drawing& drawing) {
  PlanBlocks(drawing);
  PlanRoots(drawing);
  PlanTables(drawing);
  PlanContents(drawing);
  MissingApplications(drawing).Visit();
}

}  // namespace dwg
