// Loadable modules on POSIX systems: where they are looked for, and what they share.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "backends/System.h"
#include "backends/posix/PosixModules.h"
#include "support/Paths.h"
#include "support/Process.h"
#include "support/Scratch.h"

namespace posix_modules {
namespace {

namespace fs = std::filesystem;

// The folder of the test modules, which is this program's.
fs::path Folder() { return zdx_test::ThisProgram().parent_path(); }

// Works in an empty folder.
class PosixModules : public testing::Test {
 protected:
  PosixModules() { fs::current_path(folder.path()); }
  ~PosixModules() override { fs::current_path(before_); }

  void Copy(const char* module, const char* name) {
    fs::create_directories((folder.path() / name).parent_path());
    fs::copy_file(Folder() / module, folder.path() / name);
  }
  bool Has(const wchar_t* module, const char* function) {
    return modules.GetProcAddress(modules.GetModuleHandleW(module), function) != nullptr;
  }
  // Whether the system holds the module of that file.
  static bool IsHeld(const fs::path& file) {
    void* const held = dlopen(file.c_str(), RTLD_NOW | RTLD_NOLOAD);
    if (held != nullptr) dlclose(held);
    return held != nullptr;
  }

  zdx_test::ScratchFolder folder;
  zdx::PosixModules modules;

 private:
  fs::path before_ = fs::current_path();
};

TEST_F(PosixModules, ABareNameIsLookedForInTheWorkingFolderToo) {
  Copy("good.zdx", "Mine.zdx");
  for (const wchar_t* name : {L"Mine.zdx", L"MINE.ZDX"}) {
    EXPECT_NE(zdx::LoadModule(name), nullptr);
    EXPECT_TRUE(zdx::UnloadModule(name));
  }
}

TEST_F(PosixModules, BesideTheExecutableComesFirst) {
  Copy("lacking.zdx", "good.zdx");
  ASSERT_NE(zdx::LoadModule(L"good.zdx"), nullptr);
  EXPECT_TRUE(Has(L"good.zdx", "UpdateDependencies"));
  EXPECT_TRUE(zdx::UnloadModule(L"good.zdx"));
}

TEST_F(PosixModules, ANameWithAFolderIsThatFromTheWorkingFolderAlone) {
  Copy("good.zdx", "Sub/mine.zdx");
  for (const wchar_t* name : {L"Sub/mine.zdx", L"sub\\MINE.zdx"}) {
    EXPECT_NE(zdx::LoadModule(name), nullptr);
    EXPECT_TRUE(zdx::UnloadModule(name));
  }
  const std::wstring besideExecutable =
      L"../" + zdx_test::NameOf(Folder().filename()) + L"/good.zdx";
  EXPECT_EQ(zdx::LoadModule(besideExecutable.c_str()), nullptr);
}

TEST_F(PosixModules, WhatTheSystemsLoaderKnowsIsLoadedByItsName) {
  constexpr const char* kLibrary = "libstdc++.so.6";
  if (!IsHeld(kLibrary)) GTEST_SKIP() << "no library of a name that is known is loaded";
  EXPECT_NE(zdx::LoadModule(zdx_test::NameOf(kLibrary).c_str()), nullptr);
  EXPECT_TRUE(zdx::UnloadModule(zdx_test::NameOf(kLibrary).c_str()));
}

TEST_F(PosixModules, WhatOneExportsNoOtherSees) {
  ASSERT_NE(zdx::LoadModule(L"good.zdx"), nullptr);
  EXPECT_EQ(dlsym(RTLD_DEFAULT, "UpdateDependencies"), nullptr);
  EXPECT_TRUE(zdx::UnloadModule(L"good.zdx"));
}

// This one has no variables that the loader would keep it for.
TEST_F(PosixModules, OneThatIsGivenBackLeavesTheProcess) {
  Copy("throwing.zdx", "mine.zdx");
  const fs::path file = folder.path() / "mine.zdx";
  zdx::LoadModule(L"mine.zdx");
  zdx::LoadModule(L"mine.zdx");
  zdx::UnloadModule(L"mine.zdx");
  EXPECT_TRUE(IsHeld(file));
  zdx::UnloadModule(L"mine.zdx");
  EXPECT_FALSE(IsHeld(file));
}

TEST_F(PosixModules, NoModuleHasNoFunctions) {
  EXPECT_EQ(modules.GetProcAddress(nullptr, "malloc"), nullptr);
  ASSERT_NE(zdx::LoadModule(L"good.zdx"), nullptr);
  EXPECT_EQ(modules.GetProcAddress(modules.GetModuleHandleW(L"good.zdx"), nullptr), nullptr);
  EXPECT_EQ(modules.GetModuleHandleW(nullptr), nullptr);
  EXPECT_TRUE(zdx::UnloadModule(L"good.zdx"));
}

}  // namespace
}  // namespace posix_modules
