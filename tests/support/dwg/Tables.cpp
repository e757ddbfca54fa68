#include "support/dwg/Drawing.h"
#include "support/dwg/Tokens.h"

namespace dwg {
namespace {

constexpr int kXrefIndex = 256;
constexpr double kLens = 50.0;
constexpr unsigned kDefaultLineWeight = 0x1F;

struct StandardNames {
  const char* byBlock;
  const char* byLayer;
  const char* continuous;
  const char* activeViewport;
};

StandardNames NamesOf(Version version) {
  if (version < Version::AC1015) return {"BYBLOCK", "BYLAYER", "CONTINUOUS", "*ACTIVE"};
  return {"ByBlock", "ByLayer", "Continuous", "*Active"};
}

// AC1014 keeps a name that it can't hold in a record of its own.
std::vector<NamedObject> TrueName(const Drawing& drawing, const std::string& name) {
  const std::string stored = StoredName(name, drawing.version);
  if (stored == name) return {};
  return {{kRoundTripKey, drawing::Xrecord({{102, kTrueNames}, {1, stored}, {2, name}})}};
}

Fields BeginRecord(Drawing& drawing, Handle handle, Handle table, const std::string& name,
                   int flags = 0) {
  const Handle extension = WriteExtension(drawing, TrueName(drawing, name), handle);
  Fields fields = drawing.NewFields(handle);
  BeginObject(fields, table, {}, extension);
  PutRecordName(drawing, fields, name, flags);
  return fields;
}

void WriteControl(Drawing& drawing, Type type, Handle handle, const std::vector<Handle>& entries,
                  const std::vector<Handle>& apart = {}) {
  Fields fields = drawing.NewFields(handle);
  BeginObject(fields, 0);
  fields.BL(static_cast<std::int64_t>(entries.size()));
  if (type == Type::DimensionStyleControl && fields.IsSince(Version::AC1015)) fields.RC(0);
  for (const Handle entry : entries) fields.H(Link::SoftOwner, entry);
  for (const Handle entry : apart) fields.H(Link::HardOwner, entry);
  drawing.Add(type, fields);
}

std::vector<Handle> HandlesOf(const std::vector<NamedHandle>& list) {
  std::vector<Handle> handles;
  handles.reserve(list.size());
  for (const NamedHandle& entry : list) handles.push_back(entry.handle);
  return handles;
}

void PutLayerState(Fields& fields, const drawing::LayerSpec& layer) {
  const bool isFrozen = (layer.flags & 1) != 0;
  const bool isFrozenInNew = (layer.flags & 2) != 0;
  const bool isLocked = (layer.flags & 4) != 0;
  const bool isOff = layer.colour < 0;
  if (!fields.IsSince(Version::AC1015)) {
    for (const bool bit : {isFrozen, isOff, isFrozenInNew, isLocked}) fields.B(bit);
    return;
  }
  unsigned state = 16 | kDefaultLineWeight << 5;
  state |= (isFrozen ? 1u : 0u) | (isOff ? 2u : 0u) | (isFrozenInNew ? 4u : 0u);
  fields.BS(state | (isLocked ? 8u : 0u));
}

void WriteLayers(Drawing& drawing) {
  for (std::size_t i = 0; i < drawing.layers.size(); ++i) {
    const drawing::LayerSpec& layer = drawing.spec.layers[i];
    Fields fields = BeginRecord(drawing, drawing.layers[i].handle, drawing.roots.layers, layer.name,
                                layer.flags);
    PutLayerState(fields, layer);
    fields.CMC(layer.colour < 0 ? -layer.colour : layer.colour);
    if (fields.IsSince(Version::AC1015)) fields.H(Link::HardPointer, drawing.roots.plotStyle);
    if (fields.IsSince(Version::AC1021)) fields.H(Link::HardPointer, 0);
    fields.H(Link::HardPointer, drawing.LinetypeHandle(layer.linetype));
    if (fields.IsSince(Version::AC1027)) fields.H(Link::HardPointer, 0);
    drawing.Add(Type::Layer, fields);
  }
  WriteControl(drawing, Type::LayerControl, drawing.roots.layers, HandlesOf(drawing.layers));
}

void WriteLinetype(Drawing& drawing, Handle handle, const drawing::LinetypeSpec& linetype) {
  Fields fields =
      BeginRecord(drawing, handle, drawing.roots.linetypes, linetype.name, linetype.flags);
  double length = 0.0;
  for (const double dash : linetype.dashes) length += dash < 0 ? -dash : dash;
  fields.T(linetype.comments);
  fields.BD(length);
  fields.RC('A');
  fields.RC(static_cast<unsigned>(linetype.dashes.size()));
  for (const double dash : linetype.dashes) {
    fields.BD(dash);
    fields.BS(0);
    fields.Point2(0.0, 0.0);
    fields.BD(1.0);
    fields.BD(0.0);
    fields.BS(0);
  }
  // Room for the texts of the strokes.
  if (!fields.IsSince(Version::AC1021)) fields.Raw(std::string(256, '\0'));
  for (std::size_t i = 0; i < linetype.dashes.size(); ++i) fields.H(Link::HardPointer, 0);
  drawing.Add(Type::Linetype, fields);
}

void WriteLinetypes(Drawing& drawing) {
  const StandardNames names = NamesOf(drawing.version);
  const Roots& roots = drawing.roots;
  WriteLinetype(drawing, roots.byBlock, {names.byBlock, ""});
  WriteLinetype(drawing, roots.byLayer, {names.byLayer, ""});
  WriteLinetype(drawing, roots.continuous, {names.continuous, "Solid line"});
  for (std::size_t i = 0; i < drawing.linetypes.size(); ++i) {
    WriteLinetype(drawing, drawing.linetypes[i].handle, drawing.spec.linetypes[i]);
  }
  std::vector<Handle> entries = HandlesOf(drawing.linetypes);
  entries.insert(entries.begin(), roots.continuous);
  WriteControl(drawing, Type::LinetypeControl, roots.linetypes, entries,
               {roots.byBlock, roots.byLayer});
}

void WriteStyles(Drawing& drawing) {
  for (std::size_t i = 0; i < drawing.styles.size(); ++i) {
    const drawing::TextStyleSpec& style = drawing.spec.textStyles[i];
    Fields fields = BeginRecord(drawing, drawing.styles[i].handle, drawing.roots.styles, style.name,
                                style.flags);
    fields.B((style.flags & 1) != 0);
    fields.B(false);
    fields.BD(0.0);
    fields.BD(1.0);
    fields.BD(0.0);
    fields.RC(0);
    fields.BD(2.5);
    fields.T(style.font);
    fields.T(style.bigFont);
    RecordHead head{static_cast<unsigned>(Type::Style)};
    if (!style.family.empty()) {
      head.data =
          DataOf(drawing, {{1001, drawing::kApplication}, {1000, style.family}, {1071, 34}});
    }
    drawing.Add(head, fields);
  }
  WriteControl(drawing, Type::StyleControl, drawing.roots.styles, HandlesOf(drawing.styles));
}

// What views and viewports have in common.
void PutSight(Fields& fields, double height, double width, drawing::Point centre) {
  fields.BD(height);
  fields.BD(width);
  fields.Point2(centre.x, centre.y);
  fields.Point3(0.0, 0.0, 0.0);
  fields.Point3(0.0, 0.0, 1.0);
  for (const double value : {0.0, kLens, 0.0, 0.0}) fields.BD(value);
  fields.Bits(0, 4);
  if (fields.IsSince(Version::AC1015)) fields.RC(0);
  if (!fields.IsSince(Version::AC1021)) return;
  fields.B(true);
  fields.RC(1);
  fields.BD(0.0);
  fields.BD(0.0);
  fields.CMC(250);
}

void WriteViews(Drawing& drawing) {
  std::vector<Handle> entries;
  for (const drawing::ViewSpec& view : drawing.spec.views) {
    entries.push_back(drawing.NextHandle());
    Fields fields = BeginRecord(drawing, entries.back(), drawing.roots.views, view.name);
    PutSight(fields, view.height, view.width, view.centre);
    fields.B(false);
    if (fields.IsSince(Version::AC1015)) fields.B(false);
    if (fields.IsSince(Version::AC1021)) {
      fields.B(false);
      for (int i = 0; i < 4; ++i) fields.H(Link::HardPointer, 0);
    }
    drawing.Add(Type::View, fields);
  }
  WriteControl(drawing, Type::ViewControl, drawing.roots.views, entries);
}

void PutViewportGrid(Fields& fields) {
  fields.Point2(0.0, 0.0);
  fields.Point2(1.0, 1.0);
  fields.B(false);
  fields.BS(1000);
  fields.B(true);
  fields.BB(3);
  fields.B(false);
  fields.Point2(10.0, 10.0);
  fields.B(false);
  fields.B(false);
  fields.BS(0);
  fields.BD(0.0);
  fields.Point2(0.0, 0.0);
  fields.Point2(10.0, 10.0);
}

void WriteViewports(Drawing& drawing) {
  Fields fields = BeginRecord(drawing, drawing.roots.viewport, drawing.roots.viewports,
                              NamesOf(drawing.version).activeViewport);
  PutSight(fields, 297.0, 445.5, {210.0, 148.5});
  PutViewportGrid(fields);
  if (fields.IsSince(Version::AC1015)) {
    fields.B(false);
    fields.B(true);
    fields.Point3(0.0, 0.0);
    fields.Point3(1.0, 0.0);
    fields.Point3(0.0, 1.0);
    fields.BD(0.0);
    fields.BS(0);
  }
  if (fields.IsSince(Version::AC1021)) {
    fields.BS(3);
    fields.BS(5);
    for (int i = 0; i < 3; ++i) fields.H(Link::HardPointer, 0);
  }
  if (fields.IsSince(Version::AC1015)) {
    fields.H(Link::HardPointer, 0);
    fields.H(Link::HardPointer, 0);
  }
  drawing.Add(Type::Viewport, fields);
  WriteControl(drawing, Type::ViewportControl, drawing.roots.viewports, {drawing.roots.viewport});
}

void WriteApplications(Drawing& drawing) {
  for (const NamedHandle& application : drawing.applications) {
    Fields fields =
        BeginRecord(drawing, application.handle, drawing.roots.applications, application.name);
    fields.RC(0);
    drawing.Add(Type::Application, fields);
  }
  WriteControl(drawing, Type::ApplicationControl, drawing.roots.applications,
               HandlesOf(drawing.applications));
}

void WriteBlockControl(Drawing& drawing) {
  std::vector<Handle> entries;
  Handle paper = 0;
  for (const PlannedBlock& block : drawing.blocks) {
    if (block.space == Space::Paper && paper == 0) {
      paper = block.record;
    } else if (block.space != Space::Model) {
      entries.push_back(block.record);
    }
  }
  WriteControl(drawing, Type::BlockControl, drawing.roots.blocks, entries,
               {drawing.blocks[0].record, paper});
}

}  // namespace

void PutRecordName(Drawing& drawing, Fields& fields, const std::string& name, int flags) {
  const bool isDependent = (flags & drawing::kXrefDependent) != 0;
  fields.T(StoredName(name, drawing.version));
  if (!fields.IsSince(Version::AC1021)) fields.B(true);
  fields.BS(isDependent ? kXrefIndex : 0);
  if (!fields.IsSince(Version::AC1021)) fields.B(isDependent);
  // A dependent record is named after its drawing's block.
  const PlannedBlock* block =
      isDependent ? drawing.BlockNamed(name.substr(0, name.find('|'))) : nullptr;
  fields.H(Link::HardPointer, block == nullptr ? 0 : block->record);
}

void WriteTables(Drawing& drawing) {
  WriteBlockControl(drawing);
  WriteLayers(drawing);
  WriteLinetypes(drawing);
  WriteStyles(drawing);
  WriteViews(drawing);
  WriteViewports(drawing);
  WriteApplications(drawing);
  WriteDimensionStyles(
      drawing, BeginRecord(drawing, drawing.roots.dimensionStyle, drawing.roots.dimensionStyles,
                           drawing.IsSince(Version::AC1015) ? "Standard" : "STANDARD"));
  WriteControl(drawing, Type::DimensionStyleControl, drawing.roots.dimensionStyles,
               {drawing.roots.dimensionStyle});
  WriteControl(drawing, Type::UcsControl, drawing.roots.ucs, {});
  if (drawing.roots.viewportHeaders != 0) {
    WriteControl(drawing, Type::ViewportHeaderControl, drawing.roots.viewportHeaders, {});
  }
}

}  // namespace dwg
