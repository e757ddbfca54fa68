#include <gtest/gtest.h>

#include "resources/Constants.h"

namespace {

TEST(ConstantTexts, AreAnEmptyOneAndASingleLineFeed) {
  EXPECT_EQ(ZDXEngine::kEmptyText, std::wstring());
  EXPECT_EQ(ZDXEngine::kLineFeedText, std::wstring(1, L'\x0A'));
}

}  // namespace
