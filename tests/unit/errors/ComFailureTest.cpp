#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "errors/ComFailure.h"
#include "platform/os/Os.h"
#include "support/scripted/ScriptedTest.h"

using testing::ElementsAre;
using ZDXEngine::MakeTextVariant;

namespace {

using TextVariant = scripted::ScriptedTest;

TEST_F(TextVariant, HoldsACopyOfTheText) {
  const std::wstring text = L"Walls";
  VARIANT variant = MakeTextVariant(text.c_str());
  EXPECT_EQ(variant.vt, VT_BSTR);
  EXPECT_NE(variant.bstrVal, text.c_str());
  EXPECT_EQ(std::wstring(variant.bstrVal), text);
  os::VariantClear(&variant);
}

TEST_F(TextVariant, IsMadeBySysAllocString) {
  VARIANT variant = MakeTextVariant(L"Walls");
  EXPECT_THAT(world.Calls({"SysAllocString"}), ElementsAre("SysAllocString(Walls)"));
  os::VariantClear(&variant);
}

TEST_F(TextVariant, OfAnEmptyTextIsAnEmptyTextAndNotNull) {
  VARIANT variant = MakeTextVariant(L"");
  ASSERT_NE(variant.bstrVal, nullptr);
  EXPECT_EQ(std::wstring(variant.bstrVal), L"");
  os::VariantClear(&variant);
}

TEST_F(TextVariant, OfNullIsANullTextAndNoFailure) {
  VARIANT variant = MakeTextVariant(nullptr);
  EXPECT_EQ(variant.vt, VT_BSTR);
  EXPECT_EQ(variant.bstrVal, nullptr);
}

TEST_F(TextVariant, OutOfMemoryIsRaisedAsItsComError) {
  world.ReturnNull("SysAllocString");
  try {
    MakeTextVariant(L"Walls");
    FAIL() << "nothing was thrown";
  } catch (const _com_error& error) {
    EXPECT_EQ(error.Error(), static_cast<HRESULT>(0x8007000Eu));
  }
}

TEST_F(TextVariant, OutOfMemoryIsRaisedForAnEmptyTextToo) {
  world.ReturnNull("SysAllocString");
  EXPECT_THROW(MakeTextVariant(L""), _com_error);
}

}  // namespace
