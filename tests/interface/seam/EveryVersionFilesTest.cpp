// One drawing, written in every version and form, names the same files in each as far as the
// version can hold them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "ZDXEngine/Utf8.h"
#include "backends/database/model/Drawing.h"
#include "backends/database/model/Report.h"
#include "backends/database/zndb/OpenDrawingFile.h"
#include "interface/FilesSpec.h"
#include "interface/Writings.h"
#include "support/Paths.h"
#include "support/Scratch.h"

namespace {

using testing::ElementsAreArray;
using testing::IsEmpty;
using zdx::model::FileReference;
using zdx::model::FileUse;
using zdx::model::FreeValue;
using zdx::model::Handle;
using zdx::model::ObjectKey;

// What a reference is expected to tell.
struct NamedFile {
  FileUse use;
  // 0 for the header, kAnyHandle for a record that couldn't choose one.
  Handle handle;
  const char* path;
  const char* name;
  // The versions that hold it, and whether DWG files alone do.
  const char* first = "AC1009";
  bool isOfDwg = false;
  bool isDependent = false;
  bool isUnloaded = false;
};

constexpr Handle kAnyHandle = ~Handle{0};

constexpr NamedFile kNamedFiles[] = {
    {FileUse::kAttachedDrawing, 0xA1, "refs\\outer.dwg", "outer"},
    {.use = FileUse::kAttachedDrawing,
     .handle = 0xA4,
     .path = "away.dwg",
     .name = "away",
     .isUnloaded = true},
    {.use = FileUse::kAttachedDrawing,
     .handle = 0xA5,
     .path = "inner.dwg",
     .name = "outer|inner",
     .isDependent = true},
    {FileUse::kOverlaidDrawing, 0xA2, "over.dxf", "over"},
    {FileUse::kOverlaidDrawing, 0xA3, "alone.dwg", "alone"},
    {FileUse::kImage, 0xC1, "photo.jpg", "photo", "AC1014"},
    {FileUse::kImage, 0xC2, "карта.png", "карта", "AC1014"},
    {FileUse::kPdfUnderlay, 0xC4, "plan.pdf", "plan - 1", "AC1015"},
    {FileUse::kPdfUnderlay, 0xC5, "plan.pdf", "plan - 2", "AC1015"},
    {FileUse::kDwfUnderlay, 0xC6, "sheet.dwfx", "sheet", "AC1015"},
    {FileUse::kDgnUnderlay, 0xC3, "road.dgn", "road", "AC1015"},
    {FileUse::kPointCloud, 0xC7, "hall.pcg", "hall", "AC1024"},
    {FileUse::kPointCloud, 0xC8, "yard.rcp", "yard", "AC1024"},
    {FileUse::kLinkedData, 0xD1, "rates.xlsx", "rates", "AC1021"},
    {FileUse::kLinkedData, 0xD2, "C:\\data\\all.xls", "all", "AC1021"},
    {FileUse::kLinkedData, 0xD3, "odd!name.xlsx", "odd", "AC1021"},
    {FileUse::kTexture, 0xD4, "oak.jpg", "Oak", "AC1021"},
    {FileUse::kTexture, 0xD4, "textures\\rough.png", "Oak", "AC1021"},
    {FileUse::kTexture, 0xD6, "sky.tif", "Glass", "AC1021"},
    {FileUse::kTexture, 0xD6, "ice.bmp", "Glass", "AC1021"},
    {FileUse::kFont, 0xB1, "signs.shx", "Signs"},
    {.use = FileUse::kFont,
     .handle = 0xB3,
     .path = "notes.ttf",
     .name = "outer|Notes",
     .isDependent = true},
    {FileUse::kBigFont, 0xB1, "bigfont.shx", "Signs"},
    {FileUse::kShapeFile, 0xB2, "shapes.shx", ""},
    {FileUse::kPlotStyleTable, kAnyHandle, "model.ctb", "Model", "AC1015"},
    {FileUse::kPlotStyleTable, kAnyHandle, "sheet.ctb", "Sheet 1", "AC1015"},
    {FileUse::kPlotStyleTable, kAnyHandle, "grey.stb", "A3", "AC1015"},
    {FileUse::kPrinter, kAnyHandle, "none_device", "Model", "AC1015"},
    {FileUse::kPrinter, kAnyHandle, "plotter.pc3", "Sheet 1", "AC1015"},
    {FileUse::kPrinter, kAnyHandle, "none_device", "Лист 2", "AC1015"},
    {FileUse::kPrinter, kAnyHandle, "laser.pc3", "A3", "AC1015"},
    {FileUse::kStyleSheet, 0, "office.ctb", "", "AC1015"},
    {FileUse::kMenu, 0, "office", ""},
    {FileUse::kListed, 0, "список.dat", "", "AC1018", true},
};

// For comparisons that print well.
std::string LineOf(FileUse use, std::string path, std::string name, bool isDependent,
                   bool isUnloaded) {
  return std::to_string(static_cast<int>(use)) + " " + std::move(path) + " (" + std::move(name) +
         ")" + (isDependent ? " dependent" : "") + (isUnloaded ? " unloaded" : "");
}

class EveryVersionFiles : public testing::TestWithParam<zdx_test::WrittenAs> {
 protected:
  EveryVersionFiles() { spec.version = Version(); }

