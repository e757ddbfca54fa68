// Paths on POSIX systems, where names are bytes and others write them in their own way.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <string>
#include <thread>

#include "backends/System.h"
#include "backends/posix/ConfigFolder.h"
#include "backends/posix/PosixPaths.h"
#include "support/Paths.h"
#include "support/Process.h"
#include "support/Scratch.h"

namespace posix_paths {
namespace {

namespace fs = std::filesystem;

// A variable of the environment for a while; null for none.
class Variable {
 public:
  Variable(const char* name, const char* value)
      : name_(name), had_(std::getenv(name) != nullptr), before_(had_ ? std::getenv(name) : "") {
    Set(value);
  }
  ~Variable() { Set(had_ ? before_.c_str() : nullptr); }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;

 private:
  void Set(const char* value) {
    if (value == nullptr) {
      unsetenv(name_);
    } else {
      setenv(name_, value, 1);
    }
  }

  const char* name_;
  bool had_;
  std::string before_;
};

// The working folder for a while.
class InFolder {
 public:
  explicit InFolder(const fs::path& folder) : before_(fs::current_path()) {
    fs::current_path(folder);
  }
  ~InFolder() { fs::current_path(before_); }
  InFolder(const InFolder&) = delete;
  InFolder& operator=(const InFolder&) = delete;

 private:
  fs::path before_;
};

class PosixPaths : public testing::Test {
 protected:
  std::wstring Here() const { return zdx_test::NameOf(folder.path()); }
  std::wstring At(const char* name) const { return zdx_test::NameOf(folder.path() / name); }
  void Write(const char* name) {
    fs::create_directories((folder.path() / name).parent_path());
    folder.Write(name, name);
  }
  std::wstring Found(const std::wstring& below) const {
    return zdx::ExistingPath(Here() + L"/" + below);
  }
  std::wstring Combined(const std::wstring& place, const std::wstring& file) {
    wchar_t buffer[os::kPathSize] = {};
    return paths.PathCombineW(buffer, place.c_str(), file.c_str()) == nullptr ? L"failed" : buffer;
  }
  std::wstring Roaming(int which = os::kRoamingAppDataCreated) {
    wchar_t buffer[os::kPathSize] = L"#";
    const HRESULT result = paths.SHGetFolderPathW(nullptr, which, nullptr, 0, buffer);
    EXPECT_EQ(result < 0, buffer[0] == L'\0');
    return buffer;
  }

