#include <numbers>

#include "support/drawing/ReferenceObjects.h"
#include "support/dwg/Drawing.h"
#include "support/dwg/Tokens.h"

namespace dwg {
namespace {

constexpr int kLinetypeByLayer = 0x7FFF;
constexpr double kSquareEnd = std::numbers::pi / 2;

void WriteGroups(Drawing& drawing) {
  std::vector<NamedHandle> groups;
  for (const drawing::GroupSpec& group : drawing.spec.groups) {
    groups.push_back({group.name, drawing.NextHandle()});
    Fields fields = drawing.NewFields(groups.back().handle);
    BeginObject(fields, drawing.roots.groups, {drawing.roots.groups});
    fields.T(group.description);
    fields.BS(0);
    fields.BS(1);
    fields.BL(static_cast<std::int64_t>(group.members.size()));
    for (const std::string& member : group.members) {
      fields.H(Link::HardPointer, std::stoull(member, nullptr, kHexadecimal));
    }
    drawing.Add(Type::Group, fields);
  }
  WriteDictionary(drawing, drawing.roots.groups, drawing.roots.named, groups);
}

void WriteMlineStyle(Drawing& drawing, const std::string& name, Handle handle) {
  Fields fields = drawing.NewFields(handle);
  BeginObject(fields, drawing.roots.mlineStyles, {drawing.roots.mlineStyles});
  fields.T(name);
  fields.T("");
  fields.BS(0);
  fields.CMC(kByLayer);
  fields.BD(kSquareEnd);
  fields.BD(kSquareEnd);
  fields.RC(2);
  for (const double offset : {0.5, -0.5}) {
    fields.BD(offset);
    fields.CMC(kByLayer);
    if (fields.IsSince(Version::AC1032)) {
      fields.H(Link::HardPointer, drawing.roots.byLayer);
    } else {
      fields.BS(kLinetypeByLayer);
    }
  }
  drawing.Add(Type::MlineStyle, fields);
}

void WriteMlineStyles(Drawing& drawing) {
  std::vector<NamedHandle> styles;
  for (const std::string& name : drawing.spec.mlineStyles) {
    styles.push_back({name, drawing.NextHandle()});
    WriteMlineStyle(drawing, name, styles.back().handle);
  }
  WriteDictionary(drawing, drawing.roots.mlineStyles, drawing.roots.named, styles);
}

void WriteImageDefinition(Drawing& drawing, const drawing::ImageSpec& image, Handle handle,
                          Handle owner) {
  constexpr unsigned kNoUnits = 0;
  Fields fields = drawing.NewFields(handle);
  BeginObject(fields, owner, {owner});
  fields.BL(0);
  fields.Point2(image.pixelsAcross, image.pixelsUp);
  fields.T(image.path);
  fields.B(true);
  fields.RC(kNoUnits);
  fields.Point2(1.0, 1.0);
  drawing.Add(RecordHead{drawing.ClassNumber(drawing::kImageDefinition)}, fields);
}

Handle WriteImageDefinitions(Drawing& drawing) {
  const Handle dictionary = drawing.NextHandle();
  std::vector<NamedHandle> images;
  for (std::size_t i = 0; i < drawing.spec.images.size(); ++i) {
    const drawing::ImageSpec& image = drawing.spec.images[i];
    images.push_back({image.name, drawing.imageDefinitions[i]});
    WriteImageDefinition(drawing, image, images.back().handle, dictionary);
  }
  WriteDictionary(drawing, dictionary, drawing.roots.named, images);
  return dictionary;
}

}  // namespace

void WriteRootDictionary(Drawing& drawing) {
  const DrawingSpec& spec = drawing.spec;
  const Roots& roots = drawing.roots;
  const bool hasLayouts = drawing::HasLayouts(drawing.version);
  WriteGroups(drawing);
  WriteMlineStyles(drawing);
  if (hasLayouts) WriteLayouts(drawing);

  std::vector<NamedHandle> entries = {{drawing::kGroupKey, roots.groups}};
  if (!spec.images.empty()) {
    entries.push_back({drawing::kImageKey, WriteImageDefinitions(drawing)});
  }
  if (hasLayouts) entries.push_back({drawing::kLayoutKey, roots.layouts});
  entries.push_back({drawing::kMlineStyleKey, roots.mlineStyles});
  if (hasLayouts) {
    entries.push_back({drawing::kPlotSettingsKey, roots.plotSettings});
    entries.push_back({drawing::kPlotStyleKey, roots.plotStyles});
  }
  std::vector<NamedObject> objects;
  if (!drawing.IsSince(Version::AC1018) && spec.hasSummary) {
    objects.emplace_back(drawing::kSummaryKey, SummaryRecord(spec));
  }
  const std::vector<NamedObject> references = drawing::ReferenceDictionaries(spec, drawing.version);
  objects.insert(objects.end(), references.begin(), references.end());
  objects.insert(objects.end(), spec.rootEntries.begin(), spec.rootEntries.end());
  const std::vector<NamedHandle> others = WriteEntries(drawing, objects, roots.named);
  entries.insert(entries.end(), others.begin(), others.end());
  WriteDictionary(drawing, roots.named, 0, entries);
}

}  // namespace dwg
