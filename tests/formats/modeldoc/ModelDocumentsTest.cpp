// What a drawing keeps of model documents, in each format.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <optional>

#include "backends/database/modeldoc/ModelDocuments.h"
#include "backends/database/zndb/DatabaseProvider.h"
#include "backends/database/zndb/EmbeddedDatabase.h"
#include "platform/zndb/ZnDbDatabase.h"
#include "support/Paths.h"
#include "support/Scratch.h"
#include "support/drawing/DrawingSpec.h"
#include "support/dwg/DwgMaker.h"
#include "support/dxf/DxfMaker.h"

namespace model_documents {
namespace {

using drawing::DrawingSpec;
using drawing::NamedObject;

enum class Kind { kDwg, kDxfText, kDxfBinary };

struct Written {
  Kind kind;
  const char* version;
};

// Every byte there is, more than one chunk of them.
std::string AllBytes() {
  std::string bytes;
  for (int i = 0; i < 1000; ++i) bytes.push_back(static_cast<char>(i * 7));
  return bytes;
}

std::vector<drawing::Tag> ChunksOf(const std::string& bytes) {
  constexpr std::size_t kChunk = 100;
  std::vector<drawing::Tag> tags;
  for (std::size_t at = 0; at < bytes.size(); at += kChunk) {
    tags.emplace_back(310, bytes.substr(at, kChunk));
  }
  return tags;
}

DrawingSpec Holding(const std::string& version, const std::string& name, const std::string& bytes) {
  std::vector<drawing::Tag> tags = ChunksOf(bytes);
  tags.insert(tags.begin(), drawing::Tag(300, name));
  DrawingSpec spec;
  spec.version = version;
  spec.rootEntries = {{"ZDX_MODELDOC", drawing::Dictionary({{"DRAWING", drawing::Xrecord(tags)}})}};
  return spec;
}

// An open drawing, and the file that was unpacked from it, which goes away with it.
class OpenModel {
 public:
  OpenModel(const DrawingSpec& spec, Kind kind)
      : before_(zndb::InstallProvider(zdx::database::EmbeddedProvider())) {
    const bool isDwg = kind == Kind::kDwg;
    const dxf::Form form = kind == Kind::kDxfText ? dxf::Form::Ascii : dxf::Form::Binary;
    file_.emplace(isDwg ? dwg::Make(spec) : dxf::Make(spec, {.form = form}),
                  isDwg ? ".dwg" : ".dxf");
    database.emplace(false, true);
    const std::wstring path = zdx_test::NameOf(file_->path());
    EXPECT_EQ(isDwg ? database->readDwgFile(path.c_str(), 4, true, nullptr)
                    : database->dxfIn(path.c_str(), nullptr),
              Zent::kOk);
  }
  ~OpenModel() {
    database.reset();
    zndb::InstallProvider(before_);
    if (!unpacked.empty()) std::filesystem::remove_all(unpacked.parent_path());
  }

  bool HasViews() { return documents.hasPartonicModelDocViews(&*database); }

  Zent::ErrorStatus Unpack() {
    ZnString path(L"as it was");
    const Zent::ErrorStatus status = documents.unpackPartonicDrawingFile(&*database, path);
    const std::wstring name(static_cast<const wchar_t*>(path));
    if (status == Zent::kOk) {
      unpacked = zdx_test::PathOf(name);
    } else {
      EXPECT_EQ(name, L"as it was");
    }
    return status;
  }

  std::optional<std::wstring> Redirections() {
    return static_cast<zdx::database::EmbeddedDatabase&>(database->body()).redirections();
  }

  zdx::database::ModelDocuments documents;
  std::optional<ZnDbDatabase> database;
  std::filesystem::path unpacked;

