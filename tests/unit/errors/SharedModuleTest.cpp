// Sentences and plain texts are read through one module holder.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "errors/Throw.h"
#include "resources/ResourceModule.h"
#include "support/scripted/InFreshProcess.h"

using scripted::Afterlife;
using scripted::InFreshProcess;
using scripted::World;
using testing::ElementsAre;

namespace {

const auto kModule = reinterpret_cast<os::ModuleHandle>(0x1000);  // 4096

TEST(SharedModule, AnExceptionReadsItsTextFromTheRecordedModule) {
  const Afterlife after = InFreshProcess([](World&) {
    ZDXEngine::SetModuleHandle(kModule);
    const ZDXEngine::NotFound error(L"A");
  });
  EXPECT_THAT(after.Calls({"LoadStrW"}), ElementsAre("LoadStrW(4096, 102)"));
}

TEST(SharedModule, APlainTextIsReadFromTheRecordedModule) {
  const Afterlife after = InFreshProcess([](World&) {
    ZDXEngine::SetModuleHandle(kModule);
    ZDXEngine::LoadResourceText(108);
  });
  EXPECT_THAT(after.Calls({"LoadStrW"}), ElementsAre("LoadStrW(4096, 108)"));
}

TEST(SharedModule, IsFreedOnceThoughBothRoadsUsedIt) {
  const Afterlife after = InFreshProcess([](World&) {
    ZDXEngine::SetModuleHandle(kModule);
    ZDXEngine::LoadResourceText(108);
    const ZDXEngine::NotFound error(L"A");
  });
  EXPECT_THAT(after.Calls({"FreeLibrary"}), ElementsAre("FreeLibrary(4096)"));
}

TEST(SharedModule, TextsAreStillReadWithoutAModule) {
  const Afterlife after = InFreshProcess([](World&) { const ZDXEngine::NotFound error(L"A"); });
  EXPECT_THAT(after.Calls(), ElementsAre("LoadStrW(0, 102)", "FormatMsg1(, A)"));
}

}  // namespace
