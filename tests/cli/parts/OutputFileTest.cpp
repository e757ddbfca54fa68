#include <gtest/gtest.h>

#include <filesystem>

#include "OutputFile.h"
#include "support/Paths.h"
#include "support/Scratch.h"

namespace zdx {

namespace {

using zdx_test::BytesOf;
using zdx_test::ContentsOf;

class NewOutputFile : public ::testing::Test {
 protected:
  zdx_test::ScratchFolder folder;
  std::filesystem::path path = folder.Write("out.png", "old");
};

TEST_F(NewOutputFile, ThatIsLargeIsWhole) {
  std::string bytes(3'000'000, 'x');
  bytes.back() = 'y';
  EXPECT_EQ(WriteFile(BytesOf(path), bytes), std::nullopt);
  EXPECT_EQ(ContentsOf(path), bytes);
}

TEST_F(NewOutputFile, LeavesAFileAloneThatHasItsFirstName) {
  const std::filesystem::path other = folder.Write("out.png.zdx-0", "somebody's");
  EXPECT_EQ(WriteFile(BytesOf(path), "new"), std::nullopt);
  EXPECT_EQ(ContentsOf(other), "somebody's");
  EXPECT_EQ(ContentsOf(path), "new");
}

}  // namespace

}  // namespace zdx
