#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "backends/database/model/BuiltIns.h"
#include "base/CaseFold.h"

namespace zdx::model {
namespace {

using testing::ElementsAre;

// Orders records of these names and gives the names back.
std::vector<std::wstring> Ordered(TableKind table, const std::vector<std::wstring>& names) {
  std::vector<ObjectKey> records;
  for (std::size_t i = 0; i < names.size(); ++i) records.push_back(ObjectKey{i});
  PutBuiltInsFirst(table, records, [&](ObjectKey record) -> std::optional<std::wstring> {
    const std::wstring& name = names[static_cast<std::size_t>(record)];
    return name == L"?" ? std::nullopt : std::optional(name);
  });
  std::vector<std::wstring> ordered;
  for (const ObjectKey record : records) ordered.push_back(names[static_cast<std::size_t>(record)]);
  return ordered;
}

TEST(BuiltIns, ByBlockAndByLayerComeFirst) {
  EXPECT_THAT(Ordered(TableKind::kLinetype, {L"Continuous", L"ByLayer", L"Dash", L"ByBlock"}),
              ElementsAre(L"ByBlock", L"ByLayer", L"Continuous", L"Dash"));
}

TEST(BuiltIns, ModelAndPaperSpaceComeFirst) {
  EXPECT_THAT(Ordered(TableKind::kBlock,
                      {L"door", L"*Paper_Space", L"*PAPER_SPACE0", L"*MODEL_SPACE", L"wall"}),
              ElementsAre(L"*MODEL_SPACE", L"*Paper_Space", L"door", L"*PAPER_SPACE0", L"wall"));
}

TEST(BuiltIns, TheOldestNamesOfTheSpacesCountToo) {
  EXPECT_THAT(Ordered(TableKind::kBlock, {L"A", L"$PAPER_SPACE", L"$MODEL_SPACE"}),
              ElementsAre(L"$MODEL_SPACE", L"$PAPER_SPACE", L"A"));
}

TEST(BuiltIns, LayersKeepTheirOrder) {
  EXPECT_THAT(Ordered(TableKind::kLayer, {L"ByLayer", L"0", L"ByBlock"}),
              ElementsAre(L"ByLayer", L"0", L"ByBlock"));
}

TEST(BuiltIns, ARecordWithoutANameKeepsItsPlaceAmongTheOthers) {
  EXPECT_THAT(Ordered(TableKind::kLinetype, {L"A", L"?", L"ByLayer", L"B"}),
              ElementsAre(L"ByLayer", L"A", L"?", L"B"));
}

TEST(BuiltIns, OnlyTheFirstOfTwoRecordsOfABuiltInNameMoves) {
  EXPECT_THAT(Ordered(TableKind::kLinetype, {L"A", L"ByLayer", L"BYLAYER"}),
              ElementsAre(L"ByLayer", L"A", L"BYLAYER"));
}

// The block name for an arrow in a drawing with these blocks.
std::wstring Arrow(const std::wstring& text, const std::vector<std::wstring>& blocks) {
  return ArrowBlockName(text, [&](const std::wstring& name) -> std::wstring {
    for (const std::wstring& block : blocks) {
      if (CompareIgnoringCase(block, name) == 0) return block;
    }
    return {};
  });
}

TEST(BuiltIns, AnArrowIsItsBlockWithTheUnderscore) {
  EXPECT_EQ(Arrow(L"BoxBlank", {L"_BoxBlank"}), L"_BoxBlank");
}

TEST(BuiltIns, AnArrowTakesTheSpellingOfTheBlockTable) {
  EXPECT_EQ(Arrow(L"BOXBLANK", {L"_BoxBlank"}), L"_BoxBlank");
  EXPECT_EQ(Arrow(L"my_arrow", {L"My_Arrow"}), L"My_Arrow");
}

TEST(BuiltIns, ABuiltInArrowWithoutABlockStillHasItsUnderscore) {
  EXPECT_EQ(Arrow(L"archtick", {}), L"_ArchTick");
}

TEST(BuiltIns, ABuiltInArrowGoesBeforeADraftersBlockOfThatName) {
  EXPECT_EQ(Arrow(L"Open", {L"OPEN", L"_Open"}), L"_Open");
  EXPECT_EQ(Arrow(L"Open", {L"OPEN"}), L"OPEN");
}

TEST(BuiltIns, ADraftersArrowStaysAsItIs) {
  EXPECT_EQ(Arrow(L"leaf", {L"_leaf"}), L"leaf");
  EXPECT_EQ(Arrow(L"_BoxBlank", {}), L"_BoxBlank");
}

TEST(BuiltIns, TheDefaultArrowIsEmpty) { EXPECT_EQ(Arrow(L"", {L"_"}), L""); }

}  // namespace
}  // namespace zdx::model
