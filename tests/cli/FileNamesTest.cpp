#include <gmock/gmock.h>

#include <exception>
#include <filesystem>

#include "cli/CliTest.h"
#include "cli/SmallDrawing.h"

namespace zdx_test {

namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::SizeIs;
using ::testing::StartsWith;

// "chertezh" and a word in Han characters.
constexpr const char* kForeignName = "\xD1\x87\xD0\xB5\xD1\x80\xD1\x82\xE5\x9B\xB3.dxf";

class FileNames : public CliTest {
 protected:
  // Puts a drawing of that name into the folder; false if the system knows no such name.
  bool CanWrite(const std::string& name) const {
    try {
      Write(name, DxfText());
      return true;
    } catch (const std::exception&) {
      return false;
    }
  }

  void ExpectReadAs(const Outcome& outcome, const std::string& name) const {
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
    const std::vector<nlohmann::json> documents = Documents(outcome.out);
    ASSERT_THAT(documents, SizeIs(1));
    EXPECT_EQ(documents[0].at("file"), name);
    EXPECT_EQ(documents[0].at("status"), "ok");
  }
};

TEST_F(FileNames, OfAnyScriptWork) {
  Write(kForeignName, DxfText());
  ExpectReadAs(Zdx({"info", "-o", "json", kForeignName}), kForeignName);
  EXPECT_THAT(Zdx({"info", kForeignName}).out, StartsWith(kForeignName));
  const Outcome failed = Zdx({"info", std::string("no") + kForeignName});
  EXPECT_THAT(failed.err, StartsWith(std::string("zdx: no") + kForeignName + ": "));
}

TEST_F(FileNames, OfAnyScriptWorkInAnyLocale) {
  if (kOnWindows) GTEST_SKIP() << "locales of the environment mean nothing to Windows";
  Write(kForeignName, DxfText());
  for (const char* const locale : {"LC_ALL=C", "LC_ALL=C.UTF-8", "LC_ALL=no_such_locale"}) {
    ExpectReadAs(ZdxWith({locale}, {"info", "-o", "json", kForeignName}), kForeignName);
    EXPECT_THAT(ZdxWith({locale}, {"info", kForeignName}).out, StartsWith(kForeignName));
  }
}

TEST_F(FileNames, ThatAreNotTextAreReadAndShownWithReplacements) {
  if (!CanWrite("caf\xE9.dxf")) GTEST_SKIP() << "this file system takes texts alone as names";
  ExpectReadAs(Zdx({"info", "-o", "json", "caf\xE9.dxf"}), "caf\xEF\xBF\xBD.dxf");
}

TEST_F(FileNames, ThatAreNotTextAreNotTakenForOthers) {
  if (!CanWrite("caf\xE9.dxf")) GTEST_SKIP() << "this file system takes texts alone as names";
  EXPECT_EQ(Zdx({"info", "caf\xE8.dxf"}).exitCode, 2);
}

TEST_F(FileNames, OfAnyKindWorkWithEveryCommand) {
  for (const char* const name : {kForeignName, "caf\xE9.dxf", "[a,b].dxf", "{}.dxf", "++.dxf"}) {
    // Not every system knows names that aren't text.
    if (!CanWrite(name)) continue;
    const std::vector<nlohmann::json> documents =
        Documents(Zdx({"blocks", "-o", "json", name}).out);
    ASSERT_THAT(documents, SizeIs(1));
    EXPECT_EQ(documents[0].at("status"), "ok") << name;
    EXPECT_EQ(Zdx({"get", "Title", name}).out, "Ground floor\n") << name;
  }
}

TEST_F(FileNames, ThatBeginWithADashGoBehindTwoDashes) {
  Write("-o.dxf", DxfText());
  ExpectReadAs(Zdx({"info", "-o", "json", "--", "-o.dxf"}), "-o.dxf");
  EXPECT_EQ(Zdx({"info", "-o", "json", "-o.dxf"}).exitCode, 64);
}

TEST_F(FileNames, ThatAreWordsOfTheCommandLineAreNamesBehindInfo) {
  for (const char* const name : {"info", "{}", "[a,b]", "++", "%%"}) {
    const Outcome outcome = Zdx({"info", name});
    EXPECT_EQ(outcome.exitCode, 2) << name;
    EXPECT_THAT(outcome.err, StartsWith("zdx: " + std::string(name) + ": "));
  }
}

TEST_F(FileNames, ThatBeginWithASlashAreNoOptions) {
  const Outcome outcome = Zdx({"info", "/help"});
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_THAT(outcome.err, StartsWith("zdx: /help: "));
}

TEST_F(FileNames, InFoldersBehindSlashesAreRead) {
  std::filesystem::create_directory(Folder() / "plans");
  Write("plans/a.dxf", DxfText());
  ExpectReadAs(Zdx({"info", "-o", "json", "./plans/../plans/a.dxf"}), "./plans/../plans/a.dxf");
}

TEST_F(FileNames, WithBlanksAndQuotesAreReadAsTheyStand) {
  // Windows has no double quotes in names.
  const std::string name = kOnWindows ? "a 'b' c\\ [d].dxf" : "a 'b' \"c\" [d].dxf";
  if (kOnWindows) std::filesystem::create_directory(Folder() / "a 'b' c");
  Write(name, DxfText());
  ExpectReadAs(Zdx({"info", "-o", "json", name}), name);
}

TEST_F(FileNames, WithQuotesAndBackslashesComeWholeFromTheCommandLine) {
  for (const char* const name :
       {"a\"b.dxf", "\"a b\".dxf", "a\\\"b.dxf", "a b\\", "\"\"", "\\\\\""}) {
    EXPECT_THAT(Zdx({"info", name}).err, StartsWith("zdx: " + std::string(name) + ": "));
  }
}

TEST_F(FileNames, WithPatternCharactersAreNamesWhereShellsKnowPatterns) {
  if (kOnWindows) GTEST_SKIP() << "Windows has no such names";
  Write("*.dxf", DxfText());
  Write("a.dxf", DxfText());
  ExpectReadAs(Zdx({"info", "-o", "json", "*.dxf"}), "*.dxf");
}

TEST_F(FileNames, WithPatternCharactersThatNothingMatchesAreToldAsTheyStand) {
  const Outcome outcome = Zdx({"info", "no*.dxf"});
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_THAT(outcome.err, StartsWith("zdx: no*.dxf: Unable to find file 'no*.dxf'"));
}

TEST_F(FileNames, WithControlCharactersStayOnOneLineOfText) {
  if (kOnWindows) GTEST_SKIP() << "Windows has no such names";
  Write("a\nb\033.dxf", DxfText());
  const Outcome read = Zdx({"info", "--select", "flavour", "a\nb\033.dxf"});
  EXPECT_THAT(read.out, StartsWith("a\\x0ab\\x1b.dxf\n"));
}

TEST_F(FileNames, WithControlCharactersStayOnOneLineOfAMessage) {
  const Outcome failed = Zdx({"info", "x\ny\033.dxf"});
  EXPECT_THAT(failed.err, StartsWith("zdx: x\\x0ay\\x1b.dxf: "));
  EXPECT_THAT(failed.err, Not(HasSubstr("\033")));
  EXPECT_THAT(Zdx({"get", "Title", "x\ny\033.dxf"}).err, StartsWith("zdx: x\\x0ay\\x1b.dxf: "));
  EXPECT_THAT(Zdx({"blocks", "x\ny\033.dxf"}).err, StartsWith("zdx: x\\x0ay\\x1b.dxf: "));
}

}  // namespace

}  // namespace zdx_test
