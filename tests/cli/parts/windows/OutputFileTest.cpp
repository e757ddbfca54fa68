#include <gmock/gmock.h>
#include <windows.h>

#include <chrono>
#include <thread>

#include "OutputFile.h"
#include "support/Paths.h"
#include "support/Scratch.h"

namespace zdx {

namespace {

using zdx_test::BytesOf;
using zdx_test::ContentsOf;

class OutputFile : public ::testing::Test {
 protected:
  // Opens the old file as a program does that shares it with nobody who would replace it.
  HANDLE Open() const {
    return CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0,
                       nullptr);
  }

  zdx_test::ScratchFolder folder;
  std::filesystem::path path = folder.Write("out.png", "old");
};

TEST_F(OutputFile, ThatIsADeviceIsToldToBe) {
  EXPECT_EQ(WriteFile("NUL.png", "new"), "This is a device, not a file.");
}

TEST_F(OutputFile, ThatIsAStreamOfAFileIsToldToBe) {
  EXPECT_EQ(WriteFile(BytesOf(folder.path() / "plan.dxf") + ":out.png", "new"),
            "This is a stream of a file, not a file.");
  EXPECT_EQ(WriteFile("plan.dxf:out.png", "new"), "This is a stream of a file, not a file.");
  EXPECT_FALSE(std::filesystem::exists(folder.path() / "plan.dxf"));
}

TEST_F(OutputFile, ThatIsProtectedStays) {
  SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_NE(WriteFile(BytesOf(path), "new"), std::nullopt);
  SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
  EXPECT_EQ(ContentsOf(path), "old");
  EXPECT_FALSE(std::filesystem::exists(folder.path() / "out.png.zdx-0"));
}

TEST_F(OutputFile, ThatAnotherProgramHasOpenStaysAndIsTold) {
  const HANDLE open = Open();
  const auto failure = WriteFile(BytesOf(path), "new");
  CloseHandle(open);
  EXPECT_EQ(failure, "Another program has the file open.");
  EXPECT_EQ(ContentsOf(path), "old");
  EXPECT_FALSE(std::filesystem::exists(folder.path() / "out.png.zdx-0"));
}

TEST_F(OutputFile, ThatIsOpenForAMomentIsReplacedThereafter) {
  const HANDLE open = Open();
  std::thread closing([open] {
    std::this_thread::sleep_for(std::chrono::milliseconds(250));
    CloseHandle(open);
  });
  EXPECT_EQ(WriteFile(BytesOf(path), "new"), std::nullopt);
  closing.join();
  EXPECT_EQ(ContentsOf(path), "new");
}

}  // namespace

}  // namespace zdx
