// Starting and stopping the drawing library.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "ZDXEngine/ZDXService.h"
#include "errors/Throw.h"
#include "resources/ResourceModule.h"
#include "support/scripted/InFreshProcess.h"

using scripted::Afterlife;
using scripted::InFreshProcess;
using scripted::InFreshProcessThatMayDie;
using scripted::World;
using testing::ElementsAre;
using testing::IsEmpty;
namespace Service = ZDXEngine::ZDXService;

namespace {

using Body = std::function<void(World&)>;

// `body` in a process in which the host is set up, with what came before forgotten.
Afterlife Hosted(const Body& body, Afterlife (&run)(const Body&) = InFreshProcess) {
  Afterlife after = run([&](World& world) {
    Service::SetupHostApplication();
    world.Note("hosted");
    body(world);
    world.Note("exit");
  });
  const auto hosted = std::ranges::find(after.log, "note(hosted)", &scripted::Call::text);
  if (hosted != after.log.end()) after.log.erase(after.log.begin(), hosted + 1);
  const auto exit = std::ranges::find(after.log, "note(exit)", &scripted::Call::text);
  after.log.erase(exit, after.log.end());
  return after;
}

std::string ThrowsAtAll(const std::function<void()>& act) {
  try {
    act();
  } catch (const scripted::Fault&) {
    return "threw";
  }
  return "returned";
}

TEST(Validate, RunsTheLibrarysCheckForTheLocale) {
  const Afterlife after = Hosted([](World&) { Service::ValidateHostApplication(1033); });
  EXPECT_THAT(after.Calls(), ElementsAre("zndbHostApplicationServices()", "prodcode()",
                                         "zndbValidateSetup(1033)"));
}

TEST(Validate, NarrowsTheLocale) {
  if constexpr (sizeof(long) > sizeof(int)) {
    const long wide = (1L << 32) + 1031;
    const Afterlife after = Hosted([&](World&) { Service::ValidateHostApplication(wide); });
    EXPECT_THAT(after.Calls({"zndbValidateSetup"}), ElementsAre("zndbValidateSetup(1031)"));
  } else {
    GTEST_SKIP() << "long is as narrow as int here";
  }
}

TEST(Validate, IgnoresTheResult) {
  const Afterlife after = Hosted([](World& world) {
    world.Fail("zndbValidateSetup", 5);
    Service::ValidateHostApplication(1033);
  });
  EXPECT_THAT(after.Calls({"zndbValidateSetup"}), ElementsAre("zndbValidateSetup(1033)"));
}

TEST(OtherProduct, NeitherValidatesNorStartsNorStops) {
  const std::vector<int> codes = {0, 3, 5, -4};
  const Afterlife after = Hosted([&](World& world) {
    for (const int code : codes) {
      world.library.productCode = code;
      Service::ValidateHostApplication(1033);
      Service::InitHostApplication();
      Service::UnInitializeHostApplication();
    }
  });
  for (const std::string& call : after.Calls()) {
    EXPECT_TRUE(call == "zndbHostApplicationServices()" || call == "prodcode()") << call;
  }
  // Each of the three asks once.
  EXPECT_EQ(after.Calls({"prodcode"}).size(), 3 * codes.size());
}

TEST(OtherProduct, DoesNotStopWhatWasStarted) {
  const Afterlife after = Hosted([](World& world) {
    Service::InitHostApplication();
    world.library.productCode = 3;
    Service::UnInitializeHostApplication();
  });
  EXPECT_THAT(after.Calls({"zndbCleanUp", "unloadModule", "~ZnDbDatabase"}), IsEmpty());
}

TEST(Init, LoadsTheModulesThenMakesTheWorkingDatabase) {
  const Afterlife after = Hosted([](World&) { Service::InitHostApplication(); });
  EXPECT_THAT(
      after.Calls({"prodcode", "loadModule", "znHeapAlloc", "ZnDbDatabase", "setWorkingDatabase"}),
      ElementsAre("prodcode()", "loadModule(znismobj24.zdx, false, false)",
                  "loadModule(znGeomentObj.zdx, false, false)",
                  "loadModule(znModelDocObj.zdx, false, false)",
                  "znHeapAlloc(null, enough for a database)", "ZnDbDatabase(true, true)",
                  "setWorkingDatabase(database 1)"));
}

TEST(Init, LooksTheLinkerUpAfreshForEachModule) {
  const Afterlife after = Hosted([](World&) { Service::InitHostApplication(); });
  EXPECT_THAT(after.Calls({"znrxSysRegistry", "at", "isA", "loadModule"}),
              ElementsAre("znrxSysRegistry()", "at(DynamicLinker)", "linker.isA()",
                          "loadModule(znismobj24.zdx, false, false)",  //
                          "znrxSysRegistry()", "at(DynamicLinker)", "linker.isA()",
                          "loadModule(znGeomentObj.zdx, false, false)",  //
                          "znrxSysRegistry()", "at(DynamicLinker)", "linker.isA()",
                          "loadModule(znModelDocObj.zdx, false, false)"));
}

// What then becomes of the call isn't told: a runtime without a linker isn't set up.
TEST(Init, AnEntryThatSaysItIsNoLinkerIsAskedToLoadNothing) {
  const Afterlife after = Hosted(
      [](World& world) {
        world.Fail("linker.isA", 1);
        Service::InitHostApplication();
      },
      InFreshProcessThatMayDie);
  EXPECT_GE(after.Calls({"isA"}).size(), 1u);
  EXPECT_THAT(after.Calls({"loadModule"}), IsEmpty());
}

TEST(Init, GoesOnWhenAModuleDoesNotLoad) {
  const Afterlife after = Hosted([](World& world) {
    world.ReturnNull("loadModule");
    Service::InitHostApplication();
  });
  EXPECT_EQ(after.Calls({"loadModule"}).size(), 3u);
  EXPECT_THAT(after.Calls({"setWorkingDatabase"}), ElementsAre("setWorkingDatabase(database 1)"));
}

TEST(Init, ASecondCallDoesNothing) {
  const Afterlife after = Hosted([](World& world) {
    Service::InitHostApplication();
    world.Note("again");
    Service::InitHostApplication();
  });
  EXPECT_EQ(after.Calls({"loadModule"}).size(), 3u);
  EXPECT_EQ(after.Calls({"ZnDbDatabase"}).size(), 1u);
  EXPECT_EQ(after.Calls({"setWorkingDatabase"}).size(), 1u);
}

TEST(Init, WithoutABlockTheWorkingDatabaseBecomesNull) {
  const Afterlife after = Hosted([](World& world) {
    world.ReturnNull("znHeapAlloc");
    Service::InitHostApplication();
  });
  EXPECT_THAT(after.Calls({"ZnDbDatabase", "setWorkingDatabase"}),
              ElementsAre("setWorkingDatabase(null)"));
}

TEST(Init, WithoutABlockALaterCallTriesAgainInFull) {
  const Afterlife after = Hosted([](World& world) {
    world.ReturnNull("znHeapAlloc", 1);
    Service::InitHostApplication();
    Service::InitHostApplication();
  });
  EXPECT_EQ(after.Calls({"loadModule"}).size(), 6u);
  EXPECT_THAT(after.Calls({"setWorkingDatabase"}),
              ElementsAre("setWorkingDatabase(null)", "setWorkingDatabase(database 1)"));
}

TEST(Init, WithoutABlockThereIsNothingToStop) {
  const Afterlife after = Hosted([](World& world) {
    world.ReturnNull("znHeapAlloc");
    Service::InitHostApplication();
    Service::UnInitializeHostApplication();
  });
  EXPECT_THAT(after.Calls({"zndbCleanUp", "unloadModule"}), IsEmpty());
}

TEST(Init, ABlockWhoseDatabaseCannotBeBuiltGoesBack) {
  const Afterlife after = Hosted([](World& world) {
    world.Throw("ZnDbDatabase");
    world.Note(ThrowsAtAll([] { Service::InitHostApplication(); }));
    world.Note(std::to_string(world.Leftovers().size()));
  });
  EXPECT_THAT(after.Calls({"znHeapAlloc", "znHeapFree", "setWorkingDatabase", "note"}),
              ElementsAre("znHeapAlloc(null, enough for a database)", "znHeapFree(null)",
                          "note(threw)", "note(0)"));
}

TEST(UnInit, CleansUpDeletesTheDatabaseAndUnloadsInTheOrderOfLoading) {
  const Afterlife after = Hosted([](World& world) {
    Service::InitHostApplication();
    world.Note("stop");
    Service::UnInitializeHostApplication();
  });
  const std::vector<std::string> calls =
      after.Calls({"note", "zndbCleanUp", "~ZnDbDatabase", "znHeapFree", "unloadModule"});
  EXPECT_THAT(calls, ElementsAre("note(stop)", "zndbCleanUp()", "~ZnDbDatabase(database 1)",
                                 "znHeapFree(null)", "unloadModule(znismobj24.zdx, false)",
                                 "unloadModule(znGeomentObj.zdx, false)",
                                 "unloadModule(znModelDocObj.zdx, false)"));
}

TEST(UnInit, LooksTheLinkerUpAfreshForEachModule) {
  const Afterlife after = Hosted([](World& world) {
    Service::InitHostApplication();
    world.Note("stop");
    Service::UnInitializeHostApplication();
  });
  std::vector<std::string> calls =
      after.Calls({"note", "znrxSysRegistry", "at", "isA", "unloadModule"});
  calls.erase(calls.begin(), std::ranges::find(calls, "note(stop)"));
  EXPECT_THAT(calls, ElementsAre("note(stop)",  //
                                 "znrxSysRegistry()", "at(DynamicLinker)", "linker.isA()",
                                 "unloadModule(znismobj24.zdx, false)",  //
                                 "znrxSysRegistry()", "at(DynamicLinker)", "linker.isA()",
                                 "unloadModule(znGeomentObj.zdx, false)",  //
                                 "znrxSysRegistry()", "at(DynamicLinker)", "linker.isA()",
                                 "unloadModule(znModelDocObj.zdx, false)"));
}

TEST(UnInit, AnEntryThatSaysItIsNoLinkerIsAskedToUnloadNothing) {
  const Afterlife after = Hosted(
      [](World& world) {
        Service::InitHostApplication();
        world.Note("stop");
        world.Fail("linker.isA", 1);
        Service::UnInitializeHostApplication();
      },
      InFreshProcessThatMayDie);
  EXPECT_EQ(after.Calls({"note"}).size(), 1u);
  EXPECT_GE(after.Calls({"isA"}).size(), 4u);
  EXPECT_THAT(after.Calls({"unloadModule"}), IsEmpty());
}

TEST(UnInit, DoesNotSetTheWorkingDatabase) {
  const Afterlife after = Hosted([](World& world) {
    Service::InitHostApplication();
    Service::UnInitializeHostApplication();
    world.Note(world.library.working == nullptr ? "none" : "the old one");
  });
  EXPECT_THAT(after.Calls({"setWorkingDatabase", "note"}),
              ElementsAre("setWorkingDatabase(database 1)", "note(the old one)"));
}

TEST(UnInit, WithoutInitDoesNothing) {
  const Afterlife after = Hosted([](World&) { Service::UnInitializeHostApplication(); });
  EXPECT_THAT(after.Calls({"zndbCleanUp", "znHeapFree", "at", "unloadModule"}), IsEmpty());
}

TEST(UnInit, ASecondCallCleansUpNothing) {
  const Afterlife after = Hosted([](World&) {
    Service::InitHostApplication();
    Service::UnInitializeHostApplication();
    Service::UnInitializeHostApplication();
  });
  EXPECT_EQ(after.Calls({"zndbCleanUp"}).size(), 1u);
  EXPECT_EQ(after.Calls({"~ZnDbDatabase"}).size(), 1u);
  EXPECT_EQ(after.Calls({"unloadModule"}).size(), 3u);
}

TEST(UnInit, GoesOnWhenAModuleDoesNotUnload) {
  const Afterlife after = Hosted([](World& world) {
    world.ReturnNull("unloadModule");
    Service::InitHostApplication();
    Service::UnInitializeHostApplication();
  });
  EXPECT_EQ(after.Calls({"unloadModule"}).size(), 3u);
}

TEST(UnInit, LeavesNothingBehind) {
  const Afterlife after = Hosted([](World& world) {
    Service::InitHostApplication();
    Service::UnInitializeHostApplication();
    world.Note(std::to_string(world.Leftovers().size()));
  });
  EXPECT_THAT(after.Calls({"note"}), ElementsAre("note(0)"));
}

TEST(Restart, LoadsTheModulesAndBuildsADatabaseAnew) {
  const Afterlife after = Hosted([](World& world) {
    Service::InitHostApplication();
    Service::UnInitializeHostApplication();
    world.Note("again");
    Service::InitHostApplication();
  });
  std::vector<std::string> calls =
      after.Calls({"note", "loadModule", "ZnDbDatabase", "setWorkingDatabase"});
  calls.erase(calls.begin(), std::ranges::find(calls, "note(again)"));
  EXPECT_THAT(calls, ElementsAre("note(again)", "loadModule(znismobj24.zdx, false, false)",
                                 "loadModule(znGeomentObj.zdx, false, false)",
                                 "loadModule(znModelDocObj.zdx, false, false)",
                                 "ZnDbDatabase(true, true)", "setWorkingDatabase(database 2)"));
}

TEST(Stopped, TheServicesObjectStillAnswersAndTextsAreStillRead) {
  const Afterlife after = InFreshProcess([](World& world) {
    world.utilities.texts[108] = L"still here";
    ZDXEngine::HostApplicationParam param;
    param.hostIdentityPrimary = L"first";
    param.hostIdentitySecondary = L"one";
    Service::SetupHostApplication(param);
    Service::InitHostApplication();
    Service::UnInitializeHostApplication();
    const ZnDbHostApplicationServices& host = *world.library.services;
    world.Note(std::to_string(host.prodcode()));
    world.Note(scripted::Shown(host.getHostIdentityPrimary()));
    world.Note(scripted::Shown(host.getHostIdentitySecondary()));
    world.Note(scripted::Shown(ZDXEngine::LoadResourceText(108)));
  });
  EXPECT_THAT(after.Calls({"note"}),
              ElementsAre("note(4)", "note(first)", "note(one)", "note(still here)"));
}

// What the engine asks of other services than those installed is logged with words in front.
TEST(OthersServices, AreGivenTheWorkingDatabaseIfTheyCameFirst) {
  const Afterlife after = InFreshProcess([](World& world) {
    world.InstallServices();
    Service::SetupHostApplication();
    Service::ValidateHostApplication(1033);
    Service::InitHostApplication();
    world.Note("stop");
    Service::UnInitializeHostApplication();
  });
  EXPECT_THAT(after.Calls({"prodcode", "zndbValidateSetup", "loadModule", "ZnDbDatabase",
                           "setWorkingDatabase", "note", "zndbCleanUp", "~ZnDbDatabase"}),
              ElementsAre("prodcode()", "zndbValidateSetup(1033)", "prodcode()",
                          "loadModule(znismobj24.zdx, false, false)",
                          "loadModule(znGeomentObj.zdx, false, false)",
                          "loadModule(znModelDocObj.zdx, false, false)", "ZnDbDatabase(true, true)",
                          "setWorkingDatabase(database 1)", "note(stop)", "prodcode()",
                          "zndbCleanUp()", "~ZnDbDatabase(database 1)"));
}

TEST(OthersServices, AreAskedInPlaceOfTheEnginesIfTheyTookItsPlace) {
  const Afterlife after = Hosted([](World& world) {
    world.InstallServices();
    Service::ValidateHostApplication(1033);
    Service::InitHostApplication();
    Service::UnInitializeHostApplication();
  });
  EXPECT_THAT(
      after.Calls({"prodcode", "setWorkingDatabase"}),
      ElementsAre("prodcode()", "prodcode()", "setWorkingDatabase(database 1)", "prodcode()"));
}

TEST(Stopped, SetupHasNoEffect) {
  const Afterlife after = Hosted([](World&) {
    Service::InitHostApplication();
    Service::UnInitializeHostApplication();
    Service::SetupHostApplication(ZDXEngine::HostApplicationParam{});
  });
  EXPECT_THAT(after.Calls({"ZnDbHostApplicationServices", "zndbSetHostApplicationServices"}),
              IsEmpty());
}

TEST(Walker, IsStartedAndStoppedAndTheAnswersAreDropped) {
  const Afterlife after = InFreshProcess([](World& world) {
    world.ReturnNull("initializeEconveyEngine");
    world.ReturnNull("unInitializeEconveyEngine");
    Service::InitializeEConvyEngine();
    Service::UnInitializeEConveyEngine();
  });
  EXPECT_THAT(after.Calls(),
              ElementsAre("initializeEconveyEngine()", "unInitializeEconveyEngine()"));
}

TEST(Walker, EveryCallGoesThrough) {
  const Afterlife after = InFreshProcess([](World&) {
    Service::UnInitializeEConveyEngine();
    Service::InitializeEConvyEngine();
    Service::InitializeEConvyEngine();
  });
  EXPECT_THAT(after.Calls(), ElementsAre("unInitializeEconveyEngine()", "initializeEconveyEngine()",
                                         "initializeEconveyEngine()"));
}

TEST(Walker, IsBoundAtItsFirstCallAndNotBefore) {
  const Afterlife after = Hosted([](World& world) {
    Service::InitHostApplication();
    world.Note(std::to_string(world.TimesBound()));
    Service::InitializeEConvyEngine();
    Service::UnInitializeEConveyEngine();
    world.Note(std::to_string(world.TimesBound()));
  });
  EXPECT_THAT(after.Calls({"note"}), ElementsAre("note(0)", "note(1)"));
}

// What was first used last is undone first.
TEST(Exit, AModuleUsedAfterSetupIsFreedBeforeTheHostEnds) {
  const Afterlife after = InFreshProcess([](World&) {
    ZDXEngine::SetModuleHandle(reinterpret_cast<os::ModuleHandle>(0x1000));
    Service::SetupHostApplication();
    ZDXEngine::LoadResourceText(101);
  });
  EXPECT_THAT(after.Calls({"FreeLibrary", "CoUninitialize"}),
              ElementsAre("FreeLibrary(4096)", "CoUninitialize()"));
}

TEST(Exit, AModuleUsedBeforeSetupIsFreedAfterTheHostEnds) {
  const Afterlife after = InFreshProcess([](World&) {
    ZDXEngine::SetModuleHandle(reinterpret_cast<os::ModuleHandle>(0x1000));
    ZDXEngine::LoadResourceText(101);
    Service::SetupHostApplication();
  });
  EXPECT_THAT(after.Calls({"FreeLibrary", "CoUninitialize"}),
              ElementsAre("CoUninitialize()", "FreeLibrary(4096)"));
}

TEST(Exit, AnEngineThatWasNotStoppedStopsNothingByItself) {
  const Afterlife after = InFreshProcess([](World& world) {
    Service::SetupHostApplication();
    Service::InitHostApplication();
    world.Note("exit");
  });
  std::vector<std::string> calls = after.Calls();
  calls.erase(calls.begin(), std::ranges::find(calls, "note(exit)"));
  EXPECT_THAT(calls, ElementsAre("note(exit)", "OutputDebugStringW(~ZDXHostApplication)",
                                 "CoUninitialize()", "~ZnDbHostApplicationServices()"));
}

}  // namespace
