#include <gmock/gmock.h>

#include <fstream>

#include "cli/CliTest.h"
#include "cli/SmallDrawing.h"
#include "support/Paths.h"
#include "support/pictures/Pictures.h"

namespace zdx_test {

namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::SizeIs;
using ::testing::StartsWith;

// A folder whose path is longer than plain calls take.
class LongPath : public CliTest {
 protected:
  LongPath() {
    for (int i = 0; i < 6; ++i) name_ += std::string(50, static_cast<char>('a' + i)) + "/";
    extended_ = std::filesystem::path(L"\\\\?\\" + Folder().native());
    for (int i = 0; i < 6; ++i) {
      extended_ /= std::string(50, static_cast<char>('a' + i));
      std::filesystem::create_directory(extended_);
    }
    SmallDrawing drawing;
    drawing.picture = pictures::SmallBitmap();
    std::ofstream(extended_ / "plan.dxf", std::ios::binary) << DxfText(drawing);
  }
  ~LongPath() override {
    std::error_code ignored;
    std::filesystem::remove_all(L"\\\\?\\" + Folder().native(), ignored);
  }

  // Relative, with slashes.
  std::string name_;
  std::filesystem::path extended_;
};

TEST_F(LongPath, OfADrawingIsReadAndToldAsItWasGiven) {
  for (const std::string& file : {name_ + "plan.dxf", BytesOf(extended_ / "plan.dxf"),
                                  BytesOf(extended_ / "plan.dxf").substr(4)}) {
    const Outcome outcome = Zdx({"info", "-o", "json", file});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
    const std::vector<nlohmann::json> documents = Documents(outcome.out);
    ASSERT_THAT(documents, SizeIs(1));
    EXPECT_EQ(documents[0].at("file"), file);
    EXPECT_EQ(documents[0].at("format"), "DXF (text)");
  }
}

TEST_F(LongPath, OfAMissingFileIsToldAsItWasGiven) {
  const Outcome outcome = Zdx({"info", name_ + "none.dxf"});
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_THAT(outcome.err, StartsWith("zdx: " + name_ + "none.dxf: Unable to find file '" + name_ +
                                      "none.dxf'"));
  EXPECT_THAT(outcome.err, HasSubstr("(There is no such file.)"));
  EXPECT_THAT(outcome.err, Not(HasSubstr("\\\\?\\")));
}

TEST_F(LongPath, OfADrawingIsReadByEveryCommand) {
  const auto documents = Documents(Zdx({"blocks", "-o", "json", name_ + "plan.dxf"}).out);
  ASSERT_THAT(documents, SizeIs(1));
  EXPECT_EQ(documents[0].at("file"), name_ + "plan.dxf");
  EXPECT_EQ(documents[0].at("format"), "DXF (text)");
  EXPECT_EQ(Zdx({"get", "Title", name_ + "plan.dxf"}).out, "Ground floor\n");
  EXPECT_THAT(Zdx({"blocks", name_ + "none.dxf"}).err, Not(HasSubstr("\\\\?\\")));
}

TEST_F(LongPath, OfAPictureIsWritten) {
  const Outcome outcome = Zdx({"thumb", "-O", name_ + "out.png", name_ + "plan.dxf"});
  EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
  EXPECT_THAT(ContentsOf(extended_ / "out.png"), StartsWith("\x89PNG"));
}

TEST_F(LongPath, OfAPatternIsFollowed) {
  const Outcome outcome = Zdx({"info", "-o", "json", name_ + "*.dxf"});
  const std::vector<nlohmann::json> documents = Documents(outcome.out);
  ASSERT_THAT(documents, SizeIs(1));
  EXPECT_EQ(documents[0].at("file"), name_ + "plan.dxf");
  EXPECT_EQ(documents[0].at("status"), "ok");
}

}  // namespace

}  // namespace zdx_test
