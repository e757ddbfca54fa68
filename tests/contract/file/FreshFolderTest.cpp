#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "backends/database/file/FreshFolder.h"
#include "support/Paths.h"

namespace {

using zdx::file::MakeFreshFolder;
using zdx::file::RemoveEmptyFolder;

std::wstring Made() {
  const auto made = MakeFreshFolder();
  return std::get<std::wstring>(made);
}

TEST(FreshFolder, IsEmptyAndOneOfItsOwn) {
  const std::wstring first = Made();
  const std::wstring second = Made();
  EXPECT_NE(first, second);
  for (const std::wstring& folder : {first, second}) {
    EXPECT_TRUE(zdx_test::PathOf(folder).is_absolute());
    EXPECT_TRUE(std::filesystem::is_empty(zdx_test::PathOf(folder)));
    RemoveEmptyFolder(folder);
    EXPECT_FALSE(std::filesystem::exists(zdx_test::PathOf(folder)));
  }
}

TEST(FreshFolder, StaysWhileSomethingIsInIt) {
  const std::wstring folder = Made();
  const auto file = zdx_test::PathOf(folder) / "file";
  std::ofstream(file) << "kept";
  RemoveEmptyFolder(folder);
  EXPECT_TRUE(std::filesystem::exists(file));
  std::filesystem::remove(file);
  RemoveEmptyFolder(folder);
  EXPECT_FALSE(std::filesystem::exists(zdx_test::PathOf(folder)));
}

}  // namespace
