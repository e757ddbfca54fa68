#include <gmock/gmock.h>

#include <algorithm>

#include "cli/CliTest.h"
#include "cli/SmallDrawing.h"

namespace zdx_test {

namespace {

using ::testing::StartsWith;

// What comes of an output that can't be written must not depend on why.
class OutputFailure : public CliTest, public ::testing::WithParamInterface<OutputTo> {
 protected:
  void ExpectTold(const std::vector<std::string>& arguments) const {
    const Outcome outcome = Zdx(arguments, GetParam());
    EXPECT_EQ(outcome.endedBy, "");
    EXPECT_EQ(outcome.exitCode, kOutputFailed);
    EXPECT_THAT(outcome.err, StartsWith("zdx: standard output: "));
    // It is told once: the rest of the files are left alone.
    EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1);
  }
};

TEST_P(OutputFailure, OfTextIsToldAndEndsTheRun) {
  Write("plan.dxf", DxfText());
  ExpectTold({"info", "plan.dxf", "plan.dxf"});
}

TEST_P(OutputFailure, OfJsonIsToldAndEndsTheRun) {
  Write("plan.dxf", DxfText());
  ExpectTold({"info", "-o", "json", "plan.dxf", "plan.dxf"});
}

TEST_P(OutputFailure, OfBlocksIsToldAndEndsTheRun) {
  Write("plan.dxf", DxfText());
  ExpectTold({"blocks", "plan.dxf", "plan.dxf"});
  ExpectTold({"blocks", "-o", "json", "plan.dxf", "plan.dxf"});
}

TEST_P(OutputFailure, OfAValueIsToldAndEndsTheRun) {
  Write("plan.dxf", DxfText());
  ExpectTold({"get", "Title", "plan.dxf", "plan.dxf"});
}

TEST_P(OutputFailure, OfTheVersionIsTold) { ExpectTold({"--version"}); }

TEST_P(OutputFailure, OfHelpIsTold) { ExpectTold({"info", "--help"}); }

INSTANTIATE_TEST_SUITE_P(EveryKind, OutputFailure,
                         ::testing::Values(OutputTo::kNowhere, OutputTo::kBrokenPipe,
                                           OutputTo::kFullDevice),
                         [](const auto& output) -> std::string {
                           switch (output.param) {
                             case OutputTo::kNowhere:
                               return "ClosedStream";
                             case OutputTo::kBrokenPipe:
                               return "BrokenPipe";
                             case OutputTo::kFullDevice:
                               return "FullDevice";
                             case OutputTo::kCapture:
                               break;
                           }
                           return "Capture";
                         });

}  // namespace

}  // namespace zdx_test
