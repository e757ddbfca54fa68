// Writes the example drawings and their picture into the folder named on the command line.

#include <filesystem>
#include <fstream>
#include <iostream>

#include "maker/Drawings.h"
#include "maker/Photo.h"
#include "support/dxf/DxfMaker.h"

namespace {

bool WriteFile(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream file(path, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return static_cast<bool>(file.flush());
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: make_examples FOLDER\n";
    return 2;
  }
  const std::filesystem::path folder = argv[1];
  bool worked = examples::WritePhoto((folder / examples::kPhotoName).string());
  for (const examples::ExampleDrawing& drawing : examples::AllDrawings()) {
    worked =
        WriteFile(folder / drawing.fileName, dxf::Make(drawing.spec, drawing.writing)) && worked;
  }
  if (!worked) std::cerr << "make_examples: can't write to " << folder << '\n';
  return worked ? 0 : 1;
}
