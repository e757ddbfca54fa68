// Writes the example drawings and their pictures into the folder named on the command line.

#include <filesystem>
#include <fstream>
#include <iostream>

#include "maker/Drawings.h"
#include "maker/Photo.h"
#include "maker/Plant.h"

namespace {

bool WriteFile(const std::filesystem::path& path, const std::string& bytes) {
  std::filesystem::create_directories(path.parent_path());
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
  bool worked = true;
  for (const examples::ExampleFile& file : examples::AllFiles()) {
    worked = WriteFile(folder / file.fileName, file.bytes) && worked;
  }
  worked = examples::WritePhoto((folder / examples::kPhotoName).string()) && worked;
  std::filesystem::create_directories((folder / examples::kPlantPhotoName).parent_path());
  worked = examples::WritePlantPhoto((folder / examples::kPlantPhotoName).string()) && worked;
  if (!worked) std::cerr << "make_examples: can't write to " << folder << '\n';
  return worked ? 0 : 1;
}
