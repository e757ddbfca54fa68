#include "support/dwg/Drawing.h"

namespace dwg {
namespace {

constexpr int kTextVersion = 4;

// Of a text that doesn't grow with the drawing's scale.
void PutColumns(Fields& fields, const TextLine& text) {
  fields.B(true);
  fields.BS(kTextVersion);
  fields.B(true);
  fields.BL(1);
  fields.Point3(1.0, 0.0);
  fields.Point3(text.at.x, text.at.y);
  for (int i = 0; i < 4; ++i) fields.BD(0.0);
  fields.BS(0);
}

}  // namespace

void PutManyLines(Fields& fields, const TextLine& text) {
  fields.Point3(text.at.x, text.at.y);
  fields.Point3(0.0, 0.0, 1.0);
  fields.Point3(1.0, 0.0);
  fields.BD(0.0);
  if (fields.IsSince(Version::AC1021)) fields.BD(0.0);
  fields.BD(text.height);
  fields.BS(1);
  fields.BS(5);
  fields.BD(0.0);
  fields.BD(0.0);
  fields.T(text.text);
  if (fields.IsSince(Version::AC1015)) {
    fields.BS(1);
    fields.BD(1.0);
    fields.B(false);
  }
  if (fields.IsSince(Version::AC1018)) fields.BL(0);
  if (!fields.IsSince(Version::AC1032)) return;
  PutColumns(fields, text);
}
}  // namespace dwg
