// The files that a drawing names, in every version.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>

#include "ZDXEngine/Utf8.h"
#include "formats/dwg/OpenDrawing.h"

namespace {

using drawing::Xref;
using testing::ElementsAre;
using testing::IsEmpty;
using zdx::model::FileReference;
using zdx::model::FileUse;
using zdx::model::ObjectKey;

// What is told of a file.
struct NamedFile {
  FileUse use;
  std::string path;
  std::string name;
  zdx::model::Handle handle = 0;
  bool isDependent = false;
  bool isUnloaded = false;

  bool operator==(const NamedFile&) const = default;
};

std::ostream& operator<<(std::ostream& out, const NamedFile& told) {
  return out << static_cast<int>(told.use) << ' ' << told.path << " (" << told.name << ") "
             << std::hex << told.handle << std::dec << (told.isDependent ? " dependent" : "")
             << (told.isUnloaded ? " unloaded" : "");
}

bool IsAlwaysThere(const NamedFile& told) {
  return (told.use == FileUse::kFont && told.path == "txt") || told.use == FileUse::kMenu ||
         told.use == FileUse::kPrinter;
}

class FileReferences : public testing::TestWithParam<const char*> {
 protected:
  FileReferences() { spec.version = GetParam(); }

  bool Since(const std::string& version) const { return GetParam() >= version; }

  std::vector<NamedFile> All() {
    OpenDrawing opened(spec);
    std::vector<NamedFile> all;
    for (const FileReference& file : opened->FileReferences()) {
      all.push_back({file.use, ZDXEngine::Utf8FromWide(file.path),
                     ZDXEngine::Utf8FromWide(file.name), file.handle, file.isDependent,
                     file.isUnloaded});
    }
    EXPECT_EQ(opened.report->warningCount, 0u);
    return all;
  }

  // But for what every drawing of the maker names.
  std::vector<NamedFile> Others() {
    std::vector<NamedFile> others = All();
    std::erase_if(others, IsAlwaysThere);
    return others;
  }

  drawing::BlockSpec Drawing(const std::string& name, Xref xref, const std::string& handle) {
    drawing::BlockSpec block = drawing::XrefBlock(name, name + ".dwg", xref);
    block.handle = handle;
    return block;
  }

