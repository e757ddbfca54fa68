#include "malformed/Damage.h"

#include <stdexcept>

namespace damage {

drawing::DrawingSpec Sound(const std::string& version) {
  drawing::DrawingSpec spec;
  spec.version = version;
  spec.summary.title = "Sound";
  spec.customProperties = {{"Key", "Value"}};
  spec.layers = {"0", "First", "Second", "Third"};
  spec.linetypes = {{"Dash", "Dashed __ __", {1.0, -0.5}}};
  spec.views = {"North"};
  spec.blocks = {{"door"}};
  spec.groups = {"Pair"};
  spec.rootEntries = {{"MY_DATA", drawing::Xrecord()}};
  return spec;
}

std::string TextOf(const drawing::DrawingSpec& spec) { return dxf::Make(spec, {.lineEnd = "\n"}); }

std::string SoundText(const std::string& version) { return TextOf(Sound(version)); }

std::string SoundBinary(const std::string& version) {
  return dxf::Make(Sound(version), {.form = dxf::Form::Binary});
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
