// One drawing, written in every version and form, tells the same of itself in each as far as the
// version can hold it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tuple>

#include "support/PublicRead.h"
#include "support/dxf/DxfMaker.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using zdx_test::kSummary;
using zdx_test::Reading;

struct Writing {
  const char* name;
  dxf::Form form;
  const char* lineEnd;
};

constexpr Writing kWritings[] = {
    {"TextWithCrLf", dxf::Form::Ascii, "\r\n"},
    {"TextWithLf", dxf::Form::Ascii, "\n"},
    {"TextWithCr", dxf::Form::Ascii, "\r"},
    {"Binary", dxf::Form::Binary, ""},
};

drawing::DrawingSpec Site() {
  drawing::DrawingSpec spec;
  spec.codePage = "ANSI_1251";
  spec.summary = {"План участка",   "Subject", "A. Author", "one, two",
                  "line 1\nline 2", "someone", "7"};
  spec.customProperties = {{"Проект", "Север"}, {"Empty", ""}, {"Sheet", "a=b"}, {"Sheet", "2"}};
  spec.settings = {"menu", "project", "http://base/", "styles.stb", "<>mm", "[]in", "BoxBlank",
                   "leaf", ""};
  spec.layers = {"0", "Стены", "Trees 漢字", "caret^sign"};
  spec.linetypes = {{"Dash", "Dashed __ __", {1.0, -0.5}}, {"Plain", ""}};
  spec.views = {"North", "Юг"};
  spec.blocks = {{"_BoxBlank"}, {"Leaf"}, {"door"}};
  spec.layouts = {"Sheet 1", "Лист 2"};
  spec.groups = {"Pair", "Trio"};
  spec.mlineStyles = {"Standard", "Wall"};
  spec.plotSettings = {"A3 page"};
  spec.rootEntries = {{"MY_DATA", drawing::Xrecord()}};
  return spec;
}

class EveryVersion : public testing::TestWithParam<std::tuple<const char*, Writing>> {
 protected:
  EveryVersion() {
    drawing::DrawingSpec spec = Site();
    spec.version = version();
    const Writing& writing = std::get<1>(GetParam());
    reading =
        zdx_test::ReadBytes(dxf::Make(spec, {.form = writing.form, .lineEnd = writing.lineEnd}));
  }

  std::string version() const { return std::get<0>(GetParam()); }
  bool isText() const { return std::get<1>(GetParam()).form == dxf::Form::Ascii; }
  // What a setting is, given the first version that holds it.
  std::vector<std::string> Since(const std::string& first, const std::string& value) const {
    return version() < first ? std::vector<std::string>{} : std::vector<std::string>{value};
  }

  Reading reading;
};

TEST_P(EveryVersion, OpensWithoutAWarning) {
  EXPECT_THAT(reading.diagnostics.errors, IsEmpty());
  EXPECT_EQ(reading.diagnostics.warningCount, 0u);
}

TEST_P(EveryVersion, TellsItsFormatAndVersion) {
  EXPECT_EQ(reading.diagnostics.format, isText() ? L"DXF (text)" : L"DXF (binary)");
  EXPECT_EQ(std::string(reading.diagnostics.version.begin(), reading.diagnostics.version.end()),
            version());
}

TEST_P(EveryVersion, GivesTheSummaryWhereTheVersionHasOne) {
  const char* const names[] = {"2", "3", "4", "5", "6", "8", "9"};
  const char* const values[] = {"План участка",   "Subject", "A. Author", "one, two",
                                "line 1\nline 2", "someone", "7"};
  for (std::size_t i = 0; i < std::size(names); ++i) {
    const std::wstring name(names[i], names[i] + 1);
    EXPECT_EQ(reading.Texts(kSummary, name), Since("AC1012", values[i])) << names[i];
  }
}

TEST_P(EveryVersion, GivesTheCustomEntriesInTheirOrder) {
  if (version() < "AC1012") {
    EXPECT_THAT(reading.Custom(), IsEmpty());
    return;
  }
  EXPECT_THAT(reading.Custom(), ElementsAre(Pair("Проект", "Север"), Pair("Empty", ""),
                                            Pair("Sheet", "a=b"), Pair("Sheet", "2")));
}

