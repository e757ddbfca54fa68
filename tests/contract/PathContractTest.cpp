// What every system does with paths.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "backends/System.h"
#include "support/Paths.h"
#include "support/Process.h"
#include "support/Scratch.h"

namespace path_contract {
namespace {

namespace fs = std::filesystem;

constexpr wchar_t kListSeparator = fs::path::preferred_separator == '/' ? L':' : L';';

// A buffer for a path.
struct Buffer {
  explicit Buffer(const std::wstring& text = L"") { text.copy(characters, os::kPathSize - 1); }
  operator wchar_t*() { return characters; }
  std::wstring Text() const { return characters; }
  wchar_t characters[os::kPathSize] = {};
};

class Paths : public testing::Test {
 protected:
  // The path of something in the test's folder, in the system's form.
  std::wstring At(const char* name) const { return zdx_test::NameOf(folder.path() / name); }
  std::wstring Write(const char* name) {
    fs::create_directories((folder.path() / name).parent_path());
    return zdx_test::NameOf(folder.Write(name, "x").make_preferred());
  }
  std::wstring Here() const { return zdx_test::NameOf(folder.path()); }
  bool Exists(const std::wstring& path) { return paths->PathFileExistsW(path.c_str()) != 0; }
  bool IsRelative(const wchar_t* path) { return paths->PathIsRelativeW(path) != 0; }
  std::wstring Combined(const std::wstring& place, const std::wstring& file) {
    Buffer buffer(L"old");
    const wchar_t* const answer = paths->PathCombineW(buffer, place.c_str(), file.c_str());
    EXPECT_TRUE(answer == nullptr ? buffer.Text().empty() : answer == buffer.characters);
    return answer == nullptr ? L"failed" : buffer.Text();
  }
  // What is left of a path without its last element, and whether anything was cut.
  std::pair<std::wstring, bool> Cut(const std::wstring& path) {
    Buffer buffer(path);
    const bool isCut = paths->PathRemoveFileSpecW(buffer) != 0;
    return {buffer.Text(), isCut};
  }
  std::wstring Search(const std::wstring& folders, const std::wstring& name,
                      const wchar_t* extension = nullptr) {
    Buffer buffer;
    wchar_t* leaf = nullptr;
    const std::uint32_t length =
        paths->SearchPathW(folders.c_str(), name.c_str(), extension, os::kPathSize, buffer, &leaf);
    EXPECT_EQ(buffer.Text().size(), length);
    return buffer.Text();
  }

