// Real drawings name the files that their truth files say, where a collection of them lies beside
// the project.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <nlohmann/json.hpp>

#include "ZDXEngine/Utf8.h"
#include "backends/database/zndb/OpenDrawingFile.h"
#include "support/Paths.h"
#include "support/Samples.h"

namespace sample_references {
namespace {

using nlohmann::json;
using zdx::model::FileReference;
using zdx::model::FileUse;
using Texts = std::vector<std::string>;

class SampleReferences : public testing::TestWithParam<std::string> {
 protected:
  SampleReferences() {
    std::ifstream(zdx_test::TruthOf(GetParam())) >> truth;
    const auto path = zdx_test::SampleFolder() / GetParam();
    const bool isDwg = path.extension() == ".dwg";
    drawing = zdx::database::OpenDrawingFile(
                  zdx_test::NameOf(path),
                  isDwg ? zdx::database::Wanted::kDwg : zdx::database::Wanted::kDxf, report)
                  .drawing;
    references = drawing->FileReferences();
  }

  // Paths, and names behind a bar.
  Texts Told(FileUse use, bool withNames = false) const {
    Texts told;
    for (const FileReference& reference : references) {
      if (reference.use != use) continue;
      told.push_back(ZDXEngine::Utf8FromWide(reference.path) +
                     (withNames ? "|" + ZDXEngine::Utf8FromWide(reference.name) : ""));
    }
    return told;
  }

  json truth;
  std::shared_ptr<zdx::model::Report> report = std::make_shared<zdx::model::Report>();
  std::unique_ptr<zdx::model::Drawing> drawing;
  std::vector<FileReference> references;
};

TEST_P(SampleReferences, AreItsPictures) {
  EXPECT_EQ(Told(FileUse::kImage), truth["images"].get<Texts>());
}

TEST_P(SampleReferences, AreItsUnderlays) {
  std::map<std::string, Texts> paths;
  for (const json& underlay : truth["underlays"]) {
    paths[underlay["kind"]].push_back(underlay["path"]);
  }
  EXPECT_EQ(Told(FileUse::kPdfUnderlay), paths["PDF"]);
  EXPECT_EQ(Told(FileUse::kDwfUnderlay), paths["DWF"]);
  EXPECT_EQ(Told(FileUse::kDgnUnderlay), paths["DGN"]);
}

TEST_P(SampleReferences, AreItsFontsAndShapes) {
  std::map<FileUse, Texts> files;
  const auto add = [&](FileUse use, const json& style, const char* key) {
    const auto path = style[key].get<std::string>();
    if (!path.empty()) files[use].push_back(path + "|" + style["style"].get<std::string>());
  };
  for (const json& style : truth["fonts"]) {
    const bool isShapeFile = style["shapeFile"];
    add(isShapeFile ? FileUse::kShapeFile : FileUse::kFont, style, "font");
    if (!isShapeFile) add(FileUse::kBigFont, style, "bigFont");
  }
  for (const FileUse use : {FileUse::kFont, FileUse::kBigFont, FileUse::kShapeFile}) {
    EXPECT_EQ(Told(use, true), files[use]);
  }
}

TEST_P(SampleReferences, AreItsMenuAndItsStyleSheet) {
  for (const auto& [key, use] :
       {std::pair("Menu", FileUse::kMenu), std::pair("StyleSheet", FileUse::kStyleSheet)}) {
    const json& setting = truth["settings"][key];
    const std::string text = setting.is_string() ? setting.get<std::string>() : "";
    EXPECT_EQ(Told(use), text.empty() ? Texts{} : Texts{text}) << key;
  }
}

TEST_P(SampleReferences, AreToldByUseOfObjectsThatTheDrawingHas) {
  EXPECT_TRUE(std::is_sorted(references.begin(), references.end(),
                             [](const auto& a, const auto& b) { return a.use < b.use; }));
  for (const FileReference& reference : references) {
    EXPECT_FALSE(reference.path.empty());
    if (reference.handle == 0) continue;
    const auto object = drawing->Find(reference.handle);
    ASSERT_TRUE(object.has_value()) << reference.handle;
    EXPECT_EQ(drawing->HandleOf(*object), reference.handle);
  }
}

TEST_P(SampleReferences, CostNoWarning) { EXPECT_EQ(report->warningCount, 0u); }

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(SampleReferences);
INSTANTIATE_TEST_SUITE_P(Dxf, SampleReferences, testing::ValuesIn(zdx_test::SampleNames(".dxf")),
                         [](const auto& info) { return zdx_test::SampleTestName(info.param); });
INSTANTIATE_TEST_SUITE_P(Dwg, SampleReferences, testing::ValuesIn(zdx_test::SampleNames(".dwg")),
                         [](const auto& info) { return zdx_test::SampleTestName(info.param); });

TEST(SampleReferencesFolder, IsReadWhereItLies) {
  if (zdx_test::SampleNames(".dwg").empty()) {
    GTEST_SKIP() << "no collection of real drawings at " << zdx_test::SampleFolder()
                 << ": its tests are left out";
  }
  SUCCEED();
}

}  // namespace
}  // namespace sample_references