TEST_P(EveryVersion, GivesTheSettingsThatTheVersionHolds) {
  EXPECT_EQ(reading.Texts(L"Menu"), Since("AC1009", "menu"));
  EXPECT_EQ(reading.Texts(L"ProjectName"), Since("AC1018", "project"));
  EXPECT_EQ(reading.Texts(L"HyperlinkBase"), Since("AC1015", "http://base/"));
  EXPECT_EQ(reading.Texts(L"StyleSheet"), Since("AC1015", "styles.stb"));
  EXPECT_EQ(reading.Texts(L"Dimpost"), Since("AC1009", "<>mm"));
  EXPECT_EQ(reading.Texts(L"Dimapost"), Since("AC1009", "[]in"));
}

TEST_P(EveryVersion, GivesArrowsByTheNamesOfTheirBlocks) {
  EXPECT_THAT(reading.Texts(L"Dimblk"), ElementsAre("_BoxBlank"));
  EXPECT_THAT(reading.Texts(L"Dimblk1"), ElementsAre("Leaf"));
  EXPECT_THAT(reading.Texts(L"Dimblk2"), ElementsAre(""));
}

TEST_P(EveryVersion, ListsTheLayersInTheirOrder) {
  EXPECT_THAT(reading.Texts(L"Layer Name"), ElementsAre("0", "Стены", "Trees 漢字", "caret^sign"));
}

TEST_P(EveryVersion, ListsTheLineTypesWithTheirComments) {
  const std::vector<std::string> names = reading.Texts(L"LineType Name");
  const std::vector<std::string> comments = reading.Texts(L"LineType Comments");
  ASSERT_EQ(names.size(), comments.size());
  if (version() == "AC1009") {
    EXPECT_THAT(names, ElementsAre("CONTINUOUS", "Dash", "Plain"));
  } else if (version() < "AC1015") {
    EXPECT_THAT(names, ElementsAre("BYBLOCK", "BYLAYER", "CONTINUOUS", "Dash", "Plain"));
  } else {
    EXPECT_THAT(names, ElementsAre("ByBlock", "ByLayer", "Continuous", "Dash", "Plain"));
  }
  EXPECT_EQ(comments[comments.size() - 2], "Dashed __ __");
  EXPECT_EQ(comments.back(), "");
}

TEST_P(EveryVersion, ListsTheViews) { EXPECT_EQ(reading.Texts(L"View Name").size(), 2u); }

TEST_P(EveryVersion, ListsTheDictionariesInStoredOrder) {
  if (version() == "AC1009") {
    for (const wchar_t* name : {L"Group Name", L"MultiLine Style Name", L"Layout Name",
                                L"Named Object Name", L"Plot Settings Name"}) {
      EXPECT_THAT(reading.Texts(name), IsEmpty());
    }
    return;
  }
  EXPECT_THAT(reading.Texts(L"Group Name"), ElementsAre("Pair", "Trio"));
  EXPECT_THAT(reading.Texts(L"MultiLine Style Name"), ElementsAre("Standard", "Wall"));
  EXPECT_THAT(reading.Texts(L"Named Object Name"), testing::Contains("MY_DATA"));
  if (version() < "AC1015") return;
  EXPECT_THAT(reading.Texts(L"Layout Name"), ElementsAre("Model", "Sheet 1", "Лист 2"));
  EXPECT_THAT(reading.Texts(L"Plot Settings Name"), ElementsAre("A3 page"));
}

TEST_P(EveryVersion, IsAPlainDrawing) {
  EXPECT_THAT(reading.Texts(L"DWG Type"), ElementsAre("Zent"));
}

INSTANTIATE_TEST_SUITE_P(Dxf, EveryVersion,
                         testing::Combine(testing::Values("AC1009", "AC1012", "AC1014", "AC1015",
                                                          "AC1018", "AC1021", "AC1024", "AC1027",
                                                          "AC1032"),
                                          testing::ValuesIn(kWritings)),
                         [](const auto& info) {
                           return std::string(std::get<0>(info.param)) +
                                  std::get<1>(info.param).name;
                         });

}  // namespace
