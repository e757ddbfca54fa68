// Files with a changed byte, asked for the files that they name.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <variant>

#include "backends/database/dwg/DwgDrawing.h"
#include "support/Paths.h"
#include "support/Scratch.h"
#include "support/drawing/DrawingSpec.h"
#include "support/dwg/DwgMaker.h"

namespace {

namespace model = zdx::model;

drawing::DrawingSpec WithEveryUse(const char* version) {
  drawing::DrawingSpec spec;
  spec.version = version;
  spec.blocks = {drawing::XrefBlock("SITE", "site.dwg"),
                 drawing::XrefBlock("OVER", "over.dwg", drawing::Xref::Overlaid)};
  spec.images = {{.name = "APE", .path = "a.png"}};
  spec.underlays = {{.name = "plan", .path = "plan.pdf"}};
  spec.pointClouds = {{.name = "hall", .path = "hall.pcg"}};
  spec.dataLinks = {{.name = "rates", .connection = "rates.xlsx!Sheet"}};
  spec.materials = {{.name = "Oak", .diffuse = "oak.jpg", .bump = "rough.png"}};
  spec.textStyles = {{"TITLE", "simplex.shx", "big.shx"}, drawing::ShapeFile("signs.shx")};
  spec.plotSettings = {{"Setup", "other.pc3", "setup.stb"}};
  spec.fileList = {{"Texts"}, {{"other.shx", "/fonts/other.shx"}}};
  spec.rootEntries.emplace_back("RECORD", drawing::Xrecord({{300, "name"}, {310, "bytes"}}));
  return spec;
}

// The files that are told of the drawing in `bytes`; none if it isn't opened.  All else that
// belongs to references is asked for, too.
std::vector<model::FileReference> AskedForFiles(const std::string& bytes) {
  const zdx_test::ScratchFile file(bytes);
  auto mapped = zdx::file::MappedFile::Open(zdx_test::NameOf(file.path()));
  auto opened = zdx::dwg::DwgDrawing::Open(std::move(std::get<zdx::file::MappedFile>(mapped)),
                                           std::make_shared<model::Report>());
  auto* const drawing = std::get_if<std::unique_ptr<model::Drawing>>(&opened);
  if (drawing == nullptr) return {};
  for (const model::ObjectKey block : (*drawing)->TableRecords(model::TableKind::kBlock)) {
    (*drawing)->IsOverlayBlock(block);
  }
  if (const auto root = (*drawing)->RootDictionary()) {
    for (const model::DictionaryEntry& entry : (*drawing)->DictionaryEntries(*root)) {
      (*drawing)->FreeValues(model::ObjectKey{entry.target});
    }
  }
  return (*drawing)->FileReferences();
}

class DamagedReferences : public testing::TestWithParam<const char*> {};

TEST_P(DamagedReferences, AChangedByteMakesNoFilesOfItsOwn) {
  const std::string sound = dwg::Make(WithEveryUse(GetParam()));
  const std::size_t named = AskedForFiles(sound).size();
  ASSERT_GE(named, 7u);
  // As many as can be tried in a few seconds.
  constexpr std::size_t kStep = 7;
  for (std::size_t at = 0; at < sound.size(); at += kStep) {
    std::string changed = sound;
    changed[at] = static_cast<char>(changed[at] ^ (1 << (at / kStep % 8)));
    const std::vector<model::FileReference> files = AskedForFiles(changed);
    // One byte may be a bit of a material that makes its texts others.
    EXPECT_LE(files.size(), named + 2) << at;
    for (const model::FileReference& file : files) EXPECT_FALSE(file.path.empty()) << at;
  }
}

TEST_P(DamagedReferences, AFileThatIsCutTellsWhatIsLeft) {
  const std::string sound = dwg::Make(WithEveryUse(GetParam()));
  const std::size_t named = AskedForFiles(sound).size();
  for (std::size_t size = 0; size < sound.size(); size += 97) {
    EXPECT_LE(AskedForFiles(sound.substr(0, size)).size(), named) << size;
  }
}

INSTANTIATE_TEST_SUITE_P(Versions, DamagedReferences,
                         testing::Values("AC1014", "AC1015", "AC1018", "AC1021", "AC1032"),
                         [](const auto& info) { return std::string(info.param); });

}  // namespace
