#include <gtest/gtest.h>

#include <filesystem>
#include <optional>

#include "backends/database/file/MappedFile.h"
#include "support/Paths.h"
#include "support/Process.h"
#include "support/Scratch.h"

namespace zdx::file {

namespace {

class MappedFiles : public testing::Test {
 protected:
  static std::variant<MappedFile, Failure> Open(const std::filesystem::path& path) {
    return MappedFile::Open(zdx_test::NameOf(path));
  }

  // Why the file can't be mapped; nothing if it can.
  static std::optional<Failure> FailureOf(const std::filesystem::path& path) {
    const auto opened = Open(path);
    const auto* const failure = std::get_if<Failure>(&opened);
    return failure == nullptr ? std::nullopt : std::optional(*failure);
  }

  zdx_test::ScratchFolder folder;
};

TEST_F(MappedFiles, AreSeenAsTheirBytes) {
  const std::string bytes("a\0\r\n\xFF\x1A z", 8);
  const auto opened = Open(folder.Write("plan.dwg", bytes));
  ASSERT_TRUE(std::holds_alternative<MappedFile>(opened));
  EXPECT_EQ(std::get<MappedFile>(opened).bytes(), bytes);
}

TEST_F(MappedFiles, WithoutBytesAreMappedAllTheSame) {
  const auto opened = Open(folder.Write("plan.dwg", ""));
  ASSERT_TRUE(std::holds_alternative<MappedFile>(opened));
  EXPECT_TRUE(std::get<MappedFile>(opened).bytes().empty());
}

TEST_F(MappedFiles, OfAnyScriptAreFound) {
  const std::string name = "\xD1\x87\xE5\x9B\xB3\xF0\x9F\x93\x90.dwg";
  EXPECT_EQ(FailureOf(folder.Write(name, "x")), std::nullopt);
}

TEST_F(MappedFiles, ThatAreNotThereAreNotFound) {
  EXPECT_EQ(FailureOf(folder.path() / "missing.dwg"), Failure::kNotFound);
  EXPECT_EQ(FailureOf(folder.path() / "missing" / "plan.dwg"), Failure::kNotFound);
  EXPECT_EQ(FailureOf(folder.Write("file.dwg", "") / "plan.dwg"), Failure::kNotFound);
  EXPECT_EQ(FailureOf(folder.path() / (std::string(300, 'a') + ".dwg")), Failure::kNotFound);
  EXPECT_EQ(FailureOf(""), Failure::kNotFound);
}

TEST_F(MappedFiles, LeaveNothingOpen) {
  const std::filesystem::path path = folder.Write("plan.dwg", "drawing");
  const std::size_t before = zdx_test::CountOpenFiles();
  EXPECT_EQ(FailureOf(path), std::nullopt);
  EXPECT_NE(FailureOf(folder.path()), std::nullopt);
  EXPECT_EQ(zdx_test::CountOpenFiles(), before);
}

TEST_F(MappedFiles, CutByANulInTheirNameAreNotFound) {
  std::wstring name = zdx_test::NameOf(folder.Write("plan.dwg", "x"));
  name += std::wstring(L"\0.dwg", 5);
  const auto opened = MappedFile::Open(name);
  ASSERT_TRUE(std::holds_alternative<Failure>(opened));
  EXPECT_EQ(std::get<Failure>(opened), Failure::kNotFound);
}

TEST_F(MappedFiles, AreNoFolders) { EXPECT_EQ(FailureOf(folder.path()), Failure::kNotAFile); }

TEST_F(MappedFiles, AreNoPipes) {
  if (!zdx_test::MakePipe(folder.path() / "pipe.dwg")) GTEST_SKIP() << "no pipes among files here";
  EXPECT_EQ(FailureOf(folder.path() / "pipe.dwg"), Failure::kNotAFile);
}

TEST_F(MappedFiles, CanBeMovedMeanwhile) {
  const std::filesystem::path path = folder.Write("plan.dwg", "drawing");
  const auto opened = Open(path);
  ASSERT_TRUE(std::holds_alternative<MappedFile>(opened));
  std::filesystem::rename(path, folder.path() / "moved.dwg");
  EXPECT_EQ(std::get<MappedFile>(opened).bytes(), "drawing");
  EXPECT_EQ(FailureOf(path), Failure::kNotFound);
}

TEST_F(MappedFiles, LargerThanFourGiBAreSeenToTheirEnd) {
  const std::filesystem::path path = folder.Write("large.dwg", "begin");
  constexpr std::uintmax_t kSize = (std::uintmax_t{4} << 30) + 5;
  std::error_code error;
  std::filesystem::resize_file(path, kSize, error);
  if (error) GTEST_SKIP() << "no room for so large a file: " << error.message();
  const auto opened = Open(path);
  ASSERT_TRUE(std::holds_alternative<MappedFile>(opened));
  const std::string_view bytes = std::get<MappedFile>(opened).bytes();
  ASSERT_EQ(bytes.size(), kSize);
  EXPECT_EQ(bytes.substr(0, 5), "begin");
  EXPECT_EQ(bytes.back(), '\0');
}

TEST_F(MappedFiles, AreMovedFromObjectToObject) {
  auto opened = Open(folder.Write("plan.dwg", "drawing"));
  MappedFile first = std::move(std::get<MappedFile>(opened));
  MappedFile second(std::move(first));
  EXPECT_EQ(second.bytes(), "drawing");
  first = std::move(second);
  EXPECT_EQ(first.bytes(), "drawing");
}

}  // namespace

}  // namespace zdx::file
