// The names of blocks, and of other records, as people know them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "ZDXEngine/Utf8.h"
#include "formats/dwg/OpenDrawing.h"

namespace {

using zdx::model::Drawing;
using zdx::model::TableKind;

std::vector<std::string> Names(Drawing& drawing, TableKind table) {
  std::vector<std::string> names;
  for (const zdx::model::ObjectKey record : drawing.TableRecords(table)) {
    names.push_back(ZDXEngine::Utf8FromWide(drawing.RecordName(table, record).value_or(L"?")));
  }
  return names;
}

bool HasRecord(Drawing& drawing, TableKind table, const std::wstring& name) {
  const auto& records = drawing.TableRecords(table);
  return std::any_of(records.begin(), records.end(), [&](zdx::model::ObjectKey record) {
    return drawing.HasName(table, record, name);
  });
}

class BlockNames : public testing::TestWithParam<const char*> {
 protected:
  drawing::DrawingSpec spec = [] {
    drawing::DrawingSpec made;
    made.version = GetParam();
    return made;
  }();
};

TEST_P(BlockNames, OfAnonymousBlocksAreWhole) {
  spec.blocks = {{"*D3"}, {"*U17"}, {"*T5"}};
  OpenDrawing drawing(spec);
  EXPECT_THAT(Names(*drawing, TableKind::kBlock), testing::IsSupersetOf({"*D3", "*U17", "*T5"}));
}

TEST_P(BlockNames, OfDynamicBlocksAreTheirOwn) {
  spec.blocks = {{"GATE"}};
  spec.blocks[0].isDynamic = true;
  OpenDrawing drawing(spec);
  EXPECT_THAT(Names(*drawing, TableKind::kBlock), testing::Contains("GATE"));
}

TEST_P(BlockNames, BeginWithModelAndPaperSpace) {
  spec.blocks = {{"A"}};
  OpenDrawing drawing(spec);
  ASSERT_GE(drawing->TableRecords(TableKind::kBlock).size(), 3u);
  const auto& records = drawing->TableRecords(TableKind::kBlock);
  EXPECT_TRUE(drawing->HasName(TableKind::kBlock, records[0], L"*Model_Space"));
  EXPECT_TRUE(drawing->HasName(TableKind::kBlock, records[1], L"*Paper_Space"));
}

INSTANTIATE_TEST_SUITE_P(Each, BlockNames,
                         testing::Values("AC1014", "AC1015", "AC1018", "AC1021", "AC1024", "AC1027",
                                         "AC1032"),
                         [](const auto& info) { return std::string(info.param); });

TEST(NamesInCapitals, AreToldSoAndFoundByTheirTrueSpellingToo) {
  drawing::DrawingSpec spec;
  spec.version = "AC1014";
  spec.layers = {"0", "Outer walls"};
  OpenDrawing drawing(spec);
  EXPECT_THAT(Names(*drawing, TableKind::kLayer), testing::ElementsAre("0", "OUTER_WALLS"));
  EXPECT_TRUE(HasRecord(*drawing, TableKind::kLayer, L"outer_walls"));
  EXPECT_TRUE(HasRecord(*drawing, TableKind::kLayer, L"Outer Walls"));
  EXPECT_FALSE(HasRecord(*drawing, TableKind::kLayer, L"Inner walls"));
}

}  // namespace
