#include <algorithm>
#include <functional>

#include "support/dxf/Drawing.h"
#include "support/dxf/Tokens.h"

namespace dxf {
namespace {

constexpr int kDimensionStyleHandle = 105;
constexpr const char* kDimensionStyle = "DIMSTYLE";

// One table while its records are written.
class Table {
 public:
  Table(Drawing& drawing, std::string name, std::string marker, std::size_t count)
      : drawing_(drawing),
        name_(std::move(name)),
        marker_(std::move(marker)),
        handle_(drawing.handles.Next()) {
    drawing_.out.Put({{0, "TABLE"}, {2, name_}});
    drawing_.PutHandle(handle_);
    drawing_.PutOwner("0");
    drawing_.out.Put({{100, kTableMarker}, {70, count}});
  }

  // The tags that each record begins with.  `afterHandle` may write groups behind the handle.
  void BeginRecord(
      const std::string& recordName, int flags, const std::string& handle = {},
      const std::function<void()>& afterHandle = [] {}) {
    drawing_.out.Put({0, name_});
    drawing_.PutHandle(drawing_.handles.Or(handle),
                       name_ == kDimensionStyle ? kDimensionStyleHandle : 5);
    afterHandle();
    drawing_.PutOwner(handle_);
    drawing_.out.Put({{100, kRecordMarker}, {100, marker_}, {2, recordName}});
    // Block records keep their flags in the BLOCKS section.
    if (marker_ != kBlockRecordMarker) drawing_.out.Put({70, flags});
  }

  void End() { drawing_.out.Put({0, "ENDTAB"}); }

  static constexpr const char* kBlockRecordMarker = kBlockTableRecordMarker;

