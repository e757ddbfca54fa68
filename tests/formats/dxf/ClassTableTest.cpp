#include <gtest/gtest.h>

#include <string>

#include "backends/database/dxf/ClassTable.h"

namespace zdx::dxf {
namespace {

ClassTable TableOf(const std::string& text) {
  return ClassTable(TagStream(text, Form::kText), 0, text.size());
}

const std::string kTwo =
    "  0\nCLASS\n  1\nDOORTYPE\n  2\nDoorClass\n  3\nApp\n 90\n0\n"
    "  0\nCLASS\n  1\nWALLTYPE\n  2\nWallClass\n";

TEST(ClassTable, LeadsFromATypeToItsClass) {
  const std::string text = kTwo;
  const ClassTable table = TableOf(text);
  EXPECT_EQ(table.ClassOfType("WALLTYPE"), "WallClass");
  EXPECT_EQ(table.ClassOfType("ROOFTYPE"), std::nullopt);
}

TEST(ClassTable, NumbersCountFrom500) {
  const ClassTable table = TableOf(kTwo);
  EXPECT_EQ(table.ClassOfNumber(500), "DoorClass");
  EXPECT_EQ(table.ClassOfNumber(501), "WallClass");
  for (const std::int64_t number :
       {std::int64_t{499}, std::int64_t{502}, std::int64_t{-1}, std::int64_t{0x7FFFFFFFFFFFFFFF}}) {
    EXPECT_EQ(table.ClassOfNumber(number), std::nullopt) << number;
  }
}

TEST(ClassTable, ADamagedDeclarationKeepsItsNumber) {
  const std::string text = "  0\nCLASS\nrubbish\n  0\nCLASS\n  1\nWALLTYPE\n  2\nWallClass\n";
  EXPECT_EQ(TableOf(text).ClassOfNumber(501), "WallClass");
}

}  // namespace
}  // namespace zdx::dxf
