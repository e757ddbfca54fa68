#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "backends/database/dxf/SectionMap.h"

namespace zdx::dxf {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string SectionText(const std::string& name, const std::string& body,
                        const std::string& end = "  0\nENDSEC\n") {
  return "  0\nSECTION\n  2\n" + name + "\n" + body + end;
}

std::vector<std::size_t> FlawsOf(const SectionMap& map) {
  std::vector<std::size_t> places;
  for (const SectionMap::Flaw& flaw : map.flaws()) places.push_back(flaw.at);
  return places;
}

std::vector<std::string> NamesOf(SectionMap& map) {
  std::vector<std::string> names;
  for (const Section& section : map.All()) names.emplace_back(section.name);
  return names;
}

TEST(SectionMap, FindsASectionByItsName) {
  const std::string text =
      SectionText("HEADER", "") + SectionText("TABLES", "  0\nLAYER\n  2\nWalls\n") + "  0\nEOF\n";
  const TagStream stream(text, Form::kText);
  SectionMap map(stream);
  const auto tables = map.Find("TABLES");
  ASSERT_TRUE(tables);
  EXPECT_EQ(text.substr(tables->begin, tables->end - tables->begin), "  0\nLAYER\n  2\nWalls\n");
  EXPECT_EQ(map.Find("OBJECTS"), std::nullopt);
  EXPECT_THAT(FlawsOf(map), IsEmpty());
}

TEST(SectionMap, TellsOfASectionThatComesTwiceIfItIsRead) {
  const std::string first = SectionText("BLOCKS", "  0\nBLOCK\n") + SectionText("OTHER", "");
  const std::string text = first + SectionText("BLOCKS", "") + SectionText("OTHER", "");
  const TagStream stream(text, Form::kText);
  SectionMap map(stream);
  map.All();
  EXPECT_THAT(FlawsOf(map), ElementsAre(first.size()));
  EXPECT_EQ(map.Find("BLOCKS")->end, text.find("  0\nENDSEC"));
}

TEST(SectionMap, NotesReferencesAsFarAsItWent) {
  const std::string insert = "  0\nINSERT\n  2\nDoor\n";
  const std::string text = SectionText("BLOCKS", insert) +
                           SectionText("ENTITIES", "  0\nLINE\n" + insert) +
                           SectionText("OTHER", insert);
  const TagStream stream(text, Form::kText);
  SectionMap map(stream);
  const std::size_t first = text.find(insert);
  const std::size_t second = text.find(insert, first + 1);
  map.Find("BLOCKS");
  EXPECT_THAT(map.references(), ElementsAre(first));
  map.Find("ENTITIES");
  EXPECT_THAT(map.references(), ElementsAre(first, second));
}

TEST(SectionMap, OfTwoSectionsOfANameTheFirstIsFound) {
  const std::string text =
      SectionText("HEADER", "  9\n$A\n  1\n1\n") + SectionText("HEADER", "  9\n$B\n  1\n2\n");
  const TagStream stream(text, Form::kText);
  SectionMap map(stream);
  EXPECT_NE(text.substr(map.Find("HEADER")->begin, 10).find("$A"), std::string::npos);
}

TEST(SectionMap, ASectionWithoutItsEndEndsAtTheNext) {
  const std::string text =
      SectionText("TABLES", "  0\nLAYER\n  2\nx\n", "") + SectionText("BLOCKS", "") + "  0\nEOF\n";
  const TagStream stream(text, Form::kText);
  SectionMap map(stream);
  EXPECT_THAT(NamesOf(map), ElementsAre("TABLES", "BLOCKS"));
  EXPECT_THAT(FlawsOf(map), ElementsAre(text.find("  0\nSECTION\n  2\nBLOCKS")));
}

TEST(SectionMap, TheLastSectionMayEndWithTheFile) {
  const std::string text = SectionText("ENTITIES", "  0\nLINE\n", "");
  const TagStream stream(text, Form::kText);
  SectionMap map(stream);
  EXPECT_EQ(map.Find("ENTITIES")->end, text.size());
  EXPECT_THAT(FlawsOf(map), ElementsAre(text.size()));
}

TEST(SectionMap, WhatStandsBehindTheEndOfTheFileIsNotLookedAt) {
  const std::string text = SectionText("HEADER", "") + "  0\nEOF\n" + SectionText("TABLES", "");
  const TagStream stream(text, Form::kText);
  SectionMap map(stream);
  EXPECT_THAT(NamesOf(map), ElementsAre("HEADER"));
}

TEST(SectionMap, ATextThatReadsLikeAnEndEndsNothing) {
  const std::string text =
      SectionText("ENTITIES", "  0\nTEXT\n  1\nENDSEC\n  1\n0\n  7\nSECTION\n  0\nLINE\n");
  const TagStream stream(text, Form::kText);
  SectionMap map(stream);
  EXPECT_EQ(map.Find("ENTITIES")->end, text.size() - std::string("  0\nENDSEC\n").size());
}

TEST(SectionMap, ACommentMayStandBeforeTheName) {
  const std::string text =
      "  0\nSECTION\n999\nby hand\n  2\nTABLES\n  0\nLAYER\n  0\nENDSEC\n  0\nEOF\n";
  const TagStream stream(text, Form::kText);
  SectionMap map(stream);
  EXPECT_THAT(NamesOf(map), ElementsAre("TABLES"));
  EXPECT_THAT(FlawsOf(map), IsEmpty());
}

TEST(SectionMap, ASectionWithoutANameIsPassedOverAndToldOf) {
  const std::string text = "  0\nSECTION\n  0\nENDSEC\n" + SectionText("TABLES", "");
  const TagStream stream(text, Form::kText);
  SectionMap map(stream);
  EXPECT_THAT(NamesOf(map), ElementsAre("TABLES"));
  EXPECT_THAT(FlawsOf(map), ElementsAre(0u));
}

TEST(SectionMap, AFoundSectionCostsNoLookAtTheRest) {
  // Behind the first section stands damage that a look at it would tell of.
  const std::string text = SectionText("HEADER", "") + SectionText("TABLES", "", "");
  const TagStream stream(text, Form::kText);
  SectionMap map(stream);
  EXPECT_TRUE(map.Find("HEADER"));
  EXPECT_THAT(FlawsOf(map), IsEmpty());
}

}  // namespace
}  // namespace zdx::dxf
