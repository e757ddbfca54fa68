#include <gmock/gmock.h>

#include "BlockFilter.h"
#include "FormatId.h"

namespace zdx {

namespace {

using ::testing::HasSubstr;

constexpr const char* kIdText = "{01234567-89AB-CDEF-0123-456789ABCDEF}";

// What a word stands for; a block without a name if it isn't understood.
BlockFilter FilterOf(const std::string& word) {
  std::string problem;
  const std::optional<BlockFilter> filter = ParseBlockFilter(word, 1, problem);
  EXPECT_TRUE(filter) << word << ": " << problem;
  return filter.value_or(BlockFilter());
}

std::string ProblemWithBlock(const std::string& word) {
  std::string problem;
  EXPECT_FALSE(ParseBlockFilter(word, 1, problem)) << word;
  return problem;
}

TEST(BlockFilterWord, OfANameAloneNamesValuesByPrompt) {
  const BlockFilter filter = FilterOf("TITLE");
  EXPECT_EQ(filter.blockName, L"TITLE");
  EXPECT_TRUE(filter.usePrompt);
  EXPECT_FALSE(filter.matched);
}

TEST(BlockFilterWord, TellsByItsEndHowValuesAreNamed) {
  for (const char* const word : {"TITLE:tag", "TITLE:TAG", "TITLE:Tag"}) {
    EXPECT_EQ(FilterOf(word).blockName, L"TITLE");
    EXPECT_FALSE(FilterOf(word).usePrompt);
  }
  for (const char* const word : {"TITLE:prompt", "TITLE:PROMPT"}) {
    EXPECT_EQ(FilterOf(word).blockName, L"TITLE");
    EXPECT_TRUE(FilterOf(word).usePrompt);
  }
}

TEST(BlockFilterWord, TakesTheFormatIdBehindTheEqualsSign) {
  const BlockFilter filter = FilterOf(std::string("TITLE:tag=") + kIdText);
  EXPECT_EQ(filter.blockName, L"TITLE");
  EXPECT_FALSE(filter.usePrompt);
  EXPECT_EQ(FormatIdText(filter.formatId), L"{01234567-89AB-CDEF-0123-456789ABCDEF}");
  EXPECT_EQ(FormatIdText(FilterOf("TITLE=01234567-89ab-cdef-0123-456789abcdef").formatId),
            FormatIdText(filter.formatId));
}

TEST(BlockFilterWord, LeavesOtherColonsToTheName) {
  EXPECT_EQ(FilterOf("a:b").blockName, L"a:b");
  EXPECT_EQ(FilterOf("a:tags").blockName, L"a:tags");
  EXPECT_EQ(FilterOf("a:tag:prompt").blockName, L"a:tag");
  EXPECT_EQ(FilterOf("a:").blockName, L"a:");
  EXPECT_EQ(FilterOf("tag").blockName, L"tag");
}

TEST(BlockFilterWord, WithEqualsSignsInTheNameGoesWithAFormatId) {
  EXPECT_EQ(FilterOf(std::string("a=b=") + kIdText).blockName, L"a=b");
  EXPECT_THAT(ProblemWithBlock("a=b"), HasSubstr("'b'"));
}

TEST(BlockFilterWord, MayNameABlockInAnyScript) {
  EXPECT_EQ(FilterOf("\xD0\xA8\xD0\xA2\xD0\x90\xD0\x9C\xD0\x9F:tag").blockName,
            L"\u0428\u0422\u0410\u041C\u041F");
  EXPECT_EQ(FilterOf("*U7").blockName, L"*U7");
}

TEST(BlockFilterWord, WithoutANameIsRefused) {
  for (const std::string& word : {std::string(), std::string(":tag"), std::string(":prompt"),
                                  std::string("=") + kIdText, std::string(":tag=") + kIdText}) {
    EXPECT_THAT(ProblemWithBlock(word), HasSubstr("'" + word + "' names no block"));
  }
}

TEST(BlockFilterWord, WithAWrongFormatIdIsRefusedWithWhatWasWrong) {
  EXPECT_THAT(ProblemWithBlock("TITLE={1234}"), HasSubstr("'{1234}'"));
  EXPECT_THAT(ProblemWithBlock("TITLE="), HasSubstr("''"));
  EXPECT_THAT(ProblemWithBlock(std::string("TITLE=") + kIdText + ":tag"), HasSubstr(":tag'"));
}

TEST(OwnFormatIds, DifferByTheirNumber) {
  EXPECT_EQ(FormatIdText(OwnFormatId(1)), L"{5F1C7E2A-93D4-4B68-A0E7-000000000001}");
  EXPECT_EQ(FormatIdText(OwnFormatId(2)), L"{5F1C7E2A-93D4-4B68-A0E7-000000000002}");
  EXPECT_EQ(FormatIdText(OwnFormatId(0x1234)), L"{5F1C7E2A-93D4-4B68-A0E7-000000001234}");
}

TEST(OwnFormatIds, AreUsedWhereNoneIsGiven) {
  std::string problem;
  const std::optional<BlockFilter> third = ParseBlockFilter("TITLE", 3, problem);
  ASSERT_TRUE(third);
  EXPECT_EQ(FormatIdText(third->formatId), FormatIdText(OwnFormatId(3)));
}

}  // namespace

}  // namespace zdx