 private:
  Drawing& drawing_;
  std::string name_;
  std::string marker_;
  std::string handle_;
};

struct StandardNames {
  const char* continuous;
  const char* byBlock;
  const char* byLayer;
  const char* activeViewport;
  const char* standard;
};

StandardNames NamesOf(Version version) {
  if (HasLayouts(version)) return {"Continuous", "ByBlock", "ByLayer", "*Active", "Standard"};
  return {"CONTINUOUS", "BYBLOCK", "BYLAYER", "*ACTIVE", "STANDARD"};
}

void WriteViewports(Drawing& drawing) {
  Table table(drawing, "VPORT", kViewportTableRecordMarker, 1);
  table.BeginRecord(NamesOf(drawing.version).activeViewport, 0);
  drawing.out.Put({{10, 0}, {20, 0},  {11, 1},  {21, 1},  {12, 210}, {22, 148.5}, {13, 0},
                   {23, 0}, {14, 10}, {24, 10}, {15, 10}, {25, 10},  {16, 0},     {26, 0},
                   {36, 1}, {17, 0},  {27, 0},  {37, 0},  {40, 297}, {41, 1.5},   {42, 50},
                   {43, 0}, {44, 0},  {50, 0},  {51, 0},  {71, 0},   {72, 100},   {73, 1},
                   {74, 3}, {75, 0},  {76, 0},  {77, 0},  {78, 0}});
  table.End();
}

void WriteLinetype(Drawing& drawing, Table& table, const LinetypeSpec& linetype) {
  double length = 0.0;
  for (const double dash : linetype.dashes) length += dash < 0 ? -dash : dash;
  table.BeginRecord(linetype.name, linetype.flags);
  drawing.out.Put({{3, linetype.comments}, {72, 65}, {73, linetype.dashes.size()}, {40, length}});
  for (const double dash : linetype.dashes) {
    drawing.out.Put({49, dash});
    if (HasObjects(drawing.version)) drawing.out.Put({74, 0});
  }
}

// The oldest files list no record for the two that only say where a line type comes from.
void WriteLinetypes(Drawing& drawing) {
  const StandardNames names = NamesOf(drawing.version);
  std::vector<LinetypeSpec> list;
  if (HasObjects(drawing.version)) list = {{names.byBlock, ""}, {names.byLayer, ""}};
  list.push_back({names.continuous, "Solid line"});
  list.insert(list.end(), drawing.spec.linetypes.begin(), drawing.spec.linetypes.end());
  Table table(drawing, "LTYPE", kLinetypeTableRecordMarker, list.size());
  for (const LinetypeSpec& linetype : list) WriteLinetype(drawing, table, linetype);
  table.End();
}

void WriteLayers(Drawing& drawing) {
  Table table(drawing, "LAYER", kLayerTableRecordMarker, drawing.spec.layers.size());
  for (const LayerSpec& layer : drawing.spec.layers) {
    table.BeginRecord(layer.name, layer.flags, layer.handle);
    drawing.out.Put({62, layer.colour});
    drawing.out.Put(
        {6, layer.linetype.empty() ? NamesOf(drawing.version).continuous : layer.linetype});
    if (HasLayouts(drawing.version)) drawing.out.Put({{370, -3}, {390, drawing.plotStyle}});
  }
  table.End();
}

void WriteTextStyles(Drawing& drawing) {
  Table table(drawing, "STYLE", kTextStyleTableRecordMarker, drawing.spec.textStyles.size());
  for (const TextStyleSpec& style : drawing.spec.textStyles) {
    table.BeginRecord(style.name, style.flags, style.handle);
    drawing.out.Put({{40, 0}, {41, 1}, {50, 0}, {71, 0}, {42, 2.5}});
    drawing.out.Put({{3, style.font}, {4, style.bigFont}});
    if (!style.family.empty()) {
      drawing.out.Put({{1001, kApplication}, {1000, style.family}, {1071, 34}});
    }
  }
  table.End();
}

void WriteViews(Drawing& drawing) {
  Table table(drawing, "VIEW", kViewTableRecordMarker, drawing.spec.views.size());
  for (const ViewSpec& view : drawing.spec.views) {
    table.BeginRecord(view.name, 0);
    drawing.out.Put({{40, view.height}, {10, view.centre.x}, {20, view.centre.y}});
    drawing.out.Put({41, view.width});
    drawing.out.PutPoint(11, 0, 0, 1);
    drawing.out.PutPoint(12, 0, 0, 0);
    drawing.out.Put({{42, 50}, {43, 0}, {44, 0}, {50, 0}, {71, 0}});
  }
  table.End();
}

bool NamesApplication(const PlannedBlock& block, const std::string& name) {
  return std::any_of(block.extendedData.begin(), block.extendedData.end(), [&](const Tag& tag) {
    return tag.code == 1001 && std::get<std::string>(tag.value) == name;
  });
}

// The spec's, and those that only the maker's own extended data names.
std::vector<std::string> ApplicationsOf(const Drawing& drawing) {
  std::vector<std::string> names = drawing.spec.applications;
  for (const char* own : {kTrueNameApplication, kCopyApplication}) {
    const bool isUsed =
        std::any_of(drawing.blocks.begin(), drawing.blocks.end(),
                    [&](const PlannedBlock& block) { return NamesApplication(block, own); });
    const bool isListed = std::find(names.begin(), names.end(), own) != names.end();
    if (isUsed && !isListed) names.emplace_back(own);
  }
  return names;
}

void WriteApplications(Drawing& drawing) {
  const std::vector<std::string> applications = ApplicationsOf(drawing);
  Table table(drawing, "APPID", kRegAppTableRecordMarker, applications.size());
  for (const std::string& application : applications) {
    table.BeginRecord(application, 0);
  }
  table.End();
}

void WriteDimensionStyles(Drawing& drawing) {
  Table table(drawing, kDimensionStyle, kDimStyleTableRecordMarker, 1);
  if (HasLayouts(drawing.version)) drawing.out.Put({100, kDimStyleTableMarker});
  const SettingsSpec& settings = drawing.spec.settings;
  table.BeginRecord(NamesOf(drawing.version).standard, 0);
  drawing.out.Put({{3, settings.dimpost}, {4, settings.dimapost}});
  if (!HasLayouts(drawing.version)) {
    drawing.out.Put({{5, settings.dimblk}, {6, settings.dimblk1}, {7, settings.dimblk2}});
  }
  drawing.out.Put({{40, 1}, {41, 2.5}, {42, 0.625}, {43, 3.75}, {44, 1.25}, {140, 2.5}});
  table.End();
}

void PutInserts(Drawing& drawing, const PlannedBlock& block) {
  drawing.out.Put({102, kReferencesGroup});
  for (const std::string& insert : block.inserts) drawing.out.Put({331, insert});
  drawing.out.Put({102, kGroupEnd});
}

void WriteBlockRecords(Drawing& drawing) {
  if (!HasObjects(drawing.version)) return;
  Table table(drawing, "BLOCK_RECORD", Table::kBlockRecordMarker, drawing.blocks.size());
  for (const PlannedBlock& block : drawing.blocks) {
    table.BeginRecord(block.name, 0, block.recordHandle,
                      [&] { drawing.PutExtension(block.extension, block.recordHandle); });
    if (HasLayouts(drawing.version)) {
      drawing.out.Put({340, block.layoutHandle.empty() ? "0" : block.layoutHandle});
    }
    if (!block.inserts.empty()) PutInserts(drawing, block);
    if (drawing.version >= Version::AC1021) drawing.out.Put({{70, 0}, {280, 1}, {281, 0}});
    drawing.out.Put(block.extendedData);
  }
  table.End();
}

}  // namespace

void WriteTables(Drawing& drawing) {
  drawing.BeginSection("TABLES");
  WriteViewports(drawing);
  WriteLinetypes(drawing);
  WriteLayers(drawing);
  WriteTextStyles(drawing);
  WriteViews(drawing);
  Table(drawing, "UCS", kUCSTableRecordMarker, 0).End();
  WriteApplications(drawing);
  WriteDimensionStyles(drawing);
  WriteBlockRecords(drawing);
  drawing.EndSection();
}

}  // namespace dxf
