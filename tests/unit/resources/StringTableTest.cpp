#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "resources/StringTable.h"
#include "unit/resources/ExpectedTexts.h"

using testing::Contains;
using testing::Key;
using testing::Not;

namespace {

std::map<unsigned int, std::wstring> TableByNumber() {
  std::map<unsigned int, std::wstring> table;
  for (const ZDXEngine::StringTableEntry& entry : ZDXEngine::StringTable()) {
    table.emplace(entry.id, entry.text);
  }
  return table;
}

TEST(StringTable, EveryFailureTextIsWordedAsClientsKnowIt) {
  const auto table = TableByNumber();
  for (const auto& [id, text] : expected::FailureTexts()) {
    ASSERT_THAT(table, Contains(Key(id)));
    EXPECT_EQ(table.at(id), text) << id;
  }
}

TEST(StringTable, EveryWordOfALocationIsAsClientsKnowIt) {
  const auto table = TableByNumber();
  for (const auto& [id, text] : expected::LocationTexts()) {
    ASSERT_THAT(table, Contains(Key(id)));
    EXPECT_EQ(table.at(id), text) << id;
  }
}

TEST(StringTable, NumbersAscendAndNoneComesTwice) {
  const auto table = ZDXEngine::StringTable();
  const auto notAscending = [](const auto& a, const auto& b) { return a.id >= b.id; };
  EXPECT_EQ(std::ranges::adjacent_find(table, notAscending), table.end());
}

TEST(StringTable, ThereIsNoText105) { EXPECT_THAT(TableByNumber(), Not(Contains(Key(105u)))); }

}  // namespace
