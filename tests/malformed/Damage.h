// A whole drawing and the ways to damage it.
#pragma once

#include <string>

#include "support/dxf/DxfMaker.h"

namespace damage {

// A small drawing with something in every table and dictionary.
drawing::DrawingSpec Sound(const std::string& version = "AC1032");
// The text form with LF line ends.
std::string TextOf(const drawing::DrawingSpec& spec);
std::string SoundText(const std::string& version = "AC1032");
std::string SoundBinary(const std::string& version = "AC1032");

// `text` with the first `from` replaced by `to`; throws if it isn't there.
std::string Replaced(std::string text, const std::string& from, const std::string& to);
// `text` without the first `part`; throws if it isn't there.
std::string Without(const std::string& text, const std::string& part);

}  // namespace damage
