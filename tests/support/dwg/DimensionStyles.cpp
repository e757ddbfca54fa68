#include "support/dwg/DimensionFields.h"
#include "support/dwg/Drawing.h"

namespace dwg {
namespace {

void PutOldStyle(const Drawing& drawing, Fields& fields) {
  const drawing::SettingsSpec& settings = drawing.spec.settings;
  PutOldDimensionModes(fields);
  PutDimensionSizes(fields);
  fields.T(settings.dimpost);
  fields.T(settings.dimapost);
  for (int block = 0; block < 3; ++block) fields.T("");
  PutDimensionRest(fields);
}

void PutStyle(const Drawing& drawing, Fields& fields) {
  fields.T(drawing.spec.settings.dimpost);
  fields.T(drawing.spec.settings.dimapost);
  PutDimensionSizes(fields);
  PutDimensionRest(fields);
  fields.BS(kLineWeightByBlock);
  fields.BS(kLineWeightByBlock);
}

}  // namespace

void WriteDimensionStyles(Drawing& drawing, Fields fields) {
  const bool isOld = !fields.IsSince(Version::AC1015);
  (isOld ? PutOldStyle : PutStyle)(drawing, fields);
  fields.B(false);
  fields.H(Link::HardPointer, drawing.styles.empty() ? 0 : drawing.styles.front().handle);
  if (!isOld) {
    for (int block = 0; block < 4; ++block) fields.H(Link::HardPointer, 0);
  }
  if (fields.IsSince(Version::AC1021)) {
    for (int linetype = 0; linetype < 3; ++linetype) fields.H(Link::HardPointer, 0);
  }
  drawing.Add(Type::DimensionStyle, fields);
}

}  // namespace dwg
