#include <gtest/gtest.h>

#include <map>
#include <stdexcept>

#include "support/dwg/Bytes.h"
#include "support/dwg/Checksums.h"
#include "support/dwg/CodedChecksums.h"
#include "support/dwg/DwgMaker.h"
#include "support/dwg/ReedSolomon.h"
#include "support/dwg/Tokens.h"
#include "support/dwg/Types.h"

namespace dwg {
namespace {

std::uint64_t Number(const std::string& bytes, std::size_t at, std::size_t size) {
  std::uint64_t number = 0;
  for (std::size_t i = size; i > 0; --i) {
    number = number << 8 | static_cast<unsigned char>(bytes.at(at + i - 1));
  }
  return number;
}

drawing::DrawingSpec Drawn(const std::string& version) {
  drawing::DrawingSpec spec;
  spec.version = version;
  spec.summary.title = "Title";
  spec.layers = {"0", "Walls"};
  spec.blocks = {{.name = "Sign", .definitions = {{.tag = "NO", .prompt = "Number?"}}}};
  spec.entities = {drawing::Line("0", {}, {1, 1}), drawing::Insert("Sign", {{"NO", "1"}})};
  spec.previews = {{drawing::PreviewKind::Bitmap, std::string(2000, 'p')}};
  spec.appInfo.entries = {{"01020304-0506-0708-090A-0B0C0D0E0F10", "text"}};
  return spec;
}

class EveryDwg : public testing::TestWithParam<const char*> {
 protected:
  std::string file = Make(Drawn(GetParam()));
};

TEST_P(EveryDwg, TheSameSpecGivesTheSameBytes) { EXPECT_TRUE(Make(Drawn(GetParam())) == file); }

TEST_P(EveryDwg, BeginsWithItsVersionAndTellsItsCodePage) {
  EXPECT_EQ(file.substr(0, 6), GetParam());
  EXPECT_EQ(Number(file, 0x13, 2), 30u);
}

// The pictures are told by their places in the file.
TEST_P(EveryDwg, ThePreviewLeadsToItsPicture) {
  const std::size_t at = Number(file, 0x0D, 4);
  ASSERT_EQ(file.substr(at, 16), FromHex(kPreviewMark));
  ASSERT_EQ(Number(file, at + 20, 1), 2u);
  EXPECT_EQ(Number(file, at + 30, 1), 2u);
  EXPECT_EQ(file.substr(Number(file, at + 31, 4), Number(file, at + 35, 4)),
            std::string(2000, 'p'));
  EXPECT_EQ(file.substr(at + 20 + Number(file, at + 16, 4), 16), Inverted(FromHex(kPreviewMark)));
}

INSTANTIATE_TEST_SUITE_P(Versions, EveryDwg,
                         testing::Values("AC1014", "AC1015", "AC1018", "AC1021", "AC1024", "AC1027",
                                         "AC1032"),
                         [](const auto& info) { return std::string(info.param); });

TEST(DwgMaker, OlderVersionsAreRefused) {
  EXPECT_THROW(Make(Drawn("AC1012")), std::invalid_argument);
  EXPECT_THROW(Make(Drawn("AC1009")), std::invalid_argument);
}

TEST(DwgMaker, AnEntityOfAnotherKindIsRefused) {
  drawing::DrawingSpec spec;
  spec.entities = {{.type = "HELIX"}};
  EXPECT_THROW(Make(spec), std::invalid_argument);
}

class FlatDwg : public testing::TestWithParam<const char*> {
 protected:
  struct Locator {
    std::size_t address;
    std::size_t size;
  };

  FlatDwg() {
    const std::size_t count = Number(file, 0x15, 4);
    for (std::size_t i = 0; i < count; ++i) {
      const std::size_t at = 0x19 + 9 * i;
      locators[Number(file, at, 1)] = {Number(file, at + 1, 4), Number(file, at + 5, 4)};
    }
    headEnd = 0x19 + 9 * count;
  }

