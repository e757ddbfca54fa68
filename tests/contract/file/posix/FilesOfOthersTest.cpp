// What other programs and the owner of a file do to it, as POSIX has it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>

#include "backends/database/file/MappedFile.h"
#include "backends/database/file/Replacement.h"
#include "support/Paths.h"
#include "support/Scratch.h"

namespace zdx::file {

namespace {

using zdx_test::ContentsOf;
using zdx_test::NameOf;

class FilesOfOthers : public testing::Test {
 protected:
  static void Replace(const std::filesystem::path& path) {
    auto begun = Replacement::Begin(NameOf(path));
    ASSERT_TRUE(std::holds_alternative<Replacement>(begun));
    EXPECT_FALSE(std::get<Replacement>(begun).Append("new"));
    EXPECT_FALSE(std::get<Replacement>(begun).Commit());
  }

  zdx_test::ScratchFolder folder;
};

TEST_F(FilesOfOthers, ThatAreOpenAreReplacedAndKeepTheirContentForThemWhoHaveThemOpen) {
  const auto path = folder.Write("plan.dwg", "old");
  std::ifstream open(path);
  Replace(path);
  std::string content;
  open >> content;
  EXPECT_EQ(content, "old");
  EXPECT_EQ(ContentsOf(path), "new");
}

TEST_F(FilesOfOthers, ThatAreMappedKeepTheirBytesWhenTheyAreReplaced) {
  const auto path = folder.Write("plan.dwg", "old");
  const auto mapped = MappedFile::Open(NameOf(path));
  Replace(path);
  EXPECT_EQ(std::get<MappedFile>(mapped).bytes(), "old");
}

TEST_F(FilesOfOthers, HandOnTheirPermissions) {
  const auto path = folder.Write("plan.dwg", "old");
  for (const mode_t mode : {mode_t{0600}, mode_t{0664}, mode_t{0666}}) {
    ASSERT_EQ(chmod(path.c_str(), mode), 0);
    Replace(path);
    struct stat status = {};
    ASSERT_EQ(stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, mode);
  }
}

TEST_F(FilesOfOthers, AreReplacedWhereLinksLeadToThem) {
  const auto path = folder.Write("plan.dwg", "old");
  std::filesystem::create_symlink("plan.dwg", folder.path() / "first.dwg");
  std::filesystem::create_symlink(folder.path() / "first.dwg", folder.path() / "second.dwg");
  Replace(folder.path() / "second.dwg");
  EXPECT_EQ(ContentsOf(path), "new");
  EXPECT_TRUE(std::filesystem::is_symlink(folder.path() / "first.dwg"));
  EXPECT_TRUE(std::filesystem::is_symlink(folder.path() / "second.dwg"));
}

TEST_F(FilesOfOthers, AreMadeWhereALinkLeadsToNothing) {
  std::filesystem::create_symlink("plan.dwg", folder.path() / "link.dwg");
  Replace(folder.path() / "link.dwg");
  EXPECT_EQ(ContentsOf(folder.path() / "plan.dwg"), "new");
  EXPECT_TRUE(std::filesystem::is_symlink(folder.path() / "link.dwg"));
}

TEST_F(FilesOfOthers, AreRefusedInACircleOfLinks) {
  std::filesystem::create_symlink("b.dwg", folder.path() / "a.dwg");
  std::filesystem::create_symlink("a.dwg", folder.path() / "b.dwg");
  const auto begun = Replacement::Begin(NameOf(folder.path() / "a.dwg"));
  ASSERT_TRUE(std::holds_alternative<WriteError>(begun));
  EXPECT_EQ(std::get<WriteError>(begun).kind, Failure::kOther);
}

TEST_F(FilesOfOthers, AreNoDevices) {
  const auto begun = Replacement::Begin(L"/dev/null");
  ASSERT_TRUE(std::holds_alternative<WriteError>(begun));
  EXPECT_EQ(std::get<WriteError>(begun).kind, Failure::kNotAFile);
  const auto mapped = MappedFile::Open(L"/dev/null");
  ASSERT_TRUE(std::holds_alternative<Failure>(mapped));
  EXPECT_EQ(std::get<Failure>(mapped), Failure::kNotAFile);
}

}  // namespace

}  // namespace zdx::file