  std::string Version() const { return std::get<0>(GetParam()); }
  bool IsDwg() const { return std::get<1>(GetParam()).IsDwg(); }

  void Open() {
    const zdx_test::Writing& form = std::get<1>(GetParam());
    const zdx_test::ScratchFile file(form.make(spec), form.Suffix());
    auto opened = zdx::database::OpenDrawingFile(
        zdx_test::NameOf(file.path()),
        IsDwg() ? zdx::database::Wanted::kDwg : zdx::database::Wanted::kDxf, report);
    ASSERT_NE(opened.drawing, nullptr);
    drawing = std::move(opened.drawing);
  }

  // The oldest DWG files have names in capitals, and no blanks in them.
  std::string Stored(std::string name) const {
    if (!IsDwg() || Version() != "AC1014") return name;
    for (char& c : name) {
      if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
      if (c == ' ') c = '_';
    }
    return name;
  }

  bool Holds(const NamedFile& file) const {
    return Version() >= file.first && (IsDwg() || !file.isOfDwg);
  }

  drawing::DrawingSpec spec = zdx_test::SpecWithFiles();
  std::shared_ptr<zdx::model::Report> report = std::make_shared<zdx::model::Report>();
  std::unique_ptr<zdx::model::Drawing> drawing;
};

TEST_P(EveryVersionFiles, AreToldByTheirUseAndInTheirOrder) {
  Open();
  std::vector<std::string> expected;
  for (const NamedFile& file : kNamedFiles) {
    if (!Holds(file)) continue;
    const bool isUnloaded = file.isUnloaded && IsDwg() && Version() >= "AC1015";
    expected.push_back(
        LineOf(file.use, file.path, Stored(file.name), file.isDependent, isUnloaded));
  }
  std::vector<std::string> told;
  for (const FileReference& file : drawing->FileReferences()) {
    told.push_back(LineOf(file.use, ZDXEngine::Utf8FromWide(file.path),
                          ZDXEngine::Utf8FromWide(file.name), file.isDependent, file.isUnloaded));
  }
  EXPECT_THAT(told, ElementsAreArray(expected));
  EXPECT_THAT(report->errors, IsEmpty());
  EXPECT_EQ(report->warningCount, 0u);
}

TEST_P(EveryVersionFiles, AreToldWithTheHandlesOfTheirRecords) {
  Open();
  std::vector<Handle> told;
  for (const FileReference& file : drawing->FileReferences()) told.push_back(file.handle);
  std::size_t at = 0;
  for (const NamedFile& file : kNamedFiles) {
    if (!Holds(file)) continue;
    ASSERT_LT(at, told.size());
    const Handle handle = told[at++];
    if (Version() == "AC1009") {
      EXPECT_EQ(handle, 0u) << file.path;
    } else if (file.handle == kAnyHandle) {
      EXPECT_TRUE(handle != 0 && drawing->Find(handle).has_value()) << file.path;
    } else {
      EXPECT_EQ(handle, file.handle) << file.path;
    }
  }
}

TEST_P(EveryVersionFiles, OverlaidDrawingsAreKnownByTheirBlocks) {
  Open();
  for (const ObjectKey block : drawing->TableRecords(zdx::model::TableKind::kBlock)) {
    const std::string name = ZDXEngine::Utf8FromWide(
        drawing->RecordName(zdx::model::TableKind::kBlock, block).value_or(L""));
    const bool isOverlay = name == Stored("over") || name == Stored("alone");
    EXPECT_EQ(drawing->IsOverlayBlock(block), isOverlay) << name;
  }
}

TEST_P(EveryVersionFiles, HandlesLeadToTheirObjectsAndBack) {
  Open();
  for (const ObjectKey block : drawing->TableRecords(zdx::model::TableKind::kBlock)) {
    const Handle handle = drawing->HandleOf(block);
    if (Version() == "AC1009") {
      EXPECT_EQ(handle, 0u);
    } else {
      EXPECT_EQ(drawing->Find(handle), block);
    }
  }
}

// All bytes and texts of a record, as its groups tell them.
struct FreeContent {
  std::string bytes;
  std::vector<std::string> texts;
  std::vector<int> codes;
};

FreeContent ContentOf(const std::vector<FreeValue>& values) {
  FreeContent content;
  for (const FreeValue& value : values) {
    content.bytes += value.bytes;
    if (!value.text.empty()) content.texts.push_back(ZDXEngine::Utf8FromWide(value.text));
    const bool isNext = content.codes.empty() || content.codes.back() != value.code;
    if (isNext) content.codes.push_back(value.code);
  }
  return content;
}

TEST_P(EveryVersionFiles, BytesOfFreeRecordsBelowTheRootComeWhole) {
  std::string bytes;
  for (int i = 0; i < 1000; ++i) bytes += static_cast<char>(i % 256);
  spec.rootEntries = {
      {"FOLDER",
       drawing::Dictionary(
           {{"DATA", drawing::Xrecord(
                         {{300, "текст.dwg"}, {310, bytes}, {90, 7}, {40, 1.5}, {301, "end"}})}})}};
  Open();
  const std::optional<ObjectKey> root = drawing->RootDictionary();
  ASSERT_EQ(root.has_value(), Version() != "AC1009");
  if (!root) return;
  const auto find = [&](ObjectKey dictionary, const wchar_t* key) {
    for (const auto& entry : drawing->DictionaryEntries(dictionary)) {
      if (entry.key == key) return drawing->Find(entry.target);
    }
    return std::optional<ObjectKey>();
  };
  const auto folder = find(*root, L"FOLDER");
  ASSERT_TRUE(folder.has_value());
  const auto record = find(*folder, L"DATA");
  ASSERT_TRUE(record.has_value());
  const FreeContent content = ContentOf(drawing->FreeValues(*record));
  EXPECT_TRUE(content.bytes == bytes);
  EXPECT_EQ(content.texts, (std::vector<std::string>{"текст.dwg", "end"}));
  EXPECT_EQ(content.codes, (std::vector<int>{300, 310, 90, 40, 301}));
  EXPECT_THAT(drawing->FreeValues(*folder), IsEmpty());
}

TEST_P(EveryVersionFiles, AnEmptyDrawingNamesNone) {
  spec = {};
  spec.version = Version();
  spec.textStyles = {{"Standard", ""}};
  spec.settings.menu = "";
  for (drawing::LayoutSpec& layout : spec.layouts) layout.printer = "";
  Open();
  // Model space has a printer all the same.
  std::vector<FileReference> files = drawing->FileReferences();
  std::erase_if(files, [](const FileReference& file) { return file.use == FileUse::kPrinter; });
  EXPECT_TRUE(files.empty());
}

INSTANTIATE_TEST_SUITE_P(Dxf, EveryVersionFiles,
                         testing::Combine(testing::ValuesIn(zdx_test::kDxfVersions),
                                          testing::ValuesIn(zdx_test::kDxfWritings)),
                         zdx_test::WritingTestName);
INSTANTIATE_TEST_SUITE_P(Dwg, EveryVersionFiles,
                         testing::Combine(testing::ValuesIn(zdx_test::kDwgVersions),
                                          testing::ValuesIn(zdx_test::kDwgWritings)),
                         zdx_test::WritingTestName);

// The list that DWG files keep of what they need.
class ListedFiles : public EveryVersionFiles {};

TEST_P(ListedFiles, HaveCharactersOfTheSizesThatTheVersionKnows) {
  const bool isOldest = Version() == "AC1018";
  for (const int size : isOldest ? std::vector<int>{1} : std::vector<int>{2, 4}) {
    spec.fileList.characterSize = size;
    Open();
    const std::vector<FileReference> files = drawing->FileReferences();
    ASSERT_FALSE(files.empty());
    EXPECT_EQ(files.back().use, FileUse::kListed) << size;
    EXPECT_EQ(ZDXEngine::Utf8FromWide(files.back().path), "список.dat") << size;
  }
}

INSTANTIATE_TEST_SUITE_P(Dwg, ListedFiles,
                         testing::Combine(testing::Values("AC1018", "AC1021", "AC1024", "AC1027",
                                                          "AC1032"),
                                          testing::Values(zdx_test::kDwgWritings[0])),
                         zdx_test::WritingTestName);

}  // namespace
