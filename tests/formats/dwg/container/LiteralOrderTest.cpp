#include <gtest/gtest.h>

#include <vector>

#include "backends/database/dwg/container/LiteralOrder.h"

namespace zdx::dwg {
namespace {

// The letters and digits by their place in the run.
constexpr std::string_view kRun = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";

std::string Ordered(std::string_view run) {
  OutputWindow out(1000);
  EXPECT_TRUE(AppendLiterals(run, out));
  return out.Take();
}

// By the length of the run: the order in which its bytes come out.
const std::vector<std::string> kOrders = {
    "",
    "0",
    "10",
    "210",
    "0123",
    "40123",
    "512340",
    "6512340",
    "01234567",
    "801234567",
    "9123456780",
    "A9123456780",
    "89AB01234567",
    "C89AB01234567",
    "D9ABC123456780",
    "ED9ABC123456780",
    "89ABCDEF01234567",
    "9ABCDEFG801234567",
    "H9ABCDEFG123456780",
    "IHG89ABCDEF01234567",
    "GHIJ89ABCDEF01234567",
    "KGHIJ89ABCDEF01234567",
    "LKGHIJ89ABCDEF01234567",
    "MLKGHIJ89ABCDEF01234567",
    "GHIJKLMN89ABCDEF01234567",
    "HIJKLMNOG89ABCDEF01234567",
    "PHIJKLMNOG89ABCDEF01234567",
    "QPHIJKLMNOG89ABCDEF01234567",
    "OPQRGHIJKLMN89ABCDEF01234567",
    "SOPQRGHIJKLMN89ABCDEF01234567",
    "TSOPQRGHIJKLMN89ABCDEF01234567",
    "UQRSTIJKLMNOPABCDEFGH2345678910",
};

TEST(LiteralOrder, OfEveryRestIsAsTheFormatSays) {
  ASSERT_EQ(kOrders.size(), 32u);
  for (std::size_t size = 0; size < kOrders.size(); ++size) {
    EXPECT_EQ(Ordered(kRun.substr(0, size)), kOrders[size]) << size;
  }
}

TEST(LiteralOrder, ABlockOf32HasItsEightsBackwards) {
  EXPECT_EQ(Ordered(kRun.substr(0, 32)), "OPQRSTUVGHIJKLMN89ABCDEF01234567");
}

TEST(LiteralOrder, BlocksKeepTheirOrderAndTheRestComesLast) {
  EXPECT_EQ(Ordered(kRun.substr(0, 35)), "OPQRSTUVGHIJKLMN89ABCDEF01234567YXW");
  const std::string two(64, 'x');
  EXPECT_EQ(Ordered(std::string(kRun.substr(0, 32)) + two + "ab"),
            "OPQRSTUVGHIJKLMN89ABCDEF01234567" + two + "ba");
}

TEST(LiteralOrder, WritesNothingThatDoesNotFit) {
  OutputWindow out(3);
  EXPECT_TRUE(AppendLiterals("ab", out));
  EXPECT_FALSE(AppendLiterals("cd", out));
  EXPECT_EQ(out.Take(), "ba");
}

}  // namespace
}  // namespace zdx::dwg
