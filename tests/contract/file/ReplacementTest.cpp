#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <vector>

#include "backends/database/file/Replacement.h"
#include "support/Paths.h"
#include "support/Process.h"
#include "support/Scratch.h"

namespace zdx::file {

namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;
using zdx_test::ContentsOf;

class Replacements : public testing::Test {
 protected:
  static std::variant<Replacement, WriteError> Begin(const std::filesystem::path& path) {
    return Replacement::Begin(zdx_test::NameOf(path));
  }

  // Replaces the file at `path` by one of `bytes`; how that fails.
  static std::optional<Failure> Replace(const std::filesystem::path& path,
                                        std::string_view bytes = "new") {
    auto begun = Begin(path);
    if (const auto* const error = std::get_if<WriteError>(&begun)) return error->kind;
    auto& replacement = std::get<Replacement>(begun);
    if (const auto error = replacement.Append(bytes)) return error->kind;
    if (const auto error = replacement.Commit()) return error->kind;
    return std::nullopt;
  }

  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder.path())) {
      names.push_back(zdx_test::BytesOf(entry.path().filename()));
    }
    return names;
  }

  zdx_test::ScratchFolder folder;
};

TEST_F(Replacements, MakeAFileThatWasNotThere) {
  EXPECT_EQ(Replace(folder.path() / "plan.dwg", std::string("a\0\n\x1A", 4)), std::nullopt);
  EXPECT_EQ(ContentsOf(folder.path() / "plan.dwg"), std::string("a\0\n\x1A", 4));
  EXPECT_THAT(Names(), ElementsAre("plan.dwg"));
}

TEST_F(Replacements, TakeThePlaceOfALongerFile) {
  const auto path = folder.Write("plan.dwg", "old and longer");
  EXPECT_EQ(Replace(path), std::nullopt);
  EXPECT_EQ(ContentsOf(path), "new");
  EXPECT_THAT(Names(), ElementsAre("plan.dwg"));
}

TEST_F(Replacements, HoldAllThatWasAppendedInItsOrder) {
  const auto path = folder.path() / "plan.dwg";
  auto begun = Begin(path);
  auto& replacement = std::get<Replacement>(begun);
  const std::string large(3'000'000, 'x');
  for (const std::string_view part : {std::string_view("begin"), std::string_view(large),
                                      std::string_view(), std::string_view("end")}) {
    EXPECT_FALSE(replacement.Append(part));
  }
  EXPECT_FALSE(replacement.Commit());
  EXPECT_EQ(ContentsOf(path), "begin" + large + "end");
}

TEST_F(Replacements, LeaveTheOldContentUntilTheyAreCommitted) {
  const auto path = folder.Write("plan.dwg", "old");
  auto begun = Begin(path);
  auto& replacement = std::get<Replacement>(begun);
  EXPECT_FALSE(replacement.Append("new"));
  EXPECT_EQ(ContentsOf(path), "old");
  EXPECT_THAT(Names(), UnorderedElementsAre("plan.dwg", "plan.dwg.zdx-0"));
  EXPECT_FALSE(replacement.Commit());
  EXPECT_EQ(ContentsOf(path), "new");
}

TEST_F(Replacements, ThatAreAbandonedLeaveNothingBehind) {
  const auto path = folder.Write("plan.dwg", "old");
  {
    auto begun = Begin(path);
    EXPECT_FALSE(std::get<Replacement>(begun).Append("new"));
  }
  EXPECT_EQ(ContentsOf(path), "old");
  EXPECT_THAT(Names(), ElementsAre("plan.dwg"));
}

TEST_F(Replacements, LeaveNothingOpen) {
  const auto path = folder.Write("plan.dwg", "old");
  const std::size_t before = zdx_test::CountOpenFiles();
  EXPECT_EQ(Replace(path), std::nullopt);
  EXPECT_TRUE(std::holds_alternative<Replacement>(Begin(path)));
  EXPECT_EQ(zdx_test::CountOpenFiles(), before);
}

TEST_F(Replacements, OfOneFileAtTheSameTimeDoNotMix) {
  const auto path = folder.path() / "plan.dwg";
  auto first = Begin(path);
  auto second = Begin(path);
  EXPECT_FALSE(std::get<Replacement>(first).Append("first"));
  EXPECT_FALSE(std::get<Replacement>(second).Append("second"));
  EXPECT_FALSE(std::get<Replacement>(second).Commit());
  EXPECT_EQ(ContentsOf(path), "second");
  EXPECT_FALSE(std::get<Replacement>(first).Commit());
  EXPECT_EQ(ContentsOf(path), "first");
  EXPECT_THAT(Names(), ElementsAre("plan.dwg"));
}

TEST_F(Replacements, LeaveAFileAloneThatHasTheNewOnesName) {
  folder.Write("plan.dwg.zdx-0", "somebody's");
  EXPECT_EQ(Replace(folder.path() / "plan.dwg"), std::nullopt);
  EXPECT_EQ(ContentsOf(folder.path() / "plan.dwg.zdx-0"), "somebody's");
  EXPECT_EQ(ContentsOf(folder.path() / "plan.dwg"), "new");
}

TEST_F(Replacements, WorkUnderNamesOfAnyScript) {
  const auto path = folder.Write("\xD1\x87\xE5\x9B\xB3\xF0\x9F\x93\x90.dwg", "old");
  EXPECT_EQ(Replace(path), std::nullopt);
  EXPECT_EQ(ContentsOf(path), "new");
}

TEST_F(Replacements, InAFolderThatIsNotThereAreNotFound) {
  const auto begun = Begin(folder.path() / "missing" / "plan.dwg");
  ASSERT_TRUE(std::holds_alternative<WriteError>(begun));
  EXPECT_EQ(std::get<WriteError>(begun).kind, Failure::kNotFound);
  EXPECT_NE(std::get<WriteError>(begun).number, 0u);
  EXPECT_THAT(Names(), ElementsAre());
}

TEST_F(Replacements, OfNoNameOrOneCutByANulAreNotFound) {
  EXPECT_EQ(Replace(zdx_test::PathOf(std::wstring(L"plan\0.dwg", 9))), Failure::kNotFound);
}

TEST_F(Replacements, OfAFolderAreRefused) {
  std::filesystem::create_directory(folder.path() / "plan.dwg");
  EXPECT_EQ(Replace(folder.path() / "plan.dwg"), Failure::kNotAFile);
  EXPECT_THAT(Names(), ElementsAre("plan.dwg"));
}

TEST_F(Replacements, OfAProtectedFileAreRefused) {
  const auto path = folder.Write("plan.dwg", "old");
  constexpr auto kWrite = std::filesystem::perms::owner_write |
                          std::filesystem::perms::group_write |
                          std::filesystem::perms::others_write;
  std::filesystem::permissions(path, kWrite, std::filesystem::perm_options::remove);
  EXPECT_EQ(Replace(path), Failure::kNoAccess);
  EXPECT_EQ(ContentsOf(path), "old");
  EXPECT_THAT(Names(), ElementsAre("plan.dwg"));
  // Or the folder couldn't be removed.
  std::filesystem::permissions(path, kWrite, std::filesystem::perm_options::add);
}

TEST_F(Replacements, CanBeMovedFromObjectToObject) {
  const auto path = folder.path() / "plan.dwg";
  auto begun = Begin(path);
  Replacement replacement(std::move(std::get<Replacement>(begun)));
  EXPECT_FALSE(replacement.Append("new"));
  EXPECT_FALSE(replacement.Commit());
  EXPECT_EQ(ContentsOf(path), "new");
}

}  // namespace

}  // namespace zdx::file
