#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "backends/database/dxf/Lines.h"

namespace zdx::dxf {
namespace {

using testing::ElementsAre;

std::vector<std::string> LinesOf(std::string_view bytes) {
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < bytes.size();) lines.emplace_back(TakeLine(bytes, at));
  return lines;
}

TEST(Lines, EndWithALineFeedACarriageReturnOrBoth) {
  EXPECT_THAT(LinesOf("a\nb\n"), ElementsAre("a", "b"));
  EXPECT_THAT(LinesOf("a\r\nb\r\n"), ElementsAre("a", "b"));
  EXPECT_THAT(LinesOf("a\rb\r"), ElementsAre("a", "b"));
}

TEST(Lines, EndsMayBeMixedInOneFile) {
  EXPECT_THAT(LinesOf("a\rb\nc\r\n\nd"), ElementsAre("a", "b", "c", "", "d"));
}

TEST(Lines, AnEndThatWasConvertedTwiceIsOne) {
  EXPECT_THAT(LinesOf("  0\r\r\nSECTION\r\r\n"), ElementsAre("  0", "SECTION"));
}

TEST(Lines, TheLastMayLackItsEnd) { EXPECT_THAT(LinesOf("a\nb"), ElementsAre("a", "b")); }

TEST(Lines, KeepTheirBlanks) { EXPECT_THAT(LinesOf("  a \t\n"), ElementsAre("  a \t")); }

TEST(Lines, ACodeMayHaveBlanksAround) {
  int code = -1;
  EXPECT_TRUE(ParseCode("  0", code));
  EXPECT_EQ(code, 0);
  EXPECT_TRUE(ParseCode("\t1071 ", code));
  EXPECT_EQ(code, 1071);
  EXPECT_TRUE(ParseCode("-3", code));
  EXPECT_EQ(code, -3);
}

TEST(Lines, OtherLinesAreNoCodes) {
  int code = 0;
  for (const char* line : {"", " ", "-", "1 0", "3DFACE", "0x0", "1.5", "+1", "1234567", "LINE"}) {
    EXPECT_FALSE(ParseCode(line, code)) << line;
  }
}

TEST(Lines, AZeroLineIsFoundAtEveryDistance) {
  for (std::size_t distance = 0; distance < 300; ++distance) {
    for (const std::string zero : {"0\n", "  0\r\n", "\t0 \r", "0"}) {
      const std::string before(distance, 'x');
      const std::string bytes = before + "\n" + zero + (zero.size() > 1 ? "LINE\n" : "");
      EXPECT_EQ(FindZeroLine(bytes, 0), distance + 1) << distance << " " << zero;
    }
  }
}

TEST(Lines, AZeroLineIsFoundAtTheBeginAndTheEnd) {
  EXPECT_EQ(FindZeroLine("0", 0), 0u);
  EXPECT_EQ(FindZeroLine("  0\nSECTION\n", 0), 0u);
  EXPECT_EQ(FindZeroLine("  0" + std::string(100, '\n'), 0), 0u);
  EXPECT_EQ(FindZeroLine(std::string(100, 'x') + "\n 0", 0), 101u);
}

TEST(Lines, ZerosWithinALineAreNoZeroLines) {
  std::string bytes;
  for (int i = 0; i < 50; ++i) bytes += "10\n00\n0.0\n0 0\nx 0\n0 x\n-0\n 05\n";
  EXPECT_EQ(FindZeroLine(bytes, 0), std::string_view::npos);
}

TEST(Lines, TheSearchBeginsWhereItIsTold) {
  const std::string bytes = "  0\nA\n" + std::string(200, 'y') + "\n  0\nB\n";
  EXPECT_EQ(FindZeroLine(bytes, 4), bytes.size() - 6);
}

TEST(Lines, NothingIsFoundInNothing) {
  EXPECT_EQ(FindZeroLine("", 0), std::string_view::npos);
  EXPECT_EQ(FindZeroLine("abc", 3), std::string_view::npos);
}

}  // namespace
}  // namespace zdx::dxf
