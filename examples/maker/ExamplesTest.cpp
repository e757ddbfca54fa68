#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "maker/Drawings.h"
#include "maker/Photo.h"
#include "maker/Plant.h"

namespace examples {
namespace {

std::filesystem::path Folder() { return std::filesystem::path(ZDX_SOURCE_DIR) / "examples"; }

std::string Contents(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(Examples, TheFilesOfTheFolderAreWhatTheMakerMakes) {
  for (const ExampleFile& file : AllFiles()) {
    // Not EXPECT_EQ: the files would fill the screen.
    EXPECT_TRUE(Contents(Folder() / file.fileName) == file.bytes)
        << file.fileName << " differs; run make_examples";
  }
}

TEST(Examples, ThePicturesInTheDrawingsAreThere) {
  EXPECT_TRUE(std::filesystem::exists(Folder() / kPhotoName));
  EXPECT_TRUE(std::filesystem::exists(Folder() / kPlantPhotoName));
}

}  // namespace
}  // namespace examples
