#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "backends/database/dxf/GroupedTags.h"
#include "backends/database/dxf/Tokens.h"

namespace zdx::dxf {
namespace {

// Each tag's value behind its group, those of the object itself alone.
std::vector<std::string> GroupsOf(const std::string& text) {
  const TagStream stream(text, Form::kText);
  GroupedTags tags(stream, 0);
  std::vector<std::string> told;
  Tag tag;
  while (tags.Next(tag)) {
    told.push_back(std::string(tags.group()) + (tags.IsOwn() ? "" : " ") + std::string(tag.value));
  }
  return told;
}

EntityHead HeadOf(const std::string& text) { return ReadHead(TagStream(text, Form::kText), 0); }

TEST(GroupedTags, TellTheGroupThatATagStandsIn) {
  EXPECT_THAT(GroupsOf("  5\nA\n102\n{ONE\n330\nB\n102\n}\n330\nC\n102\n{TWO\n360\nD\n102\n}\n"),
              testing::ElementsAre("A", "{ONE B", "C", "{TWO D"));
}

TEST(GroupedTags, EndAnOpenGroupAtTheNextMarker) {
  EXPECT_THAT(GroupsOf("102\n{ONE\n330\nB\n100\nMarker\n  2\nname\n"),
              testing::ElementsAre("{ONE B", "Marker", "name"));
}

TEST(GroupedTags, EndAnOpenGroupWhereExtendedDataBegins) {
  EXPECT_THAT(GroupsOf("102\n{ONE\n331\nB\n1001\nAPPLICATION\n1000\ntext\n"),
              testing::ElementsAre("{ONE B", "APPLICATION", "text"));
}

TEST(GroupedTags, BeginWithABrace) {
  EXPECT_THAT(GroupsOf("102\nWORD\n330\nB\n"), testing::ElementsAre("B"));
}

TEST(EntityHead, IsReadOutsideOfGroups) {
  const EntityHead head =
      HeadOf("  5\nA\n102\n{ONE\n330\nB\n  5\nC\n102\n}\n102\n" + std::string(kExtensionGroup) +
             "\n360\nD\n102\n}\n330\nE\n100\nFirst\n 67\n     1\n");
  EXPECT_EQ(head.handle, 0xAu);
  EXPECT_EQ(head.owner, 0xEu);
  EXPECT_EQ(head.extension, 0xDu);
  EXPECT_TRUE(head.isOnPaper);
}

TEST(EntityHead, EndsAtTheSecondMarker) {
  const EntityHead head = HeadOf("  5\nA\n100\nFirst\n330\nB\n100\nSecond\n 67\n     1\n  5\nB\n");
  EXPECT_EQ(head.handle, 0xAu);
  EXPECT_EQ(head.owner, 0u);
  EXPECT_FALSE(head.isOnPaper);
}

TEST(EntityHead, WithoutMarkersMayStandAnywhere) {
  const EntityHead head = HeadOf("  8\nlayer\n 10\n1.0\n 67\n     1\n  5\nA\n");
  EXPECT_EQ(head.handle, 0xAu);
  EXPECT_TRUE(head.isOnPaper);
}

}  // namespace
}  // namespace zdx::dxf
