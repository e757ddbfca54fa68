// The file calls of POSIX systems do what the engine asks for, and refuse all else.
#include <gtest/gtest.h>

#include "backends/posix/PosixFiles.h"
#include "support/Paths.h"
#include "support/Scratch.h"

namespace posix_files {
namespace {

class PosixFiles : public testing::Test {
 protected:
  os::FileHandle Open(std::uint32_t access, std::uint32_t disposition) {
    return files.CreateFileW(zdx_test::NameOf(file_.path()).c_str(), access, 0, nullptr,
                             disposition, 0, nullptr);
  }

  zdx::PosixFiles files;

 private:
  zdx_test::ScratchFile file_{"abc"};
};

TEST_F(PosixFiles, AnotherAccessOrDispositionIsRefused) {
  EXPECT_EQ(Open(0x40000000, os::kOpenExisting), os::kInvalidHandle);
  EXPECT_EQ(Open(os::kGenericRead | 0x40000000, os::kOpenExisting), os::kInvalidHandle);
  EXPECT_EQ(Open(os::kGenericRead, 2), os::kInvalidHandle);
}

TEST_F(PosixFiles, APositionFromElsewhereIsRefused) {
  const os::FileHandle file = Open(os::kGenericRead, os::kOpenExisting);
  EXPECT_EQ(files.SetFilePointer(file, 1, nullptr, 1), os::kInvalidFilePointer);
  files.CloseHandle(file);
}

TEST_F(PosixFiles, NoHandleIsNotClosed) { EXPECT_EQ(files.CloseHandle(os::kInvalidHandle), 0); }

}  // namespace
}  // namespace posix_files
