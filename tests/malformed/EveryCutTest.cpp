// Files cut anywhere, and files with any byte changed: an answer or a status, always soon.
#include <gtest/gtest.h>

#include "ZDXEngine/ZdxEngineException.h"
#include "malformed/Damage.h"
#include "support/PublicRead.h"

namespace {

using zdx_test::ReadBytes;

// The smallest drawings that have everything that is read.
std::string Small(dxf::Form form, const std::string& version) {
  drawing::DrawingSpec spec = damage::Sound(version);
  spec.settings.dimblk = "BoxBlank";
  return dxf::Make(spec, {.form = form, .lineEnd = "\n"});
}

// Reads `bytes`; a FileError is as good as an answer, anything else fails the test.
void ExpectAnswerOrStatus(const std::string& bytes) {
  try {
    ReadBytes(bytes);
  } catch (const ZDXEngine::FileError& error) {
    EXPECT_FALSE(error.errorMessage.empty());
  }
}

class EveryCut : public testing::TestWithParam<std::pair<dxf::Form, const char*>> {
 protected:
  std::string bytes = Small(GetParam().first, GetParam().second);
};

// Every place in the first and last part of the file, and every seventh between.
std::size_t NextPlace(std::size_t at, std::size_t size) {
  constexpr std::size_t kClose = 600;
  return at < kClose || at + kClose > size ? at + 1 : at + 7;
}

TEST_P(EveryCut, ACutFileGivesAnAnswerOrAStatus) {
  for (std::size_t size = 0; size < bytes.size(); size = NextPlace(size, bytes.size())) {
    ExpectAnswerOrStatus(bytes.substr(0, size));
  }
}

TEST_P(EveryCut, ACutFileKeepsTheTablesBeforeTheCut) {
  const auto whole = ReadBytes(bytes).Texts(L"Layer Name");
  const std::size_t blocks = bytes.find("BLOCKS");
  ASSERT_NE(blocks, std::string::npos);
  EXPECT_EQ(ReadBytes(bytes.substr(0, blocks)).Texts(L"Layer Name"), whole);
}

TEST_P(EveryCut, AChangedByteGivesAnAnswerOrAStatus) {
  for (const char change : {'\0', '\n', '0', '\xFF'}) {
    for (std::size_t at = 0; at < bytes.size(); at += 1 + at % 13) {
      std::string changed = bytes;
      changed[at] = change;
      ExpectAnswerOrStatus(changed);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(
    Dxf, EveryCut,
    testing::Values(std::pair(dxf::Form::Ascii, "AC1032"), std::pair(dxf::Form::Ascii, "AC1009"),
                    std::pair(dxf::Form::Binary, "AC1015"), std::pair(dxf::Form::Binary, "AC1009")),
    [](const auto& info) {
      return std::string(info.param.first == dxf::Form::Ascii ? "Text" : "Binary") +
             info.param.second;
    });

}  // namespace
