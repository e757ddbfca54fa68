// A module as a service.
#include <memory>
#include <type_traits>

#include "ZDXEngine/FileReferenceService.h"
#include "support/scripted/InFreshProcess.h"
#include "unit/references/Modules.h"
#include "unit/references/ReferencesTest.h"

using testing::ElementsAre;
using testing::IsEmpty;
using ZDXEngine::FileReferenceService;

namespace {

using Service = references::ReferencesTest;

std::unique_ptr<FileReferenceService> Make(const wchar_t* module) {
  return std::unique_ptr<FileReferenceService>(FileReferenceService::CreateInstance(L"7", module));
}

TEST_F(Service, IsMadeOfALoadedModule) {
  references::Export(world, L"m.zdx");
  const auto service = Make(L"m.zdx");
  ASSERT_NE(service, nullptr);
  EXPECT_EQ(service->GetCurrentVersion(), L"7");
  EXPECT_EQ(service->Get_GetDependenciesFuncPtr(), &references::AskedModule);
  EXPECT_EQ(service->Get_UpdateDependenciesFuncPtr(), &references::ToldModule);
  EXPECT_THAT(world.Calls(),
              ElementsAre("znrxSysRegistry()", "at(DynamicLinker)", "linker.isA()",
                          "loadModule(m.zdx, false, false)", "GetModuleHandleW(m.zdx)",
                          "GetProcAddress(m.zdx, GetDependencies)",
                          "GetProcAddress(m.zdx, UpdateDependencies)"));
}

TEST_F(Service, IsNoneIfTheModuleDoesNotLoad) {
  references::Export(world, L"m.zdx");
  world.ReturnNull("loadModule");
  EXPECT_EQ(Make(L"m.zdx"), nullptr);
  EXPECT_THAT(world.Calls({"GetModuleHandleW", "GetProcAddress"}), IsEmpty());
}

TEST_F(Service, IsNoneIfTheModuleIsNotFoundByItsName) {
  references::Export(world, L"m.zdx");
  world.ReturnNull("GetModuleHandleW");
  EXPECT_EQ(Make(L"m.zdx"), nullptr);
  EXPECT_THAT(world.Calls({"GetProcAddress"}), IsEmpty());
}

TEST_F(Service, IsNoneWithoutEitherFunctionAndTheModuleStaysLoaded) {
  for (const char* const missing : {"GetDependencies", "UpdateDependencies"}) {
    references::Export(world, L"m.zdx");
    world.modules.exports[L"m.zdx"].erase(missing);
    world.ForgetCalls();
    EXPECT_EQ(Make(L"m.zdx"), nullptr) << missing;
    EXPECT_THAT(world.Calls({"unloadModule"}), IsEmpty());
    EXPECT_EQ(world.Count("loadModule"), 1);
  }
}

TEST_F(Service, EndsWithoutUnloadingItsModule) {
  references::Export(world, L"m.zdx");
  Make(L"m.zdx").reset();
  EXPECT_THAT(world.Calls({"unloadModule"}), IsEmpty());
}

TEST_F(Service, ACopyHasAllThree) {
  references::Export(world, L"m.zdx");
  const auto service = Make(L"m.zdx");
  FileReferenceService copy(*service);
  EXPECT_EQ(copy.GetCurrentVersion(), L"7");
  EXPECT_EQ(copy.Get_GetDependenciesFuncPtr(), &references::AskedModule);
  EXPECT_EQ(copy.Get_UpdateDependenciesFuncPtr(), &references::ToldModule);
}

TEST_F(Service, AnAssignedOneHasAllThree) {
  references::Export(world, L"m.zdx");
  const auto service = Make(L"m.zdx");
  FileReferenceService other(*service);
  other.GetCurrentVersion() = L"8";
  other.Get_GetDependenciesFuncPtr() = nullptr;
  other.Get_UpdateDependenciesFuncPtr() = nullptr;
  EXPECT_EQ(&(other = *service), &other);
  EXPECT_EQ(other.GetCurrentVersion(), L"7");
  EXPECT_EQ(other.Get_GetDependenciesFuncPtr(), &references::AskedModule);
  EXPECT_EQ(other.Get_UpdateDependenciesFuncPtr(), &references::ToldModule);
}

template <class T, class... Arguments>
concept CanBeMadeOf = requires(Arguments... arguments) {
  T(arguments...);
};

TEST_F(Service, IsMadeByItsClassAlone) {
  static_assert(!CanBeMadeOf<FileReferenceService, std::wstring, ZDXEngine::GetDependenciesFunc,
                             ZDXEngine::UpdateDependenciesFunc>);
  static_assert(!std::is_default_constructible_v<FileReferenceService>);
  static_assert(!std::is_polymorphic_v<FileReferenceService>);
}

// What then becomes of the call isn't told: a runtime without a linker isn't set up.
TEST(ServiceWithoutALinker, LoadsNothing) {
  const scripted::Afterlife after = scripted::InFreshProcessThatMayDie([](scripted::World& world) {
    world.Fail("linker.isA", 1);
    Make(L"m.zdx");
  });
  EXPECT_THAT(after.Calls({"isA"}), ElementsAre("linker.isA()"));
  EXPECT_THAT(after.Calls({"loadModule"}), IsEmpty());
}

}  // namespace
