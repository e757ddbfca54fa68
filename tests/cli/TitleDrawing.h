// A drawing with a title block, and files of it.
#pragma once

#include <string>

#include "support/drawing/DrawingSpec.h"

namespace zdx_test {

// A sheet with one reference of TITLE on its paper: SCALE "1:50" with a prompt, NO "17" without
// one, NOTES of two lines, and the constant OFFICE.
drawing::DrawingSpec TitleDrawing();

// Another block of that name with one attribute TAG "x", and a reference of it in model space.
void AddBlock(drawing::DrawingSpec& spec, const std::string& name);

}  // namespace zdx_test
