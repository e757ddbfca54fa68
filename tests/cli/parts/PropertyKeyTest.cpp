#include <gmock/gmock.h>

#include "FormatId.h"
#include "KeyNames.h"
#include "PropertyKey.h"
#include "cli/parts/MadeUpReport.h"

namespace zdx {

namespace {

using Manager = ZDXEngine::FilePropertyMgr;
using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

PropertyKey KeyOf(const std::string& word) {
  std::string problem;
  const std::optional<PropertyKey> key = ParseKey(word, problem);
  EXPECT_TRUE(key) << word << ": " << problem;
  return key.value_or(PropertyKey());
}

std::string ProblemWithKey(const std::string& word) {
  std::string problem;
  EXPECT_FALSE(ParseKey(word, problem)) << word;
  return problem;
}

void ExpectKey(const std::string& word, Selection selection, const wchar_t* set,
               const wchar_t* name) {
  const PropertyKey key = KeyOf(word);
  EXPECT_EQ(key.wanted.selection, selection) << word;
  EXPECT_THAT(key.wanted.blocks, IsEmpty()) << word;
  EXPECT_EQ(key.formatId, set) << word;
  EXPECT_EQ(key.name, name) << word;
}

TEST(PropertyKeys, OfSummaryFieldsAreTheirNames) {
  ExpectKey("Title", Manager::SummaryInfo, kSummarySet, L"2");
  ExpectKey("Subject", Manager::SummaryInfo, kSummarySet, L"3");
  ExpectKey("Author", Manager::SummaryInfo, kSummarySet, L"4");
  ExpectKey("Keywords", Manager::SummaryInfo, kSummarySet, L"5");
  ExpectKey("Comments", Manager::SummaryInfo, kSummarySet, L"6");
  ExpectKey("LastSavedBy", Manager::SummaryInfo, kSummarySet, L"8");
  ExpectKey("RevisionNumber", Manager::SummaryInfo, kSummarySet, L"9");
}

TEST(PropertyKeys, OfCustomEntriesKeepTheirNameAsItIs) {
  ExpectKey("custom:Client", Manager::CustomSummary, kCustomSet, L"Client");
  ExpectKey("custom:a:b", Manager::CustomSummary, kCustomSet, L"a:b");
  ExpectKey("custom: x ", Manager::CustomSummary, kCustomSet, L" x ");
}

TEST(PropertyKeys, OfGroupsHaveTheirPrefix) {
  ExpectKey("settings:ProjectName", Manager::DatabaseSettings, kStorageSet, L"ProjectName");
  ExpectKey("geo:designPoint", Manager::GeoLocation, kStorageSet, L"designPoint");
  ExpectKey("creator:Version", Manager::CreatorInfo, kStorageSet, L"DWG Creator Version");
  ExpectKey("type", Manager::DrawingFlavour, kStorageSet, L"DWG Type");
}

TEST(PropertyKeys, OfListsMeanAllThings) {
  ExpectKey("layers", Manager::SymbolTables, kStorageSet, L"Layer Name");
  ExpectKey("linetypes", Manager::SymbolTables, kStorageSet, L"LineType Name");
  ExpectKey("views", Manager::SymbolTables, kStorageSet, L"View Name");
  ExpectKey("layouts", Manager::NamedObjects, kStorageSet, L"Layout Name");
  ExpectKey("groups", Manager::NamedObjects, kStorageSet, L"Group Name");
  ExpectKey("mlinestyles", Manager::NamedObjects, kStorageSet, L"MultiLine Style Name");
  ExpectKey("namedobjects", Manager::NamedObjects, kStorageSet, L"Named Object Name");
  ExpectKey("plotsettings", Manager::NamedObjects, kStorageSet, L"Plot Settings Name");
  EXPECT_TRUE(KeyOf("layers").isList);
  EXPECT_FALSE(KeyOf("type").isList);
}

TEST(PropertyKeys, OfOursMayBeInAnyCase) {
  ExpectKey("TITLE", Manager::SummaryInfo, kSummarySet, L"2");
  ExpectKey("lastsavedby", Manager::SummaryInfo, kSummarySet, L"8");
  ExpectKey("CUSTOM:Client", Manager::CustomSummary, kCustomSet, L"Client");
  ExpectKey("Settings:DIMBLK1", Manager::DatabaseSettings, kStorageSet, L"Dimblk1");
  ExpectKey("GEO:coordinatesystem", Manager::GeoLocation, kStorageSet, L"CoordinateSystem");
  ExpectKey("Layers", Manager::SymbolTables, kStorageSet, L"Layer Name");
}

TEST(PropertyKeys, OfBlocksAskForTheBlockByTag) {
  const PropertyKey key = KeyOf("block:TITLE:a:b");
  EXPECT_EQ(key.wanted.selection, Manager::BlockAttributes);
  ASSERT_THAT(key.wanted.blocks, SizeIs(1));
  EXPECT_EQ(key.wanted.blocks[0].blockName, L"TITLE");
  EXPECT_FALSE(key.wanted.blocks[0].usePrompt);
  EXPECT_EQ(key.formatId, FormatIdText(key.wanted.blocks[0].formatId));
  EXPECT_EQ(key.name, L"a:b");
}

TEST(PropertyKeys, ThatAreNoneAreRefusedWithThoseThatAre) {
  for (const char* const word : {"", ":", "Title:", "titles", "custom", "custom:", "Thumbnail",
                                 "block:TITLE", "block::TAG", "block:TITLE:", "layers:0", "2"}) {
    EXPECT_THAT(ProblemWithKey(word),
                AllOf(HasSubstr("'" + std::string(word) + "'"), HasSubstr("Title, Subject"),
                      HasSubstr("custom:NAME"), HasSubstr("layers"), HasSubstr("block:NAME:TAG")));
  }
}

TEST(PropertyKeys, OfAGroupThatHasNoSuchNameAreRefusedWithItsNames) {
  EXPECT_THAT(ProblemWithKey("settings:Title"), AllOf(HasSubstr("'Title'"), HasSubstr("Dimapost")));
  EXPECT_THAT(ProblemWithKey("geo:"), AllOf(HasSubstr("''"), HasSubstr("verticalUnitScale")));
  EXPECT_THAT(ProblemWithKey("creator:x"), HasSubstr("Name, Version"));
}

TEST(PropertyKeys, AllStandInTheirForms) {
  const std::string forms = KeyForms();
  for (const char* const word :
       {"RevisionNumber", "type", "custom:NAME", "settings:NAME", "StyleSheet", "geo:NAME",
        "GeoRSS", "creator:NAME", "Version", "block:NAME:TAG", "plotsettings"}) {
    EXPECT_THAT(forms, HasSubstr(word));
  }
}

class FindByKey : public ::testing::Test {
 protected:
  // The values of what is found.
  std::vector<std::wstring> Found(const std::string& word) {
    std::vector<std::wstring> values;
    for (const ZDXEngine::_PropData* const property : Find(KeyOf(word), made_.Report())) {
      values.emplace_back(property->value.bstrVal);
    }
    return values;
  }
  using Values = std::vector<std::wstring>;

