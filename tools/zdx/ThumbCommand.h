// `zdx thumb`: writes the preview picture of a drawing to a file.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "PictureFiles.h"

namespace zdx {

struct ThumbOptions {
  // As the command line gives them, in the system's bytes.
  std::string file;
  std::string output;
  PictureKind kind = PictureKind::kPng;
};

// The kind of picture that a file's name ends in, in any case; nothing if it ends in none.
std::optional<PictureKind> PictureKindOf(std::string_view name);

// Returns the exit code.
int RunThumb(const ThumbOptions& options);

}  // namespace zdx
