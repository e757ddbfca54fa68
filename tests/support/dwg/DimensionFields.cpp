#include "support/dwg/DimensionFields.h"

#include <initializer_list>

namespace dwg {
namespace {

constexpr double kArrowSize = 2.5;
constexpr double kQuarterTurn = 0.7853981633974483;

void Bits(Fields& fields, std::initializer_list<int> values) {
  for (const int value : values) fields.B(value != 0);
}

void Shorts(Fields& fields, std::initializer_list<int> values) {
  for (const int value : values) fields.BS(value);
}

void Bytes(Fields& fields, std::initializer_list<unsigned> values) {
  for (const unsigned value : values) fields.RC(value);
}

void Reals(Fields& fields, std::initializer_list<double> values) {
  for (const double value : values) fields.BD(value);
}

}  // namespace

// DIMTOL to DIMSOXD, DIMALTD DIMZIN, DIMSD1 DIMSD2, DIMTOLJ to DIMFIT, DIMUPT, DIMTZIN to DIMTAD,
// DIMUNIT to DIMALTTD.
void PutOldDimensionModes(Fields& fields) {
  Bits(fields, {0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0});
  Bytes(fields, {3, 8});
  Bits(fields, {0, 0});
  Bytes(fields, {0, 0, 3});
  Bits(fields, {0});
  Bytes(fields, {8, 0, 0, 1});
  Shorts(fields, {2, 0, 2, 2, 2, 3});
}

// DIMSCALE to DIMTM, DIMFXL to DIMTFILLCLR, DIMTOL to DIMARCSYM, DIMTXT to DIMGAP.
void PutDimensionSizes(Fields& fields) {
  Reals(fields, {1.0, kArrowSize, 0.625, 3.75, 1.25, 0.0, 0.0, 0.0, 0.0});
  if (fields.IsSince(Version::AC1021)) {
    Reals(fields, {1.0, kQuarterTurn});
    fields.BS(0);
    fields.CMC(0);
  }
  if (fields.IsSince(Version::AC1015)) {
    Bits(fields, {0, 0, 0, 0, 0, 0});
    Shorts(fields, {1, 8, 0});
  }
  if (fields.IsSince(Version::AC1021)) fields.BS(0);
  Reals(fields, {2.5, 2.5, 0.0, 0.03937007874016, 1.0, 0.0, 1.0, 0.625});
}

// DIMALTRND to DIMMZS.
void PutDimensionRest(Fields& fields) {
  if (fields.IsSince(Version::AC1015)) {
    Reals(fields, {0.0});
    Bits(fields, {0});
    Shorts(fields, {3});
    Bits(fields, {1, 0, 0, 0});
  }
  for (int i = 0; i < 3; ++i) fields.CMC(0);
  if (!fields.IsSince(Version::AC1015)) return;
  Shorts(fields, {0, 2, 2, 2, 3, 0, 0, 2, '.', 0, 0});
  Bits(fields, {0, 0});
  Shorts(fields, {0, 8, 0, 0});
  Bits(fields, {0});
  Shorts(fields, {3});
  if (fields.IsSince(Version::AC1021)) Bits(fields, {0});
  if (!fields.IsSince(Version::AC1024)) return;
  Bits(fields, {0});
  for (int i = 0; i < 2; ++i) {
    Reals(fields, {100.0});
    fields.T("");
  }
}

}  // namespace dwg
