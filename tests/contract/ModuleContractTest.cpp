// What every system does with loadable modules, and what the database's linker makes of it.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "backends/System.h"
#include "backends/database/zndb/Runtime.h"
#include "support/Paths.h"
#include "support/Process.h"
#include "support/Scratch.h"

namespace module_contract {
namespace {

// The folder of the test modules, which is this program's.
std::filesystem::path Folder() { return zdx_test::ThisProgram().parent_path(); }

class Modules : public testing::Test {
 protected:
  const std::wstring good = zdx_test::NameOf(Folder() / "good.zdx");
  const std::wstring lacking = zdx_test::NameOf(Folder() / "lacking.zdx");
  std::unique_ptr<os::ModuleProvider> modules = zdx::MakeSystemModules();
};

TEST_F(Modules, AModuleIsFoundByTheVeryNameItWasLoadedBy) {
  EXPECT_EQ(modules->GetModuleHandleW(good.c_str()), nullptr);
  const os::ModuleHandle module = zdx::LoadModule(good.c_str());
  EXPECT_NE(module, nullptr);
  EXPECT_EQ(modules->GetModuleHandleW(good.c_str()), module);
  EXPECT_TRUE(zdx::UnloadModule(good.c_str()));
}

TEST_F(Modules, AModuleGoesWhenItIsGivenBackAsOftenAsItWasAskedFor) {
  const os::ModuleHandle module = zdx::LoadModule(good.c_str());
  EXPECT_EQ(zdx::LoadModule(good.c_str()), module);
  EXPECT_TRUE(zdx::UnloadModule(good.c_str()));
  EXPECT_EQ(modules->GetModuleHandleW(good.c_str()), module);
  EXPECT_TRUE(zdx::UnloadModule(good.c_str()));
  EXPECT_EQ(modules->GetModuleHandleW(good.c_str()), nullptr);
  EXPECT_FALSE(zdx::UnloadModule(good.c_str()));
}

TEST_F(Modules, ABareNameIsLookedForBesideTheExecutable) {
  const os::ModuleHandle module = zdx::LoadModule(L"good.zdx");
  EXPECT_NE(module, nullptr);
  EXPECT_EQ(modules->GetModuleHandleW(L"good.zdx"), module);
  EXPECT_TRUE(zdx::UnloadModule(L"good.zdx"));
}

TEST_F(Modules, OnlyWhatAModuleExportsIsFoundInIt) {
  const os::ModuleHandle module = zdx::LoadModule(lacking.c_str());
  ASSERT_NE(module, nullptr);
  EXPECT_NE(modules->GetProcAddress(module, "GetDependencies"), nullptr);
  EXPECT_EQ(modules->GetProcAddress(module, "UpdateDependencies"), nullptr);
  EXPECT_EQ(modules->GetProcAddress(module, "getdependencies"), nullptr);
  EXPECT_EQ(modules->GetProcAddress(module, "malloc"), nullptr);
  EXPECT_TRUE(zdx::UnloadModule(lacking.c_str()));
}

TEST_F(Modules, TwoModulesHaveFunctionsOfTheirOwn) {
  const os::ModuleHandle one = zdx::LoadModule(good.c_str());
  const os::ModuleHandle other = zdx::LoadModule(lacking.c_str());
  EXPECT_NE(modules->GetProcAddress(one, "GetDependencies"),
            modules->GetProcAddress(other, "GetDependencies"));
  zdx::UnloadModule(good.c_str());
  zdx::UnloadModule(lacking.c_str());
}

TEST_F(Modules, WhatIsNoModuleIsNotLoaded) {
  const zdx_test::ScratchFolder folder;
  const std::wstring text = zdx_test::NameOf(folder.Write("text.zdx", "this is text"));
  const std::wstring empty = zdx_test::NameOf(folder.Write("empty.zdx", ""));
  for (const std::wstring& name : {text, empty, zdx_test::NameOf(folder.path()),
                                   zdx_test::NameOf(folder.path() / "missing.zdx"),
                                   std::wstring(L"no such module.zdx"), std::wstring()}) {
    EXPECT_EQ(zdx::LoadModule(name.c_str()), nullptr);
    EXPECT_FALSE(zdx::UnloadModule(name.c_str()));
  }
  EXPECT_EQ(zdx::LoadModule(nullptr), nullptr);
  EXPECT_FALSE(zdx::UnloadModule(nullptr));
}

TEST_F(Modules, APipeIsNoModuleAndKeepsNobodyWaiting) {
  const zdx_test::ScratchFolder folder;
  const std::filesystem::path pipe = folder.path() / "pipe.zdx";
  if (!zdx_test::MakePipe(pipe)) GTEST_SKIP() << "this system has no pipes among its files";
  EXPECT_EQ(zdx::LoadModule(zdx_test::NameOf(pipe).c_str()), nullptr);
}

TEST_F(Modules, AModuleOfAFolderThatIsNotAsciiIsLoaded) {
  const zdx_test::ScratchFolder folder;
  const std::filesystem::path copy = folder.path() / zdx_test::PathOf("Stra\u00DFe.zdx");
  std::filesystem::copy_file(Folder() / "good.zdx", copy);
  const std::wstring name = zdx_test::NameOf(copy);
  EXPECT_NE(zdx::LoadModule(name.c_str()), nullptr);
  EXPECT_TRUE(zdx::UnloadModule(name.c_str()));
}

TEST_F(Modules, TheLinkerLoadsThemAndLetsThemGo) {
  zdx::database::DynamicLinker linker;
  EXPECT_TRUE(linker.loadModule(good.c_str(), false, false));
  EXPECT_NE(modules->GetModuleHandleW(good.c_str()), nullptr);
  EXPECT_TRUE(linker.unloadModule(good.c_str(), false));
  EXPECT_EQ(modules->GetModuleHandleW(good.c_str()), nullptr);
  EXPECT_FALSE(linker.unloadModule(good.c_str(), false));
}

TEST_F(Modules, TheLinkerSaysSoIfThereIsNoSuchModule) {
  zdx::database::DynamicLinker linker;
  EXPECT_FALSE(linker.loadModule(L"no such module.zdx", false, false));
  EXPECT_FALSE(linker.unloadModule(L"no such module.zdx", false));
}

TEST_F(Modules, TheLinkersOwnModulesAreNoFiles) {
  zdx::database::DynamicLinker linker;
  EXPECT_TRUE(linker.loadModule(L"znismobj24.zdx", false, false));
  EXPECT_EQ(modules->GetModuleHandleW(L"znismobj24.zdx"), nullptr);
}

}  // namespace
}  // namespace module_contract
