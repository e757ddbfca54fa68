// Installing the host services object.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ZDXEngine/ZDXService.h"
#include "host/ZDXHostApplication.h"
#include "support/scripted/InFreshProcess.h"

using scripted::Afterlife;
using scripted::InFreshProcess;
using scripted::Shown;
using scripted::World;
using testing::ElementsAre;
using testing::IsEmpty;
using ZDXEngine::HostApplicationParam;
namespace Service = ZDXEngine::ZDXService;

namespace {

const HostApplicationParam kFirst{.hostIdentityPrimary = L"first",
                                  .hostIdentitySecondary = L"one",
                                  .enableSupportFileSearch = true,
                                  .supportSearchPath = L"C:\\one"};
const HostApplicationParam kSecond{.hostIdentityPrimary = L"second",
                                   .hostIdentitySecondary = L"two",
                                   .enableSupportFileSearch = false,
                                   .supportSearchPath = L"C:\\two"};

void NoteIdentity(World& world) {
  const ZnDbHostApplicationServices& host = *world.library.services;
  world.Note(Shown(host.getHostIdentityPrimary()) + " " + Shown(host.getHostIdentitySecondary()));
}

TEST(Setup, BuildsTheObjectThenStartsComThenInstallsIt) {
  const Afterlife after = InFreshProcess([](World& world) {
    Service::SetupHostApplication(kFirst);
    world.Note("exit");
  });
  std::vector<std::string> calls = after.Calls();
  ASSERT_GE(calls.size(), 6u);
  calls.resize(6);
  EXPECT_THAT(calls, ElementsAre("zndbHostApplicationServices()", "ZnDbHostApplicationServices(1)",
                                 "OutputDebugStringW(ZDXHostApplication)", "CoInitialize(null)",
                                 "zndbSetHostApplicationServices()", "note(exit)"));
}

TEST(Setup, AtExitTheObjectSaysSoStopsComAndEnds) {
  const Afterlife after = InFreshProcess([](World& world) {
    Service::SetupHostApplication(kFirst);
    world.ForgetCalls();
    world.Note("exit");
  });
  const std::vector<std::string> calls = after.Calls();
  ASSERT_GE(calls.size(), 4u);
  EXPECT_THAT(std::vector<std::string>(calls.end() - 4, calls.end()),
              ElementsAre("note(exit)", "OutputDebugStringW(~ZDXHostApplication)",
                          "CoUninitialize()", "~ZnDbHostApplicationServices()"));
}

TEST(Setup, AProcessThatNeverSetsUpStopsNothingAtExit) {
  const Afterlife after = InFreshProcess([](World&) {});
  EXPECT_THAT(after.Calls(), IsEmpty());
}

TEST(Setup, TheObjectHandsBackTheClientsIdentity) {
  const Afterlife after = InFreshProcess([](World& world) {
    Service::SetupHostApplication(kFirst);
    NoteIdentity(world);
  });
  EXPECT_THAT(after.Calls({"note"}), ElementsAre("note(first one)"));
}

TEST(Setup, TheClientsRecordNeedNotOutliveTheCall) {
  const Afterlife after = InFreshProcess([](World& world) {
    {
      HostApplicationParam record = kFirst;
      record.hostIdentityPrimary = std::wstring(100, L'x');
      Service::SetupHostApplication(record);
      record.hostIdentityPrimary.assign(100, L'y');
    }
    world.Note(Shown(world.library.services->getHostIdentityPrimary()));
  });
  EXPECT_THAT(after.Calls({"note"}), ElementsAre("note(" + std::string(100, 'x') + ")"));
}

TEST(HostParameters, FreshOnesHoldEmptyTextsAndNoSearch) {
  const HostApplicationParam fresh;
  EXPECT_EQ(fresh.hostIdentityPrimary, L"");
  EXPECT_EQ(fresh.hostIdentitySecondary, L"");
  EXPECT_FALSE(fresh.enableSupportFileSearch);
  EXPECT_EQ(fresh.supportSearchPath, L"");
}

TEST(Setup, WithoutParametersAllTextsAreEmptyAndNothingIsSearched) {
  const Afterlife after = InFreshProcess([](World& world) {
    Service::SetupHostApplication();
    NoteIdentity(world);
    const auto* const host =
        dynamic_cast<const ZDXEngine::ZDXHostApplication*>(world.library.services);
    world.Note(Shown(host->Param().enableSupportFileSearch));
    world.Note(Shown(host->Param().supportSearchPath));
  });
  EXPECT_THAT(after.Calls({"note"}), ElementsAre("note( )", "note(false)", "note()"));
  EXPECT_THAT(after.Calls({"ZnDbHostApplicationServices"}),
              ElementsAre("ZnDbHostApplicationServices(1)"));
}

TEST(Setup, ASecondSetupLeavesTheFirstParametersInForce) {
  const Afterlife after = InFreshProcess([](World& world) {
    Service::SetupHostApplication(kFirst);
    Service::SetupHostApplication(kSecond);
    NoteIdentity(world);
  });
  EXPECT_THAT(after.Calls({"note"}), ElementsAre("note(first one)"));
}

TEST(Setup, ASecondSetupBuildsAndInstallsNothing) {
  const Afterlife after = InFreshProcess([](World&) {
    Service::SetupHostApplication(kFirst);
    Service::SetupHostApplication(kSecond);
    Service::SetupHostApplication();
  });
  EXPECT_THAT(after.Calls({"ZnDbHostApplicationServices", "CoInitialize",
                           "zndbSetHostApplicationServices", "CoUninitialize"}),
              ElementsAre("ZnDbHostApplicationServices(1)", "CoInitialize(null)",
                          "zndbSetHostApplicationServices()", "CoUninitialize()"));
}

TEST(Setup, FailuresOfComAndOfInstallingAreIgnored) {
  const Afterlife after = InFreshProcess([](World& world) {
    world.Fail("CoInitialize", static_cast<int>(0x80010106u));
    world.Fail("zndbSetHostApplicationServices", 5);
    Service::SetupHostApplication(kFirst);
    NoteIdentity(world);
  });
  EXPECT_THAT(after.Calls({"note"}), ElementsAre("note(first one)"));
  EXPECT_THAT(after.Calls({"CoUninitialize"}), ElementsAre("CoUninitialize()"));
}

TEST(Setup, DoesNothingIfAnotherComponentInstalledServicesFirst) {
  const Afterlife after = InFreshProcess([](World& world) {
    world.InstallServices();
    Service::SetupHostApplication(kFirst);
    NoteIdentity(world);
    world.Note("exit");
  });
  EXPECT_THAT(after.Calls({"CoInitialize", "OutputDebugStringW", "zndbSetHostApplicationServices",
                           "note", "CoUninitialize"}),
              ElementsAre("note(someone else )", "note(exit)"));
}

TEST(Setup, TheObjectIsInstalledAgainIfItsInstallingWasUndone) {
  const Afterlife after = InFreshProcess([](World& world) {
    Service::SetupHostApplication(kFirst);
    world.library.services = nullptr;
    Service::SetupHostApplication(kSecond);
    NoteIdentity(world);
  });
  EXPECT_THAT(
      after.Calls({"ZnDbHostApplicationServices", "zndbSetHostApplicationServices", "note"}),
      ElementsAre("ZnDbHostApplicationServices(1)", "zndbSetHostApplicationServices()",
                  "zndbSetHostApplicationServices()", "note(first one)"));
}

TEST(UpdateParam, ReplacesTheParameters) {
  const Afterlife after = InFreshProcess([](World& world) {
    Service::SetupHostApplication(kFirst);
    Service::UpdateHostAppParam(kSecond);
    NoteIdentity(world);
  });
  EXPECT_THAT(after.Calls({"note"}), ElementsAre("note(second two)"));
}

TEST(UpdateParam, BeforeSetupIsNotRemembered) {
  const Afterlife after = InFreshProcess([](World& world) {
    Service::UpdateHostAppParam(kSecond);
    world.Note("updated");
    Service::SetupHostApplication(kFirst);
    NoteIdentity(world);
  });
  EXPECT_EQ(after.Calls().front(), "note(updated)");
  EXPECT_THAT(after.Calls({"note"}), ElementsAre("note(updated)", "note(first one)"));
}

TEST(UpdateParam, HasNoEffectForGoodIfAnotherComponentsServicesAreInstalled) {
  const Afterlife after = InFreshProcess([](World& world) {
    world.InstallServices();
    Service::SetupHostApplication(kFirst);
    Service::UpdateHostAppParam(kSecond);
    NoteIdentity(world);
  });
  EXPECT_THAT(after.Calls({"note"}), ElementsAre("note(someone else )"));
}

}  // namespace
