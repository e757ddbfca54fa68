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
    const auto* const variable = variables.Find(name);
    if (variable == nullptr) return "(none)";
    return variable->value ? std::string(variable->value->value) : "(unreadable)";
  }

  std::string text;
  HeaderVariables variables;
};

TEST(HeaderVariables, EachNameHasItsFirstValue) {
  const Header header(
      "  9\n$MENU\n  1\n.\n  9\n$DIMPOST\n  1\n1.5\n  1\n2.5\n  9\n$SUBJECT\n  1\ny\n");
  EXPECT_EQ(header.Value("$MENU"), ".");
  EXPECT_EQ(header.Value("$DIMPOST"), "1.5");
  EXPECT_EQ(header.Value("$SUBJECT"), "y");
  EXPECT_EQ(header.Value("$KEYWORDS"), "(none)");
}

TEST(HeaderVariables, VariablesThatNobodyReadsAreNotKept) {
  std::string text;
  for (int i = 0; i < 1000; ++i) text += "  9\n$OTHER\n  1\nx\n";
  EXPECT_TRUE(Header(text).variables.all().empty());
}

TEST(HeaderVariables, OfTwoWithANameTheFirstCounts) {
  EXPECT_EQ(Header("  9\n$MENU\n  1\n1\n  9\n$MENU\n  1\n2\n").Value("$MENU"), "1");
}

TEST(HeaderVariables, AVariableWithoutAValueIsUnreadable) {
  const Header header("  9\n$MENU\n  9\n$TITLE\n  1\n2\n");
  EXPECT_EQ(header.Value("$MENU"), "(unreadable)");
  EXPECT_EQ(header.Value("$TITLE"), "2");
}

TEST(HeaderVariables, RepeatedNamesStayInOrder) {
  const Header header(
      "  9\n$CUSTOMPROPERTYTAG\n  1\na\n  9\n$CUSTOMPROPERTY\n  1\n1\n  9\n$CUSTOMPROPERTYTAG\n  "
      "1\nb\n  9\n$CUSTOMPROPERTY\n  1\n2\n");
  std::string all;
  for (const auto& variable : header.variables.all()) {
    all += std::string(variable.name) + std::string(variable.value->value);
  }
  EXPECT_EQ(all, "$CUSTOMPROPERTYTAGa$CUSTOMPROPERTY1$CUSTOMPROPERTYTAGb$CUSTOMPROPERTY2");
}

TEST(HeaderVariables, DamageCostsTheVariableItStandsIn) {
  const Header header("  9\n$MENU\n  1\n1\n  9\n$TITLE\nrubbish\n  9\n$AUTHOR\n  1\n3\n");
  EXPECT_EQ(header.Value("$MENU"), "1");
  EXPECT_EQ(header.Value("$TITLE"), "(unreadable)");
  EXPECT_EQ(header.Value("$AUTHOR"), "3");
  EXPECT_THAT(header.variables.damages(), ElementsAre(header.text.find("rubbish")));
}

TEST(HeaderVariables, ABlankLineIsPassedOverAndToldOf) {
  const Header header("  9\n$MENU\n  1\n1\n\n  9\n$TITLE\n  1\n2\n");
  EXPECT_EQ(header.Value("$TITLE"), "2");
  EXPECT_EQ(header.variables.damages().size(), 1u);
}

TEST(HeaderVariables, AWholeHeaderHasNoDamage) {
  EXPECT_THAT(Header("  9\n$MENU\n  1\n1\n").variables.damages(), IsEmpty());
}

TEST(HeaderVariables, DamageInABinaryHeaderCostsItsVariable) {
  using namespace std::string_literals;
  const std::string wide =
      "\x09\x00$MENU\0\x01\x00x\0\x09\x00$TITLE\0\x50\x00y\0\x09\x00$AUTHOR\0\x01\x00z\0"s;
  const std::string narrow = "\x09$MENU\0\x01x\0\x09$TITLE\0\x50y\0\x09$AUTHOR\0\x01z\0"s;
  for (const auto& [form, bytes] :
       {std::pair(Form::kBinaryTwoByte, wide), std::pair(Form::kBinaryOneByte, narrow)}) {
    const HeaderVariables variables(TagStream(bytes, form), 0, bytes.size());
    EXPECT_TRUE(variables.Find("$MENU")->value);
    EXPECT_FALSE(variables.Find("$TITLE")->value);
    EXPECT_EQ(variables.Find("$AUTHOR")->value->value, "z");
    EXPECT_EQ(variables.damages().size(), 1u);
  }
}

}  // namespace
}  // namespace zdx::dxf