  // Checks the marks, the size and the check of a section.
  void ExpectSection(const Locator& locator, std::string_view mark) {
    const std::string start = FromHex(mark);
    EXPECT_EQ(file.substr(locator.address, 16), start);
    EXPECT_EQ(file.substr(locator.address + locator.size - 16, 16), Inverted(start));
    const std::size_t size = Number(file, locator.address + 16, 4);
    EXPECT_EQ(size + 16 + 4 + 2 + 16, locator.size);
    EXPECT_EQ(Crc16(file.substr(locator.address + 16, 4 + size)),
              Number(file, locator.address + 20 + size, 2));
  }

  std::string file = Make(Drawn(GetParam()));
  std::map<std::size_t, Locator> locators;
  std::size_t headEnd = 0;
};

TEST_P(FlatDwg, TheHeadIsCheckedAndMarked) {
  EXPECT_EQ(Number(file, headEnd, 2), Crc16(file.substr(0, headEnd)));
  EXPECT_EQ(file.substr(headEnd + 2, 16), FromHex(kHeadMark));
}

TEST_P(FlatDwg, TheLocatorsLeadToTheSections) {
  ExpectSection(locators[0], kHeaderMark);
  ExpectSection(locators[1], kClassesMark);
  EXPECT_EQ(locators[4].address + locators[4].size, file.size());
}

TEST_P(FlatDwg, TheSecondHeaderFollowsTheObjectMap) {
  const std::size_t at = locators[2].address + locators[2].size;
  EXPECT_EQ(file.substr(at, 16), FromHex(kSecondHeaderMark));
  const std::size_t size = Number(file, at + 16, 4);
  EXPECT_EQ(file.substr(at + 16 + size, 16), Inverted(FromHex(kSecondHeaderMark)));
  EXPECT_EQ(Number(file, at + 16 + size - 10, 2), Crc16(file.substr(at + 16, size - 10)));
}

// Pages of their own size, each checked, an empty one at the end; offsets lead to checked records.
TEST_P(FlatDwg, TheObjectMapLeadsToRecords) {
  const auto highFirst = [&](std::size_t at) {
    return Number(file, at, 1) << 8 | Number(file, at + 1, 1);
  };
  std::size_t at = locators[2].address;
  const std::size_t firstPair = at + 2;
  for (std::size_t size = 0; size != 2; at += size + 2) {
    size = highFirst(at);
    EXPECT_EQ(Crc16(file.substr(at, size)), highFirst(at + size));
  }
  EXPECT_EQ(at, locators[2].address + locators[2].size);
  // Model space: handle 1, told by one byte; then an offset of two or three.
  ASSERT_EQ(Number(file, firstPair, 1), 1u);
  std::size_t offset = 0;
  std::size_t shift = 0;
  for (std::size_t i = firstPair + 1;; ++i, shift += 7) {
    offset |= (Number(file, i, 1) & 0x7F) << shift;
    if (Number(file, i, 1) < 0x80) break;
  }
  const std::size_t size = Number(file, offset, 2);
  EXPECT_EQ(Crc16(file.substr(offset, size + 2)), Number(file, offset + 2 + size, 2));
}

// The types of the records that the first page of the object map leads to, by their handles.
std::map<std::uint64_t, unsigned> TypesIn(const std::string& file) {
  const std::size_t map = Number(file, 0x19 + 2 * 9 + 1, 4);
  const std::size_t end = map + (Number(file, map, 1) << 8 | Number(file, map + 1, 1));
  std::size_t at = map + 2;
  const auto piece = [&](std::uint64_t lastBits, bool& isNegative) {
    std::uint64_t number = 0;
    for (unsigned shift = 0;; shift += 7) {
      const std::uint64_t byte = Number(file, at++, 1);
      number |= (byte & (byte < 0x80 ? lastBits : 0x7F)) << shift;
      isNegative = (byte & ~lastBits & 0x7F) != 0;
      if (byte < 0x80) return number;
    }
  };
  std::map<std::uint64_t, unsigned> types;
  std::uint64_t handle = 0;
  std::uint64_t offset = 0;
  bool isNegative = false;
  while (at < end) {
    handle += piece(0x7F, isNegative);
    const std::uint64_t step = piece(0x3F, isNegative);
    offset = isNegative ? offset - step : offset + step;
    // The types looked for fit one byte, of which two bits of a code take the begin.
    const std::uint64_t bits = Number(file, offset + 2, 1) << 8 | Number(file, offset + 3, 1);
    if (bits >> 14 == 1) types[handle] = static_cast<unsigned>(bits >> 6 & 0xFF);
  }
  return types;
}

TEST(DwgMaker, ArraysAndTextsOfManyLinesAreOfTheirOwnTypes) {
  drawing::DrawingSpec spec;
  spec.version = "AC1015";
  spec.blocks = {{"Sign"}};
  spec.entities = {drawing::Insert("Sign"), drawing::Insert("Sign", {}, {.columns = 2}),
                   drawing::MText("0", {}, 2.5, "text")};
  spec.entities[0].handle = "A1";
  spec.entities[1].handle = "A2";
  spec.entities[2].handle = "A3";
  auto types = TypesIn(Make(spec, {.mapPageSize = 60000}));
  EXPECT_EQ(types[0xA1], static_cast<unsigned>(Type::Insert));
  EXPECT_EQ(types[0xA2], static_cast<unsigned>(Type::ArrayInsert));
  EXPECT_EQ(types[0xA3], static_cast<unsigned>(Type::MText));
}

TEST_P(FlatDwg, NoPageOfTheObjectMapIsLongerThanAsked) {
  file = Make(Drawn(GetParam()), {.mapPageSize = 40});
  std::size_t pages = 0;
  for (std::size_t at = Number(file, 0x19 + 2 * 9 + 1, 4), size = 0; size != 2; at += size + 2) {
    size = Number(file, at, 1) << 8 | Number(file, at + 1, 1);
    EXPECT_LE(size, 40u);
    ++pages;
  }
  EXPECT_GT(pages, 3u);
}

INSTANTIATE_TEST_SUITE_P(Versions, FlatDwg, testing::Values("AC1014", "AC1015"),
                         [](const auto& info) { return std::string(info.param); });

class PagedDwg : public testing::TestWithParam<const char*> {
 protected:
  static std::string HiddenHeader(const std::string& file) {
    std::string header = MaskBytes(0x6C);
    for (std::size_t i = 0; i < header.size(); ++i) {
      header[i] = static_cast<char>(file[0x80 + i] ^ header[i]);
    }
    return header;
  }

