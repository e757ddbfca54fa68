#include <gmock/gmock.h>
#include <windows.h>

#include "cli/CliTest.h"
#include "cli/SmallDrawing.h"
#include "support/pictures/Pictures.h"

namespace zdx_test {

namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

class FilesInUse : public CliTest {
 protected:
  // Opens a file of the folder for as long as the test runs.
  void Open(const char* name, DWORD share) {
    handle_ = CreateFileW((Folder() / name).c_str(), GENERIC_READ, share, nullptr, OPEN_EXISTING, 0,
                          nullptr);
    ASSERT_NE(handle_, INVALID_HANDLE_VALUE);
  }
  void TearDown() override { CloseHandle(handle_); }

 private:
  HANDLE handle_ = INVALID_HANDLE_VALUE;
};

TEST_F(FilesInUse, ThatAreNotSharedAreToldToBe) {
  Write("plan.dxf", DxfText());
  Open("plan.dxf", 0);
  const Outcome outcome = Zdx({"info", "plan.dxf"});
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_THAT(outcome.err, StartsWith("zdx: plan.dxf: "));
  EXPECT_THAT(outcome.err, HasSubstr("(Another program has the file open and doesn't share it.)"));
}

TEST_F(FilesInUse, ThatAreSharedForReadingAreRead) {
  Write("plan.dxf", DxfText());
  Open("plan.dxf", FILE_SHARE_READ);
  EXPECT_EQ(Zdx({"info", "plan.dxf"}).exitCode, 0);
}

TEST_F(FilesInUse, AreNotReplacedByAPicture) {
  SmallDrawing drawing;
  drawing.picture = pictures::SmallBitmap();
  Write("plan.dxf", DxfText(drawing));
  Write("out.png", "old");
  Open("out.png", FILE_SHARE_READ);
  const Outcome outcome = Zdx({"thumb", "plan.dxf", "-O", "out.png"});
  EXPECT_EQ(outcome.exitCode, 74);
  EXPECT_EQ(outcome.err, "zdx: out.png: Another program has the file open.\n");
  EXPECT_EQ(ContentsOf(Folder() / "out.png"), "old");
  EXPECT_FALSE(std::filesystem::exists(Folder() / "out.png.zdx-0"));
}

}  // namespace

}  // namespace zdx_test
