// What the host services object answers.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/ZDXHostApplication.h"
#include "support/scripted/ScriptedTest.h"

using testing::ElementsAre;
using ZDXEngine::HostApplicationParam;
using ZDXEngine::ZDXHostApplication;

namespace {

// A host whose base part a test can reach.
class Host : public ZDXHostApplication {
 public:
  using ZDXHostApplication::ZDXHostApplication;
  void Store(void* object) { storedServiceObject_ = object; }
};

using HostApplication = scripted::ScriptedTest;

const HostApplicationParam kParam{.hostIdentityPrimary = L"primary",
                                  .hostIdentitySecondary = L"secondary",
                                  .enableSupportFileSearch = true,
                                  .supportSearchPath = L"C:\\support"};

TEST_F(HostApplication, ItsLifeIsTracedAroundThatOfCom) {
  { const ZDXHostApplication host(kParam); }
  EXPECT_THAT(
      world.Calls(),
      ElementsAre("ZnDbHostApplicationServices(1)", "OutputDebugStringW(ZDXHostApplication)",
                  "CoInitialize(null)", "OutputDebugStringW(~ZDXHostApplication)",
                  "CoUninitialize()", "~ZnDbHostApplicationServices()"));
}

TEST_F(HostApplication, KeepsACopyOfAllFourParameters) {
  const ZDXHostApplication host(kParam);
  EXPECT_EQ(host.Param().hostIdentityPrimary, L"primary");
  EXPECT_EQ(host.Param().hostIdentitySecondary, L"secondary");
  EXPECT_TRUE(host.Param().enableSupportFileSearch);
  EXPECT_EQ(host.Param().supportSearchPath, L"C:\\support");
}

TEST_F(HostApplication, TellsBothIdentities) {
  const ZDXHostApplication host(kParam);
  EXPECT_STREQ(host.getHostIdentityPrimary(), L"primary");
  EXPECT_STREQ(host.getHostIdentitySecondary(), L"secondary");
}

TEST_F(HostApplication, AnEmptyIdentityIsAnEmptyTextAndNeverNull) {
  const ZDXHostApplication host(HostApplicationParam{});
  EXPECT_STREQ(host.getHostIdentityPrimary(), L"");
  EXPECT_STREQ(host.getHostIdentitySecondary(), L"");
}

TEST_F(HostApplication, AnUpdateReplacesAllFourParameters) {
  ZDXHostApplication host(kParam);
  host.UpdateParam({.hostIdentityPrimary = L"a",
                    .hostIdentitySecondary = L"b",
                    .enableSupportFileSearch = false,
                    .supportSearchPath = L"c"});
  EXPECT_STREQ(host.getHostIdentityPrimary(), L"a");
  EXPECT_STREQ(host.getHostIdentitySecondary(), L"b");
  EXPECT_FALSE(host.Param().enableSupportFileSearch);
  EXPECT_EQ(host.Param().supportSearchPath, L"c");
}

TEST_F(HostApplication, AnUpdateWithItsOwnParametersChangesNothing) {
  ZDXHostApplication host(kParam);
  host.UpdateParam(host.Param());
  EXPECT_EQ(host.Param().hostIdentityPrimary, L"primary");
  EXPECT_EQ(host.Param().hostIdentitySecondary, L"secondary");
  EXPECT_TRUE(host.Param().enableSupportFileSearch);
  EXPECT_EQ(host.Param().supportSearchPath, L"C:\\support");
}

TEST_F(HostApplication, TheWorkingServiceObjectIsWhatTheBaseKeeps) {
  Host host(kParam);
  EXPECT_EQ(host.workingServiceObject(), nullptr);
  int something = 0;
  host.Store(&something);
  EXPECT_EQ(host.workingServiceObject(), &something);
}

TEST_F(HostApplication, AFontRequestGoesOnUnchangedAndTheAnswerComesBack) {
  ZDXHostApplication host(kParam);
  int something = 0;
  auto* const request = reinterpret_cast<ZnFontRequest*>(&something);
  for (const bool answer : {true, false}) {
    world.library.hasSubstituteFont = answer;
    world.library.fontRequest = nullptr;
    EXPECT_EQ(host.substituteFontRequest(request), answer);
    EXPECT_EQ(world.library.fontRequest, request);
  }
}

TEST_F(HostApplication, AFontRequestIsAskedOfTheSameObject) {
  class OwnFonts : public ZDXHostApplication {
   public:
    using ZDXHostApplication::ZDXHostApplication;
    bool getSubstituteFont(ZnFontRequest* /*request*/) override { return asked = true; }
    bool asked = false;
  };
  OwnFonts host(kParam);
  EXPECT_TRUE(host.substituteFontRequest(nullptr));
  EXPECT_TRUE(host.asked);
}

TEST_F(HostApplication, EveryHostQueryIsAcceptedUnseen) {
  ZDXHostApplication host(kParam);
  int something = 0;
  EXPECT_TRUE(host.acceptHostQuery(nullptr));
  EXPECT_TRUE(host.acceptHostQuery(&something));
}

TEST_F(HostApplication, TheProductCodeIsTheLibrarysOwn) {
  const ZDXHostApplication host(kParam);
  world.library.productCode = 7;
  EXPECT_EQ(host.prodcode(), 7);
}

}  // namespace