  std::string file = Make(Drawn(GetParam()));
  std::string header = HiddenHeader(file);
};

TEST_P(PagedDwg, TheHiddenHeaderIsCheckedAndRepeatedAtTheEnd) {
  EXPECT_EQ(header.substr(0, 12), kPagedHeaderId);
  EXPECT_EQ(file.substr(file.size() - 0x6C), file.substr(0x80, 0x6C));
  EXPECT_EQ(Number(header, 0x34, 8), file.size() - 0x6C);
  std::string cleared = header;
  PutNumber(cleared, 0x68, 0, 4);
  EXPECT_EQ(Number(header, 0x68, 4), Crc32(cleared));
  EXPECT_EQ(file.substr(0xEC, 0x14), MaskBytes(0x100).substr(0xEC));
}

TEST_P(PagedDwg, ThePageMapIsWhereTheHeaderSays) {
  const std::size_t at = Number(header, 0x54, 8) + 0x100;
  EXPECT_EQ(Number(file, at, 4), 0x41630E3Bu);
  const std::size_t size = Number(file, at + 8, 4);
  EXPECT_EQ(at + 20 + size, file.size() - 0x6C);
  EXPECT_EQ(Number(file, at + 16, 4), PageSum(PageSum(0, file.substr(at, 16) + std::string(4, 0)),
                                              file.substr(at + 20, size)));
}

// From the first page on each tells its size, as long as they hold data.
TEST_P(PagedDwg, EveryDataPageIsCheckedTwice) {
  std::size_t at = 0x100;
  std::size_t count = 0;
  const auto field = [&](std::size_t offset) {
    return static_cast<std::uint32_t>(Number(file, at + offset, 4)) ^ 0x4164536Bu ^
           static_cast<std::uint32_t>(at);
  };
  for (; field(0) == 0x4163043Bu; at += field(12), ++count) {
    const std::uint32_t dataSum = PageSum(0, file.substr(at + 0x20, field(8)));
    EXPECT_EQ(field(28), dataSum);
    std::string head;
    for (std::size_t i = 0; i < 8; ++i) AppendNumber(head, i == 6 ? 0 : field(4 * i), 4);
    EXPECT_EQ(field(24), PageSum(dataSum, head));
  }
  // The section map follows the last of them.
  EXPECT_EQ(Number(file, at, 4), 0x4163003Bu);
  EXPECT_EQ(count + 2, Number(header, 0x40, 4));
}

TEST_P(PagedDwg, TheHeadLeadsToTheSummaryAndTheProgram) {
  const bool isWide = std::string(GetParam()) >= "AC1021";
  EXPECT_EQ(file.substr(Number(file, 0x20, 4), 2), std::string("\6\0", 2));
  EXPECT_EQ(file.substr(Number(file, 0x20, 4) + 2, 2), isWide ? std::string("T\0", 2) : "Ti");
  EXPECT_EQ(Number(file, Number(file, 0x2C, 4), 4), 3u);
  EXPECT_NE(file.find(FromHex("0403020106050807090A0B0C0D0E0F10")), std::string::npos);
}

TEST_P(PagedDwg, SmallPagesAreMore) {
  const std::string small = Make(Drawn(GetParam()), {.objectPageSize = 0x100});
  EXPECT_GT(Number(HiddenHeader(small), 0x40, 4), Number(header, 0x40, 4) + 3);
}

INSTANTIATE_TEST_SUITE_P(Versions, PagedDwg,
                         testing::Values("AC1018", "AC1024", "AC1027", "AC1032"),
                         [](const auto& info) { return std::string(info.param); });

class CodedDwg : public testing::Test {
 protected:
  // With nothing compressed, so that the head's contents stand in the file.
  std::string file = Make(Drawn("AC1021"), {.squeeze = Squeeze::LiteralsOnly});

