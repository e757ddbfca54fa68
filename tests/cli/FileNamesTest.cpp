#include <gmock/gmock.h>

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
  void ExpectReadAs(const Outcome& outcome, const std::string& name) const {
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
    const std::vector<nlohmann::json> documents = Documents(outcome.out);
    ASSERT_THAT(documents, SizeIs(1));
    EXPECT_EQ(documents[0].at("file"), name);
    EXPECT_EQ(documents[0].at("status"), "ok");
  }
};

TEST_F(FileNames, OfAnyScriptWorkInAnyLocale) {
  Write(kForeignName, DxfText());
  for (const char* const locale : {"LC_ALL=C", "LC_ALL=C.UTF-8", "LC_ALL=no_such_locale"}) {
    ExpectReadAs(ZdxWith({locale}, {"info", "-o", "json", kForeignName}), kForeignName);
    EXPECT_THAT(ZdxWith({locale}, {"info", kForeignName}).out, StartsWith(kForeignName));
  }
}

TEST_F(FileNames, ThatAreNotUtf8AreReadAndShownWithReplacements) {
  Write("caf\xE9.dxf", DxfText());
  ExpectReadAs(Zdx({"info", "-o", "json", "caf\xE9.dxf"}), "caf\xEF\xBF\xBD.dxf");
}

TEST_F(FileNames, ThatAreNotUtf8AreNotTakenForOthers) {
  Write("caf\xE9.dxf", DxfText());
  EXPECT_EQ(Zdx({"info", "caf\xE8.dxf"}).exitCode, 2);
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

TEST_F(FileNames, WithBlanksAndQuotesAreReadAsTheyStand) {
  Write("a 'b' \"c\" [d].dxf", DxfText());
  ExpectReadAs(Zdx({"info", "-o", "json", "a 'b' \"c\" [d].dxf"}), "a 'b' \"c\" [d].dxf");
}

TEST_F(FileNames, WithControlCharactersStayOnOneLineOfText) {
  Write("a\nb\033.dxf", DxfText());
  const Outcome read = Zdx({"info", "--select", "flavour", "a\nb\033.dxf"});
  EXPECT_THAT(read.out, StartsWith("a\\x0ab\\x1b.dxf\n"));
  const Outcome failed = Zdx({"info", "x\ny\033.dxf"});
  EXPECT_THAT(failed.err, StartsWith("zdx: x\\x0ay\\x1b.dxf: "));
  EXPECT_THAT(failed.err, Not(HasSubstr("\033")));
}

}  // namespace

}  // namespace zdx_test
