// One drawing that names files of every kind, in every version and form.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "interface/DrawingFolder.h"
#include "interface/FilesSpec.h"
#include "interface/Writings.h"

namespace {

using FileKind = ZDXEngine::DependencyKind;
using testing::ElementsAreArray;
using zdx_test::FileWalk;
using zdx_test::WalkedFile;
using zdx_test::WalkOptions;
using Lines = std::vector<std::string>;

// What is listed only if it is asked for.
enum class Asked { Always, ForMenus, ForListedFiles, ForDependents };

struct ListedKind {
  const char* path;
  FileKind kind;
  int fileType;
  bool canBeRepathed;
  // The first version that holds it, and whether DWG files alone do.
  const char* first = "AC1009";
  Asked asked = Asked::Always;
  bool isOfDwg = false;
};

// In the order of the list.
constexpr ListedKind kListedKinds[] = {
    {"refs\\outer.dwg", FileKind::AttachedDrawing, 1, true},
    {"away.dwg", FileKind::AttachedDrawing, 1, true},
    {"inner.dwg", FileKind::AttachedDrawing, 1, true, "AC1009", Asked::ForDependents},
    {"over.dxf", FileKind::OverlaidDrawing, 1, true},
    {"alone.dwg", FileKind::OverlaidDrawing, 1, true},
    {"photo.jpg", FileKind::Image, 2, true, "AC1014"},
    {"карта.png", FileKind::Image, 2, true, "AC1014"},
    {"plan.pdf", FileKind::PdfUnderlay, 4, true, "AC1015"},
    {"plan.pdf", FileKind::PdfUnderlay, 4, true, "AC1015"},
    {"sheet.dwfx", FileKind::DwfUnderlay, 3, true, "AC1015"},
    {"road.dgn", FileKind::DgnUnderlay, 3, true, "AC1015"},
    {"hall.pcg", FileKind::PointCloud, 10, true, "AC1024"},
    {"yard.rcp", FileKind::PointCloud, 10, true, "AC1024"},
    {"rates.xlsx", FileKind::LinkedData, 10, true, "AC1021"},
    {"C:\\data\\all.xls", FileKind::LinkedData, 10, true, "AC1021"},
    {"odd!name.xlsx", FileKind::LinkedData, 10, true, "AC1021"},
    {"oak.jpg", FileKind::Texture, 2, true, "AC1021"},
    {"textures\\rough.png", FileKind::Texture, 2, true, "AC1021"},
    {"sky.tif", FileKind::Texture, 2, true, "AC1021"},
    {"ice.bmp", FileKind::Texture, 2, true, "AC1021"},
    {"signs.shx", FileKind::Font, 10, true},
    {"notes.ttf", FileKind::Font, 10, true, "AC1009", Asked::ForDependents},
    {"bigfont.shx", FileKind::BigFont, 10, true},
    {"shapes.shx", FileKind::ShapeFile, 10, true},
    {"model.ctb", FileKind::PlotStyleTable, 10, false, "AC1015"},
    {"sheet.ctb", FileKind::PlotStyleTable, 10, false, "AC1015"},
    {"grey.stb", FileKind::PlotStyleTable, 10, false, "AC1015"},
    {"plotter.pc3", FileKind::PrinterConfiguration, 10, false, "AC1015"},
    {"laser.pc3", FileKind::PrinterConfiguration, 10, false, "AC1015"},
    {"office.ctb", FileKind::StyleSheet, 10, false, "AC1015"},
    {"office", FileKind::Menu, 10, false, "AC1009", Asked::ForMenus},
    {"список.dat", FileKind::Listed, 10, false, "AC1018", Asked::ForListedFiles, true},
};

std::string LineOf(const std::string& path, FileKind kind, int fileType, bool canBeRepathed) {
  return path + ": kind " + std::to_string(static_cast<int>(kind)) + ", type " +
         std::to_string(fileType) + (canBeRepathed ? "" : ", to stay");
}

Lines ToldLines(const FileWalk& walk) {
  Lines lines;
  for (const WalkedFile& file : walk.files) {
    lines.push_back(LineOf(file.StoredPath(), file.detail.kind, file.fileType, file.canBeRepathed));
  }
  return lines;
}

class ReferenceKinds : public testing::TestWithParam<zdx_test::WrittenAs> {
 protected:
  ReferenceKinds() { spec.version = Version(); }

  std::string Version() const { return std::get<0>(GetParam()); }
  const zdx_test::Writing& Form() const { return std::get<1>(GetParam()); }

  FileWalk Walk(const ZDXEngine::DependencySettings& settings = {}) {
    const std::string name = std::string("root") + Form().Suffix();
    WalkOptions options;
    options.settings = settings;
    return zdx_test::WalkFiles(folder.WriteBytes(name, Form().make(spec)), options);
  }

