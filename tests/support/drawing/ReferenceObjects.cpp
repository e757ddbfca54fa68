#include "support/drawing/ReferenceObjects.h"

#include <algorithm>
#include <iterator>

namespace drawing {
namespace {

struct UnderlayKind {
  UnderlayForm form;
  const char* key;
  const char* type;
  const char* className;
};

constexpr UnderlayKind kUnderlayKinds[] = {
    {UnderlayForm::Pdf, kPdfUnderlayKey, kPdfDefinition, kPdfDefinitionClass},
    {UnderlayForm::Dwf, kDwfUnderlayKey, kDwfDefinition, kDwfDefinitionClass},
    {UnderlayForm::Dgn, kDgnUnderlayKey, kDgnDefinition, kDgnDefinitionClass}};

struct PointCloudKind {
  bool isOfSecondClass;
  const char* key;
  const char* type;
  const char* className;
};

constexpr PointCloudKind kPointCloudKinds[] = {
    {false, kPointCloudKey, kPointCloudDefinition, kPointCloudDefinitionClass},
    {true, kSecondPointCloudKey, kSecondPointCloudDefinition, kSecondPointCloudDefinitionClass}};

// One dictionary with the class of its objects.
struct Shelf {
  ClassSpec objects;
  const char* key;
  std::vector<NamedObject> entries = {};
};

ObjectSpec Placed(ObjectSpec object, const std::string& handle) {
  object.handle = handle;
  return object;
}

Shelf Underlays(const DrawingSpec& spec, const UnderlayKind& kind) {
  Shelf shelf{{kind.type, kind.className}, kind.key};
  for (const UnderlaySpec& underlay : spec.underlays) {
    if (underlay.form != kind.form) continue;
    const ObjectSpec object = CustomObject(
        kind.type, {{100, kUnderlayDefinitionMarker}, {1, underlay.path}, {2, underlay.item}});
    shelf.entries.emplace_back(underlay.name, Placed(object, underlay.handle));
  }
  return shelf;
}

Shelf PointClouds(const DrawingSpec& spec, const PointCloudKind& kind) {
  Shelf shelf{{kind.type, kind.className}, kind.key};
  for (const PointCloudSpec& cloud : spec.pointClouds) {
    if (cloud.isOfSecondClass != kind.isOfSecondClass) continue;
    const ObjectSpec object = CustomObject(kind.type, {{100, kind.className},
                                                       {90, 3},
                                                       {1, cloud.path},
                                                       {280, 1},
                                                       {160, 1000},
                                                       {10, 0.0},
                                                       {20, 0.0},
                                                       {30, 0.0},
                                                       {11, 1.0},
                                                       {21, 1.0},
                                                       {31, 1.0}});
    shelf.entries.emplace_back(cloud.name, Placed(object, cloud.handle));
  }
  return shelf;
}

Shelf DataLinks(const DrawingSpec& spec) {
  Shelf shelf{{kDataLink, kDataLinkClass}, kDataLinkKey};
  for (const DataLinkSpec& link : spec.dataLinks) {
    const ObjectSpec object = CustomObject(kDataLink, {{100, kDataLinkClass},
                                                       {90, 1},
                                                       {1, link.adapter},
                                                       {300, link.description},
                                                       {301, link.tooltip},
                                                       {302, link.connection},
                                                       {90, 2},
                                                       {91, 1179649},
                                                       {92, 1},
                                                       {170, 2024},
                                                       {171, 1},
                                                       {172, 2},
                                                       {173, 3},
                                                       {174, 4},
                                                       {175, 5},
                                                       {176, 6},
                                                       {177, 3},
                                                       {93, 0},
                                                       {304, ""},
                                                       {94, 0},
                                                       {360, "0"}});
    shelf.entries.emplace_back(link.name, Placed(object, link.handle));
  }
  return shelf;
}

void AppendMap(std::vector<Tag>& tags, const MaterialMap& map, const std::string& file) {
  if (file.empty()) return;
  tags.insert(tags.end(), {Tag(map.blend, 1.0), Tag(map.source, 1), Tag(map.file, file)});
}

Shelf Materials(const DrawingSpec& spec) {
  Shelf shelf{{kMaterial, kMaterialClass}, kMaterialKey};
  for (const MaterialSpec& material : spec.materials) {
    std::vector<Tag> tags = {{100, kMaterialClass},
                             {1, material.name},
                             {2, material.description},
                             {70, 0},
                             {40, 1.0},
                             {71, 0},
                             {41, 1.0}};
    AppendMap(tags, kDiffuseMap, material.diffuse);
    tags.insert(tags.end(), {Tag(44, 0.5), Tag(76, 0), Tag(45, 1.0)});
    AppendMap(tags, kSpecularMap, material.specular);
    AppendMap(tags, kReflectionMap, material.reflection);
    tags.emplace_back(140, 1.0);
    AppendMap(tags, kOpacityMap, material.opacity);
    AppendMap(tags, kBumpMap, material.bump);
    tags.emplace_back(145, 1.0);
    AppendMap(tags, kRefractionMap, material.refraction);
    tags.emplace_back(94, 63);
    shelf.entries.emplace_back(material.name,
                               Placed(CustomObject(kMaterial, tags), material.handle));
  }
  return shelf;
}

std::vector<Shelf> Shelves(const DrawingSpec& spec, Version version) {
  std::vector<Shelf> shelves;
  if (HasUnderlays(version)) {
    for (const UnderlayKind& kind : kUnderlayKinds) shelves.push_back(Underlays(spec, kind));
  }
  if (HasPointClouds(version)) {
    for (const PointCloudKind& kind : kPointCloudKinds) shelves.push_back(PointClouds(spec, kind));
  }
  if (HasMaterials(version)) {
    shelves.push_back(DataLinks(spec));
    shelves.push_back(Materials(spec));
  }
  std::erase_if(shelves, [](const Shelf& shelf) { return shelf.entries.empty(); });
  return shelves;
}

}  // namespace

std::vector<NamedObject> ReferenceDictionaries(const DrawingSpec& spec, Version version) {
  std::vector<NamedObject> dictionaries;
  for (const Shelf& shelf : Shelves(spec, version)) {
    dictionaries.emplace_back(shelf.key, Dictionary(shelf.entries));
  }
  return dictionaries;
}

std::vector<ClassSpec> ReferenceClasses(const DrawingSpec& spec, Version version) {
  std::vector<ClassSpec> classes;
  for (const Shelf& shelf : Shelves(spec, version)) classes.push_back(shelf.objects);
  return classes;
}

bool IsUnderlayDefinition(const std::string& type) {
  return std::any_of(std::begin(kUnderlayKinds), std::end(kUnderlayKinds),
                     [&](const UnderlayKind& kind) { return type == kind.type; });
}

bool IsPointCloudDefinition(const std::string& type) {
  return std::any_of(std::begin(kPointCloudKinds), std::end(kPointCloudKinds),
                     [&](const PointCloudKind& kind) { return type == kind.type; });
}

}  // namespace drawing
