#include "interface/DrawingFolder.h"

#include "support/dwg/DwgMaker.h"
#include "support/dxf/DxfMaker.h"

namespace zdx_test {

drawing::DrawingSpec DrawingOf(std::vector<drawing::BlockSpec> blocks, const std::string& version) {
  drawing::DrawingSpec spec;
  spec.version = version;
  // No font.
  spec.textStyles = {{"Standard", ""}};
  spec.blocks = std::move(blocks);
  return spec;
}

std::string MadeDrawing(const std::string& name, std::vector<drawing::BlockSpec> blocks,
                        const std::string& version) {
  const drawing::DrawingSpec spec = DrawingOf(std::move(blocks), version);
  return name.ends_with(".dxf") ? dxf::Make(spec) : dwg::Make(spec);
}

std::filesystem::path DrawingFolder::Write(const std::string& name,
                                           std::vector<drawing::BlockSpec> blocks,
                                           const std::string& version) const {
  return WriteBytes(name, MadeDrawing(name, std::move(blocks), version));
}

std::filesystem::path DrawingFolder::WriteBytes(const std::string& name,
                                                const std::string& bytes) const {
  std::filesystem::create_directories(At(name).parent_path());
  return folder_.Write(name, bytes);
}

std::vector<std::string> LinesOf(const FileWalk& walk) {
  std::vector<std::string> lines;
  for (const WalkedFile& file : walk.files) {
    const auto parent = file.detail.parent;
    std::string line = parent ? walk.files.at(*parent).StoredPath() : "root";
    line += " > " + file.StoredPath();
    if (!file.detail.exists) line += " missing";
    if (file.detail.isRepeated) line += " repeated";
    if (file.detail.isUnloaded) line += " unloaded";
    if (file.isOverlay) line += " overlay";
    lines.push_back(line);
  }
  return lines;
}

}  // namespace zdx_test
