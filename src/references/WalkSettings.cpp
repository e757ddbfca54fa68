#include "references/WalkSettings.h"

namespace ZDXEngine {
namespace {

struct OptionalBit {
  bool DependencySettings::*setting;
  ZnDwgDepends::DwgDependsSettings bit;
};

constexpr ZnDwgDepends::DwgDependsSettings kAlways = 0xb8d;
constexpr OptionalBit kOptionalBits[] = {
    {&DependencySettings::WalkBit10, 0x10},     {&DependencySettings::WalkBit20, 0x20},
    {&DependencySettings::WalkBit400, 0x400},   {&DependencySettings::WalkBit40, 0x40},
    {&DependencySettings::WalkBit1000, 0x1000},
};

}  // namespace

ZnDwgDepends::DwgDependsSettings SettingsMask(const DependencySettings& settings) {
  ZnDwgDepends::DwgDependsSettings mask = kAlways;
  for (const OptionalBit& optional : kOptionalBits) {
    if (settings.*optional.setting) mask |= optional.bit;
  }
  return mask;
}

}  // namespace ZDXEngine
