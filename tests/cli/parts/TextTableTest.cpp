#include <gtest/gtest.h>

#include "TextTable.h"

namespace zdx {

namespace {

std::string Table(const std::vector<TextRow>& rows) {
  std::string text;
  AppendTable(text, "Title", rows);
  return text;
}

TEST(TextTable, PutsTheValuesIntoOneColumn) {
  EXPECT_EQ(Table({{"a", {"1"}}, {"long", {"2"}}}),
            "  Title\n"
            "    a     1\n"
            "    long  2\n");
}

TEST(TextTable, ContinuesAValueBelowItself) {
  EXPECT_EQ(Table({{"key", {"one", "", "three"}}}),
            "  Title\n"
            "    key  one\n"
            "\n"
            "         three\n");
}

TEST(TextTable, LeavesNoBlanksBehindALabelWithoutValue) {
  EXPECT_EQ(Table({{"a", {}}, {"bc", {""}}}), "  Title\n    a\n    bc\n");
}

TEST(TextTable, DoesNotLetOneLongLabelPushTheOthersValuesAway) {
  const std::string longLabel(60, 'x');
  EXPECT_EQ(Table({{"a", {"1"}}, {longLabel, {"2"}}}),
            "  Title\n"
            "    a  1\n"
            "    " +
                longLabel + "  2\n");
}

}  // namespace

}  // namespace zdx
