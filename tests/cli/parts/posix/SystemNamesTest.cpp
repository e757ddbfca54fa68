#include <gmock/gmock.h>

#include "SystemNames.h"

namespace zdx {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(ProgramArguments, AreTheBytesBehindTheProgramsName) {
  const char* const words[] = {"zdx", "info", "caf\xE9.dxf", ""};
  EXPECT_THAT(ProgramArguments(4, words), ElementsAre("info", "caf\xE9.dxf", ""));
  EXPECT_THAT(ProgramArguments(0, words), IsEmpty());
}

TEST(FilesMeantBy, APatternAreTheShellsMatter) {
  EXPECT_THAT(FilesMeantBy("*.dxf"), ElementsAre("*.dxf"));
}

TEST(CallablePath, IsThePathItself) {
  const std::wstring longPath(5000, L'a');
  EXPECT_EQ(CallablePath(longPath), longPath);
}

}  // namespace

}  // namespace zdx
