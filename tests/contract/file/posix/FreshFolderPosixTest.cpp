#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>

#include "backends/database/file/FreshFolder.h"
#include "support/Paths.h"
#include "support/Scratch.h"

namespace {

using zdx::file::MakeFreshFolder;

// Where temporary files go, for a while.
class TemporaryFolder {
 public:
  explicit TemporaryFolder(const std::filesystem::path& path) {
    if (const char* const value = std::getenv("TMPDIR")) before_ = value;
    setenv("TMPDIR", path.c_str(), 1);
  }
  ~TemporaryFolder() {
    if (before_) {
      setenv("TMPDIR", before_->c_str(), 1);
    } else {
      unsetenv("TMPDIR");
    }
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

 private:
  std::optional<std::string> before_;
};

TEST(FreshFolder, LetsNobodyElseIn) {
  const zdx_test::ScratchFolder scratch;
  const TemporaryFolder temporary(scratch.path());
  const auto made = MakeFreshFolder();
  const auto path = zdx_test::PathOf(std::get<std::wstring>(made));
  EXPECT_EQ(path.parent_path(), scratch.path());
  struct stat status = {};
  ASSERT_EQ(stat(path.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777u, 0700u);
}

TEST(FreshFolder, IsNoneWhereTemporaryFilesCannotGo) {
  const zdx_test::ScratchFolder scratch;
  const TemporaryFolder temporary(scratch.Write("file", ""));
  EXPECT_TRUE(std::holds_alternative<zdx::file::WriteError>(MakeFreshFolder()));
}

}  // namespace
