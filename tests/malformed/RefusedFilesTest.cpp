// Files that aren't drawings: a status and a reason, nothing worse.
#include <gtest/gtest.h>

#include "ZDXEngine/Utf8.h"
#include "ZDXEngine/ZdxEngineException.h"
#include "malformed/Damage.h"
#include "support/Paths.h"
#include "support/PublicRead.h"
#include "support/Scratch.h"

namespace {

using namespace std::string_literals;
using zdx_test::ReadFile;
using zdx_test::WriteFile;
using ZDXEngine::InvalidFormat;
using ZDXEngine::NotFound;
using ZDXEngine::ReadError;

template <class Exception>
void ExpectRefused(const std::wstring& path) {
  EXPECT_THROW(ReadFile(path), Exception);
  const ZDXEngine::Diagnostics diagnostics = ZDXEngine::Diagnostics::LastOpening();
  EXPECT_EQ(diagnostics.path, path);
  ASSERT_EQ(diagnostics.errors.size(), 1u);
  EXPECT_FALSE(diagnostics.errors[0].text.empty());
}

TEST(RefusedFile, EmptyIsNotADrawing) { ExpectRefused<InvalidFormat>(WriteFile("")); }

TEST(RefusedFile, DwgNamedDxfIsNotADrawing) {
  ExpectRefused<InvalidFormat>(WriteFile("AC1032\0\0\0\0\0\0\x03\x01"s + std::string(500, 'x')));
}

TEST(RefusedFile, PictureNamedDxfIsNotADrawing) {
  ExpectRefused<InvalidFormat>(
      WriteFile("\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\0\1\0\0\0\1\x08\x02\0\0\0"s));
}

TEST(RefusedFile, ZerosAreNotADrawing) {
  ExpectRefused<InvalidFormat>(WriteFile(std::string(100000, '\0')));
}

TEST(RefusedFile, LongLineWithoutAnEndIsNotADrawing) {
  ExpectRefused<InvalidFormat>(WriteFile(std::string(5000000, '7')));
}

TEST(RefusedFile, Utf16TextIsNotADrawing) {
  ExpectRefused<InvalidFormat>(
      WriteFile("\xFF\xFE \0 \0"
                "0\0\n\0S\0E\0C\0T\0I\0O\0N\0\n\0"s));
}

TEST(RefusedFile, BinaryWithConvertedLineEndsIsNotADrawing) {
  ExpectRefused<InvalidFormat>(
      WriteFile(damage::Replaced(damage::SoundBinary(), "\r\n\x1A", "\n\x1A")));
}

TEST(RefusedFile, EmptyDwgIsNotADrawing) {
  for (const char* suffix : {".dwg", ".dwt", ".DWS"}) {
    ExpectRefused<InvalidFormat>(WriteFile("", suffix));
  }
}

TEST(RefusedFile, OtherBytesNamedDwgAreNotADrawing) {
  ExpectRefused<InvalidFormat>(WriteFile(std::string(100000, '\0'), ".dwg"));
  ExpectRefused<InvalidFormat>(WriteFile("AC10", ".dwg"));
  ExpectRefused<InvalidFormat>(WriteFile("ac1032" + std::string(500, '\0'), ".dwg"));
  ExpectRefused<InvalidFormat>(WriteFile("ACxxxx" + std::string(500, '\0'), ".dwg"));
}

TEST(RefusedFile, DxfNamedDwgIsNotADrawing) {
  ExpectRefused<InvalidFormat>(WriteFile(damage::SoundText(), ".dwg"));
  ExpectRefused<InvalidFormat>(WriteFile(damage::SoundBinary(), ".dwg"));
}

TEST(RefusedFile, OtherVersionsOfDwgAreNamed) {
  for (const std::string magic : {"AC1009", "AC1012", "AC1013", "AC1016", "AC1033", "AC1035"}) {
    ExpectRefused<ZDXEngine::FileError>(WriteFile(magic + std::string(1000, '\0'), ".dwg"));
    const ZDXEngine::Diagnostics diagnostics = ZDXEngine::Diagnostics::LastOpening();
    ASSERT_EQ(diagnostics.errors.size(), 1u);
    EXPECT_NE(diagnostics.errors[0].text.find(ZDXEngine::WideFromUtf8(magic)), std::wstring::npos);
  }
}

TEST(RefusedFile, DwgThatEndsBehindItsMagicIsRefused) {
  for (const char* magic : {"AC1014", "AC1018", "AC1021", "AC1032"}) {
    ExpectRefused<ZDXEngine::FileError>(WriteFile(magic, ".dwg"));
    ExpectRefused<ZDXEngine::FileError>(WriteFile(magic + std::string(22, '\0'), ".dwg"));
    ExpectRefused<ZDXEngine::FileError>(WriteFile(magic + std::string(2000, '\0'), ".dwg"));
  }
}

TEST(RefusedFile, MissingIsNotFound) {
  ExpectRefused<NotFound>(L"/nowhere/at all.dxf");
  ExpectRefused<NotFound>(L"/nowhere/at all.dwg");
}

TEST(RefusedFile, FolderIsAReadError) {
  const zdx_test::ScratchFolder scratch;
  const auto folder = scratch.path() / "folder.dxf";
  std::filesystem::create_directory(folder);
  ExpectRefused<ReadError>(zdx_test::NameOf(folder));
}

TEST(RefusedFile, PipeThatNobodyWritesToIsAReadErrorAtOnce) {
  const zdx_test::ScratchFolder scratch;
  const auto pipe = scratch.path() / "pipe.dxf";
  if (!zdx_test::MakePipe(pipe)) GTEST_SKIP() << "this system has no pipes among its files";
  ExpectRefused<ReadError>(zdx_test::NameOf(pipe));
}

TEST(RefusedFile, OtherExtensionsAreReadErrorsAndNeverOpened) {
  EXPECT_THROW(ReadFile(WriteFile(damage::SoundText(), ".txt")), ReadError);
  EXPECT_THROW(ReadFile(WriteFile(damage::SoundText(), "")), ReadError);
}

TEST(RefusedFile, TheSentenceNamesTheFile) {
  const std::wstring path = WriteFile("", ".dxf");
  try {
    ReadFile(path);
    FAIL() << "opened";
  } catch (const ZDXEngine::ZdxEngineException& error) {
    EXPECT_EQ(error.errorCode, 103);
    EXPECT_NE(error.errorMessage.find(path), std::wstring::npos);
  }
}

TEST(RefusedFile, AFailedOpeningLeavesNothingForTheNext) {
  EXPECT_THROW(ReadFile(WriteFile("")), InvalidFormat);
  EXPECT_TRUE(zdx_test::ReadBytes(damage::SoundText()).diagnostics.errors.empty());
}

}  // namespace
