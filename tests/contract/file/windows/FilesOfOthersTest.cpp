// What other programs and the owner of a file do to it, as Windows has it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <chrono>
#include <optional>
#include <thread>

#include "backends/database/file/MappedFile.h"
#include "backends/database/file/Replacement.h"
#include "support/Scratch.h"

namespace zdx::file {

namespace {

using zdx_test::ContentsOf;

// A file that somebody has open, sharing it for what `share` tells.
class Opened {
 public:
  Opened(const std::filesystem::path& path, DWORD access, DWORD share)
      : handle_(CreateFileW(path.c_str(), access, share, nullptr, OPEN_EXISTING,
                            FILE_ATTRIBUTE_NORMAL, nullptr)) {
    EXPECT_NE(handle_, INVALID_HANDLE_VALUE);
  }
  ~Opened() { Close(); }
  Opened(const Opened&) = delete;
  Opened& operator=(const Opened&) = delete;

  void Close() {
    if (handle_ != INVALID_HANDLE_VALUE) CloseHandle(handle_);
    handle_ = INVALID_HANDLE_VALUE;
  }

 private:
  HANDLE handle_;
};

std::optional<Failure> FailureOfMapping(const std::wstring& path) {
  const auto opened = MappedFile::Open(path);
  const auto* const failure = std::get_if<Failure>(&opened);
  return failure == nullptr ? std::nullopt : std::optional(*failure);
}

class FilesOfOthers : public testing::Test {
 protected:
  static std::optional<WriteError> Replace(const std::filesystem::path& path) {
    auto begun = Replacement::Begin(path.native());
    if (const auto* const error = std::get_if<WriteError>(&begun)) return *error;
    if (const auto error = std::get<Replacement>(begun).Append("new")) return error;
    return std::get<Replacement>(begun).Commit();
  }

  zdx_test::ScratchFolder folder;
};

TEST_F(FilesOfOthers, ThatAreNotSharedAreInUse) {
  const auto path = folder.Write("plan.dwg", "old");
  const Opened opened(path, GENERIC_READ, 0);
  EXPECT_EQ(FailureOfMapping(path.native()), Failure::kInUse);
}

TEST_F(FilesOfOthers, ThatAreOpenForWritingAndSharedAreMapped) {
  const auto path = folder.Write("plan.dwg", "old");
  const Opened opened(path, GENERIC_READ | GENERIC_WRITE | DELETE, FILE_SHARE_READ);
  EXPECT_EQ(FailureOfMapping(path.native()), std::nullopt);
}

TEST_F(FilesOfOthers, AreLetGoWithTheirMapping) {
  const auto path = folder.Write("plan.dwg", "old");
  std::error_code error;
  {
    const auto mapped = MappedFile::Open(path.native());
    ASSERT_TRUE(std::holds_alternative<MappedFile>(mapped));
    std::filesystem::resize_file(path, 0, error);
    EXPECT_TRUE(error) << "what is mapped can be cut";
  }
  std::filesystem::resize_file(path, 0, error);
  EXPECT_FALSE(error) << error.message();
}

TEST_F(FilesOfOthers, ThatBecameProtectedMeanwhileAreNotReplaced) {
  const auto path = folder.Write("plan.dwg", "old");
  auto begun = Replacement::Begin(path.native());
  ASSERT_TRUE(std::holds_alternative<Replacement>(begun));
  ASSERT_NE(SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY), FALSE);
  const auto error = std::get<Replacement>(begun).Commit();
  ASSERT_TRUE(error);
  EXPECT_EQ(error->kind, Failure::kNoAccess);
  EXPECT_EQ(ContentsOf(path), "old");
  SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(FilesOfOthers, ThatAreOpenAreInUseForAReplacementAndKeepTheirContent) {
  const auto path = folder.Write("plan.dwg", "old");
  Opened opened(path, GENERIC_READ, FILE_SHARE_READ);
  const auto error = Replace(path);
  ASSERT_TRUE(error);
  EXPECT_EQ(error->kind, Failure::kInUse);
  EXPECT_EQ(error->number, DWORD{ERROR_SHARING_VIOLATION});
  opened.Close();
  EXPECT_EQ(ContentsOf(path), "old");
  EXPECT_FALSE(std::filesystem::exists(folder.path() / "plan.dwg.zdx-0"));
}

TEST_F(FilesOfOthers, ThatAreOpenForAMomentAreReplacedThereafter) {
  const auto path = folder.Write("plan.dwg", "old");
  Opened opened(path, GENERIC_READ, FILE_SHARE_READ);
  std::thread closing([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(250));
    opened.Close();
  });
  EXPECT_FALSE(Replace(path));
  closing.join();
  EXPECT_EQ(ContentsOf(path), "new");
}

TEST_F(FilesOfOthers, HandOnThatTheyAreHidden) {
  const auto path = folder.Write("plan.dwg", "old");
  ASSERT_NE(SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_HIDDEN), FALSE);
  if ((GetFileAttributesW(path.c_str()) & FILE_ATTRIBUTE_HIDDEN) == 0) {
    GTEST_SKIP() << "this file system hides no files";
  }
  EXPECT_FALSE(Replace(path));
  EXPECT_NE(GetFileAttributesW(path.c_str()) & FILE_ATTRIBUTE_HIDDEN, 0u);
  EXPECT_EQ(ContentsOf(path), "new");
}

TEST_F(FilesOfOthers, AreNoDevices) {
  for (const wchar_t* const device : {L"NUL", L"CON", L"\\\\.\\NUL"}) {
    EXPECT_THAT(FailureOfMapping(device),
                testing::AnyOf(Failure::kNotAFile, Failure::kNotFound, Failure::kOther));
  }
  EXPECT_EQ(FailureOfMapping(L"NUL"), Failure::kNotAFile);
}

TEST_F(FilesOfOthers, AreNoDevicesForAReplacement) {
  const auto begun = Replacement::Begin(folder.path().native() + L"\\NUL.dwg");
  ASSERT_TRUE(std::holds_alternative<WriteError>(begun));
  EXPECT_EQ(std::get<WriteError>(begun).kind, Failure::kNotAFile);
}

TEST_F(FilesOfOthers, OfNamesThatCannotBeAreNotFound) {
  for (const wchar_t* const name : {L"a?.dwg", L"a|b.dwg", L"a\"b.dwg", L"Q:\\plan.dwg"}) {
    EXPECT_EQ(FailureOfMapping(name), Failure::kNotFound);
  }
}

}  // namespace

}  // namespace zdx::file