  Lines Expected(Asked also = Asked::Always) const {
    Lines lines;
    for (const ListedKind& known : kListedKinds) {
      const bool isAsked = known.asked == Asked::Always || known.asked == also;
      const bool isHeld = Version() >= known.first && (Form().IsDwg() || !known.isOfDwg);
      if (!isAsked || !isHeld) continue;
      lines.push_back(LineOf(known.path, known.kind, known.fileType, known.canBeRepathed));
    }
    return lines;
  }

  drawing::DrawingSpec spec = zdx_test::SpecWithFiles();
  zdx_test::DrawingFolder folder;
};

TEST_P(ReferenceKinds, AreListedAsFarAsTheVersionHoldsThemAndTheyAreAskedFor) {
  EXPECT_THAT(ToldLines(Walk()), ElementsAreArray(Expected()));
  ZDXEngine::DependencySettings menus;
  menus.WalkBit40 = true;
  EXPECT_THAT(ToldLines(Walk(menus)), ElementsAreArray(Expected(Asked::ForMenus)));
  ZDXEngine::DependencySettings listed;
  listed.WalkBit20 = true;
  EXPECT_THAT(ToldLines(Walk(listed)), ElementsAreArray(Expected(Asked::ForListedFiles)));
  ZDXEngine::DependencySettings dependents;
  dependents.WalkBit1000 = true;
  EXPECT_THAT(ToldLines(Walk(dependents)), ElementsAreArray(Expected(Asked::ForDependents)));
}

TEST_P(ReferenceKinds, AreToldWhetherTheirFilesAreThere) {
  const auto isThere = [](const std::string& path) {
    return path == "photo.jpg" || path == "plan.pdf" || path == "signs.shx" ||
           path == "textures\\rough.png" || path == "grey.stb";
  };
  for (const char* name :
       {"photo.jpg", "plan.pdf", "signs.shx", "textures/rough.png", "grey.stb"}) {
    folder.WriteBytes(name, "x");
  }
  const FileWalk walk = Walk();
  EXPECT_EQ(walk.files.size(), Expected().size());
  for (const WalkedFile& file : walk.files) {
    EXPECT_EQ(file.detail.exists, isThere(file.StoredPath())) << file.StoredPath();
    EXPECT_EQ(file.detail.problem == ZDXEngine::DependencyProblem::NotFound, !file.detail.exists)
        << file.StoredPath();
  }
}

// Handles of records, as numbers; the second file of one record needs another id.
TEST_P(ReferenceKinds, HaveTheHandlesOfTheirRecordsAsIds) {
  const FileWalk walk = Walk();
  if (Version() == "AC1009") {
    EXPECT_EQ(walk.At("refs\\outer.dwg").refId, std::to_string(std::uint64_t{1} << 48));
    return;
  }
  EXPECT_EQ(walk.At("refs\\outer.dwg").refId, std::to_string(0xA1));
  EXPECT_EQ(walk.At("signs.shx").refId, std::to_string(0xB1));
  EXPECT_EQ(walk.At("bigfont.shx").refId, std::to_string((std::uint64_t{1} << 48) + 0xB1));
  EXPECT_EQ(walk.At("shapes.shx").refId, std::to_string(0xB2));
  if (Version() >= "AC1014") {
    EXPECT_EQ(walk.At("photo.jpg").refId, std::to_string(0xC1));
  }
  if (Version() < "AC1021") return;
  EXPECT_EQ(walk.At("oak.jpg").refId, std::to_string(0xD4));
  EXPECT_EQ(walk.At("textures\\rough.png").refId, std::to_string((std::uint64_t{1} << 48) + 0xD4));
}

TEST_P(ReferenceKinds, TellAFontOnceUnlessEachRecordIsAskedFor) {
  spec.textStyles.emplace_back("Other signs", "SIGNS.SHX");
  const auto count = [](const FileWalk& walk) {
    return std::count_if(walk.files.begin(), walk.files.end(),
                         [](const WalkedFile& file) { return file.detail.kind == FileKind::Font; });
  };
  EXPECT_EQ(count(Walk()), 1);
  ZDXEngine::DependencySettings settings;
  settings.WalkBit400 = true;
  EXPECT_EQ(count(Walk(settings)), 2);
}

INSTANTIATE_TEST_SUITE_P(Dxf, ReferenceKinds,
                         testing::Combine(testing::ValuesIn(zdx_test::kDxfVersions),
                                          testing::Values(zdx_test::kDxfWritings[0],
                                                          zdx_test::kDxfWritings[3])),
                         zdx_test::WritingTestName);
INSTANTIATE_TEST_SUITE_P(Dwg, ReferenceKinds,
                         testing::Combine(testing::ValuesIn(zdx_test::kDwgVersions),
                                          testing::Values(zdx_test::kDwgWritings[0])),
                         zdx_test::WritingTestName);

}  // namespace
