#include <gmock/gmock.h>

#include <algorithm>
#include <regex>

#include "cli/CliTest.h"
#include "cli/SmallDrawing.h"

namespace zdx_test {

namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;
using ::testing::StartsWith;

class Failure : public CliTest {
 protected:
  // The "error" of the one document about a file that fails.
  nlohmann::json ErrorOf(const std::string& name) const {
    const Outcome outcome = Zdx({"info", "-o", "json", name});
    EXPECT_EQ(outcome.exitCode, kFileFailed);
    EXPECT_THAT(outcome.err, StartsWith("zdx: " + name + ": "));
    EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome.err;
    const std::vector<nlohmann::json> documents = Documents(outcome.out);
    EXPECT_THAT(documents, SizeIs(1));
    if (documents.size() != 1) return {};
    EXPECT_EQ(documents[0].at("schema"), "zdx/1");
    EXPECT_EQ(documents[0].at("file"), name);
    EXPECT_EQ(documents[0].at("status"), "error");
    EXPECT_THAT(documents[0], SizeIs(4));
    return documents[0].at("error");
  }
};

TEST_F(Failure, AMissingFileIsNotFoundAndHasNoPlace) {
  const nlohmann::json error = ErrorOf("missing.dxf");
  EXPECT_EQ(error.at("class"), "NotFound");
  EXPECT_EQ(error.at("code"), 102);
  EXPECT_EQ(error.at("message"), "Unable to find file 'missing.dxf'");
  EXPECT_TRUE(error.at("place").is_null());
}

TEST_F(Failure, AFileThatIsNoDrawingIsOfInvalidFormat) {
  Write("letter.dxf", "Dear Ada,\n\nthe drawing follows.\n");
  const nlohmann::json error = ErrorOf("letter.dxf");
  EXPECT_EQ(error.at("class"), "InvalidFormat");
  EXPECT_EQ(error.at("code"), 103);
  EXPECT_EQ(error.at("message"), "'letter.dxf' is not a valid Zentrace drawing file");
}

TEST_F(Failure, AnEmptyFileIsOfInvalidFormat) {
  Write("empty.dxf", "");
  EXPECT_EQ(ErrorOf("empty.dxf").at("class"), "InvalidFormat");
}

TEST_F(Failure, ANameThatIsNoDrawingsNameIsAReadError) {
  Write("plan.txt", DxfText());
  const nlohmann::json error = ErrorOf("plan.txt");
  EXPECT_EQ(error.at("class"), "ReadError");
  EXPECT_EQ(error.at("code"), 101);
  EXPECT_THAT(error.at("reason").get<std::string>(), HasSubstr(".dxf"));
}

TEST_F(Failure, AnEmptyNameFailsLikeAnyOther) {
  const Outcome outcome = Zdx({"info", ""});
  EXPECT_EQ(outcome.exitCode, kFileFailed);
  EXPECT_THAT(outcome.err, StartsWith("zdx: : "));
}

TEST_F(Failure, IsToldOnStandardErrorAloneInText) {
  const Outcome outcome = Zdx({"info", "missing.dxf"});
  EXPECT_EQ(outcome.exitCode, kFileFailed);
  EXPECT_THAT(outcome.out, IsEmpty());
  EXPECT_THAT(outcome.err, StartsWith("zdx: missing.dxf: Unable to find file 'missing.dxf'"));
  EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome.err;
}

TEST_F(Failure, OfOneFileDoesNotStopTheOthersInJson) {
  Write("first.dxf", DxfText());
  Write("letter.dxf", "no drawing\n");
  Write("last.dxf", DxfText());
  const Outcome outcome = Zdx({"info", "-o", "json", "first.dxf", "letter.dxf", "last.dxf"});
  EXPECT_EQ(outcome.exitCode, kFileFailed);
  const std::vector<nlohmann::json> documents = Documents(outcome.out);
  ASSERT_THAT(documents, SizeIs(3));
  EXPECT_EQ(documents[0].at("status"), "ok");
  EXPECT_EQ(documents[1].at("status"), "error");
  EXPECT_EQ(documents[2].at("status"), "ok");
  EXPECT_EQ(documents[2].at("file"), "last.dxf");
}

TEST_F(Failure, OfOneFileDoesNotStopTheOthersInText) {
  Write("last.dxf", DxfText());
  const Outcome outcome = Zdx({"info", "missing.dxf", "last.dxf"});
  EXPECT_EQ(outcome.exitCode, kFileFailed);
  EXPECT_THAT(outcome.out, StartsWith("last.dxf\n"));
  EXPECT_THAT(outcome.err, HasSubstr("missing.dxf"));
}

TEST_F(Failure, OfOneFileDoesNotLendItsPlaceToTheNext) {
  Write("letter.dxf", "no drawing\n");
  const std::vector<nlohmann::json> documents =
      Documents(Zdx({"info", "-o", "json", "letter.dxf", "plan.txt"}).out);
  ASSERT_THAT(documents, SizeIs(2));
  EXPECT_TRUE(documents[1].at("error").at("place").is_null());
}

class Warning : public CliTest {
 protected:
  // A drawing that was cut inside its last section, which can still be read.
  Warning() {
    const std::string whole = DxfText();
    Write("cut.dxf", whole.substr(0, whole.rfind("0\nENDSEC")));
    Write("whole.dxf", whole);
  }
};

TEST_F(Warning, OfADrawingThatIsReadAllTheSameIsToldWithItsLine) {
  const Outcome outcome = Zdx({"info", "cut.dxf"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.out, HasSubstr("Ground floor"));
  EXPECT_TRUE(
      std::regex_match(outcome.err, std::regex("zdx: cut\\.dxf: line [0-9]+: warning: .+\n")))
      << outcome.err;
}

TEST_F(Warning, StandsInTheDocumentAloneInJson) {
  const Outcome outcome = Zdx({"info", "-o", "json", "cut.dxf", "whole.dxf"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.err, IsEmpty());
  const std::vector<nlohmann::json> documents = Documents(outcome.out);
  ASSERT_THAT(documents, SizeIs(2));
  ASSERT_THAT(documents[0].at("warnings"), Not(IsEmpty()));
  EXPECT_TRUE(documents[0].at("warnings").at(0).at("message").is_string());
  EXPECT_TRUE(documents[0].at("warnings").at(0).at("line").is_number_unsigned());
  EXPECT_THAT(documents[1].at("warnings"), IsEmpty());
}

}  // namespace

}  // namespace zdx_test
