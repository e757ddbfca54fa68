#include "malformed/Damage.h"

#include <stdexcept>

namespace damage {

dxf::DrawingSpec Sound(const std::string& version) {
  dxf::DrawingSpec spec;
  spec.version = version;
  spec.lineEnd = "\n";
  spec.summary.title = "Sound";
  spec.customProperties = {{"Key", "Value"}};
  spec.layers = {"0", "First", "Second", "Third"};
  spec.linetypes = {{"Dash", "Dashed __ __", {1.0, -0.5}}};
  spec.views = {"North"};
  spec.blocks = {{"door"}};
  spec.groups = {"Pair"};
  spec.rootEntries = {{"MY_DATA", dxf::Xrecord()}};
  return spec;
}

std::string SoundText(const std::string& version) { return dxf::Make(Sound(version)); }

std::string SoundBinary(const std::string& version) {
  dxf::DrawingSpec spec = Sound(version);
  spec.form = dxf::Form::Binary;
  return dxf::Make(spec);
}

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
  const std::size_t at = text.find(from);
  if (at == std::string::npos) throw std::invalid_argument("nothing to damage: " + from);
  return text.replace(at, from.size(), to);
}

std::string Without(const std::string& text, const std::string& part) {
  return Replaced(text, part, "");
}

}  // namespace damage
