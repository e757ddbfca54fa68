#include "support/dwg/Drawing.h"
#include "support/dwg/Tokens.h"

namespace dwg {
namespace {

constexpr int kModelFlags = 1024;
constexpr double kPaperWidth = 420.0;
constexpr double kPaperDepth = 297.0;

void PutPlotSettings(Fields& fields, const std::string& pageSetup,
                     const drawing::LayoutSpec& layout, int flags) {
  fields.T(pageSetup);
  fields.T(layout.printer);
  fields.BS(flags);
  for (const double value : {7.5, 20.0, 7.5, 20.0, kPaperWidth, kPaperDepth}) fields.BD(value);
  fields.T(layout.media);
  fields.BD(0.0);
  fields.BD(0.0);
  for (const int value : {1, 0, 5}) fields.BS(value);
  for (int i = 0; i < 4; ++i) fields.BD(0.0);
  if (!fields.IsSince(Version::AC1018)) fields.T("");
  fields.BD(1.0);
  fields.BD(1.0);
  fields.T(layout.styleSheet);
  fields.BS(16);
  fields.BD(1.0);
  fields.BD(0.0);
  fields.BD(0.0);
  if (!fields.IsSince(Version::AC1018)) return;
  for (const int value : {0, 2, 300}) fields.BS(value);
}

void PutExtents(Fields& fields) {
  fields.Point3(0.0, 0.0);
  fields.Point2(0.0, 0.0);
  fields.Point2(kPaperWidth, kPaperDepth);
  fields.Point3(0.0, 0.0);
  fields.Point3(1.0, 0.0);
  fields.Point3(0.0, 1.0);
  fields.BD(0.0);
  fields.BS(0);
  fields.Point3(kFarAway, kFarAway, kFarAway);
  fields.Point3(-kFarAway, -kFarAway, -kFarAway);
}

void WriteLayout(Drawing& drawing, const drawing::LayoutSpec& layout, int tab,
                 const PlannedBlock& block) {
  Fields fields = drawing.NewFields(block.layout);
  BeginObject(fields, drawing.roots.layouts, {drawing.roots.layouts});
  PutPlotSettings(fields, layout.pageSetup, layout, tab == 0 ? kModelFlags : 0);
  fields.T(layout.name);
  fields.BS(tab);
  fields.BS(1);
  PutExtents(fields);
  if (fields.IsSince(Version::AC1018)) {
    fields.BL(0);
    fields.H(Link::HardPointer, 0);
  }
  if (fields.IsSince(Version::AC1021)) fields.H(Link::HardPointer, 0);
  fields.H(Link::SoftPointer, block.record);
  fields.H(Link::SoftPointer, tab == 0 ? drawing.roots.viewport : 0);
  fields.H(Link::HardPointer, 0);
  fields.H(Link::HardPointer, 0);
  const bool hasType = fields.IsSince(Version::AC1018);
  drawing.Add(RecordHead{hasType ? static_cast<unsigned>(Type::Layout)
                                 : drawing.ClassNumber(drawing::kLayout)},
              fields);
}

void WritePlotSettings(Drawing& drawing, const drawing::PageSetupSpec& setup, Handle handle) {
  drawing::LayoutSpec layout(setup.name, {}, setup.styleSheet);
  layout.printer = setup.printer;
  Fields fields = drawing.NewFields(handle);
  BeginObject(fields, drawing.roots.plotSettings, {drawing.roots.plotSettings});
  PutPlotSettings(fields, setup.name, layout, 0);
  if (fields.IsSince(Version::AC1018)) fields.H(Link::HardPointer, 0);
  if (fields.IsSince(Version::AC1021)) fields.H(Link::HardPointer, 0);
  drawing.Add(RecordHead{drawing.ClassNumber(drawing::kPlotSettings)}, fields);
}

void WritePlotStyles(Drawing& drawing) {
  const Roots& roots = drawing.roots;
  WriteObject(drawing, drawing::Placeholder(), roots.plotStyle, roots.plotStyles);
  WriteDictionary(drawing, roots.plotStyles, roots.named, {{"Normal", roots.plotStyle}},
                  {false, roots.plotStyle});
}

}  // namespace

// The blocks of the spaces come first, in the order of the layouts.
void WriteLayouts(Drawing& drawing) {
  const DrawingSpec& spec = drawing.spec;
  const Roots& roots = drawing.roots;
  const drawing::LayoutSpec model("Model", {}, spec.modelStyleSheet);
  WriteLayout(drawing, model, 0, drawing.blocks[0]);
  std::vector<NamedHandle> layouts = {{model.name, drawing.blocks[0].layout}};
  for (std::size_t i = 0; i < spec.layouts.size(); ++i) {
    const PlannedBlock& block = drawing.blocks[i + 1];
    WriteLayout(drawing, spec.layouts[i], static_cast<int>(i + 1), block);
    layouts.push_back({spec.layouts[i].name, block.layout});
  }
  WriteDictionary(drawing, roots.layouts, roots.named, layouts);

  std::vector<NamedHandle> settings;
  for (const drawing::PageSetupSpec& setup : spec.plotSettings) {
    settings.push_back({setup.name, drawing.NextHandle()});
    WritePlotSettings(drawing, setup, settings.back().handle);
  }
  WriteDictionary(drawing, roots.plotSettings, roots.named, settings);
  WritePlotStyles(drawing);
}

}  // namespace dwg
