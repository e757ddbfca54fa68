#include <algorithm>
#include <stdexcept>

#include "support/drawing/ReferenceObjects.h"
#include "support/dxf/Drawing.h"
#include "support/dxf/Tokens.h"

namespace dxf {
namespace {

constexpr int kFirstClassNumber = 500;
constexpr int kProxyObjectClass = 499;
constexpr int kModelLayoutFlags = 1024;

ObjectSpec At(ObjectSpec object, std::string handle) {
  object.handle = std::move(handle);
  return object;
}

ObjectSpec PlotSettings(const std::string& pageSetup, const LayoutSpec& layout, int flags) {
  return CustomObject(kPlotSettings, {{100, kPlotSettingsMarker},
                                      {1, pageSetup},
                                      {2, layout.printer},
                                      {4, layout.media},
                                      {6, ""},
                                      {40, 7.5},
                                      {41, 20},
                                      {42, 7.5},
                                      {43, 20},
                                      {44, 420},
                                      {45, 297},
                                      {46, 0},
                                      {47, 0},
                                      {48, 0},
                                      {49, 0},
                                      {140, 0},
                                      {141, 0},
                                      {142, 1},
                                      {143, 1},
                                      {70, flags},
                                      {72, 1},
                                      {73, 0},
                                      {74, 5},
                                      {7, layout.styleSheet},
                                      {75, 16},
                                      {147, 1},
                                      {148, 0},
                                      {149, 0}});
}

ObjectSpec Layout(const LayoutSpec& layout, std::size_t tab, const PlannedBlock& block) {
  ObjectSpec object = PlotSettings(layout.pageSetup, layout, tab == 0 ? kModelLayoutFlags : 0);
  object.type = kLayout;
  object.handle = block.layoutHandle;
  const std::vector<Tag> tags = {{100, kLayoutMarker},
                                 {1, layout.name},
                                 {70, 1},
                                 {71, tab},
                                 {10, 0},
                                 {20, 0},
                                 {11, 420},
                                 {21, 297},
                                 {12, 0},
                                 {22, 0},
                                 {32, 0},
                                 {14, 1e20},
                                 {24, 1e20},
                                 {34, 1e20},
                                 {15, -1e20},
                                 {25, -1e20},
                                 {35, -1e20},
                                 {146, 0},
                                 {13, 0},
                                 {23, 0},
                                 {33, 0},
                                 {16, 1},
                                 {26, 0},
                                 {36, 0},
                                 {17, 0},
                                 {27, 1},
                                 {37, 0},
                                 {76, 0},
                                 {330, block.recordHandle}};
  object.body.insert(object.body.end(), tags.begin(), tags.end());
  return object;
}

// The blocks of the spaces come first, in the order of the layouts.
NamedObject LayoutDictionary(const Drawing& drawing) {
  const DrawingSpec& spec = drawing.spec;
  std::vector<NamedObject> entries;
  const LayoutSpec model("Model", {}, spec.modelStyleSheet);
  entries.emplace_back(model.name, Layout(model, 0, drawing.blocks[0]));
  for (std::size_t i = 0; i < spec.layouts.size(); ++i) {
    const LayoutSpec& layout = spec.layouts[i];
    entries.emplace_back(layout.name, Layout(layout, i + 1, drawing.blocks[i + 1]));
  }
  return {kLayoutKey, Dictionary(entries)};
}

NamedObject GroupDictionary(const DrawingSpec& spec) {
  std::vector<NamedObject> entries;
  for (const GroupSpec& group : spec.groups) {
    ObjectSpec object =
        CustomObject(kGroup, {{100, kGroupMarker}, {300, group.description}, {70, 0}, {71, 1}});
    for (const std::string& member : group.members) object.body.emplace_back(340, member);
    entries.emplace_back(group.name, object);
  }
  return {kGroupKey, Dictionary(entries)};
}

NamedObject MlineStyleDictionary(const DrawingSpec& spec) {
  std::vector<NamedObject> entries;
  for (const std::string& name : spec.mlineStyles) {
    entries.emplace_back(name, CustomObject(kMlineStyle, {{100, kMlineStyleMarker},
                                                          {2, name},
                                                          {70, 0},
                                                          {3, ""},
                                                          {62, 256},
                                                          {51, 90},
                                                          {52, 90},
                                                          {71, 2},
                                                          {49, 0.5},
                                                          {62, 256},
                                                          {6, "BYLAYER"},
                                                          {49, -0.5},
                                                          {62, 256},
                                                          {6, "BYLAYER"}}));
  }
  return {kMlineStyleKey, Dictionary(entries)};
}

NamedObject PlotSettingsDictionary(const DrawingSpec& spec) {
  std::vector<NamedObject> entries;
  for (const PageSetupSpec& setup : spec.plotSettings) {
    LayoutSpec layout(setup.name, {}, setup.styleSheet);
    layout.printer = setup.printer;
    entries.emplace_back(setup.name, PlotSettings(setup.name, layout, 0));
  }
  return {kPlotSettingsKey, Dictionary(entries)};
}

NamedObject PlotStyleDictionary(const Drawing& drawing) {
  ObjectSpec dictionary = Dictionary({{"Normal", At(Placeholder(), drawing.plotStyle)}});
  dictionary.type = kDictionaryWithDefault;
  dictionary.body = {{100, kDictionaryWithDefaultMarker}, {340, drawing.plotStyle}};
  return {kPlotStyleKey, dictionary};
}

ObjectSpec RootDictionary(const Drawing& drawing) {
  const DrawingSpec& spec = drawing.spec;
  std::vector<NamedObject> entries = {GroupDictionary(spec)};
  if (!spec.images.empty() && HasImages(drawing.version)) {
    entries.push_back(ImageDictionary(drawing));
  }
  if (HasLayouts(drawing.version)) entries.push_back(LayoutDictionary(drawing));
  entries.push_back(MlineStyleDictionary(spec));
  if (HasLayouts(drawing.version)) {
    entries.push_back(PlotSettingsDictionary(spec));
    entries.push_back(PlotStyleDictionary(drawing));
  }
  if (HasSummaryRecord(spec, drawing.version)) {
    entries.emplace_back(kSummaryKey, SummaryRecord(spec));
  }
  const std::vector<NamedObject> references = ReferenceDictionaries(spec, drawing.version);
  entries.insert(entries.end(), references.begin(), references.end());
  entries.insert(entries.end(), spec.rootEntries.begin(), spec.rootEntries.end());
  return Dictionary(entries);
}

bool IsDictionary(const ObjectSpec& object) {
  return object.type == kDictionary || object.type == kDictionaryWithDefault;
}

// Puts the entries of a dictionary and leaves their objects for later.
void PutEntries(Drawing& drawing, const ObjectSpec& dictionary, const std::string& handle) {
  drawing.out.Put({{100, kDictionaryMarker}, {281, 1}});
  for (const NamedObject& entry : dictionary.entries) {
    const std::string entryHandle = drawing.handles.Or(entry.object.handle);
    drawing.out.Put({{3, entry.name}, {dictionary.ownsEntries ? 360 : 350, entryHandle}});
    if (!entry.object.type.empty()) {
      drawing.pending.push_back({entry.object, entryHandle, handle});
    }
  }
}

int ClassNumber(const Drawing& drawing, const std::string& className) {
  const auto found =
      std::find_if(drawing.classes.begin(), drawing.classes.end(),
                   [&](const ClassSpec& known) { return known.className == className; });
  if (found == drawing.classes.end()) throw std::invalid_argument("no such class: " + className);
  return kFirstClassNumber + static_cast<int>(found - drawing.classes.begin());
}

void PutProxy(Drawing& drawing, const std::string& className) {
  const std::string data(4, '\0');
  drawing.out.Put({{100, kProxyMarker},
                   {90, kProxyObjectClass},
                   {91, ClassNumber(drawing, className)},
                   {95, 0},
                   {70, 0},
                   {93, data.size() * 8},
                   {310, data},
                   {94, 0}});
}

void PutReactor(Drawing& drawing, const std::string& reactor) {
  if (!drawing.spec.statesOwners) return;
  drawing.out.Put({{102, kReactorGroup}, {330, reactor}, {102, kGroupEnd}});
}

void WriteObject(Drawing& drawing, const PendingObject& pending) {
  const ObjectSpec& object = pending.object;
  drawing.out.Put({0, object.type});
  drawing.PutHandle(pending.handle);
  if (pending.tellsReactor) PutReactor(drawing, pending.owner);
  drawing.PutExtension(object.extension, pending.handle);
  drawing.PutOwner(pending.owner);
  if (IsDictionary(object)) PutEntries(drawing, object, pending.handle);
  if (!object.proxiedClass.empty()) PutProxy(drawing, object.proxiedClass);
  drawing.out.Put(object.body);
}

}  // namespace

void WriteObjects(Drawing& drawing) {
  if (!HasObjects(drawing.version)) return;
  drawing.BeginSection("OBJECTS");
  WriteObject(drawing, {RootDictionary(drawing), drawing.handles.Next(), "0", false});
  // Writing an object may leave more of them.
  while (!drawing.pending.empty()) {
    const std::vector<PendingObject> objects = std::exchange(drawing.pending, {});
    for (const PendingObject& object : objects) WriteObject(drawing, object);
  }
  drawing.EndSection();
}

}  // namespace dxf
