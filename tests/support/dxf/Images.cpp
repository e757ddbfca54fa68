#include "support/dxf/Drawing.h"
#include "support/dxf/Tokens.h"

namespace dxf {
namespace {

void WriteImage(Drawing& drawing, const ImageSpec& image, const std::string& definition,
                const PlannedBlock& modelSpace) {
  EntitySpec entity;
  entity.type = kImage;
  entity.layer = image.layer;
  const std::string handle =
      BeginEntity(drawing, entity, modelSpace.recordHandle, modelSpace.isPaper);
  const double pixel = image.width / image.pixelsAcross;
  const std::string reactor = drawing.handles.Next();

  drawing.out.Put({{100, kImageMarker}, {90, 0}});
  drawing.out.PutPoint(10, image.at.x, image.at.y);
  drawing.out.PutPoint(11, pixel, 0.0);
  drawing.out.PutPoint(12, 0.0, pixel);
  drawing.out.Put({{13, image.pixelsAcross},
                   {23, image.pixelsUp},
                   {340, definition},
                   {70, 7},
                   {280, 0},
                   {281, 50},
                   {282, 50},
                   {283, 0},
                   {360, reactor},
                   {71, 1},
                   {91, 2}});
  drawing.out.Put({{14, -0.5}, {24, -0.5}});
  drawing.out.Put({{14, image.pixelsAcross - 0.5}, {24, image.pixelsUp - 0.5}});
  const ObjectSpec object =
      CustomObject(kImageReactor, {{100, kImageReactorMarker}, {90, 2}, {330, handle}});
  drawing.pending.push_back({object, reactor, handle, false});
}

ObjectSpec ImageDefinition(const ImageSpec& image, std::string handle) {
  ObjectSpec object = CustomObject(kImageDefinition, {{100, kImageDefinitionMarker},
                                                      {90, 0},
                                                      {1, image.path},
                                                      {10, image.pixelsAcross},
                                                      {20, image.pixelsUp},
                                                      {11, 1.0},
                                                      {21, 1.0},
                                                      {280, 1},
                                                      {281, 0}});
  object.handle = std::move(handle);
  return object;
}

}  // namespace

void WriteImages(Drawing& drawing, const PlannedBlock& modelSpace) {
  if (!HasImages(drawing.version)) return;
  for (std::size_t i = 0; i < drawing.spec.images.size(); ++i) {
    WriteImage(drawing, drawing.spec.images[i], drawing.imageDefinitions[i], modelSpace);
  }
}

NamedObject ImageDictionary(const Drawing& drawing) {
  ObjectSpec dictionary = Dictionary();
  dictionary.handle = drawing.imageDictionary;
  for (std::size_t i = 0; i < drawing.spec.images.size(); ++i) {
    const ImageSpec& image = drawing.spec.images[i];
    dictionary.entries.emplace_back(image.name,
                                    ImageDefinition(image, drawing.imageDefinitions[i]));
  }
  return {kImageKey, dictionary};
}

}  // namespace dxf
