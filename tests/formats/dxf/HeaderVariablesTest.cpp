#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "backends/database/dxf/HeaderVariables.h"

namespace zdx::dxf {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Header {
  explicit Header(std::string header) : text(std::move(header)) {
    variables = HeaderVariables(TagStream(text, Form::kText), 0, text.size());
  }
  std::string Value(std::string_view name) const {
    const auto tag = variables.Find(name);
    return tag ? std::string(tag->value) : "(none)";
  }

  std::string text;
  HeaderVariables variables;
};

TEST(HeaderVariables, EachNameHasItsFirstValue) {
  const Header header("  9\n$MENU\n  1\n.\n  9\n$EXTMIN\n 10\n1.5\n 20\n2.5\n  9\n$X\n  1\ny\n");
  EXPECT_EQ(header.Value("$MENU"), ".");
  EXPECT_EQ(header.Value("$EXTMIN"), "1.5");
  EXPECT_EQ(header.Value("$X"), "y");
  EXPECT_EQ(header.Value("$Y"), "(none)");
}

TEST(HeaderVariables, OfTwoWithANameTheFirstCounts) {
  EXPECT_EQ(Header("  9\n$A\n  1\n1\n  9\n$A\n  1\n2\n").Value("$A"), "1");
}

TEST(HeaderVariables, AVariableWithoutAValueIsEmpty) {
  const Header header("  9\n$A\n  9\n$B\n  1\n2\n");
  EXPECT_EQ(header.Value("$A"), "");
  EXPECT_EQ(header.Value("$B"), "2");
}

TEST(HeaderVariables, RepeatedNamesStayInOrder) {
  const Header header("  9\n$N\n  1\na\n  9\n$V\n  1\n1\n  9\n$N\n  1\nb\n  9\n$V\n  1\n2\n");
  std::string all;
  for (const auto& variable : header.variables.all()) {
    all += std::string(variable.name) + std::string(variable.value.value);
  }
  EXPECT_EQ(all, "$Na$V1$Nb$V2");
}

TEST(HeaderVariables, DamageCostsTheVariableItStandsIn) {
  const Header header("  9\n$A\n  1\n1\n  9\n$B\nrubbish\n  9\n$C\n  1\n3\n");
  EXPECT_EQ(header.Value("$A"), "1");
  EXPECT_EQ(header.Value("$C"), "3");
  EXPECT_THAT(header.variables.damages(), ElementsAre(header.text.find("rubbish")));
}

TEST(HeaderVariables, ABlankLineIsPassedOverAndToldOf) {
  const Header header("  9\n$A\n  1\n1\n\n  9\n$B\n  1\n2\n");
  EXPECT_EQ(header.Value("$B"), "2");
  EXPECT_EQ(header.variables.damages().size(), 1u);
}

TEST(HeaderVariables, AWholeHeaderHasNoDamage) {
  EXPECT_THAT(Header("  9\n$A\n  1\n1\n").variables.damages(), IsEmpty());
}

TEST(HeaderVariables, DamageInABinaryHeaderEndsIt) {
  using namespace std::string_literals;
  const std::string bytes = "\x09\x00$A\0\x01\x00x\0\x50\x00\x09\x00$B\0\x01\x00y\0"s;
  const HeaderVariables variables(TagStream(bytes, Form::kBinaryTwoByte), 0, bytes.size());
  EXPECT_TRUE(variables.Find("$A"));
  EXPECT_FALSE(variables.Find("$B"));
  EXPECT_EQ(variables.damages().size(), 1u);
}

}  // namespace
}  // namespace zdx::dxf
