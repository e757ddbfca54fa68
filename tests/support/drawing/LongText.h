// Texts that are cut into pieces because a value can't hold them.
#pragma once

#include <string>
#include <vector>

#include "support/drawing/Tags.h"

namespace drawing {

// The first part of `rest`, of at most `longest` bytes, which is taken off; cut between characters.
std::string TakePiece(std::string& rest, std::size_t longest);

// A text of many lines: all pieces but the last under 3, that one under 1.
void AppendLongText(std::vector<Tag>& tags, std::string text);

}  // namespace drawing