  zdx_test::ScratchFolder folder;
  std::unique_ptr<os::PathProvider> paths = zdx::MakeSystemPaths();
};

TEST_F(Paths, ANameIsRelative) {
  for (const wchar_t* path : {L"a.dwg", L"sub\\a.dwg", L"..\\a.dwg", L".\\a.dwg", L""}) {
    EXPECT_TRUE(IsRelative(path));
  }
}

TEST_F(Paths, ADriveARootAndAServerAreAbsolute) {
  for (const wchar_t* path : {L"C:\\a.dwg", L"c:a.dwg", L"\\a.dwg", L"\\\\server\\share\\a.dwg"}) {
    EXPECT_FALSE(IsRelative(path));
  }
  EXPECT_FALSE(IsRelative(Here().c_str()));
}

TEST_F(Paths, FilesAndFoldersExistAndNothingElse) {
  EXPECT_TRUE(Exists(Write("a.dwg")));
  EXPECT_TRUE(Exists(Here()));
  EXPECT_FALSE(Exists(At("b.dwg")));
  EXPECT_FALSE(Exists(At("a.dwg") + L"x"));
  EXPECT_FALSE(Exists(L""));
  EXPECT_FALSE(Exists(L"Q:\\no such drive\\a.dwg"));
  EXPECT_FALSE(Exists(L"*"));
}

TEST_F(Paths, AFileInAnotherCaseExists) {
  Write("Plans/Site.dwg");
  EXPECT_TRUE(Exists(At("Plans") + L"\\SITE.DWG"));
  EXPECT_TRUE(Exists(At("plans") + L"\\site.dwg"));
}

TEST_F(Paths, ABackslashSeparates) {
  Write("plans/site.dwg");
  EXPECT_TRUE(Exists(Here() + L"\\plans\\site.dwg"));
  EXPECT_TRUE(Exists(Here() + L"\\plans"));
  EXPECT_TRUE(Exists(Here() + L"\\plans\\..\\plans\\.\\site.dwg"));
  EXPECT_FALSE(Exists(Here() + L"\\plans\\other.dwg"));
}

TEST_F(Paths, WhatNoBufferHoldsDoesNotExist) {
  const std::wstring file = Write("a.dwg");
  std::wstring path = Here();
  while (path.size() + 2 < os::kPathSize) path += L"\\.";
  EXPECT_FALSE(Exists(path + L"\\a.dwg"));
  EXPECT_FALSE(Exists(path + std::wstring(100000, L'a')));
}

TEST_F(Paths, FolderAndFileAreJoined) {
  EXPECT_EQ(Combined(Here(), L"a.dwg"), At("a.dwg"));
  EXPECT_EQ(Combined(Here(), L"sub\\a.dwg"),
            zdx_test::NameOf((folder.path() / "sub" / "a.dwg").make_preferred()));
  EXPECT_EQ(Combined(L"", L"a.dwg"), L"a.dwg");
  EXPECT_EQ(Combined(Here(), L""), Here());
}

TEST_F(Paths, DotsAreTakenOutOfWhatIsJoined) {
  EXPECT_EQ(Combined(At("plans"), L"..\\a.dwg"), At("a.dwg"));
  EXPECT_EQ(Combined(At("plans"), L".\\sub\\..\\..\\a.dwg"), At("a.dwg"));
}

TEST_F(Paths, AnAbsoluteFileStandsForItself) {
  EXPECT_EQ(Combined(Here(), At("a.dwg")), At("a.dwg"));
  EXPECT_EQ(Combined(Here(), L"C:\\plans\\a.dwg"), L"C:\\plans\\a.dwg");
}

TEST_F(Paths, WhatHasNoRoomIsNotJoined) {
  const std::wstring rest(os::kPathSize - 1 - Here().size() - 1, L'a');
  EXPECT_EQ(Combined(Here(), rest).size(), os::kPathSize - 1);
  EXPECT_EQ(Combined(Here(), rest + L'a'), L"failed");
  EXPECT_EQ(Combined(Here(), std::wstring(100000, L'a')), L"failed");
}

TEST_F(Paths, AnElementIsAppended) {
  Buffer buffer(Here());
  EXPECT_NE(paths->PathAppendW(buffer, L"Sync"), 0);
  EXPECT_EQ(buffer.Text(), At("Sync"));
}

TEST_F(Paths, AnElementWithoutRoomIsNotAppended) {
  Buffer buffer(Here());
  EXPECT_EQ(paths->PathAppendW(buffer, std::wstring(os::kPathSize, L'a').c_str()), 0);
}

TEST_F(Paths, TheLastElementIsCut) {
  using Result = std::pair<std::wstring, bool>;
  EXPECT_EQ(Cut(At("a.dwg")), Result(Here(), true));
  EXPECT_EQ(Cut(L"C:\\plans\\a.dwg"), Result(L"C:\\plans", true));
  EXPECT_EQ(Cut(L"C:\\plans\\"), Result(L"C:\\plans", true));
  EXPECT_EQ(Cut(L"C:\\a.dwg"), Result(L"C:\\", true));
  EXPECT_EQ(Cut(L"C:\\"), Result(L"C:\\", false));
  EXPECT_EQ(Cut(L"C:a.dwg"), Result(L"C:", true));
  EXPECT_EQ(Cut(L"\\a.dwg"), Result(L"\\", true));
  EXPECT_EQ(Cut(L"a.dwg"), Result(L"", true));
  EXPECT_EQ(Cut(L""), Result(L"", false));
}

TEST_F(Paths, AFileIsFoundInTheFirstFolderThatHasIt) {
  const std::wstring both = At("one") + kListSeparator + At("two");
  const std::wstring second = Write("two/a.shx");
  EXPECT_EQ(Search(both, L"a.shx"), second);
  const std::wstring first = Write("one/a.shx");
  EXPECT_EQ(Search(both, L"a.shx"), first);
  EXPECT_EQ(Search(both, L"b.shx"), L"");
  EXPECT_EQ(Search(both, L""), L"");
}

TEST_F(Paths, ASearchAddsTheExtensionToANameWithoutOneAlone) {
  Write("a.shx");
  Write("b.c");
  EXPECT_EQ(Search(Here(), L"a", L".shx"), At("a.shx"));
  EXPECT_EQ(Search(Here(), L"a.shx", L".shx"), At("a.shx"));
  EXPECT_EQ(Search(Here(), L"b.c", L".shx"), At("b.c"));
  EXPECT_EQ(Search(Here(), L"b", L".shx"), L"");
  EXPECT_EQ(Search(Here(), L"a"), L"");
}

TEST_F(Paths, ANameWithAFolderIsSearchedBelowEach) {
  Write("two/fonts/a.shx");
  EXPECT_EQ(Search(At("one") + kListSeparator + At("two"), L"fonts\\a.shx"),
            zdx_test::NameOf((folder.path() / "two" / "fonts" / "a.shx").make_preferred()));
}

TEST_F(Paths, AnAbsoluteNameIsSearchedNowhere) {
  const std::wstring file = Write("a.shx");
  EXPECT_EQ(Search(At("one"), file, L".shx"), file);
  EXPECT_EQ(Search(Here(), At("b.shx")), L"");
}

TEST_F(Paths, ASearchTellsTheLeafAndTheSizeItNeeds) {
  const std::wstring file = Write("a.shx");
  Buffer buffer;
  wchar_t* leaf = nullptr;
  const auto length = static_cast<std::uint32_t>(file.size());
  const auto search = [&](std::uint32_t size) {
    return paths->SearchPathW(Here().c_str(), L"a.shx", nullptr, size, buffer, &leaf);
  };
  EXPECT_EQ(search(0), length + 1);
  EXPECT_EQ(search(length), length + 1);
  EXPECT_EQ(search(length + 1), length);
  EXPECT_EQ(buffer.Text(), file);
  EXPECT_STREQ(leaf, L"a.shx");
}

TEST_F(Paths, WithoutFoldersTheExecutablesIsSearchedFirst) {
  const fs::path program = zdx_test::ThisProgram();
  Buffer buffer;
  wchar_t* leaf = nullptr;
  EXPECT_NE(paths->SearchPathW(nullptr, zdx_test::NameOf(program.filename()).c_str(), nullptr,
                               os::kPathSize, buffer, &leaf),
            0u);
  EXPECT_TRUE(fs::equivalent(zdx_test::PathOf(buffer.Text()), program));
}

TEST_F(Paths, WithoutFoldersTheWorkingFolderIsSearched) {
  const std::wstring file = Write("only-here.shx");
  const fs::path before = fs::current_path();
  fs::current_path(folder.path());
  Buffer buffer;
  wchar_t* leaf = nullptr;
  const std::uint32_t length =
      paths->SearchPathW(nullptr, L"only-here", L".shx", os::kPathSize, buffer, &leaf);
  fs::current_path(before);
  EXPECT_EQ(length, buffer.Text().size());
  EXPECT_TRUE(!buffer.Text().empty() &&
              fs::equivalent(zdx_test::PathOf(buffer.Text()), zdx_test::PathOf(file)));
}

TEST_F(Paths, AFolderIsMadeOnceAndInAnotherThatIsThere) {
  EXPECT_NE(paths->CreateDirectoryW(At("new").c_str(), nullptr), 0);
  EXPECT_TRUE(fs::is_directory(folder.path() / "new"));
  EXPECT_EQ(paths->CreateDirectoryW(At("new").c_str(), nullptr), 0);
  EXPECT_NE(paths->CreateDirectoryW((Here() + L"\\new\\below").c_str(), nullptr), 0);
  EXPECT_TRUE(fs::is_directory(folder.path() / "new" / "below"));
  EXPECT_EQ(paths->CreateDirectoryW(At("missing/below").c_str(), nullptr), 0);
  EXPECT_EQ(paths->CreateDirectoryW(L"", nullptr), 0);
}

TEST_F(Paths, TheExecutableIsThisProgram) {
  Buffer buffer;
  const std::uint32_t length = paths->GetModuleFileNameW(nullptr, buffer, os::kPathSize);
  EXPECT_EQ(length, buffer.Text().size());
  EXPECT_TRUE(fs::equivalent(zdx_test::PathOf(buffer.Text()), zdx_test::ThisProgram()));
}

TEST_F(Paths, AnExecutableWithoutRoomIsCutOff) {
  Buffer whole;
  paths->GetModuleFileNameW(nullptr, whole, os::kPathSize);
  wchar_t some[5] = {L'#', L'#', L'#', L'#', L'#'};
  EXPECT_EQ(paths->GetModuleFileNameW(nullptr, some, 5), 5u);
  EXPECT_EQ(some, whole.Text().substr(0, 4));
}

struct Parts {
  std::wstring drive, directory, name, extension;
  friend bool operator==(const Parts&, const Parts&) = default;
};

TEST_F(Paths, APathIsTakenApart) {
  const auto split = [&](const wchar_t* path) {
    wchar_t drive[3] = {}, directory[256] = {}, name[256] = {}, extension[256] = {};
    EXPECT_EQ(paths->_wsplitpath_s(path, drive, 3, directory, 256, name, 256, extension, 256), 0);
    return Parts{drive, directory, name, extension};
  };
  EXPECT_EQ(split(L"C:\\Program\\zdx.exe"), (Parts{L"C:", L"\\Program\\", L"zdx", L".exe"}));
  EXPECT_EQ(split(L"/usr/bin/zdx"), (Parts{L"", L"/usr/bin/", L"zdx", L""}));
  EXPECT_EQ(split(L"C:zdx.exe"), (Parts{L"C:", L"", L"zdx", L".exe"}));
  EXPECT_EQ(split(L"a.b\\c"), (Parts{L"", L"a.b\\", L"c", L""}));
  EXPECT_EQ(split(L"a\\b/c.d.e"), (Parts{L"", L"a\\b/", L"c.d", L".e"}));
  EXPECT_EQ(split(L""), Parts{});
}

TEST_F(Paths, APathWhosePartsHaveNoRoomGivesNone) {
  wchar_t drive[3] = L"#", directory[4] = L"#", name[4] = L"#", extension[4] = L"#";
  const wchar_t* const tooLong[] = {L"C:\\ab\\a.b", L"C:\\a\\abcd.b", L"C:\\a\\a.bcd"};
  for (const wchar_t* path : tooLong) {
    EXPECT_EQ(paths->_wsplitpath_s(path, drive, 3, directory, 4, name, 4, extension, 4),
              os::kBufferTooSmall);
    EXPECT_STREQ(drive, L"");
    EXPECT_STREQ(directory, L"");
    EXPECT_STREQ(name, L"");
    EXPECT_STREQ(extension, L"");
  }
  EXPECT_EQ(paths->_wsplitpath_s(L"C:\\a\\abc.de", drive, 3, directory, 4, name, 4, extension, 4),
            0);
}

TEST_F(Paths, ATextIsCopiedIfItHasRoom) {
  wchar_t target[4] = L"#";
  EXPECT_EQ(paths->wcscpy_s(target, 4, L"abc"), 0);
  EXPECT_STREQ(target, L"abc");
  EXPECT_EQ(paths->wcscpy_s(target, 4, L"abcd"), os::kBufferTooSmall);
  EXPECT_STREQ(target, L"");
  EXPECT_EQ(paths->wcscpy_s(target, 4, L""), 0);
}

TEST_F(Paths, ATextIsAppendedIfItHasRoom) {
  wchar_t target[4] = L"a";
  EXPECT_EQ(paths->wcscat_s(target, 4, L"bc"), 0);
  EXPECT_STREQ(target, L"abc");
  EXPECT_EQ(paths->wcscat_s(target, 4, L"d"), os::kBufferTooSmall);
  EXPECT_STREQ(target, L"");
}

TEST_F(Paths, ABeginningIsCopiedIfItHasRoom) {
  wchar_t target[4] = L"#";
  EXPECT_EQ(paths->wcsncpy_s(target, 4, L"abcdef", 3), 0);
  EXPECT_STREQ(target, L"abc");
  EXPECT_EQ(paths->wcsncpy_s(target, 4, L"ab", 260), 0);
  EXPECT_STREQ(target, L"ab");
  EXPECT_EQ(paths->wcsncpy_s(target, 4, L"abcdef", 4), os::kBufferTooSmall);
  EXPECT_STREQ(target, L"");
}

TEST_F(Paths, ATextThatIsNotThereIsRefused) {
  wchar_t target[4] = L"#";
  EXPECT_NE(paths->wcscpy_s(target, 4, nullptr), 0);
  EXPECT_STREQ(target, L"");
  EXPECT_NE(paths->wcscpy_s(nullptr, 4, L"a"), 0);
  EXPECT_NE(paths->wcscpy_s(target, 0, L"a"), 0);
  EXPECT_NE(paths->wcscat_s(target, 4, nullptr), 0);
  EXPECT_NE(paths->wcsncpy_s(target, 4, nullptr, 4), 0);
}

TEST_F(Paths, ATargetWithoutATerminatorTakesNothing) {
  wchar_t target[4] = {L'a', L'b', L'c', L'd'};
  EXPECT_NE(paths->wcscat_s(target, 4, L"e"), 0);
  EXPECT_STREQ(target, L"");
}

TEST_F(Paths, AFullPathGoesFromTheRootOnWithoutDots) {
  const std::wstring full = zdx::FullPath(L"a.dwg");
  EXPECT_EQ(full, zdx_test::NameOf(fs::current_path() / "a.dwg"));
  EXPECT_EQ(zdx::FullPath(At("plans/../a.dwg")), At("a.dwg"));
  EXPECT_EQ(zdx::FullPath(At("./a.dwg")), At("a.dwg"));
  EXPECT_EQ(zdx::FullPath(Here()), Here());
  EXPECT_EQ(zdx::FullPath(L""), L"");
}

TEST_F(Paths, AnExistingPathIsSpeltAsItReallyIs) {
  const std::wstring real =
      zdx_test::NameOf((folder.path() / "Plans" / "Site.dwg").make_preferred());
  Write("Plans/Site.dwg");
  EXPECT_EQ(zdx::ExistingPath(real), real);
  EXPECT_EQ(zdx::ExistingPath(Here() + L"\\PLANS\\site.DWG"), real);
  EXPECT_EQ(zdx::ExistingPath(Here() + L"\\plans"), At("Plans"));
  EXPECT_EQ(zdx::ExistingPath(At("missing.dwg")), L"");
  EXPECT_EQ(zdx::ExistingPath(L""), L"");
}

TEST_F(Paths, OneFileHasOneIdentityHoweverItIsWritten) {
  const std::wstring one = Write("plans/one.dwg");
  const std::wstring other = Write("plans/other.dwg");
  EXPECT_NE(zdx::FileIdentity(one), L"");
  EXPECT_EQ(zdx::FileIdentity(Here() + L"\\PLANS\\..\\plans\\ONE.dwg"), zdx::FileIdentity(one));
  EXPECT_NE(zdx::FileIdentity(other), zdx::FileIdentity(one));
  EXPECT_EQ(zdx::FileIdentity(At("plans/missing.dwg")), L"");
  EXPECT_EQ(zdx::FileIdentity(L""), L"");
}

TEST_F(Paths, TwoNamesOfOneFileHaveOneIdentity) {
  const std::wstring one = Write("one.dwg");
  std::error_code error;
  fs::create_hard_link(zdx_test::PathOf(one), folder.path() / "two.dwg", error);
  if (error) GTEST_SKIP() << "no file has two names here";
  EXPECT_EQ(zdx::FileIdentity(At("two.dwg")), zdx::FileIdentity(one));
}

}  // namespace
}  // namespace path_contract
