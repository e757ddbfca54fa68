#include <algorithm>

#include "support/drawing/ReferenceObjects.h"
#include "support/dwg/Drawing.h"
#include "support/dwg/Tokens.h"
#include "support/dwg/Types.h"

namespace dwg {
namespace {

using drawing::ClassSpec;

constexpr const char* kPictureApplication = "ISM";

std::string UpperCase(std::string text) {
  for (char& letter : text) {
    if (letter >= 'a' && letter <= 'z') letter = static_cast<char>(letter - 32);
  }
  return text;
}

// The records of a spec that need classes that it doesn't list.
class ClassList {
 public:
  explicit ClassList(Version version) : version_(version) {}

  void AddStandard(const DrawingSpec& spec) {
    if (drawing::HasLayouts(version_)) {
      AddClass({drawing::kDictionaryWithDefault, drawing::kDictionaryWithDefaultMarker});
      AddClass({drawing::kPlaceholder, drawing::kPlaceHolderMarker});
      AddClass({drawing::kLayout, drawing::kLayoutMarker});
      AddClass({drawing::kPlotSettings, drawing::kPlotSettingsMarker});
    } else {
      AddClass({kLightPolyline, drawing::kPolylineMarker, "ObjectLib Classes", true});
      AddClass({drawing::kXrecord, drawing::kXrecordMarker});
    }
    for (const ClassSpec& known : drawing::ReferenceClasses(spec, version_)) AddClass(known);
    if (spec.images.empty()) return;
    AddClass({drawing::kImageDefinition, drawing::kImageDefinitionMarker, kPictureApplication});
    AddClass({drawing::kImageReactor, drawing::kImageReactorMarker, kPictureApplication});
    AddClass({drawing::kImage, drawing::kImageMarker, kPictureApplication, true});
  }

  void AddClass(const ClassSpec& known) {
    const bool isListed =
        std::any_of(classes_.begin(), classes_.end(),
                    [&](const ClassSpec& other) { return other.type == known.type; });
    if (!isListed) classes_.push_back(known);
  }

  void Add(const std::vector<NamedObject>& entries) {
    for (const NamedObject& entry : entries) {
      Add(entry.object);
      Add(entry.object.entries);
      Add(entry.object.extension);
    }
  }

  void Add(const std::vector<EntitySpec>& entities) {
    for (const EntitySpec& entity : entities) Add(entity.extension);
  }

  std::vector<NumberedClass> Numbered() const {
    std::vector<NumberedClass> numbered;
    unsigned number = static_cast<unsigned>(Type::FirstClass);
    for (const ClassSpec& known : classes_) numbered.push_back({known, number++});
    return numbered;
  }

 private:
  void Add(const ObjectSpec& object) {
    const bool isPlain = object.type.empty() || object.type == drawing::kDictionary ||
                         object.type == drawing::kXrecord || object.type == drawing::kProxyObject;
    if (!object.proxiedClass.empty())
      AddClass({UpperCase(object.proxiedClass), object.proxiedClass});
    if (!isPlain) AddClass({object.type, object.type});
  }

  Version version_;
  std::vector<ClassSpec> classes_;
};

}  // namespace

std::vector<NumberedClass> NumberedClasses(const DrawingSpec& spec, Version version) {
  ClassList list(version);
  list.AddStandard(spec);
  for (const ClassSpec& known : spec.classes) list.AddClass(known);
  list.Add(spec.rootEntries);
  list.Add(spec.modelExtension);
  list.Add(spec.entities);
  for (const drawing::BlockSpec& block : spec.blocks) {
    list.Add(block.extension);
    list.Add(block.entities);
  }
  for (const drawing::LayoutSpec& layout : spec.layouts) list.Add(layout.entities);
  return list.Numbered();
}

}  // namespace dwg