  zdx_test::ScratchFolder folder;
  zdx::PosixPaths paths;
};

TEST_F(PosixPaths, ANameOfExactlyTheseBytesComesFirst) {
  Write("a\\b.dwg");
  Write("a/b.dwg");
  EXPECT_EQ(Found(L"a\\b.dwg"), Here() + L"/a\\b.dwg");
  EXPECT_EQ(Combined(Here(), L"a\\b.dwg"), Here() + L"/a\\b.dwg");
  fs::remove(folder.path() / "a\\b.dwg");
  EXPECT_EQ(Found(L"a\\b.dwg"), Here() + L"/a/b.dwg");
  EXPECT_EQ(Combined(Here(), L"a\\b.dwg"), Here() + L"/a/b.dwg");
}

TEST_F(PosixPaths, TheExactCaseComesBeforeOthersAndThoseInTheOrderOfBytes) {
  Write("plan.dwg");
  Write("PLAN.dwg");
  Write("Plan.dwg");
  EXPECT_EQ(Found(L"Plan.dwg"), At("Plan.dwg"));
  EXPECT_EQ(Found(L"pLaN.DWG"), At("PLAN.dwg"));
}

TEST_F(PosixPaths, AFolderOnTheWayIsAFolderWhateverElseHasItsName) {
  Write("SUB");
  Write("sub/a.dwg");
  EXPECT_EQ(Found(L"SUB/a.dwg"), At("sub/a.dwg"));
  EXPECT_EQ(Found(L"Sub\\A.dwg"), At("sub/a.dwg"));
}

TEST_F(PosixPaths, CaseIsThatOfAllLetters) {
  Write("Grundri\u00DF \u00C4\u03A3\u0416.dwg");
  EXPECT_EQ(Found(L"GRUNDRI\u00DF \u00E4\u03C3\u0436.DWG"),
            At("Grundri\u00DF \u00C4\u03A3\u0416.dwg"));
}

TEST_F(PosixPaths, ANameThatIsNoTextIsFoundInOtherCase) {
  if (!folder.Takes("a\xFF.dwg")) GTEST_SKIP() << "no file can have such a name here";
  Write("a\xFF.dwg");
  EXPECT_EQ(Found(L"A\xDCFF.DWG"), At("a\xFF.dwg"));
}

TEST_F(PosixPaths, WhatIsJoinedIsSpeltAsItReallyIs) {
  Write("Xrefs/Grid.dwg");
  EXPECT_EQ(Combined(Here(), L"xrefs\\GRID.dwg"), At("Xrefs/Grid.dwg"));
  EXPECT_EQ(Combined(Here() + L"/nowhere", L"..\\xrefs\\GRID.dwg"), At("Xrefs/Grid.dwg"));
}

TEST_F(PosixPaths, AnAbsoluteFileIsNoneBelowTheFolder) {
  Write("Plans/a.dwg");
  Write("only here.dwg");
  EXPECT_EQ(Combined(Here(), At("PLANS/A.dwg")), At("Plans/a.dwg"));
  EXPECT_EQ(Combined(Here(), L"/only here.dwg"), L"/only here.dwg");
  EXPECT_EQ(Combined(Here(), L"\\only here.dwg"), L"/only here.dwg");
}

TEST_F(PosixPaths, BehindALinkWhatIsJoinedLeadsToTheSameFile) {
  Write("one/two/three/a.dwg");
  Write("one/two/b.dwg");
  fs::create_symlink("one/two/three", folder.path() / "link");
  EXPECT_EQ(Combined(Here(), L"link\\..\\b.dwg"), At("link/../b.dwg"));
  const InFolder inFolder(folder.path());
  EXPECT_EQ(Combined(L"", L"link\\..\\b.dwg"), L"link/../b.dwg");
}

TEST_F(PosixPaths, WhatIsNotThereIsJoinedWithSlashes) {
  EXPECT_EQ(Combined(Here(), L"no\\such\\..\\file.dwg"), At("no/file.dwg"));
  EXPECT_EQ(Combined(L"/", L"..\\..\\no such file.dwg"), L"/no such file.dwg");
  EXPECT_EQ(Combined(L"plans", L"..\\..\\a.dwg"), L"../a.dwg");
  EXPECT_EQ(Combined(L"plans", L"..\\..\\..\\a.dwg"), L"../../a.dwg");
}

TEST_F(PosixPaths, AFolderKeepsABackslashInItsName) {
  Write("od\\d/a.dwg");
  EXPECT_EQ(Combined(At("od\\d"), L"a.dwg"), At("od\\d/a.dwg"));
  EXPECT_EQ(Combined(At("od\\d"), L"sub\\b.dwg"), At("od\\d/sub/b.dwg"));
}

TEST_F(PosixPaths, DrivesAndServersLeadNowhere) {
  EXPECT_EQ(zdx::ExistingPath(L"C:" + At("")), L"");
  EXPECT_EQ(zdx::ExistingPath(L"C:\\" + Here()), L"");
  EXPECT_EQ(zdx::ExistingPath(L"\\\\tmp"), L"");
  EXPECT_EQ(Combined(Here(), L"\\\\server\\share\\a.dwg"), L"\\\\server\\share\\a.dwg");
  EXPECT_EQ(Combined(L"\\\\server\\share", L"a.dwg"), L"\\\\server\\share\\a.dwg");
}

TEST_F(PosixPaths, AFileMayHaveTheNameOfADrive) {
  Write("C:\\a.dwg");
  const InFolder inFolder(folder.path());
  EXPECT_EQ(zdx::ExistingPath(L"C:\\a.dwg"), L"C:\\a.dwg");
  EXPECT_EQ(zdx::ExistingPath(L"c:\\a.dwg"), L"");
}

TEST_F(PosixPaths, ALetterAloneIsADrive) {
  for (const wchar_t* path : {L"1:a.dwg", L"\u00E4:a.dwg", L":a.dwg", L"[:a.dwg"}) {
    EXPECT_NE(paths.PathIsRelativeW(path), 0);
  }
  for (const wchar_t* path : {L"a:a.dwg", L"z:a.dwg", L"A:a.dwg", L"Z:a.dwg"}) {
    EXPECT_EQ(paths.PathIsRelativeW(path), 0);
  }
}

TEST_F(PosixPaths, ARelativePathIsSpeltAsItReallyIs) {
  Write("Plan.dwg");
  Write("Sub/A.dwg");
  const InFolder inFolder(folder.path());
  EXPECT_EQ(zdx::ExistingPath(L"PLAN.DWG"), L"Plan.dwg");
  EXPECT_EQ(zdx::ExistingPath(L"sub\\a.dwg"), L"Sub/A.dwg");
  EXPECT_EQ(zdx::ExistingPath(L"plan.dwg\\a.dwg"), L"");
}

TEST_F(PosixPaths, DotsLeadOnBehindAFolderThatIsNotThere) {
  Write("Plan.dwg");
  EXPECT_EQ(Found(L"nowhere\\..\\PLAN.dwg"), At("Plan.dwg"));
  EXPECT_EQ(Found(L"nowhere/.././/PLAN.dwg"), At("Plan.dwg"));
  const InFolder inFolder(folder.path());
  EXPECT_EQ(zdx::ExistingPath(L"nowhere\\.."), L".");
  EXPECT_EQ(zdx::FileIdentity(L"nowhere\\.."), zdx::FileIdentity(Here()));
}

TEST_F(PosixPaths, ALinkIsFollowedAndOneThatLeadsNowhereIsNothing) {
  Write("real/a.dwg");
  fs::create_symlink("real", folder.path() / "Link");
  fs::create_symlink("missing", folder.path() / "dead.dwg");
  fs::create_symlink("round", folder.path() / "round");
  EXPECT_EQ(Found(L"link/A.dwg"), At("Link/a.dwg"));
  EXPECT_EQ(Found(L"dead.dwg"), L"");
  EXPECT_EQ(Found(L"DEAD.dwg"), L"");
  EXPECT_EQ(Found(L"round/a.dwg"), L"");
  EXPECT_EQ(zdx::FileIdentity(At("Link/a.dwg")), zdx::FileIdentity(At("real/a.dwg")));
}

TEST_F(PosixPaths, BehindALinkAFullPathIsThatOfTheSameFile) {
  Write("one/two/three/a.dwg");
  Write("one/two/b.dwg");
  fs::create_symlink("one/two/three", folder.path() / "link");
  EXPECT_EQ(zdx::FileIdentity(zdx::FullPath(At("link/../b.dwg"))),
            zdx::FileIdentity(At("one/two/b.dwg")));
  EXPECT_EQ(zdx::FullPath(At("link/./a.dwg")), At("link/a.dwg"));
  EXPECT_EQ(zdx::FileIdentity(At("link") + L"\\..\\b.dwg"), zdx::FileIdentity(At("one/two/b.dwg")));
}

TEST_F(PosixPaths, AFileOnTheWayLeadsNowhere) {
  Write("a.dwg");
  EXPECT_EQ(Found(L"a.dwg/b.dwg"), L"");
  EXPECT_EQ(Found(L"A.dwg/"), L"");
}

TEST_F(PosixPaths, APipeKeepsNobodyWaiting) {
  ASSERT_TRUE(zdx_test::MakePipe(folder.path() / "pipe"));
  EXPECT_EQ(Found(L"PIPE"), At("pipe"));
  EXPECT_EQ(Found(L"pipe/a.dwg"), L"");
  EXPECT_EQ(Found(L"PIPE/a.dwg"), L"");
}

TEST_F(PosixPaths, AFolderThatMayNotBeReadHidesOtherCases) {
  Write("closed/a.dwg");
  if (geteuid() == 0) GTEST_SKIP() << "the superuser may read everything";
  chmod((folder.path() / "closed").c_str(), S_IXUSR);
  EXPECT_EQ(Found(L"closed/a.dwg"), At("closed/a.dwg"));
  EXPECT_EQ(Found(L"closed/A.dwg"), L"");
  chmod((folder.path() / "closed").c_str(), S_IRWXU);
}

TEST_F(PosixPaths, ManyElementsAndLongOnesAreNoFile) {
  Write("Sub/a.dwg");
  std::wstring climbing;
  for (int i = 0; i < 100000; ++i) climbing += L"SUB\\..\\";
  EXPECT_EQ(Found(climbing + L"a.dwg"), L"");
  EXPECT_EQ(Found(std::wstring(300, L'a')), L"");
  EXPECT_EQ(Found(std::wstring(100000, L'/')), L"");
  EXPECT_EQ(Found(std::wstring(L"Sub\0/a.dwg", 10)), L"");
}

TEST_F(PosixPaths, ThousandsOfMissingNamesInAFullFolderCostLittle) {
  for (int i = 0; i < 2000; ++i) Write(("file " + std::to_string(i)).c_str());
  // As if it had been so for a while.
  const timespec longAgo[2] = {{1000000000, 0}, {1000000000, 0}};
  ASSERT_EQ(utimensat(AT_FDCWD, folder.path().c_str(), longAgo, 0), 0);
  const std::clock_t start = std::clock();
  for (int i = 0; i < 10000; ++i) EXPECT_EQ(Found(L"MISSING " + std::to_wstring(i)), L"");
  EXPECT_LT(std::clock() - start, 3 * CLOCKS_PER_SEC);
}

TEST_F(PosixPaths, AFolderThatChangedAMomentAgoIsNotReadForEachName) {
  for (int i = 0; i < 2000; ++i) Write(("file " + std::to_string(i)).c_str());
  std::this_thread::sleep_for(std::chrono::milliseconds(200));
  struct stat status = {};
  ASSERT_EQ(stat(folder.path().c_str(), &status), 0);
  if (status.st_mtim.tv_nsec == 0) GTEST_SKIP() << "the clock of this file system is coarse";
  const std::clock_t start = std::clock();
  for (int i = 0; i < 2000; ++i) EXPECT_EQ(Found(L"MISSING " + std::to_wstring(i)), L"");
  EXPECT_LT(std::clock() - start, CLOCKS_PER_SEC);
}

TEST_F(PosixPaths, WhatChangesInAFolderIsSeen) {
  Write("a.dwg");
  const timespec longAgo[2] = {{1000000000, 0}, {1000000000, 0}};
  ASSERT_EQ(utimensat(AT_FDCWD, folder.path().c_str(), longAgo, 0), 0);
  EXPECT_EQ(Found(L"B.dwg"), L"");
  Write("b.dwg");
  EXPECT_EQ(Found(L"B.dwg"), At("b.dwg"));
  fs::rename(folder.path() / "b.dwg", folder.path() / "c.dwg");
  EXPECT_EQ(Found(L"B.dwg"), L"");
  EXPECT_EQ(Found(L"C.dwg"), At("c.dwg"));
}

TEST_F(PosixPaths, ASearchFindsFilesInOtherCaseAndNoFolders) {
  Write("fonts/Romans.SHX");
  fs::create_directory(folder.path() / "txt.shx");
  wchar_t buffer[os::kPathSize] = {};
  wchar_t* leaf = nullptr;
  const std::wstring folders = L":" + Here() + L"::" + At("FONTS") + L":";
  EXPECT_NE(paths.SearchPathW(folders.c_str(), L"romans", L".shx", os::kPathSize, buffer, &leaf),
            0u);
  EXPECT_EQ(buffer, At("fonts/Romans.SHX"));
  EXPECT_STREQ(leaf, L"Romans.SHX");
  EXPECT_EQ(paths.SearchPathW(folders.c_str(), L"txt", L".shx", os::kPathSize, buffer, &leaf), 0u);
}

TEST_F(PosixPaths, AFoldersDotIsNoExtension) {
  Write("fonts.d/romans.shx");
  wchar_t buffer[os::kPathSize] = {};
  wchar_t* leaf = nullptr;
  EXPECT_NE(
      paths.SearchPathW(Here().c_str(), L"fonts.d\\romans", L".shx", os::kPathSize, buffer, &leaf),
      0u);
  EXPECT_EQ(buffer, At("fonts.d/romans.shx"));
}

TEST_F(PosixPaths, AnExtensionMakesNoNameOfNone) {
  Write(".shx");
  wchar_t buffer[os::kPathSize] = {};
  wchar_t* leaf = nullptr;
  EXPECT_EQ(paths.SearchPathW(Here().c_str(), L"", L".shx", os::kPathSize, buffer, &leaf), 0u);
}

TEST_F(PosixPaths, AnAbsoluteNameNeedsNoFoldersAndGetsNoExtension) {
  Write("a.shx");
  wchar_t buffer[os::kPathSize] = {};
  wchar_t* leaf = nullptr;
  EXPECT_EQ(
      paths.SearchPathW(Here().c_str(), At("a").c_str(), L".shx", os::kPathSize, buffer, &leaf),
      0u);
  EXPECT_NE(paths.SearchPathW(L":", At("A.shx").c_str(), nullptr, os::kPathSize, buffer, &leaf),
            0u);
  EXPECT_EQ(buffer, At("a.shx"));
}

TEST_F(PosixPaths, AnEmptyElementOfAListIsNoFolder) {
  Write("a.shx");
  Write("fonts/b.shx");
  const InFolder inFolder(folder.path());
  wchar_t buffer[os::kPathSize] = {};
  wchar_t* leaf = nullptr;
  for (const std::wstring& list : {std::wstring(L":"), L"::" + At("fonts") + L"::"}) {
    EXPECT_EQ(paths.SearchPathW(list.c_str(), L"a.shx", nullptr, os::kPathSize, buffer, &leaf), 0u);
  }
}

TEST_F(PosixPaths, AFileOfTheEnvironmentsPathIsFoundLast) {
  Write("tools/only-here.shx");
  const std::string path = "/no/such/folder:" + (folder.path() / "tools").string();
  const Variable variable("PATH", path.c_str());
  wchar_t buffer[os::kPathSize] = {};
  wchar_t* leaf = nullptr;
  paths.SearchPathW(nullptr, L"only-here.shx", nullptr, os::kPathSize, buffer, &leaf);
  EXPECT_EQ(buffer, At("tools/only-here.shx"));
  Write("work/only-here.shx");
  {
    const InFolder inFolder(folder.path() / "work");
    paths.SearchPathW(nullptr, L"only-here.shx", nullptr, os::kPathSize, buffer, &leaf);
    EXPECT_EQ(buffer, At("work/only-here.shx"));
  }
  const Variable none("PATH", nullptr);
  EXPECT_EQ(paths.SearchPathW(nullptr, L"only-here.shx", nullptr, os::kPathSize, buffer, &leaf),
            0u);
}

TEST_F(PosixPaths, TheRoamingFolderIsWhereTheUserKeepsSettings) {
  const std::string own = (folder.path() / "own" / "settings").string();
  const Variable home("HOME", folder.path().c_str());
  {
    const Variable config("XDG_CONFIG_HOME", own.c_str());
    EXPECT_EQ(Roaming(), At("own/settings"));
    for (const std::wstring& made : {At("own/settings"), At("own")}) {
      struct stat status = {};
      ASSERT_EQ(stat(zdx_test::PathOf(made).c_str(), &status), 0);
      EXPECT_EQ(status.st_mode & 0777u, 0700u);
    }
  }
  for (const char* useless : {static_cast<const char*>(nullptr), "", "relative/folder"}) {
    const Variable config("XDG_CONFIG_HOME", useless);
    EXPECT_EQ(Roaming(), At(".config"));
  }
  EXPECT_TRUE(fs::is_directory(folder.path() / ".config"));
}

TEST_F(PosixPaths, WithoutAHomeThatIsNamedItIsTheOneOnRecord) {
  const passwd* const user = getpwuid(getuid());
  if (user == nullptr || user->pw_dir[0] != '/') GTEST_SKIP() << "no home is on record";
  const std::wstring expected = zdx_test::NameOf(user->pw_dir) + L"/.config";
  const Variable config("XDG_CONFIG_HOME", nullptr);
  for (const char* useless : {static_cast<const char*>(nullptr), "", "relative/folder"}) {
    const Variable home("HOME", useless);
    EXPECT_EQ(zdx::ConfigFolder(), expected);
  }
}

TEST_F(PosixPaths, ARoamingFolderThatCannotBeHadIsAFailure) {
  Write("file");
  const std::string below = (folder.path() / "file" / "settings").string();
  const Variable config("XDG_CONFIG_HOME", below.c_str());
  EXPECT_EQ(Roaming(), L"");
  const std::string file = (folder.path() / "file").string();
  const Variable aFile("XDG_CONFIG_HOME", file.c_str());
  EXPECT_EQ(Roaming(), L"");
  const std::string longName =
      (folder.path() / std::string(200, 'a')).string() + "/" + std::string(200, 'a');
  const Variable tooLong("XDG_CONFIG_HOME", longName.c_str());
  EXPECT_EQ(Roaming(), L"");
}

TEST_F(PosixPaths, OtherFoldersOfTheUserAreNotKnown) {
  EXPECT_EQ(Roaming(0x1A), L"");
  EXPECT_EQ(Roaming(0), L"");
}

TEST_F(PosixPaths, AFolderIsMadeInOneOfOtherCase) {
  fs::create_directory(folder.path() / "Norvane");
  EXPECT_NE(paths.CreateDirectoryW(At("norvane/Sync").c_str(), nullptr), 0);
  EXPECT_TRUE(fs::is_directory(folder.path() / "Norvane" / "Sync"));
}

TEST_F(PosixPaths, NoOtherModulesPathIsTold) {
  wchar_t buffer[os::kPathSize] = L"#";
  EXPECT_EQ(paths.GetModuleFileNameW(this, buffer, os::kPathSize), 0u);
  EXPECT_STREQ(buffer, L"#");
  EXPECT_EQ(paths.GetModuleFileNameW(nullptr, buffer, 0), 0u);
  EXPECT_STREQ(buffer, L"#");
}

TEST_F(PosixPaths, ASlashMakesAPathAbsoluteAndSeparates) {
  EXPECT_EQ(paths.PathIsRelativeW(L"/a.dwg"), 0);
  wchar_t buffer[os::kPathSize] = L"/plans/a.dwg";
  EXPECT_NE(paths.PathRemoveFileSpecW(buffer), 0);
  EXPECT_STREQ(buffer, L"/plans");
  EXPECT_NE(paths.PathRemoveFileSpecW(buffer), 0);
  EXPECT_STREQ(buffer, L"/");
  EXPECT_EQ(paths.PathRemoveFileSpecW(buffer), 0);
}

}  // namespace
}  // namespace posix_paths
