#include <gmock/gmock.h>

#include <regex>

#include "cli/CliTest.h"
#include "cli/SmallDrawing.h"

namespace zdx_test {

namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

constexpr int kWrongUsage = 64;

class Usage : public CliTest {
 protected:
  void ExpectRefused(const std::vector<std::string>& arguments, const std::string& word) const {
    const Outcome outcome = Zdx(arguments);
    EXPECT_EQ(outcome.exitCode, kWrongUsage);
    EXPECT_THAT(outcome.out, IsEmpty());
    EXPECT_THAT(outcome.err, HasSubstr(word));
  }
};

TEST_F(Usage, TheVersionIsTold) {
  const Outcome outcome = Zdx({"--version"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_TRUE(std::regex_match(outcome.out, std::regex("zdx [0-9]+\\.[0-9]+\\.[0-9]+\n")))
      << outcome.out;
  EXPECT_THAT(outcome.err, IsEmpty());
}

TEST_F(Usage, HelpNamesTheCommands) {
  const Outcome outcome = Zdx({"--help"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.out, HasSubstr("info"));
  EXPECT_THAT(outcome.err, IsEmpty());
}

TEST_F(Usage, HelpNamesThumb) { EXPECT_THAT(Zdx({"--help"}).out, HasSubstr("thumb")); }

TEST_F(Usage, HelpOfThumbNamesItsOptionsAndExitCodes) {
  const Outcome outcome = Zdx({"thumb", "--help"});
  EXPECT_EQ(outcome.exitCode, 0);
  for (const char* const word : {"-O", "--output", "FILE", ".png", ".bmp", ".wmf", "Exit codes"}) {
    EXPECT_THAT(outcome.out, HasSubstr(word));
  }
}

TEST_F(Usage, HelpNamesBlocksAndGet) {
  EXPECT_THAT(Zdx({"--help"}).out, HasSubstr("blocks"));
  EXPECT_THAT(Zdx({"--help"}).out, HasSubstr("get"));
}

TEST_F(Usage, HelpOfBlocksNamesItsOptionsAndExitCodes) {
  const Outcome outcome = Zdx({"blocks", "--help"});
  EXPECT_EQ(outcome.exitCode, 0);
  for (const char* const word : {"-o", "--output", "FILE", "Exit codes"}) {
    EXPECT_THAT(outcome.out, HasSubstr(word));
  }
}

TEST_F(Usage, HelpOfGetNamesItsKeysAndExitCodes) {
  const Outcome outcome = Zdx({"get", "--help"});
  EXPECT_EQ(outcome.exitCode, 0);
  for (const char* const word :
       {"KEY", "FILE", "Title", "custom:NAME", "block:NAME:TAG", "layers", "Exit codes"}) {
    EXPECT_THAT(outcome.out, HasSubstr(word));
  }
}

TEST_F(Usage, HelpOfDepsNamesItsOptionsAndExitCodes) {
  const Outcome outcome = Zdx({"deps", "--help"});
  EXPECT_EQ(outcome.exitCode, 0);
  for (const char* const word :
       {"-o", "--output", "dot", "html", "--direct", "--overlays", "--missing", "--tree",
        "--search-path", "--service", "VERSION=MODULE", "FILE", "Exit codes"}) {
    EXPECT_THAT(outcome.out, HasSubstr(word));
  }
}

TEST_F(Usage, HelpNamesDepsAndVersion) {
  EXPECT_THAT(Zdx({"--help"}).out, HasSubstr("deps"));
  EXPECT_THAT(Zdx({"--help"}).out, HasSubstr("version "));
}

TEST_F(Usage, DepsWithoutAFileIsRefused) { ExpectRefused({"deps"}, "FILE"); }

TEST_F(Usage, AServiceWithoutAVersionOrAModuleIsRefused) {
  for (const char* const word : {"module.so", "=module.so", "2024=", "="}) {
    ExpectRefused({"deps", "--service", word, "a.dxf"}, "isn't VERSION=MODULE");
  }
}

TEST_F(Usage, TwoServicesOfOneVersionAreRefused) {
  ExpectRefused({"deps", "--service=1=a", "--service=1=b", "a.dxf"}, "'1'");
}

TEST_F(Usage, GraphsOfOtherThingsThanDependenciesAreRefused) {
  ExpectRefused({"info", "-o", "dot", "a.dxf"}, "dot");
  ExpectRefused({"blocks", "-o", "html", "a.dxf"}, "html");
  ExpectRefused({"version", "-o", "dot", "a.dxf"}, "dot");
}

TEST_F(Usage, BlocksWithoutAFileIsRefused) { ExpectRefused({"blocks"}, "FILE"); }

TEST_F(Usage, GetWithoutAKeyOrAFileIsRefused) {
  ExpectRefused({"get"}, "KEY");
  ExpectRefused({"get", "Title"}, "FILE");
}

TEST_F(Usage, GetInJsonIsRefused) {
  ExpectRefused({"get", "Title", "a.dxf", "--output=json"}, "--output");
}

TEST_F(Usage, ThumbWithoutAPlaceToWriteIsRefused) { ExpectRefused({"thumb", "a.dxf"}, "--output"); }

TEST_F(Usage, ThumbWithoutAFileIsRefused) { ExpectRefused({"thumb", "-O", "a.png"}, "FILE"); }

TEST_F(Usage, ThumbOfTwoFilesIsRefused) {
  ExpectRefused({"thumb", "-O", "a.png", "a.dxf", "b.dxf"}, "b.dxf");
}

TEST_F(Usage, APictureOfAnUnknownKindIsRefused) {
  for (const char* const name : {"a.gif", "png", "-", "a.png.txt"}) {
    ExpectRefused({"thumb", "-O", name, "a.dxf"}, ".png, .bmp or .wmf");
  }
}

TEST_F(Usage, HelpOfInfoNamesItsOptionsAndSelections) {
  const Outcome outcome = Zdx({"info", "--help"});
  EXPECT_EQ(outcome.exitCode, 0);
  for (const char* const word : {"--output", "--select", "--block", "[:tag|:prompt]", "FILE",
                                 "summary", "custom", "thumbnail", "creator", "flavour", "settings",
                                 "geo", "dictionaries", "tables", "blocks", "Exit codes"}) {
    EXPECT_THAT(outcome.out, HasSubstr(word));
  }
}

TEST_F(Usage, NoCommandGetsHelpOnStandardError) { ExpectRefused({}, "Usage: zdx"); }

TEST_F(Usage, AnUnknownCommandIsRefused) { ExpectRefused({"inform"}, "inform"); }

TEST_F(Usage, AnUnknownOptionIsRefused) { ExpectRefused({"info", "--loud", "a.dxf"}, "--loud"); }

TEST_F(Usage, InfoWithoutAFileIsRefused) { ExpectRefused({"info"}, "FILE"); }

TEST_F(Usage, AnUnknownOutputFormatIsRefused) {
  ExpectRefused({"info", "-o", "xml", "a.dxf"}, "json");
}

TEST_F(Usage, AnUnknownSelectionIsRefusedWithTheNamesThatAreKnown) {
  ExpectRefused({"info", "--select", "summary,colours", "a.dxf"}, "'colours'");
  ExpectRefused({"info", "--select", "summary,colours", "a.dxf"}, "summary, custom, thumbnail");
}

TEST_F(Usage, AnEmptyNameInASelectionIsRefused) {
  ExpectRefused({"info", "--select", "summary,", "a.dxf"}, "''");
  ExpectRefused({"info", "--select", "", "a.dxf"}, "''");
}

TEST_F(Usage, AnOptionGivenTwiceIsRefused) {
  ExpectRefused({"info", "--select", "summary", "--select", "custom", "a.dxf"}, "--select");
}

TEST_F(Usage, EscapeSequencesOfTheCommandLineDoNotReachTheTerminal) {
  const Outcome outcome = Zdx({"info", "--\033[31mred", "a.dxf"});
  EXPECT_EQ(outcome.exitCode, kWrongUsage);
  EXPECT_THAT(outcome.err, Not(HasSubstr("\033")));
}

TEST_F(Usage, WrongUsageReadsNoFile) {
  Write("plan.dxf", DxfText());
  ExpectRefused({"info", "plan.dxf", "--loud"}, "--loud");
}

}  // namespace

}  // namespace zdx_test
