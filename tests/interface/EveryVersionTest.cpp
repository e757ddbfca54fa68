// One drawing, written in every version and form, tells the same of itself in each as far as the
// version can hold it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tuple>

#include "interface/Writings.h"
#include "support/PublicRead.h"

namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using testing::Pair;
using zdx_test::kSummary;
using zdx_test::Reading;

using zdx_test::Writing;

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
  spec.appInfo.entries = {{"01020304-0506-0708-090A-0B0C0D0E0F10", "a text"}};
  spec.appInfo.history = {{"F29F85E0-4FF9-1068-AB91-08002B27B3D9",
                           "<prop_set fmt_id=\"{F29F85E0-4FF9-1068-AB91-08002B27B3D9}\">"
                           "<prop id=\"258\"><string>Чертёжник</string></prop>"
                           "<prop id=\"259\"><string>2.1</string></prop></prop_set>"}};
  return spec;
}

// As the maker writes them: a blank is an underscore, and letters beyond ASCII stay as they are.
std::string Capitals(std::string name) {
  for (char& c : name) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    if (c == ' ') c = '_';
  }
  return name;
}

class EveryVersion : public testing::TestWithParam<std::tuple<const char*, Writing>> {
 protected:
  EveryVersion() {
    drawing::DrawingSpec spec = Site();
    spec.version = version();
    reading = zdx_test::ReadBytes(writing().make(spec), writing().Suffix());
  }

  std::string version() const { return std::get<0>(GetParam()); }
  const Writing& writing() const { return std::get<1>(GetParam()); }
  bool isDwg() const { return writing().IsDwg(); }
  // Names as the version stores them: the oldest DWG files have them in capitals.
  std::vector<std::string> Names(std::vector<std::string> names) const {
    if (!isDwg() || version() != "AC1014") return names;
    for (std::string& name : names) name = Capitals(name);
    return names;
  }
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
  EXPECT_EQ(reading.diagnostics.format, writing().format);
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
  EXPECT_THAT(reading.Texts(L"Dimblk"), ElementsAreArray(Names({"_BoxBlank"})));
  EXPECT_THAT(reading.Texts(L"Dimblk1"), ElementsAreArray(Names({"Leaf"})));
  EXPECT_THAT(reading.Texts(L"Dimblk2"), ElementsAre(""));
}

TEST_P(EveryVersion, ListsTheLayersInTheirOrder) {
  EXPECT_THAT(reading.Texts(L"Layer Name"),
              ElementsAreArray(Names({"0", "Стены", "Trees 漢字", "caret^sign"})));
}

TEST_P(EveryVersion, ListsTheLineTypesWithTheirComments) {
  const std::vector<std::string> names = reading.Texts(L"LineType Name");
  const std::vector<std::string> comments = reading.Texts(L"LineType Comments");
  ASSERT_EQ(names.size(), comments.size());
  if (version() == "AC1009") {
    EXPECT_THAT(names, ElementsAre("CONTINUOUS", "Dash", "Plain"));
  } else if (version() < "AC1015") {
    EXPECT_THAT(names,
                ElementsAreArray(Names({"BYBLOCK", "BYLAYER", "CONTINUOUS", "Dash", "Plain"})));
  } else {
    EXPECT_THAT(names, ElementsAre("ByBlock", "ByLayer", "Continuous", "Dash", "Plain"));
  }
  EXPECT_EQ(comments[comments.size() - 2], "Dashed __ __");
  EXPECT_EQ(comments.back(), "");
}

TEST_P(EveryVersion, ListsTheViews) {
  EXPECT_THAT(reading.Texts(L"View Name"), ElementsAreArray(Names({"North", "Юг"})));
}

TEST_P(EveryVersion, ListsTheDictionariesInStoredOrder) {
  if (version() == "AC1009") {
    for (const wchar_t* name : {L"Group Name", L"MultiLine Style Name", L"Layout Name",
                                L"Named Object Name", L"Plot Settings Name"}) {
      EXPECT_THAT(reading.Texts(name), IsEmpty());
    }
    return;
  }
  EXPECT_THAT(reading.Texts(L"Group Name"), ElementsAreArray(Names({"Pair", "Trio"})));
  EXPECT_THAT(reading.Texts(L"MultiLine Style Name"),
              ElementsAreArray(Names({"Standard", "Wall"})));
  EXPECT_THAT(reading.Texts(L"Named Object Name"), testing::Contains("MY_DATA"));
  if (version() < "AC1015") return;
  EXPECT_THAT(reading.Texts(L"Layout Name"), ElementsAre("Model", "Sheet 1", "Лист 2"));
  EXPECT_THAT(reading.Texts(L"Plot Settings Name"), ElementsAre("A3 page"));
}

TEST_P(EveryVersion, GivesTheCreatorWhereTheVersionIsSearchedForOne) {
  const bool searched =
      isDwg() && (version() == "AC1018" || version() == "AC1021" || version() == "AC1024");
  using Texts = std::vector<std::string>;
  EXPECT_EQ(reading.Texts(L"DWG Creator Name"), searched ? Texts{"Чертёжник"} : Texts{});
  EXPECT_EQ(reading.Texts(L"DWG Creator Version"), searched ? Texts{"2.1"} : Texts{});
}

TEST_P(EveryVersion, IsAPlainDrawing) {
  EXPECT_THAT(reading.Texts(L"DWG Type"), ElementsAre("Zent"));
}

INSTANTIATE_TEST_SUITE_P(Dxf, EveryVersion,
                         testing::Combine(testing::ValuesIn(zdx_test::kDxfVersions),
                                          testing::ValuesIn(zdx_test::kDxfWritings)),
                         zdx_test::WritingTestName);
INSTANTIATE_TEST_SUITE_P(Dwg, EveryVersion,
                         testing::Combine(testing::ValuesIn(zdx_test::kDwgVersions),
                                          testing::ValuesIn(zdx_test::kDwgWritings)),
                         zdx_test::WritingTestName);

}  // namespace
