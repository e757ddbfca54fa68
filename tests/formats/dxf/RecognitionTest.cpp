#include <gtest/gtest.h>

#include <string>

#include "backends/database/dxf/Recognition.h"
#include "support/dxf/Tokens.h"

namespace zdx::dxf {
namespace {

using namespace std::string_literals;

const std::string kSentinel(::dxf::kBinarySentinel);

// The bytes with their line ends converted.
std::string Converted(std::string bytes) { return bytes.erase(bytes.find('\r'), 1); }

void ExpectRefused(std::string_view bytes) {
  const Recognition recognition = Recognise(bytes);
  EXPECT_EQ(recognition.form, std::nullopt);
  EXPECT_FALSE(recognition.refusal.text.empty());
}

TEST(Recognition, ATextBeginsWithASection) {
  for (const char* text : {"  0\nSECTION\n", "0\r\nSECTION\r\n", "  0\rSECTION\r", "0\nSECTION"}) {
    EXPECT_EQ(Recognise(text).form, Form::kText) << text;
  }
}

TEST(Recognition, CommentsBlankLinesAndAMarkMayStandBeforeIt) {
  EXPECT_EQ(Recognise("\xEF\xBB\xBF"
                      "999\nmade by hand\n\n  0\nSECTION\n")
                .form,
            Form::kText);
}

TEST(Recognition, AFileOfNothingButItsEndIsADrawing) {
  EXPECT_EQ(Recognise("  0\nEOF\n").form, Form::kText);
}

TEST(Recognition, ABinaryFileTellsTheWidthOfItsCodes) {
  EXPECT_EQ(Recognise(kSentinel + "\0SECTION\0"s).form, Form::kBinaryOneByte);
  EXPECT_EQ(Recognise(kSentinel + "\0\0SECTION\0"s).form, Form::kBinaryTwoByte);
}

TEST(Recognition, ABinaryFileWithConvertedLineEndsIsRefused) {
  ExpectRefused(Converted(kSentinel + "\0\0SECTION\0"s));
}

TEST(Recognition, ABinaryFileOfItsMarkAloneIsRefused) {
  ExpectRefused(kSentinel);
  ExpectRefused(kSentinel + "\x05");
}

TEST(Recognition, ADwgDrawingIsToldByItsVersion) {
  const Recognition recognition = Recognise("AC1032\0\0\0\0\0\0"s);
  EXPECT_EQ(recognition.form, std::nullopt);
  EXPECT_NE(recognition.refusal.text.find(L"AC1032"), std::wstring::npos);
}

TEST(Recognition, OtherFilesAreRefused) {
  ExpectRefused("");
  ExpectRefused("\x89PNG\r\n\x1A\n\0\0\0\rIHDR"s);
  ExpectRefused("<html></html>");
  ExpectRefused("  0\nLINE\n  8\n0\n");
  ExpectRefused(std::string(1000, '\0'));
  ExpectRefused(kSentinel.substr(0, 7));
}

TEST(Recognition, ARefusedTextTellsTheLine) {
  EXPECT_EQ(Recognise("999\nby hand\n  0\nLINE\n").refusal.line, 3u);
  EXPECT_EQ(Recognise("<html>\n").refusal.line, 1u);
  EXPECT_EQ(Recognise("\xEF\xBB\xBFhello\n").refusal.line, 1u);
}

TEST(Recognition, OtherRefusedFilesTellTheOffset) {
  EXPECT_EQ(Recognise("").refusal.offset, 0u);
  EXPECT_EQ(Recognise("\x89PNG\r\n\x1A\n\0\0\0\rIHDR"s).refusal.offset, 0u);
  EXPECT_EQ(Recognise(kSentinel + "\x05").refusal.offset, 22u);
  EXPECT_EQ(Recognise(Converted(kSentinel + "\0\0SECTION\0"s)).refusal.offset, 18u);
}

TEST(Recognition, TheFirstSectionIsNotSoughtForEver) {
  ExpectRefused(std::string(1 << 20, '\n') + "  0\nSECTION\n");
}

}  // namespace
}  // namespace zdx::dxf
