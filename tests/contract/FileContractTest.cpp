// What every provider of plain file calls does.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>

#include "ZDXEngine/Utf8.h"
#include "backends/System.h"
#include "support/Paths.h"
#include "support/Scratch.h"
#include "support/scripted/Files.h"

namespace file_contract {
namespace {

// A provider and a place for its files.
class FileSystem {
 public:
  virtual ~FileSystem() = default;
  virtual os::FileProvider& Provider() = 0;
  // Makes a file and gives its path.
  virtual std::wstring Put(const std::string& name, const std::string& bytes) = 0;
  // The path of a name that is free, and of one that is a folder's.
  virtual std::wstring Missing() = 0;
  virtual std::wstring Folder() = 0;
};

class Disk : public FileSystem {
 public:
  os::FileProvider& Provider() override { return *files_; }
  std::wstring Put(const std::string& name, const std::string& bytes) override {
    return zdx_test::NameOf(folder_.Write(name, bytes));
  }
  bool Takes(const std::string& name) const { return folder_.Takes(name); }
  std::wstring Missing() override { return zdx_test::NameOf(folder_.path() / "missing"); }
  std::wstring Folder() override { return zdx_test::NameOf(folder_.path()); }

 private:
  std::unique_ptr<os::FileProvider> files_ = zdx::MakeSystemFiles();
  zdx_test::ScratchFolder folder_;
};

// The stand-in with what it writes into, which must end up even.
class Memory : public FileSystem {
 public:
  ~Memory() override { EXPECT_THAT(ledger_.Leftovers(), testing::IsEmpty()); }

  os::FileProvider& Provider() override { return files_; }
  std::wstring Put(const std::string& name, const std::string& bytes) override {
    files_.contents[ZDXEngine::WideFromUtf8(name)] = bytes;
    return ZDXEngine::WideFromUtf8(name);
  }
  std::wstring Missing() override { return L"missing"; }
  std::wstring Folder() override { return L"folder"; }

 private:
  scripted::CallLog log_;
  scripted::Ledger ledger_;
  scripted::Files files_{log_, ledger_};
};

struct Subject {
  const char* name;
  std::unique_ptr<FileSystem> (*make)();
};

// How a failing test names its subject.
void PrintTo(const Subject& subject, std::ostream* out) { *out << subject.name; }

const Subject kSubjects[] = {
    {"System", []() -> std::unique_ptr<FileSystem> { return std::make_unique<Disk>(); }},
    {"Scripted", []() -> std::unique_ptr<FileSystem> { return std::make_unique<Memory>(); }},
};

class Files : public testing::TestWithParam<Subject> {
 protected:
  os::FileHandle OpenPath(const std::wstring& path) {
    return files.CreateFileW(path.c_str(), os::kGenericRead, os::kShareRead | os::kShareWrite,
                             nullptr, os::kOpenExisting, os::kAttributeNormal, nullptr);
  }
  os::FileHandle Open(const std::string& bytes) { return OpenPath(system->Put("a.dwg", bytes)); }
  // What a read gives; "failed" if it fails.
  std::string Read(os::FileHandle file, std::uint32_t size) {
    std::string bytes(size, '.');
    std::uint32_t count = 77;
    if (files.ReadFile(file, bytes.data(), size, &count, nullptr) == 0) return "failed";
    EXPECT_LE(count, size);
    EXPECT_EQ(bytes.substr(count), std::string(size - count, '.'));
    return bytes.substr(0, count);
  }
  std::uint32_t Seek(os::FileHandle file, std::int32_t distance) {
    return files.SetFilePointer(file, distance, nullptr, os::kFromBegin);
  }

