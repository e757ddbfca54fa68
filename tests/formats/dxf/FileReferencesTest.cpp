// The files that a drawing names: each place, in each form of the file.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "formats/dxf/HandmadeDrawing.h"
#include "support/drawing/Tokens.h"

namespace dxf_file_references {
namespace {

using namespace handmade_dxf;
using testing::ElementsAre;
using testing::IsEmpty;
using zdx::model::FileReference;
using zdx::model::FileUse;

const Tags kSpaceRecords = Join({Record("1", "*Model_Space"), Record("2", "*Paper_Space")});

std::wstring Named(FileUse use, zdx::model::Handle handle, const std::wstring& path,
                   const std::wstring& name = {}) {
  return std::to_wstring(static_cast<int>(use)) + L" of " + std::to_wstring(handle) + L": " + path +
         L" as " + name;
}

std::vector<std::wstring> Described(const std::vector<FileReference>& references) {
  std::vector<std::wstring> texts;
  for (const FileReference& reference : references) {
    texts.push_back(Named(reference.use, reference.handle, reference.path, reference.name) +
                    (reference.isDependent ? L", dependent" : L"") +
                    (reference.isUnloaded ? L", unloaded" : L""));
  }
  return texts;
}

std::wstring Dependent(const std::wstring& reference) { return reference + L", dependent"; }

Tags XrefBlock(const std::string& name, int flags, const std::string& path) {
  return {{0, "BLOCK"}, {8, "0"},  {2, name}, {70, flags},  {10, 0.0},
          {20, 0.0},    {3, name}, {1, path}, {0, "ENDBLK"}};
}

Tags Style(const std::string& handle, const std::string& name, int flags, const std::string& font,
           const std::string& bigFont = {}) {
  return {{0, "STYLE"}, {5, handle}, {100, drawing::kRecordMarker}, {2, name}, {70, flags},
          {3, font},    {4, bigFont}};
}

Tags Object(const std::string& type, const std::string& handle, const Tags& body) {
  return Join({{{0, type}, {5, handle}, {330, "C"}, {100, "AcDbThing"}}, body});
}

// The dictionary of that handle with pairs of key and value.
Tags DictionaryOf(const std::string& handle,
                  const std::vector<std::pair<std::string, std::string>>& entries) {
  Tags tags = {{0, "DICTIONARY"}, {5, handle}, {100, drawing::kDictionaryMarker}};
  for (const auto& [key, value] : entries) tags.insert(tags.end(), {{3, key}, {350, value}});
  return tags;
}

class DxfFileReferences : public testing::TestWithParam<dxf::Form> {
 protected:
  std::vector<std::wstring> ReferencesIn(const Contents& contents) {
    OpenDrawing drawing(BytesOf(contents, GetParam()));
    auto references = Described(drawing->FileReferences());
    EXPECT_EQ(drawing.report().warningCount, 0u);
    return references;
  }
};

INSTANTIATE_TEST_SUITE_P(Forms, DxfFileReferences,
                         testing::Values(dxf::Form::Ascii, dxf::Form::Binary),
                         [](const auto& info) {
                           return info.param == dxf::Form::Ascii ? "Text" : "Binary";
                         });

TEST_P(DxfFileReferences, OfBlocksAreDrawingsInTheOrderOfTheTable) {
  EXPECT_THAT(
      ReferencesIn({.records = Join({kSpaceRecords, Record("12", "site"), Record("11", "grid"),
                                     Record("10", "door"), Record("13", "north")}),
                    .blocks = Join({XrefBlock("door", 0, ""), XrefBlock("north", 12, "n.dwg"),
                                    XrefBlock("grid", 8, "..\\grid.dwg"),
                                    XrefBlock("site", 4 | 32, "C:\\a\\site.dwg")})}),
      ElementsAre(Named(FileUse::kAttachedDrawing, 0x12, L"C:\\a\\site.dwg", L"site"),
                  Named(FileUse::kOverlaidDrawing, 0x11, L"..\\grid.dwg", L"grid"),
                  Named(FileUse::kOverlaidDrawing, 0x13, L"n.dwg", L"north")));
}

TEST_P(DxfFileReferences, OfBlocksGoByTheFlagNotByThePath) {
  EXPECT_THAT(ReferencesIn({.records = Join({kSpaceRecords, Record("10", "door")}),
                            .blocks = Join({XrefBlock("door", 2 | 64, "door"),
                                            XrefBlock("*Model_Space", 4, "model.dwg"),
                                            XrefBlock("*Paper_Space", 8, "paper.dwg")})}),
              IsEmpty());
}

TEST_P(DxfFileReferences, OfBlocksInsideReferredDrawingsAreDependent) {
  EXPECT_THAT(
      ReferencesIn({.records = Join(
                        {kSpaceRecords, Record("10", "a"), Record("11", "a|b"), Record("12", "c")}),
                    .blocks = Join({XrefBlock("a", 4, "a.dwg"), XrefBlock("a|b", 4, "b.dwg"),
                                    XrefBlock("c", 4 | 16, "c.dwg")})}),
      ElementsAre(Named(FileUse::kAttachedDrawing, 0x10, L"a.dwg", L"a"),
                  Dependent(Named(FileUse::kAttachedDrawing, 0x11, L"b.dwg", L"a|b")),
                  Dependent(Named(FileUse::kAttachedDrawing, 0x12, L"c.dwg", L"c"))));
}

// A block is its own record there.
TEST_P(DxfFileReferences, OfTheOldestDrawingsHaveTheHandlesOfTheBlocksIfAny) {
  const Tags withHandle = {{0, "BLOCK"}, {5, "2A"}, {8, "0"}, {2, "B"}, {70, 4}, {1, "b.dwg"}};
  EXPECT_THAT(ReferencesIn({.version = "AC1009",
                            .blocks = Join({XrefBlock("A", 4, "a.dwg"), withHandle}),
                            .entities = Line("10")}),
              ElementsAre(Named(FileUse::kAttachedDrawing, 0, L"a.dwg", L"A"),
                          Named(FileUse::kAttachedDrawing, 0x2A, L"b.dwg", L"B")));
}

TEST_P(DxfFileReferences, OfPicturesStandInTheOrderOfTheirDictionaryThenOfTheirHandles) {
  const auto image = [](const std::string& handle, const std::string& path) {
    return Object("IMAGEDEF", handle, {{90, 0}, {1, path}, {10, 1.0}, {20, 1.0}});
  };
  EXPECT_THAT(
      ReferencesIn(
          {.objects = Join(
               {DictionaryOf("C", {{"PICTURES", "D"}}), image("33", "c.png"), image("30", "a.png"),
                image("32", "stray.png"), image("31", "b.png"), image("2F", "other.png"),
                DictionaryOf(
                    "D", {{"second", "31"}, {"lost", "77"}, {"first", "30"}, {"third", "33"}})})}),
      ElementsAre(Named(FileUse::kImage, 0x31, L"b.png", L"second"),
                  Named(FileUse::kImage, 0x30, L"a.png", L"first"),
                  Named(FileUse::kImage, 0x33, L"c.png", L"third"),
                  Named(FileUse::kImage, 0x2F, L"other.png"),
                  Named(FileUse::kImage, 0x32, L"stray.png")));
}

TEST_P(DxfFileReferences, OfObjectsGoByTheTypeOfEach) {
  EXPECT_THAT(
      ReferencesIn(
          {.objects = Join(
               {DictionaryOf("C", {}), Object("PDFDEFINITION", "30", {{1, "p.pdf"}, {2, "1"}}),
                Object("DWFDEFINITION", "31", {{1, "w.dwf"}, {2, "Sheet"}}),
                Object("DGNDEFINITION", "32", {{1, "g.dgn"}, {2, "Model"}}),
                Object("XPOINTCLOUDDEF", "33", {{90, 1}, {1, "old.pcg"}}),
                Object("XPOINTCLOUDDEFEX", "34", {{90, 1}, {1, "new.rcp"}}),
                Object("XPOINTCLOUDDEF_REACTOR", "35", {{1, "none"}}),
                Object("DATALINK", "36",
                       {{1, "Adapter"}, {300, "prices"}, {302, "book.xlsx!S!A1:B2"}, {302, "x"}}),
                Object("IMAGEBACKGROUND", "37", {{90, 1}, {300, "sky.jpg"}, {290, 1}}),
                Object("OTHERDEFINITION", "38", {{1, "none"}})})}),
      ElementsAre(Named(FileUse::kImage, 0x37, L"sky.jpg"),
                  Named(FileUse::kPdfUnderlay, 0x30, L"p.pdf"),
                  Named(FileUse::kDwfUnderlay, 0x31, L"w.dwf"),
                  Named(FileUse::kDgnUnderlay, 0x32, L"g.dgn"),
                  Named(FileUse::kPointCloud, 0x33, L"old.pcg"),
                  Named(FileUse::kPointCloud, 0x34, L"new.rcp"),
                  Named(FileUse::kLinkedData, 0x36, L"book.xlsx")));
}

TEST_P(DxfFileReferences, OfMaterialsAreAllTheirPictures) {
  EXPECT_THAT(ReferencesIn({.objects = Join({DictionaryOf("C", {{"MATERIALS", "D"}}),
                                             DictionaryOf("D", {{"Oak", "30"}}),
                                             Object("MATERIAL", "30",
                                                    {{1, "Oak"},
                                                     {2, "of a tree"},
                                                     {3, "oak.jpg"},
                                                     {4, "shine.jpg"},
                                                     {6, ""},
                                                     {7, "hole.png"},
                                                     {8, "bump.png"},
                                                     {9, "glass.png"},
                                                     {42, 1.0},
                                                     {72, 1},
                                                     {3, "normal.png"}})})}),
              ElementsAre(Named(FileUse::kTexture, 0x30, L"oak.jpg", L"Oak"),
                          Named(FileUse::kTexture, 0x30, L"shine.jpg", L"Oak"),
                          Named(FileUse::kTexture, 0x30, L"hole.png", L"Oak"),
                          Named(FileUse::kTexture, 0x30, L"bump.png", L"Oak"),
                          Named(FileUse::kTexture, 0x30, L"glass.png", L"Oak"),
                          Named(FileUse::kTexture, 0x30, L"normal.png", L"Oak")));
}

TEST_P(DxfFileReferences, OfLayoutsAreTheirTablesOfPlotStylesAndTheirPrinters) {
  const Tags settings = {{100, drawing::kPlotSettingsMarker},
                         {1, "setup"},
                         {2, "plotter.pc3"},
                         {4, "A3"},
                         {7, "office.ctb"}};
  const Tags layout = Join({{{0, "LAYOUT"}, {5, "30"}},
                            settings,
                            {{100, drawing::kLayoutMarker}, {1, "Plan"}, {2, "no"}, {7, "no"}}});
  const Tags setup = Join({{{0, "PLOTSETTINGS"}, {5, "31"}}, settings});
  const Tags bare = {{0, "LAYOUT"}, {5, "32"}, {100, drawing::kPlotSettingsMarker}, {1, ""},
                     {2, ""},       {7, ""},   {100, drawing::kLayoutMarker},       {1, "Bare"}};
  EXPECT_THAT(ReferencesIn({.objects = Join({DictionaryOf("C", {{"LAYOUTS", "D"}}),
                                             DictionaryOf("D", {{"Bare", "32"}, {"Plan", "30"}}),
                                             setup, layout, bare})}),
              ElementsAre(Named(FileUse::kPlotStyleTable, 0x30, L"office.ctb", L"Plan"),
                          Named(FileUse::kPlotStyleTable, 0x31, L"office.ctb"),
                          Named(FileUse::kPrinter, 0x30, L"plotter.pc3", L"Plan"),
                          Named(FileUse::kPrinter, 0x31, L"plotter.pc3")));
}

TEST_P(DxfFileReferences, OfTextStylesAreTheirFiles) {
  EXPECT_THAT(ReferencesIn({.records = Join({Style("10", "Standard", 0, "txt", "big.shx"),
                                             Style("11", "", 1, "shapes.shx", "none.shx"),
                                             Style("12", "Arial", 0, ""),
                                             Style("13", "site|notes", 0, "arial.ttf"),
                                             Style("14", "notes", 16 | 32, "romans.shx")})}),
              ElementsAre(Named(FileUse::kFont, 0x10, L"txt", L"Standard"),
                          Dependent(Named(FileUse::kFont, 0x13, L"arial.ttf", L"site|notes")),
                          Dependent(Named(FileUse::kFont, 0x14, L"romans.shx", L"notes")),
                          Named(FileUse::kBigFont, 0x10, L"big.shx", L"Standard"),
                          Named(FileUse::kShapeFile, 0x11, L"shapes.shx")));
}

TEST_P(DxfFileReferences, OfTheHeaderAreTheStyleSheetAndTheMenu) {
  EXPECT_THAT(
      ReferencesIn(
          {.variables = {{9, "$MENU"}, {1, "custom"}, {9, "$STYLESHEET"}, {1, "plan.ctb"}}}),
      ElementsAre(Named(FileUse::kStyleSheet, 0, L"plan.ctb"),
                  Named(FileUse::kMenu, 0, L"custom")));
}

TEST_P(DxfFileReferences, AreDecodedAsTheVersionKeepsTexts) {
  const Tags style = Style("10", "Standard", 0, "sch\xC3\xB6n.shx");
  for (const char* const version : {"AC1009", "AC1015", "AC1021", "AC1032"}) {
    EXPECT_THAT(ReferencesIn({.version = version, .records = style}),
                ElementsAre(Named(FileUse::kFont, 0x10, L"sch\u00F6n.shx", L"Standard")))
        << version;
  }
}

TEST_P(DxfFileReferences, AreNoneInADrawingWithoutSections) {
  EXPECT_THAT(ReferencesIn({}), IsEmpty());
}

TEST_P(DxfFileReferences, KnowOverlaysByTheirBlocks) {
  OpenDrawing drawing(BytesOf(
      {.records = Join({kSpaceRecords, Record("10", "a"), Record("11", "o"), Record("12", "plain"),
                        Record("13", "none")}),
       .blocks = Join({XrefBlock("a", 4, "a.dwg"), XrefBlock("o", 12, "o.dwg"),
                       XrefBlock("plain", 0, "plain"), XrefBlock("*Model_Space", 8, "m.dwg")})},
      GetParam()));
  EXPECT_FALSE(drawing->IsOverlayBlock(drawing.BlockNamed(L"a")));
  EXPECT_TRUE(drawing->IsOverlayBlock(drawing.BlockNamed(L"o")));
  EXPECT_FALSE(drawing->IsOverlayBlock(drawing.BlockNamed(L"plain")));
  EXPECT_FALSE(drawing->IsOverlayBlock(drawing.BlockNamed(L"none")));
  EXPECT_FALSE(drawing->IsOverlayBlock(drawing.BlockNamed(L"*Model_Space")));
  EXPECT_FALSE(drawing->IsOverlayBlock(zdx::model::ObjectKey{0}));
}

TEST(DxfFileReferencesOfText, OfDamagedRecordsAreLostAlone) {
  const Contents contents = {
      .objects = Join({DictionaryOf("C", {}), Object("IMAGEDEF", "30", {{1, "a.png"}}),
                       Object("IMAGEDEF", "31", {{999, "remark"}, {1, "b.png"}}),
                       Object("IMAGEDEF", "32", {{1, "c.png"}})})};
  std::string text = BytesOf(contents);
  const std::string remark = "999\nremark\n";
  text.replace(text.find(remark), remark.size(), "rubbish\n");
  OpenDrawing drawing(text);
  EXPECT_THAT(
      Described(drawing->FileReferences()),
      ElementsAre(Named(FileUse::kImage, 0x30, L"a.png"), Named(FileUse::kImage, 0x32, L"c.png")));
  EXPECT_EQ(drawing.report().warningCount, 1u);
}

TEST_P(DxfFileReferences, ThatComeUnderTwoKeysAreToldOnceAndADictionaryIsReadOnce) {
  EXPECT_THAT(
      ReferencesIn({.objects = Join({DictionaryOf("C", {{"A", "D"}, {"B", "D"}, {"ROOT", "C"}}),
                                     DictionaryOf("D", {{"one", "30"}, {"two", "30"}, {"me", "D"}}),
                                     Object("IMAGEDEF", "30", {{1, "a.png"}})})}),
      ElementsAre(Named(FileUse::kImage, 0x30, L"a.png", L"one")));
}

TEST_P(DxfFileReferences, HandlesAreThoseThatFindFinds) {
  OpenDrawing drawing(BytesOf({.records = Join({kSpaceRecords, Style("AB", "S", 0, "s.shx")}),
                               .objects = DictionaryOf("C", {})},
                              GetParam()));
  for (const zdx::model::Handle handle : {0x1u, 0xABu, 0xCu}) {
    const auto object = drawing->Find(handle);
    ASSERT_TRUE(object.has_value()) << handle;
    EXPECT_EQ(drawing->HandleOf(*object), handle);
  }
}

}  // namespace
}  // namespace dxf_file_references