  drawing::DrawingSpec spec;
};

TEST_P(FileReferences, AnEmptyDrawingNamesItsFontItsMenuAndNothingElse) {
  spec.layouts.clear();
  const std::vector<NamedFile> all = All();
  for (const NamedFile& told : all) EXPECT_TRUE(IsAlwaysThere(told)) << told;
  const auto hasUse = [&all](FileUse use) {
    return std::any_of(all.begin(), all.end(),
                       [use](const NamedFile& told) { return told.use == use; });
  };
  EXPECT_TRUE(hasUse(FileUse::kFont));
  EXPECT_TRUE(hasUse(FileUse::kMenu));
}

TEST_P(FileReferences, AttachedDrawingsComeBeforeOverlaidOnes) {
  spec.blocks = {Drawing("OVER", Xref::Overlaid, "A01"), Drawing("SITE", Xref::Attached, "A02"),
                 Drawing("ROAD", Xref::Attached, "A03")};
  EXPECT_THAT(Others(),
              ElementsAre(NamedFile{FileUse::kAttachedDrawing, "SITE.dwg", "SITE", 0xA02},
                          NamedFile{FileUse::kAttachedDrawing, "ROAD.dwg", "ROAD", 0xA03},
                          NamedFile{FileUse::kOverlaidDrawing, "OVER.dwg", "OVER", 0xA01}));
}

TEST_P(FileReferences, ADrawingIsOverlaidWhateverTheOtherBitSays) {
  spec.blocks = {Drawing("OVER", Xref::Overlaid, "A01")};
  spec.blocks[0].isOverlayAlone = true;
  EXPECT_THAT(Others(),
              ElementsAre(NamedFile{FileUse::kOverlaidDrawing, "OVER.dwg", "OVER", 0xA01}));
}

TEST_P(FileReferences, ABlockOfTheDrawingItselfNamesNoFileWhateverPathItHas) {
  spec.blocks = {{.name = "FRAME", .path = "frame.dwg"}};
  EXPECT_THAT(Others(), IsEmpty());
}

TEST_P(FileReferences, ADrawingThatIsNotLoadedIsToldSoFromAC1015On) {
  spec.blocks = {Drawing("SITE", Xref::Attached, "A01"), Drawing("OVER", Xref::Overlaid, "A02")};
  for (drawing::BlockSpec& block : spec.blocks) block.isUnloaded = true;
  const bool isTold = Since("AC1015");
  EXPECT_THAT(
      Others(),
      ElementsAre(NamedFile{FileUse::kAttachedDrawing, "SITE.dwg", "SITE", 0xA01, false, isTold},
                  NamedFile{FileUse::kOverlaidDrawing, "OVER.dwg", "OVER", 0xA02, false, isTold}));
}

TEST_P(FileReferences, WhatCameWithAnotherDrawingIsToldSo) {
  spec.blocks = {Drawing("SITE", Xref::Attached, "A01"),
                 Drawing("SITE|ROAD", Xref::Attached, "A02")};
  spec.blocks[1].flags = drawing::kXrefDependent;
  drawing::TextStyleSpec style("SITE|TITLE", "simplex.shx", "big.shx");
  style.flags = drawing::kXrefDependent;
  style.handle = "A03";
  spec.textStyles.push_back(style);
  EXPECT_THAT(
      Others(),
      ElementsAre(NamedFile{FileUse::kAttachedDrawing, "SITE.dwg", "SITE", 0xA01},
                  NamedFile{FileUse::kAttachedDrawing, "SITE|ROAD.dwg", "SITE|ROAD", 0xA02, true},
                  NamedFile{FileUse::kFont, "simplex.shx", "SITE|TITLE", 0xA03, true},
                  NamedFile{FileUse::kBigFont, "big.shx", "SITE|TITLE", 0xA03, true}));
}

TEST_P(FileReferences, FontsBigFontsAndShapeFilesAreToldApart) {
  drawing::TextStyleSpec style("TITLE", "simplex.shx", "extfont.shx");
  style.handle = "A01";
  drawing::TextStyleSpec empty("FACE", "");
  spec.textStyles = {drawing::ShapeFile("signs.shx", "A02"), style, empty};
  EXPECT_THAT(Others(), ElementsAre(NamedFile{FileUse::kFont, "simplex.shx", "TITLE", 0xA01},
                                    NamedFile{FileUse::kBigFont, "extfont.shx", "TITLE", 0xA01},
                                    NamedFile{FileUse::kShapeFile, "signs.shx", "", 0xA02}));
}

TEST_P(FileReferences, PicturesComeInTheOrderOfTheirDictionary) {
  spec.images = {{.name = "ZEBRA", .path = "..\\z.png", .handle = "A01"},
                 {.name = "APE", .path = "/pictures/a.png", .handle = "A02"},
                 {.name = "SITE|APE", .path = "s.png", .handle = "A03"}};
  std::vector<NamedFile> expected;
  OpenDrawing opened(spec);
  for (const auto& entry : opened->DictionaryEntries(*opened->RootDictionary())) {
    if (!entry.key.ends_with(L"_IMAGE_DICT")) continue;
    for (const auto& image : opened->DictionaryEntries(ObjectKey{entry.target})) {
      const std::string path = image.target == 0xA01   ? "..\\z.png"
                               : image.target == 0xA02 ? "/pictures/a.png"
                                                       : "s.png";
      expected.push_back({FileUse::kImage, path, ZDXEngine::Utf8FromWide(image.key), image.target,
                          image.target == 0xA03});
    }
  }
  EXPECT_EQ(expected.size(), 3u);
  EXPECT_EQ(Others(), expected);
}

TEST_P(FileReferences, UnderlaysAreToldByTheirForms) {
  spec.underlays = {{drawing::UnderlayForm::Dgn, "road", "road.dgn", "Model", "A01"},
                    {drawing::UnderlayForm::Dwf, "plan", "plan.dwfx", "Sheet", "A02"},
                    {drawing::UnderlayForm::Pdf, "site", "site.pdf", "2", "A03"}};
  if (!Since("AC1015")) {
    EXPECT_THAT(Others(), IsEmpty());
    return;
  }
  EXPECT_THAT(Others(), ElementsAre(NamedFile{FileUse::kPdfUnderlay, "site.pdf", "site", 0xA03},
                                    NamedFile{FileUse::kDwfUnderlay, "plan.dwfx", "plan", 0xA02},
                                    NamedFile{FileUse::kDgnUnderlay, "road.dgn", "road", 0xA01}));
}

TEST_P(FileReferences, PointCloudsOfBothClassesAreToldFromAC1024On) {
  spec.pointClouds = {{.name = "hall", .path = "hall.pcg", .handle = "A01"},
                      {"yard", "yard.rcp", true, "A02"}};
  if (!Since("AC1024")) {
    EXPECT_THAT(Others(), IsEmpty());
    return;
  }
  EXPECT_THAT(Others(), ElementsAre(NamedFile{FileUse::kPointCloud, "hall.pcg", "hall", 0xA01},
                                    NamedFile{FileUse::kPointCloud, "yard.rcp", "yard", 0xA02}));
}

TEST_P(FileReferences, ALinkToDataNamesItsFileFromAC1021On) {
  spec.dataLinks = {{.name = "rates",
                     .connection = "C:\\data\\rates.xlsx!Sheet!A1:B2",
                     .description = "What it costs.doc",
                     .handle = "A01"}};
  if (!Since("AC1021")) {
    EXPECT_THAT(Others(), IsEmpty());
    return;
  }
  EXPECT_THAT(Others(),
              ElementsAre(NamedFile{FileUse::kLinkedData, "C:\\data\\rates.xlsx", "rates", 0xA01}));
}

TEST_P(FileReferences, TheMapsOfAMaterialNameTheirPicturesFromAC1021On) {
  spec.materials = {{.name = "Oak.v2",
                     .description = "Dark.old",
                     .diffuse = "oak.jpg",
                     .specular = "shine.png",
                     .reflection = "room.hdr",
                     .opacity = "holes.png",
                     .bump = "oak.jpg",
                     .refraction = "glass.tif",
                     .handle = "A01"},
                    {.name = "Plain", .handle = "A02"}};
  if (!Since("AC1021")) {
    EXPECT_THAT(Others(), IsEmpty());
    return;
  }
  std::vector<NamedFile> expected;
  for (const char* const path :
       {"oak.jpg", "shine.png", "room.hdr", "holes.png", "oak.jpg", "glass.tif"}) {
    expected.push_back({FileUse::kTexture, path, "Oak.v2", 0xA01});
  }
  EXPECT_EQ(Others(), expected);
}

TEST_P(FileReferences, LayoutsComeBeforePlotSettingsOfTheirOwn) {
  spec.layouts = {{"Sheet", {}, "sheet.ctb"}};
  spec.layouts[0].printer = "plotter.pc3";
  spec.plotSettings = {{"Setup", "other.pc3", "setup.stb"}};
  std::vector<std::string> told;
  for (const NamedFile& file : All()) {
    if (file.use != FileUse::kPlotStyleTable && file.use != FileUse::kPrinter) continue;
    EXPECT_NE(file.handle, 0u);
    if (file.path != "none_device") told.push_back(file.name + ": " + file.path);
  }
  if (!Since("AC1015")) {
    EXPECT_THAT(told, IsEmpty());
    return;
  }
  EXPECT_THAT(told, ElementsAre("Sheet: sheet.ctb", "Setup: setup.stb", "Sheet: plotter.pc3",
                                "Setup: other.pc3"));
}

TEST_P(FileReferences, TheHeaderNamesAStyleSheetAndAMenu) {
  spec.settings.styleSheet = "sheet.css";
  spec.settings.menu = "menu";
  std::vector<NamedFile> told = All();
  std::erase_if(told, [](const NamedFile& file) { return file.use < FileUse::kStyleSheet; });
  std::vector<NamedFile> expected = {{FileUse::kMenu, "menu", ""}};
  if (Since("AC1015")) expected.insert(expected.begin(), {FileUse::kStyleSheet, "sheet.css", ""});
  EXPECT_EQ(told, expected);
}

TEST_P(FileReferences, WhatOnlyTheListOfFilesNamesIsToldOnce) {
  spec.blocks = {Drawing("SITE", Xref::Attached, "A01")};
  spec.textStyles.emplace_back("TITLE", "Simplex");
  spec.fileList.features = {"Texts", "Drawings"};
  spec.fileList.files = {{"C:\\fonts\\simplex.SHX"},        {"other.shx", "/fonts/other.shx"},
                         {"x.dwg", "\\\\server\\site.dwg"}, {"OTHER.SHX"},
                         {"", "/found/only.dat"},           {"", ""}};
  std::vector<std::string> told;
  for (const NamedFile& file : Others()) {
    if (file.use != FileUse::kListed) continue;
    EXPECT_EQ(file.handle, 0u);
    told.push_back(file.path);
  }
  if (!Since("AC1018")) {
    EXPECT_THAT(told, IsEmpty());
    return;
  }
  EXPECT_THAT(told, ElementsAre("other.shx", "/found/only.dat"));
}

TEST_P(FileReferences, TheListOfFilesMayHaveWideCharacters) {
  if (!Since("AC1021")) GTEST_SKIP() << "characters have one byte below AC1021";
  spec.fileList = {{"Texts"}, {{"gr\u00F6\u00DFe.shx"}}, 4};
  EXPECT_THAT(Others(), ElementsAre(NamedFile{FileUse::kListed, "gr\u00F6\u00DFe.shx", ""}));
}

TEST_P(FileReferences, PathsOutsideOfAsciiAreToldAsTheyAreStored) {
  spec.blocks = {drawing::XrefBlock("SITE", "Pl\u00E4ne\\Gr\u00FCn.dwg")};
  spec.blocks[0].handle = "A01";
  spec.textStyles.emplace_back("TITLE", "gr\u00F6\u00DFe.shx");
  spec.textStyles.back().handle = "A02";
  EXPECT_THAT(
      Others(),
      ElementsAre(NamedFile{FileUse::kAttachedDrawing, "Pl\u00E4ne\\Gr\u00FCn.dwg", "SITE", 0xA01},
                  NamedFile{FileUse::kFont, "gr\u00F6\u00DFe.shx", "TITLE", 0xA02}));
}

TEST_P(FileReferences, ADrawingThatIsAskedTwiceTellsTheSame) {
  spec.blocks = {Drawing("SITE", Xref::Attached, "A01")};
  spec.images = {{.name = "APE", .path = "a.png", .handle = "A02"}};
  OpenDrawing opened(spec);
  const auto paths = [&] {
    std::vector<std::wstring> told;
    for (const FileReference& file : opened->FileReferences()) told.push_back(file.path);
    return told;
  };
  const std::vector<std::wstring> first = paths();
  EXPECT_THAT(first, testing::Contains(L"SITE.dwg"));
  EXPECT_THAT(first, testing::Contains(L"a.png"));
  EXPECT_EQ(paths(), first);
}

TEST_P(FileReferences, OnlyTheBlockOfAnOverlaidDrawingIsToldAsSuch) {
  spec.blocks = {Drawing("OVER", Xref::Overlaid, "A01"),
                 Drawing("SITE", Xref::Attached, "A02"),
                 {.name = "FRAME"}};
  OpenDrawing opened(spec);
  EXPECT_TRUE(opened->IsOverlayBlock(opened.Block(L"OVER")));
  EXPECT_FALSE(opened->IsOverlayBlock(opened.Block(L"SITE")));
  EXPECT_FALSE(opened->IsOverlayBlock(opened.Block(L"FRAME")));
  EXPECT_FALSE(opened->IsOverlayBlock(ObjectKey{0xFFFFFF}));
  spec.blocks[0].isOverlayAlone = true;
  OpenDrawing alone(spec);
  EXPECT_TRUE(alone->IsOverlayBlock(alone.Block(L"OVER")));
}

TEST_P(FileReferences, TheHandleOfAnObjectIsItsNumber) {
  spec.blocks = {Drawing("SITE", Xref::Attached, "A01")};
  OpenDrawing opened(spec);
  EXPECT_EQ(opened->HandleOf(opened.Block(L"SITE")), 0xA01u);
}

TEST_P(FileReferences, AFreeRecordTellsItsTextsAndBytes) {
  drawing::ObjectSpec record = drawing::Xrecord(
      {{300, "na\u00EFve.dwg"}, {70, 7}, {310, std::string("\0\x01\xFF", 3)}, {1, "last"}});
  record.handle = "A01";
  spec.rootEntries.emplace_back("RECORD", record);
  OpenDrawing opened(spec);
  const auto values = opened->FreeValues(ObjectKey{0xA01});
  ASSERT_EQ(values.size(), 4u);
  EXPECT_EQ(values[0].code, 300);
  EXPECT_EQ(values[0].text, L"na\u00EFve.dwg");
  EXPECT_EQ(values[1].code, 70);
  EXPECT_EQ(values[1].text + std::wstring(values[1].bytes.begin(), values[1].bytes.end()), L"");
  EXPECT_EQ(values[2].code, 310);
  EXPECT_EQ(values[2].bytes, std::string("\0\x01\xFF", 3));
  EXPECT_EQ(values[3].text, L"last");
  EXPECT_THAT(opened->FreeValues(*opened->RootDictionary()), IsEmpty());
  EXPECT_THAT(opened->FreeValues(ObjectKey{0xFFFFFF}), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Versions, FileReferences,
                         testing::Values("AC1014", "AC1015", "AC1018", "AC1021", "AC1024", "AC1027",
                                         "AC1032"),
                         [](const auto& info) { return std::string(info.param); });

}  // namespace
