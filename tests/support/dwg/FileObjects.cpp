// Objects of classes that name files.
#include "support/drawing/ReferenceObjects.h"
#include "support/dwg/Drawing.h"
#include "support/dwg/TagValues.h"

namespace dwg {
namespace {

void PutUnderlay(Fields& fields, const TagValues& values) {
  fields.T(values.Text(1));
  fields.T(values.Text(2));
}

void PutPointCloud(Fields& fields, const TagValues& values) {
  fields.BL(values.Integer(90));
  fields.T(values.Text(1));
  fields.B(values.Integer(280) != 0);
  // The number of its points, in eight bytes.
  fields.RL(static_cast<std::uint32_t>(values.Integer(160)));
  fields.RL(0);
  for (const int code : {10, 11}) {
    fields.Point3(values.Real(code), values.Real(code + 10), values.Real(code + 20));
  }
}

void PutDataLink(Fields& fields, const TagValues& values) {
  fields.BL(values.Integer(90));
  for (const int code : {1, 300, 301, 302}) fields.T(values.Text(code));
  for (const int code : {91, 92}) fields.BL(values.Integer(code));
  for (const int code : {170, 171, 172, 173, 174, 175, 176, 177}) fields.BS(values.Integer(code));
  fields.BL(values.Integer(93));
  fields.T(values.Text(304));
  fields.BL(values.Integer(94));
  fields.H(Link::HardOwner, 0);
}

void PutMap(Fields& fields, const TagValues& values, const drawing::MaterialMap& map) {
  constexpr int kMatrixSize = 4;
  fields.BD(values.Real(map.blend, 1.0));
  // How it lies on a body.
  for (int i = 0; i < 3; ++i) fields.RC(1);
  for (int row = 0; row < kMatrixSize; ++row) {
    for (int column = 0; column < kMatrixSize; ++column) fields.BD(row == column ? 1.0 : 0.0);
  }
  const bool hasFile = values.Has(map.file);
  fields.RC(hasFile ? 1 : 0);
  if (hasFile) fields.T(values.Text(map.file));
}

// No colours of its own; behind the maps how light falls through it.
void PutMaterial(Fields& fields, const TagValues& values) {
  fields.T(values.Text(1));
  fields.T(values.Text(2));
  fields.RC(0);
  fields.BD(values.Real(40));
  fields.RC(0);
  fields.BD(values.Real(41));
  PutMap(fields, values, drawing::kDiffuseMap);
  fields.RC(0);
  fields.BD(values.Real(45));
  PutMap(fields, values, drawing::kSpecularMap);
  fields.BD(values.Real(44));
  PutMap(fields, values, drawing::kReflectionMap);
  fields.BD(values.Real(140));
  PutMap(fields, values, drawing::kOpacityMap);
  PutMap(fields, values, drawing::kBumpMap);
  fields.BD(values.Real(145));
  PutMap(fields, values, drawing::kRefractionMap);
  for (int i = 0; i < 3; ++i) fields.BD(0.0);
  fields.BL(0);
  fields.BL(values.Integer(94));
  fields.BL(0);
}

}  // namespace

void PutFileObject(Fields& fields, const ObjectSpec& object) {
  const TagValues values(object.body);
  if (drawing::IsUnderlayDefinition(object.type)) return PutUnderlay(fields, values);
  if (drawing::IsPointCloudDefinition(object.type)) return PutPointCloud(fields, values);
  if (object.type == drawing::kDataLink) return PutDataLink(fields, values);
  if (object.type == drawing::kMaterial) return PutMaterial(fields, values);
}

}  // namespace dwg
