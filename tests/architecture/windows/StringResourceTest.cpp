// The shared library carries the texts of the failures where Windows looks for texts.
#include <gtest/gtest.h>
#include <windows.h>

#include <memory>
#include <string>

#include "support/Paths.h"
#include "unit/resources/ExpectedTexts.h"

namespace {

struct FreeModule {
  void operator()(HMODULE module) const { FreeLibrary(module); }
};
using Module = std::unique_ptr<std::remove_pointer_t<HMODULE>, FreeModule>;

class StringResource : public testing::Test {
 protected:
  // Only what lies in the file; nothing of it runs.
  const Module module{
      LoadLibraryExW(zdx_test::PathOf(ZDX_LIBRARY).c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE)};

  std::wstring Text(unsigned int id) const {
    wchar_t text[256] = {};
    const int length = LoadStringW(module.get(), id, text, static_cast<int>(std::size(text)));
    return {text, static_cast<std::size_t>(length)};
  }
};

TEST_F(StringResource, HoldsEveryTextOfTheFailures) {
  ASSERT_NE(module, nullptr);
  for (const auto& [id, text] : expected::FailureTexts()) EXPECT_EQ(Text(id), text) << id;
}

TEST_F(StringResource, HoldsEveryWordOfALocation) {
  ASSERT_NE(module, nullptr);
  for (const auto& [id, text] : expected::LocationTexts()) EXPECT_EQ(Text(id), text) << id;
}

TEST_F(StringResource, HasNoTextUnderANumberThatIsNotGiven) {
  ASSERT_NE(module, nullptr);
  EXPECT_EQ(Text(105), L"");
}

}  // namespace
