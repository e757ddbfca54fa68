#include <gtest/gtest.h>

#include <string_view>

#include "Base64.h"

namespace zdx {

namespace {

std::string Encoded(std::string_view bytes) {
  return Base64({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()});
}

// The examples of RFC 4648, section 10.
TEST(Base64, PadsToWholeGroups) {
  EXPECT_EQ(Encoded(""), "");
  EXPECT_EQ(Encoded("f"), "Zg==");
  EXPECT_EQ(Encoded("fo"), "Zm8=");
  EXPECT_EQ(Encoded("foo"), "Zm9v");
  EXPECT_EQ(Encoded("foob"), "Zm9vYg==");
  EXPECT_EQ(Encoded("fooba"), "Zm9vYmE=");
  EXPECT_EQ(Encoded("foobar"), "Zm9vYmFy");
}

TEST(Base64, UsesTheLastLettersOfTheStandardAlphabet) { EXPECT_EQ(Encoded("\xFB\xFF"), "+/8="); }

}  // namespace

}  // namespace zdx
