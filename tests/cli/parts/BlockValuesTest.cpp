// The values of named blocks in both outputs.
#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "BlockValues.h"
#include "FormatId.h"
#include "JsonOutput.h"
#include "TextOutput.h"
#include "ZDXEngine/FormatIds.h"
#include "cli/parts/MadeUpReport.h"

namespace zdx {

namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::SizeIs;

class BlocksInReports : public ::testing::Test {
 protected:
  void AskFor(const wchar_t* name, const GUID& formatId) {
    BlockFilter& filter = report_.blocks.emplace_back();
    filter.blockName = name;
    filter.formatId = formatId;
  }

  // What the engine appends for one value.
  void AddValue(const GUID& formatId, const wchar_t* name, const wchar_t* text) {
    AddValue(formatId, name, name, text);
  }
  void AddValue(const GUID& formatId, const wchar_t* firstName, const wchar_t* name,
                const wchar_t* text) {
    made_.AddText(FormatIdText(formatId).c_str(), firstName, text);
    made_.AddText(kStorageSet, name, text);
  }

  std::string Text() {
    Count();
    return TextOf(L"a", report_);
  }
  nlohmann::json Json() {
    Count();
    return nlohmann::json::parse(JsonOf(L"a", report_)).at("properties");
  }
  std::size_t Count() {
    return report_.blockValueCount = CountBlockValues(report_.properties, report_.blocks);
  }

  MadeUpReport made_;
  DrawingReport& report_ = made_.Report();
};

TEST_F(BlocksInReports, AreGroupsOfTheirValuesAndEachValueIsToldOnce) {
  AskFor(L"TITLE", OwnFormatId(1));
  AskFor(L"STAMP", OwnFormatId(2));
  AddValue(OwnFormatId(2), L"No", L"7");
  AddValue(OwnFormatId(1), L"Scale", L"1:50");
  AddValue(OwnFormatId(1), L"Project", L"Quay");
  EXPECT_EQ(Text(),
            "a\n  Drawing\n"
            "\n  Block TITLE\n    Scale    1:50\n    Project  Quay\n"
            "\n  Block STAMP\n    No  7\n");
}

TEST_F(BlocksInReports, KeepBothRecordsOfEachValueInJson) {
  AskFor(L"TITLE", OwnFormatId(1));
  AddValue(OwnFormatId(1), L"Scale", L"1:50");
  const nlohmann::json properties = Json();
  ASSERT_THAT(properties, SizeIs(2));
  EXPECT_EQ(properties[0].at("formatId"), "{5F1C7E2A-93D4-4B68-A0E7-000000000001}");
  EXPECT_EQ(properties[1].at("formatId"), "{B725F130-47EF-101A-A5F1-02608C9EEBAC}");
}

TEST_F(BlocksInReports, WithoutValuesAreToldToHaveNone) {
  AskFor(L"TITLE", OwnFormatId(1));
  EXPECT_EQ(Text(), "a\n  Drawing\n\n  Block TITLE (none)\n");
}

TEST_F(BlocksInReports, ThatShareAFormatIdShareAGroup) {
  AskFor(L"TITLE", OwnFormatId(1));
  AskFor(L"STAMP", OwnFormatId(1));
  AddValue(OwnFormatId(1), L"No", L"7");
  EXPECT_THAT(Text(), EndsWith("\n\n  Block TITLE, STAMP\n    No  7\n"));
}

TEST_F(BlocksInReports, TellNullAndEmptyTextsApart) {
  AskFor(L"TITLE", OwnFormatId(1));
  AddValue(OwnFormatId(1), L"A", nullptr);
  AddValue(OwnFormatId(1), L"B", L"");
  EXPECT_THAT(Text(), HasSubstr("    A  (none)\n    B  (empty)\n"));
}

TEST_F(BlocksInReports, AreKnownWhateverTheirValuesAreCalled) {
  AskFor(L"TITLE", OwnFormatId(1));
  made_.AddText(kStorageSet, L"DWG Type", L"Zent");
  AddValue(OwnFormatId(1), L"DWG Type", L"plot");
  AddValue(OwnFormatId(1), L"Menu", L"lunch");
  report_.drawingTypeSelected = false;
  const std::string text = Text();
  EXPECT_THAT(text, HasSubstr("  Block TITLE\n    DWG Type  plot\n    Menu      lunch\n"));
  EXPECT_THAT(text, Not(HasSubstr("Settings")));
  EXPECT_THAT(Json(), SizeIs(4));
}

TEST_F(BlocksInReports, MayStandUnderAnyOfTheEnginesOwnSets) {
  AskFor(L"A", ZDXEngine::FMTID_SummaryInformation);
  AskFor(L"B", ZDXEngine::FMTID_UserDefinedProperties);
  AskFor(L"C", ZDXEngine::FMTID_Storage);
  made_.AddText(kSummarySet, L"2", L"Ground floor");
  made_.AddText(kCustomSet, L"Client", L"Trust");
  made_.AddText(kStorageSet, L"Layer Name", L"0");
  AddValue(ZDXEngine::FMTID_SummaryInformation, L"19", L"Scale", L"1:50");
  AddValue(ZDXEngine::FMTID_UserDefinedProperties, L"Client", L"you");
  AddValue(ZDXEngine::FMTID_Storage, L"Layer Name", L"top");
  EXPECT_EQ(Text(),
            "a\n  Drawing\n"
            "\n  Summary\n    Title  Ground floor\n"
            "\n  Custom\n    Client  Trust\n"
            "\n  Layers (1)\n    0\n"
            "\n  Block A\n    Scale  1:50\n"
            "\n  Block B\n    Client  you\n"
            "\n  Block C\n    Layer Name  top\n");
}

TEST_F(BlocksInReports, DoNotTakeOtherPropertiesForTheirs) {
  AskFor(L"C", ZDXEngine::FMTID_Storage);
  made_.AddText(kStorageSet, L"Layer Name", L"0");
  made_.AddText(kStorageSet, L"Layer Name", L"Walls");
  EXPECT_EQ(Count(), 0u);
}

TEST_F(BlocksInReports, DoNotReachATerminalWithEscapeSequences) {
  AskFor(L"T\033[0m", OwnFormatId(1));
  AddValue(OwnFormatId(1), L"A\033", L"b\033");
  const std::string text = Text();
  EXPECT_THAT(text, Not(HasSubstr("\033")));
  EXPECT_THAT(text, HasSubstr("Block T\\x1b[0m\n    A\\x1b  b\\x1b\n"));
}

}  // namespace

}  // namespace zdx
