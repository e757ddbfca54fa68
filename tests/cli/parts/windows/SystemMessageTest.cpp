#include <gmock/gmock.h>
#include <windows.h>

#include "SystemMessage.h"

namespace zdx {

namespace {

using ::testing::AnyOf;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;

TEST(SystemMessage, IsOneLineWithoutItsEnd) {
  for (const DWORD number :
       {DWORD{ERROR_FILE_NOT_FOUND}, DWORD{ERROR_ACCESS_DENIED}, DWORD{ERROR_SHARING_VIOLATION},
        DWORD{ERROR_DISK_FULL}, DWORD{ERROR_BAD_EXE_FORMAT}}) {
    const std::string message = SystemMessage(number);
    EXPECT_GT(message.size(), 5u);
    EXPECT_THAT(message, Not(AnyOf(EndsWith(" "), HasSubstr("\r"), HasSubstr("\n"))));
  }
  EXPECT_NE(SystemMessage(ERROR_FILE_NOT_FOUND), SystemMessage(ERROR_ACCESS_DENIED));
}

TEST(SystemMessage, OfAnErrorWithoutASentenceIsItsNumber) {
  EXPECT_EQ(SystemMessage(0x2FFFFFFF), "error 805306367");
}

}  // namespace

}  // namespace zdx
