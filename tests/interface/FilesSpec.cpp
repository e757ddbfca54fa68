#include "interface/FilesSpec.h"

namespace zdx_test {
namespace {

using drawing::BlockSpec;
using drawing::DrawingSpec;
using drawing::Xref;
using drawing::XrefBlock;

BlockSpec At(const char* handle, BlockSpec block) {
  block.handle = handle;
  return block;
}

void AddDrawings(DrawingSpec& spec) {
  BlockSpec alone = At("A3", XrefBlock("alone", "alone.dwg", Xref::Overlaid));
  alone.isOverlayAlone = true;
  BlockSpec away = At("A4", XrefBlock("away", "away.dwg"));
  away.isUnloaded = true;
  BlockSpec inner = At("A5", XrefBlock("outer|inner", "inner.dwg"));
  inner.flags = drawing::kXrefDependent;
  // Neither stands for a drawing.
  BlockSpec symbol = At("A6", {.name = "outer|symbol"});
  symbol.flags = drawing::kXrefDependent;
  const BlockSpec plain = At("A7", {.name = "plain", .path = "plain.dwg"});
  spec.blocks = {At("A1", XrefBlock("outer", "refs\\outer.dwg")),
                 At("A2", XrefBlock("over", "over.dxf", Xref::Overlaid)),
                 alone,
                 away,
                 inner,
                 symbol,
                 plain};
  spec.layers = {"0", {"outer|walls", 7, "", drawing::kXrefDependent}};
}

void AddStyles(DrawingSpec& spec) {
  drawing::TextStyleSpec signs("Signs", "signs.shx", "bigfont.shx");
  signs.handle = "B1";
  drawing::TextStyleSpec notes("outer|Notes", "notes.ttf");
  notes.flags = drawing::kXrefDependent;
  notes.handle = "B3";
  // An outline font without a file.
  drawing::TextStyleSpec face("Face", "");
  face.family = "Sans";
  face.handle = "B4";
  spec.textStyles = {signs, drawing::ShapeFile("shapes.shx", "B2"), notes, face};
}

void AddDocuments(DrawingSpec& spec) {
  using drawing::UnderlayForm;
  spec.images = {{.name = "photo", .path = "photo.jpg", .handle = "C1"},
                 {.name = "карта", .path = "карта.png", .handle = "C2"}};
  spec.underlays = {{UnderlayForm::Dgn, "road", "road.dgn", "Model", "C3"},
                    {UnderlayForm::Pdf, "plan - 1", "plan.pdf", "1", "C4"},
                    {UnderlayForm::Pdf, "plan - 2", "plan.pdf", "2", "C5"},
                    {UnderlayForm::Dwf, "sheet", "sheet.dwfx", "A1", "C6"}};
  spec.pointClouds = {
      {.name = "hall", .path = "hall.pcg", .handle = "C7"},
      {.name = "yard", .path = "yard.rcp", .isOfSecondClass = true, .handle = "C8"}};
  spec.dataLinks = {{.name = "rates", .connection = "rates.xlsx!Sheet1!A1:B2", .handle = "D1"},
                    {.name = "all", .connection = "C:\\data\\all.xls", .handle = "D2"},
                    {.name = "odd", .connection = "odd!name.xlsx!Sheet", .handle = "D3"}};
  spec.materials = {
      {.name = "Oak",
       .description = "Seen at the mill",
       .diffuse = "oak.jpg",
       .bump = "textures\\rough.png",
       .handle = "D4"},
      {.name = "Paint", .handle = "D5"},
      {.name = "Glass", .reflection = "sky.tif", .refraction = "ice.bmp", .handle = "D6"}};
}

void AddPlotting(DrawingSpec& spec) {
  spec.modelStyleSheet = "model.ctb";
  spec.layouts = {{"Sheet 1", {}, "sheet.ctb"}, "Лист 2"};
  spec.layouts[0].printer = "plotter.pc3";
  spec.plotSettings = {{"A3", "laser.pc3", "grey.stb"}};
  spec.settings.styleSheet = "office.ctb";
  spec.settings.menu = "office";
}

}  // namespace

DrawingSpec SpecWithFiles() {
  DrawingSpec spec;
  spec.codePage = "ANSI_1251";
  AddDrawings(spec);
  AddStyles(spec);
  AddDocuments(spec);
  AddPlotting(spec);
  spec.fileList = {
      {"Fonts", "Others"},
      {{"signs.shx", "c:\\fonts\\signs.shx", 0}, {"список.dat", "c:\\x\\список.dat", 1}}};
  return spec;
}

}  // namespace zdx_test
