#pragma once

#include <string>
#include <vector>

#include "support/drawing/DrawingSpec.h"

namespace dxf {

enum class Form { Ascii, Binary };

// How a file is written, whatever it tells.
struct Writing {
  Form form = Form::Ascii;
  // Of the text form, as the rest.
  std::string lineEnd = "\r\n";
  bool hasByteOrderMark = false;
  // At the head of the file.
  std::vector<std::string> remarks = {};
};

// The bytes of a DXF file that holds what `spec` tells, always the same for the same spec.
// Throws std::invalid_argument if the spec can't be written.
//
//   drawing::DrawingSpec spec;
//   spec.version = "AC1015";
//   spec.layers = {"0", "Walls"};
//   const std::string bytes = dxf::Make(spec);
std::string Make(const drawing::DrawingSpec& spec, const Writing& writing = {});

}  // namespace dxf
