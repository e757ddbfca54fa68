// What the embedded database gives as a drawing's preview picture, by the path of its file.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <memory>
#include <optional>

#include "ZDXEngine/Utf8.h"
#include "backends/System.h"
#include "backends/database/model/Report.h"
#include "backends/database/zndb/DatabaseProvider.h"
#include "backends/posix/graphics/PosixGraphics.h"
#include "platform/zndb/Provider.h"
#include "support/Paths.h"
#include "support/Scratch.h"
#include "support/dxf/DxfMaker.h"
#include "support/pictures/Pictures.h"

namespace preview_contract {
namespace {

using namespace std::string_literals;
using zdx::model::Report;

class Preview : public testing::Test {
 protected:
  Preview()
      : before_(zndb::InstallProvider(zdx::database::EmbeddedProvider())),
        graphicsBefore_(os::InstallGraphicsProvider(graphics_.get())) {}
  ~Preview() override {
    os::InstallGraphicsProvider(graphicsBefore_);
    zndb::InstallProvider(before_);
  }

  // Puts a drawing with that picture at the path.
  void Write(const std::string& picture) {
    drawing::DrawingSpec spec;
    spec.previews = {{drawing::PreviewKind::Bitmap, picture}};
    folder_.Write("preview.dxf", dxf::Make(spec));
  }

  std::wstring Path() const { return zdx_test::NameOf(folder_.path() / "preview.dxf"); }

  // The rows of the bitmap that was given; empty if there is none.
  std::string Rows() {
    if (!zndbGetPreviewBitmapFromDwg(Path().c_str(), bitmap, palette)) return {};
    os::BITMAP told{};
    EXPECT_EQ(os::GetObjectW(bitmap, sizeof told, &told), 32);
    const auto size = static_cast<std::size_t>(told.bmWidthBytes * told.bmHeight);
    return {static_cast<const char*>(told.bmBits), size};
  }

  os::HBITMAP bitmap = nullptr;
  os::HPALETTE palette = nullptr;