  // The data of a page's words.
  static std::string Data(const std::string& page, std::size_t words, const WordShape& shape) {
    std::string data;
    for (std::size_t word = 0; word < words; ++word) {
      for (std::size_t i = 0; i < shape.dataSize; ++i) data += page.at(word + i * words);
    }
    return data;
  }
};

TEST_F(CodedDwg, TheHeadPageIsRepeatedAtTheEnd) {
  EXPECT_EQ(file.substr(0x80, 0x400), file.substr(file.size() - 0x400));
}

TEST_F(CodedDwg, TheHeadPageHoldsACheckedBlockTwiceWhereItIsLong) {
  const std::string data = Data(file.substr(0x80, 3 * kWordSize), 3, kSystemWords);
  const std::size_t size = Number(data, 24, 4);
  EXPECT_EQ(Number(data, 16, 8), HeadCrc64(data.substr(32, size)));
  const std::size_t block = RoundedUp(32 + size, 8);
  EXPECT_EQ(data.substr(0, block), data.substr(block, block));
}

// The head's numbers aren't decoded here, so the number of words is found by trying.
TEST_F(CodedDwg, ThePageMapListsThePagesUpToTheHeadsCopy) {
  std::string map;
  for (std::size_t words = 1; map.empty() && words < 10; ++words) {
    map = Data(file.substr(0x480, words * kWordSize), words, kSystemWords);
    const bool isMap = Number(map, 0, 8) == 0x400 && Number(map, 16, 8) == 0x400 &&
                       Number(map, 8, 8) + 1 == Number(map, 24, 8);
    if (!isMap) map.clear();
  }
  ASSERT_FALSE(map.empty());
  const std::size_t count = Number(map, 24, 8);
  std::size_t end = 0x480;
  for (std::size_t i = 0; i < count; ++i) end += Number(map, 16 * i, 8);
  EXPECT_EQ(end, file.size() - 0x400);
}

TEST_F(CodedDwg, TheHeadLeadsToTheSummary) {
  EXPECT_EQ(file.substr(Number(file, 0x20, 4), 4), std::string("\6\0T\0", 4));
}

}  // namespace
}  // namespace dwg