  MadeUpReport made_;
};

TEST_F(FindByKey, GivesTheFirstOfThatNameOrAllOfAList) {
  made_.AddText(kSummarySet, L"2", L"title");
  made_.AddText(kStorageSet, L"Layer Name", L"0");
  made_.AddText(kStorageSet, L"Layer Name", L"Walls");
  made_.AddText(kCustomSet, L"Client", L"first");
  made_.AddText(kCustomSet, L"Client", L"second");
  EXPECT_EQ(Found("Title"), Values{L"title"});
  EXPECT_EQ(Found("Subject"), Values{});
  EXPECT_EQ(Found("layers"), (Values{L"0", L"Walls"}));
  EXPECT_EQ(Found("custom:Client"), Values{L"first"});
}

TEST_F(FindByKey, PrefersTheCustomEntryOfThatVeryCase) {
  made_.AddText(kCustomSet, L"CLIENT", L"large");
  made_.AddText(kCustomSet, L"Client", L"as it is");
  EXPECT_EQ(Found("custom:Client"), Values{L"as it is"});
  EXPECT_EQ(Found("custom:client"), Values{L"large"});
  EXPECT_EQ(Found("custom:Clients"), Values{});
}

TEST_F(FindByKey, DoesNotTakeACustomEntryForASetting) {
  made_.AddText(kCustomSet, L"Menu", L"lunch");
  made_.AddText(kStorageSet, L"Menu", L"site");
  EXPECT_EQ(Found("settings:Menu"), Values{L"site"});
  EXPECT_EQ(Found("custom:Menu"), Values{L"lunch"});
}

}  // namespace

}  // namespace zdx
