// What only one system has stands in a folder of the system's name.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "architecture/ProjectSources.h"
#include "architecture/SystemRules.h"
#include "support/Scratch.h"

namespace architecture {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(SystemRules, ASystemsHeaderIsNamedOutsideItsFolder) {
  EXPECT_THAT(SystemViolations("src/base/A.cpp", "#include <vector>\n# include <windows.h>\n"),
              ElementsAre("src/base/A.cpp may not include windows.h"));
  EXPECT_THAT(SystemViolations("src/base/windows/A.cpp", "#include <unistd.h>\n"),
              ElementsAre("src/base/windows/A.cpp may not include unistd.h"));
  EXPECT_THAT(SystemViolations("src/posix.cpp", "#include <sys/stat.h>\n"),
              ElementsAre("src/posix.cpp may not include sys/stat.h"));
}

TEST(SystemRules, ASystemsHeaderIsAllowedInItsFolder) {
  EXPECT_THAT(SystemViolations("src/base/windows/A.cpp", "#include <windows.h>\n"), IsEmpty());
  EXPECT_THAT(SystemViolations("src/base/posix/deep/A.cpp", "#include <sys/stat.h>\n"), IsEmpty());
}

TEST(SystemRules, AHeaderThatBothHaveIsAllowedInBothFoldersAlone) {
  for (const char* path : {"src/windows/A.cpp", "src/posix/A.cpp"}) {
    EXPECT_THAT(SystemViolations(path, "#include <fcntl.h>\n"), IsEmpty());
  }
  EXPECT_THAT(SystemViolations("src/A.cpp", "#include <fcntl.h>\n"),
              ElementsAre("src/A.cpp may not include fcntl.h"));
}

TEST(SystemRules, AskingWhichSystemItIsIsNamedEverywhere) {
  for (const char* line : {"#if defined(_WIN32)", "#ifdef __linux__", "# elif defined(__unix__)"}) {
    EXPECT_THAT(SystemViolations("src/A.cpp", line),
                ElementsAre("src/A.cpp asks which system it is"));
  }
  EXPECT_THAT(SystemViolations("src/A.cpp", "#if defined(__SANITIZE_ADDRESS__)\n"), IsEmpty());
}

// Headers of the interface that clients compile on each system, and what stands in for such a
// header; and the example, which is one file for all.
const std::set<std::string> kExceptions = {
    "include/ZDXEngine/Automation.h", "include/ZDXEngine/Export.h",
    "include/ZDXEngine/VerticalModule.h", "src/platform/os/PropVariant.h",
    "examples/read_properties.cpp"};

class FolderOfAllSystems : public ::testing::TestWithParam<const char*> {};

TEST_P(FolderOfAllSystems, KeepsWhatIsOneSystemsInAFolderOfItsName) {
  for (const std::string& path : SourcesBelow(GetParam())) {
    if (kExceptions.contains(path)) continue;
    EXPECT_THAT(SystemViolations(path, zdx_test::ContentsOf(kProject / path)), IsEmpty());
  }
}

// benchmarks/ measures on POSIX systems alone.
INSTANTIATE_TEST_SUITE_P(Systems, FolderOfAllSystems,
                         ::testing::Values("include", "src", "tools", "examples", "tests"));

TEST(SystemExceptions, AreNeeded) {
  for (const std::string& path : kExceptions) {
    EXPECT_FALSE(SystemViolations(path, zdx_test::ContentsOf(kProject / path)).empty()) << path;
  }
}

}  // namespace
}  // namespace architecture
