#include "support/dwg/Drawing.h"
#include "support/dwg/Tokens.h"

namespace dwg {
namespace {

constexpr int kShown = 7;
constexpr unsigned kHalf = 50;
constexpr int kReactorVersion = 2;

void PutPlace(Fields& fields, const drawing::ImageSpec& image) {
  const double pixel = image.width / image.pixelsAcross;
  fields.BL(0);
  fields.Point3(image.at.x, image.at.y);
  fields.Point3(pixel, 0.0);
  fields.Point3(0.0, pixel);
  fields.Point2(image.pixelsAcross, image.pixelsUp);
  fields.BS(kShown);
  fields.B(false);
  fields.RC(kHalf);
  fields.RC(kHalf);
  fields.RC(0);
  if (fields.IsSince(Version::AC1024)) fields.B(false);
  // What is shown of it: a rectangle, the whole.
  fields.BS(1);
  fields.Point2(-0.5, -0.5);
  fields.Point2(image.pixelsAcross - 0.5, image.pixelsUp - 0.5);
}

Handle WriteReactor(Drawing& drawing, Handle image) {
  Fields fields = drawing.NewFields(drawing.NextHandle());
  BeginObject(fields, image);
  fields.BL(kReactorVersion);
  drawing.Add(RecordHead{drawing.ClassNumber(drawing::kImageReactor)}, fields);
  return fields.Own();
}

}  // namespace

void WriteImage(Drawing& drawing, const PlannedEntity& planned, const EntityPlace& place) {
  const auto index = static_cast<std::size_t>(planned.image - drawing.spec.images.data());
  EntitySpec entity;
  entity.layer = planned.image->layer;
  Fields fields = drawing.NewFields(planned.handle);
  BeginEntity(drawing, fields, entity, place, {});
  PutPlace(fields, *planned.image);
  fields.H(Link::HardPointer, drawing.imageDefinitions[index]);
  fields.H(Link::HardOwner, WriteReactor(drawing, planned.handle));
  drawing.Add(RecordHead{drawing.ClassNumber(drawing::kImage), true}, fields);
}

}  // namespace dwg
