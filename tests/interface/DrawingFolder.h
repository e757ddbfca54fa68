// Drawings that refer to each other, in a folder of their own.
#pragma once

#include <string>
#include <vector>

#include "support/PublicWalk.h"
#include "support/Scratch.h"
#include "support/drawing/DrawingSpec.h"

namespace zdx_test {

// A drawing that names no file but those of `blocks`, in the format of its name's extension.
std::string MadeDrawing(const std::string& name, std::vector<drawing::BlockSpec> blocks,
                        const std::string& version = "AC1018");

class DrawingFolder {
 public:
  // Such a drawing.
  std::filesystem::path Write(const std::string& name, std::vector<drawing::BlockSpec> blocks = {},
                              const std::string& version = "AC1018") const;
  std::filesystem::path WriteBytes(const std::string& name, const std::string& bytes) const;
  std::filesystem::path At(const std::string& name) const { return folder_.path() / name; }

 private:
  ScratchFolder folder_;
};

// The description of such a drawing.
drawing::DrawingSpec DrawingOf(std::vector<drawing::BlockSpec> blocks, const std::string& version);

// A walk's files as lines: "parent > stored path", with "missing", "repeated", "unloaded" and
// "overlay" behind it; the walked drawing as a parent is "root".
std::vector<std::string> LinesOf(const FileWalk& walk);

}  // namespace zdx_test
