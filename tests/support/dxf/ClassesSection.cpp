#include <algorithm>
#include <cctype>

#include "support/drawing/ReferenceObjects.h"
#include "support/dxf/Drawing.h"
#include "support/dxf/Tokens.h"

namespace dxf {
namespace {

constexpr const char* kPictureApplication = "ISM";
// Programs without the class may still erase, copy and move its objects.
constexpr int kProxyFlags = 1153;

std::string UpperCase(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char letter) { return static_cast<char>(std::toupper(letter)); });
  return text;
}

bool Knows(const std::vector<ClassSpec>& classes, const std::string& className) {
  return std::any_of(classes.begin(), classes.end(),
                     [&](const ClassSpec& known) { return known.className == className; });
}

void AddProxied(std::vector<ClassSpec>& classes, const std::vector<NamedObject>& entries) {
  for (const NamedObject& entry : entries) {
    const std::string& name = entry.object.proxiedClass;
    if (!name.empty() && !Knows(classes, name)) classes.push_back({UpperCase(name), name});
    AddProxied(classes, entry.object.entries);
    AddProxied(classes, entry.object.extension);
  }
}

void AddProxied(std::vector<ClassSpec>& classes, const std::vector<EntitySpec>& entities) {
  for (const EntitySpec& entity : entities) AddProxied(classes, entity.extension);
}

}  // namespace

std::vector<ClassSpec> ClassesOf(const DrawingSpec& spec, Version version) {
  std::vector<ClassSpec> classes;
  if (HasLayouts(version)) {
    classes = {{kDictionaryWithDefault, kDictionaryWithDefaultMarker},
               {kPlaceholder, kPlaceHolderMarker},
               {kLayout, kLayoutMarker}};
  }
  if (!spec.images.empty() && HasImages(version)) {
    classes.push_back({kImageDefinition, kImageDefinitionMarker, kPictureApplication});
    classes.push_back({kImageReactor, kImageReactorMarker, kPictureApplication});
    classes.push_back({kImage, kImageMarker, kPictureApplication, true});
  }
  const std::vector<ClassSpec> references = ReferenceClasses(spec, version);
  classes.insert(classes.end(), references.begin(), references.end());
  classes.insert(classes.end(), spec.classes.begin(), spec.classes.end());
  AddProxied(classes, spec.rootEntries);
  AddProxied(classes, spec.modelExtension);
  AddProxied(classes, spec.entities);
  for (const BlockSpec& block : spec.blocks) {
    AddProxied(classes, block.extension);
    AddProxied(classes, block.entities);
  }
  return classes;
}

void WriteClasses(Drawing& drawing) {
  if (!HasObjects(drawing.version)) return;
  drawing.BeginSection("CLASSES");
  for (const ClassSpec& known : drawing.classes) {
    drawing.out.Put({{0, "CLASS"},
                     {1, known.type},
                     {2, known.className},
                     {3, known.application},
                     {90, kProxyFlags}});
    if (drawing.version >= Version::AC1018) drawing.out.Put({91, 1});
    drawing.out.Put({{280, 0}, {281, known.isEntity}});
  }
  drawing.EndSection();
}

}  // namespace dxf