  std::unique_ptr<FileSystem> system = GetParam().make();
  os::FileProvider& files = system->Provider();
};

TEST_P(Files, AFileIsReadFromItsBegin) {
  const os::FileHandle file = Open("abcdef");
  EXPECT_EQ(Read(file, 3), "abc");
  EXPECT_EQ(Read(file, 2), "de");
  EXPECT_NE(files.CloseHandle(file), 0);
}

TEST_P(Files, TheLastReadIsShortAndTheNextGivesNothing) {
  const os::FileHandle file = Open("abc");
  EXPECT_EQ(Read(file, 5), "abc");
  EXPECT_EQ(Read(file, 5), "");
  files.CloseHandle(file);
}

TEST_P(Files, AnEmptyFileGivesNothing) {
  const os::FileHandle file = Open("");
  EXPECT_NE(file, os::kInvalidHandle);
  EXPECT_EQ(Read(file, 5), "");
  files.CloseHandle(file);
}

TEST_P(Files, ALargeFileIsReadInOneCall) {
  const std::string bytes(300000, 'x');
  const os::FileHandle file = Open(bytes);
  EXPECT_EQ(Read(file, 300000), bytes);
  files.CloseHandle(file);
}

TEST_P(Files, EveryByteComesAsItIs) {
  std::string bytes;
  for (int i = 0; i < 256; ++i) bytes += static_cast<char>(i);
  const os::FileHandle file = Open(bytes + "\r\n\x1A");
  EXPECT_EQ(Read(file, 300), bytes + "\r\n\x1A");
  files.CloseHandle(file);
}

TEST_P(Files, AHandleIsNeitherNullNorInvalid) {
  const os::FileHandle file = Open("abc");
  EXPECT_NE(file, nullptr);
  EXPECT_NE(file, os::kInvalidHandle);
  files.CloseHandle(file);
}

TEST_P(Files, AFileThatIsNotThereDoesNotOpen) {
  EXPECT_EQ(OpenPath(system->Missing()), os::kInvalidHandle);
  EXPECT_EQ(OpenPath(L""), os::kInvalidHandle);
}

TEST_P(Files, AFolderIsNoFile) { EXPECT_EQ(OpenPath(system->Folder()), os::kInvalidHandle); }

TEST_P(Files, APathOutsideAsciiIsOpened) {
  const os::FileHandle file = OpenPath(system->Put("Grundri\u00DF \u4E2D\U0001F600.dwg", "abc"));
  ASSERT_NE(file, os::kInvalidHandle);
  EXPECT_EQ(Read(file, 3), "abc");
  files.CloseHandle(file);
}

TEST_P(Files, OneFileCanBeOpenTwiceAndEachHasItsOwnPosition) {
  const os::FileHandle first = Open("abcdef");
  const os::FileHandle second = Open("abcdef");
  EXPECT_NE(first, second);
  EXPECT_EQ(Read(first, 3), "abc");
  EXPECT_EQ(Read(second, 2), "ab");
  files.CloseHandle(first);
  EXPECT_EQ(Read(second, 2), "cd");
  files.CloseHandle(second);
}

TEST_P(Files, APositionIsCountedFromTheBegin) {
  const os::FileHandle file = Open("abcdef");
  Read(file, 3);
  EXPECT_EQ(Seek(file, 1), 1u);
  EXPECT_EQ(Read(file, 2), "bc");
  EXPECT_EQ(Seek(file, 0), 0u);
  EXPECT_EQ(Read(file, 2), "ab");
  files.CloseHandle(file);
}

TEST_P(Files, APositionPastTheEndIsReachedAndGivesNothing) {
  const os::FileHandle file = Open("abc");
  EXPECT_EQ(Seek(file, 0x7FFFFFFF), 0x7FFFFFFFu);
  EXPECT_EQ(Read(file, 1), "");
  EXPECT_EQ(Seek(file, 2), 2u);
  EXPECT_EQ(Read(file, 1), "c");
  files.CloseHandle(file);
}

TEST_P(Files, APositionBeforeTheBeginIsRefusedAndTheOldOneStays) {
  const os::FileHandle file = Open("abc");
  Seek(file, 1);
  EXPECT_EQ(Seek(file, -1), os::kInvalidFilePointer);
  EXPECT_EQ(Seek(file, -2147483647 - 1), os::kInvalidFilePointer);
  EXPECT_EQ(Read(file, 1), "b");
  files.CloseHandle(file);
}

INSTANTIATE_TEST_SUITE_P(Of, Files, testing::ValuesIn(kSubjects),
                         [](const auto& info) { return std::string(info.param.name); });

// What only a disk can show.
class DiskFiles : public testing::Test {
 protected:
  os::FileHandle Open(const std::wstring& path) {
    return disk.Provider().CreateFileW(path.c_str(), os::kGenericRead, 0, nullptr,
                                       os::kOpenExisting, 0, nullptr);
  }

  Disk disk;
};

TEST_F(DiskFiles, AReadThatFailsSaysSoAndCountsNothing) {
  const os::FileHandle file = Open(disk.Put("a.dwg", "abc"));
  ASSERT_NE(disk.Provider().CloseHandle(file), 0);
  char byte = '.';
  std::uint32_t count = 77;
  EXPECT_EQ(disk.Provider().ReadFile(file, &byte, 1, &count, nullptr), 0);
  EXPECT_EQ(count, 0u);
  EXPECT_EQ(disk.Provider().SetFilePointer(file, 0, nullptr, os::kFromBegin),
            os::kInvalidFilePointer);
  EXPECT_EQ(disk.Provider().CloseHandle(file), 0);
}

TEST_F(DiskFiles, NoHandleIsNoFile) {
  char byte = '.';
  std::uint32_t count = 77;
  EXPECT_EQ(disk.Provider().ReadFile(os::kInvalidHandle, &byte, 1, &count, nullptr), 0);
}

TEST_F(DiskFiles, APipeIsNoFileAndKeepsNobodyWaiting) {
  const std::wstring path = disk.Missing();
  if (!zdx_test::MakePipe(zdx_test::PathOf(path))) {
    GTEST_SKIP() << "this system has no pipes among its files";
  }
  EXPECT_EQ(Open(path), os::kInvalidHandle);
}

TEST_F(DiskFiles, ANameThatIsNoTextIsOpened) {
  if (!disk.Takes("a\xFF.dwg")) GTEST_SKIP() << "no file can have such a name here";
  const os::FileHandle file = Open(disk.Put("a\xFF.dwg", "abc"));
  EXPECT_NE(file, os::kInvalidHandle);
  disk.Provider().CloseHandle(file);
}

}  // namespace
}  // namespace file_contract