 private:
  std::unique_ptr<os::GraphicsProvider> graphics_ = zdx::MakeSystemGraphics();
  zndb::Provider* before_;
  os::GraphicsProvider* graphicsBefore_;
  zdx_test::ScratchFolder folder_;
};

const std::string kRows = pictures::SmallBitmap().substr(40);

TEST_F(Preview, IsABitmapOfTheCallers) {
  Write(pictures::SmallBitmap());
  EXPECT_EQ(Rows(), kRows);
  EXPECT_EQ(palette, nullptr);
  EXPECT_NE(os::DeleteObject(bitmap), 0);
}

TEST_F(Preview, AColourTableComesAsAPalette) {
  const pictures::BitmapHead head{.width = 1, .height = 1, .bits = 8, .coloursUsed = 2};
  Write(head.Bytes() + "\3\2\1\0\6\5\4\0"s + "\1\0\0\0"s);
  EXPECT_EQ(Rows(), "\1\0\0\0"s);
  ASSERT_NE(palette, nullptr);
  const os::HDC metafile = os::CreateMetaFileW(nullptr);
  os::SelectPalette(metafile, palette, 1);
  char bytes[18 + 18] = {};
  os::GetMetaFileBitsEx(os::CloseMetaFile(metafile), sizeof bytes, bytes);
  EXPECT_EQ(std::string(bytes + 18, 18), "\x09\0\0\0\xF7\0\0\3\2\0\1\2\3\0\4\5\6\0"s);
  EXPECT_NE(os::DeleteObject(palette), 0);
  EXPECT_NE(os::DeleteObject(bitmap), 0);
}

TEST_F(Preview, IsOneBlockOfTheLibrarys) {
  Write(pictures::SmallBitmap());
  const os::BITMAPINFO* const block = zndbGetPreviewBitmap(Path().c_str());
  ASSERT_NE(block, nullptr);
  EXPECT_EQ(std::string(reinterpret_cast<const char*>(block), 40 + 24), pictures::SmallBitmap());
}

TEST_F(Preview, ADrawingWithoutAPictureLeavesTheHandlesAlone) {
  Write("");
  auto* const bitmapBefore = reinterpret_cast<os::HBITMAP>(this);
  auto* const paletteBefore = reinterpret_cast<os::HPALETTE>(this);
  bitmap = bitmapBefore;
  palette = paletteBefore;
  EXPECT_FALSE(zndbGetPreviewBitmapFromDwg(Path().c_str(), bitmap, palette));
  EXPECT_EQ(bitmap, bitmapBefore);
  EXPECT_EQ(palette, paletteBefore);
  EXPECT_EQ(zndbGetPreviewBitmap(Path().c_str()), nullptr);
}

TEST_F(Preview, AMissingFileHasNone) {
  EXPECT_FALSE(zndbGetPreviewBitmapFromDwg(Path().c_str(), bitmap, palette));
  EXPECT_EQ(zndbGetPreviewBitmap(Path().c_str()), nullptr);
}

TEST_F(Preview, ABitmapThatTheSystemRefusesIsNone) {
  class Refusing : public zdx::PosixGraphics {
   public:
    os::HPALETTE CreatePalette(const os::LOGPALETTE* /*palette*/) override { return nullptr; }
    int DeleteObject(os::HGDIOBJ object) override {
      ++deleted;
      return PosixGraphics::DeleteObject(object);
    }
    int deleted = 0;
  } refusing;
  os::GraphicsProvider* const before = os::InstallGraphicsProvider(&refusing);
  const pictures::BitmapHead head{.width = 1, .height = 1, .bits = 8, .coloursUsed = 1};
  Write(head.Bytes() + "\3\2\1\0"s + "\0\0\0\0"s);
  EXPECT_FALSE(zndbGetPreviewBitmapFromDwg(Path().c_str(), bitmap, palette));
  EXPECT_EQ(bitmap, nullptr);
  EXPECT_EQ(refusing.deleted, 1) << "the bitmap was made for nobody";
  os::InstallGraphicsProvider(before);
}

TEST_F(Preview, AnOpenDrawingIsNotReadAgain) {
  Write(pictures::SmallBitmap());
  ZnDbDatabase database(false, true);
  ASSERT_EQ(database.dxfIn(Path().c_str(), nullptr), Zent::kOk);
  // The drawing keeps the file that it has; the path leads nowhere now.
  std::filesystem::remove(zdx_test::PathOf(Path()));
  EXPECT_EQ(Rows(), kRows);
}

TEST_F(Preview, ADrawingThatWasClosedIsReadByItself) {
  Write("");
  {
    ZnDbDatabase database(false, true);
    ASSERT_EQ(database.dxfIn(Path().c_str(), nullptr), Zent::kOk);
  }
  Write(pictures::SmallBitmap());
  EXPECT_EQ(Rows(), kRows);
}

TEST_F(Preview, APictureThatCannotBeShownIsAWarningOfTheOpenDrawing) {
  Write("no bitmap at all");
  {
    ZnDbDatabase database(false, true);
    ASSERT_EQ(database.dxfIn(Path().c_str(), nullptr), Zent::kOk);
    EXPECT_EQ(Rows(), "");
  }
  const Report report = Report::Last();
  ASSERT_EQ(report.warnings.size(), 1u);
  EXPECT_THAT(ZDXEngine::Utf8FromWide(report.warnings[0].text),
              testing::StartsWith("The preview picture can't be shown: "));
  EXPECT_TRUE(report.warnings[0].line) << "its place";
}

TEST_F(Preview, AFileReadForItsPictureLeavesTheReportOfTheLastOpening) {
  Write("no bitmap at all");
  Report::Begin(L"other.dxf");
  EXPECT_EQ(Rows(), "");
  EXPECT_EQ(Report::Last().path, L"other.dxf");
  EXPECT_EQ(Report::Last().warningCount, 0u);
}

}  // namespace
}  // namespace preview_contract