 private:
  zndb::Provider* before_;
  std::optional<zdx_test::ScratchFile> file_;
};

class ModelDocuments : public testing::TestWithParam<Written> {
 protected:
  OpenModel Open(const std::string& name, const std::string& bytes) {
    return OpenModel(Holding(GetParam().version, name, bytes), GetParam().kind);
  }
};

std::string NameOf(const testing::TestParamInfo<Written>& info) {
  const char* const kinds[] = {"Dwg", "DxfText", "DxfBinary"};
  return std::string(kinds[static_cast<int>(info.param.kind)]) + info.param.version;
}

INSTANTIATE_TEST_SUITE_P(
    Files, ModelDocuments,
    testing::Values(Written{Kind::kDwg, "AC1015"}, Written{Kind::kDwg, "AC1021"},
                    Written{Kind::kDwg, "AC1032"}, Written{Kind::kDxfText, "AC1014"},
                    Written{Kind::kDxfText, "AC1032"}, Written{Kind::kDxfBinary, "AC1015"},
                    Written{Kind::kDxfBinary, "AC1032"}),
    NameOf);

TEST_P(ModelDocuments, AreThereWithTheEmbeddedDrawing) {
  EXPECT_TRUE(Open("model.dwg", "bytes").HasViews());
  DrawingSpec spec;
  spec.version = GetParam().version;
  EXPECT_FALSE(OpenModel(spec, GetParam().kind).HasViews());
  spec.rootEntries = {{"ZDX_MODELDOC", drawing::Dictionary({{"OTHER", drawing::Xrecord()}})}};
  EXPECT_FALSE(OpenModel(spec, GetParam().kind).HasViews());
  spec.rootEntries = {{"ZDX_MODELDOC", drawing::Xrecord()}};
  EXPECT_FALSE(OpenModel(spec, GetParam().kind).HasViews());
}

TEST_P(ModelDocuments, UnpackTheBytesOfTheEmbeddedDrawingUnderItsName) {
  OpenModel model = Open("hall model.dwg", AllBytes());
  ASSERT_EQ(model.Unpack(), Zent::kOk);
  EXPECT_TRUE(model.unpacked.is_absolute());
  EXPECT_EQ(model.unpacked.filename(), "hall model.dwg");
  EXPECT_EQ(zdx_test::ContentsOf(model.unpacked), AllBytes());
}

TEST_P(ModelDocuments, UnpackIntoAFolderOfItsOwn) {
  OpenModel first = Open("model.dwg", "first");
  OpenModel second = Open("model.dwg", "second");
  ASSERT_EQ(first.Unpack(), Zent::kOk);
  ASSERT_EQ(second.Unpack(), Zent::kOk);
  EXPECT_NE(first.unpacked, second.unpacked);
  EXPECT_EQ(zdx_test::ContentsOf(first.unpacked), "first");
  EXPECT_EQ(zdx_test::ContentsOf(second.unpacked), "second");
}

TEST_P(ModelDocuments, UnpackNowhereElseWhateverTheNameSays) {
  OpenModel model = Open("../../escaped.dwg", "bytes");
  ASSERT_EQ(model.Unpack(), Zent::kOk);
  EXPECT_EQ(model.unpacked.filename(), "escaped.dwg");
  const auto temporary = std::filesystem::canonical(std::filesystem::temp_directory_path());
  EXPECT_EQ(std::filesystem::canonical(model.unpacked).parent_path().parent_path(), temporary);
}

TEST_P(ModelDocuments, UnpackNothingWithoutBytes) {
  EXPECT_NE(Open("model.dwg", "").Unpack(), Zent::kOk);
  DrawingSpec spec;
  spec.version = GetParam().version;
  EXPECT_NE(OpenModel(spec, GetParam().kind).Unpack(), Zent::kOk);
}

TEST_P(ModelDocuments, KeepRedirectionsForASave) {
  OpenModel model = Open("model.dwg", "bytes");
  EXPECT_EQ(model.Redirections(), std::nullopt);
  EXPECT_EQ(model.documents.setRedirectionsInfo(&*model.database, ZnString(L"<a/>")), Zent::kOk);
  EXPECT_EQ(model.Redirections(), L"<a/>");
  EXPECT_EQ(model.documents.setRedirectionsInfo(&*model.database, ZnString(L"")), Zent::kOk);
  EXPECT_EQ(model.Redirections(), L"");
}

TEST(ModelDocumentsOfNothing, AreRefused) {
  zdx::database::ModelDocuments documents;
  ZnString unpacked;
  EXPECT_FALSE(documents.hasPartonicModelDocViews(nullptr));
  EXPECT_NE(documents.unpackPartonicDrawingFile(nullptr, unpacked), Zent::kOk);
  EXPECT_NE(documents.setRedirectionsInfo(nullptr, unpacked), Zent::kOk);
}

TEST(ModelDocumentsOfNothing, AreRefusedWithoutADrawing) {
  zndb::Provider* const before = zndb::InstallProvider(zdx::database::EmbeddedProvider());
  {
    zdx::database::ModelDocuments documents;
    ZnDbDatabase empty(false, true);
    ZnString unpacked;
    EXPECT_FALSE(documents.hasPartonicModelDocViews(&empty));
    EXPECT_NE(documents.unpackPartonicDrawingFile(&empty, unpacked), Zent::kOk);
    EXPECT_NE(documents.setRedirectionsInfo(&empty, unpacked), Zent::kOk);
  }
  zndb::InstallProvider(before);
}

TEST(ModelDocumentsOfTheOldestDrawings, AreRefused) {
  DrawingSpec spec;
  spec.version = "AC1009";
  OpenModel model(spec, Kind::kDxfText);
  EXPECT_FALSE(model.HasViews());
  EXPECT_NE(model.Unpack(), Zent::kOk);
  EXPECT_NE(model.documents.setRedirectionsInfo(&*model.database, ZnString(L"a")), Zent::kOk);
  EXPECT_EQ(model.Redirections(), std::nullopt);
}

}  // namespace
}  // namespace model_documents
