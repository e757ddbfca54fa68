// How DWG files name other files.
#include <gtest/gtest.h>

#include <stdexcept>

#include "support/dwg/Bytes.h"
#include "support/dwg/Drawing.h"
#include "support/dwg/DwgMaker.h"
#include "support/dwg/PlainSections.h"
#include "support/dwg/Tokens.h"

namespace dwg {
namespace {

// Whether `bytes` stand in `record`, at any bit.
bool Holds(const std::string& record, const std::string& bytes) {
  for (unsigned shift = 0; shift < 8; ++shift) {
    std::string shifted;
    for (std::size_t i = 0; i + 1 < record.size(); ++i) {
      const unsigned pair =
          static_cast<unsigned char>(record[i]) << 8 | static_cast<unsigned char>(record[i + 1]);
      shifted += static_cast<char>(pair >> (8 - shift) & 0xFF);
    }
    if (shifted.find(bytes) != std::string::npos) return true;
  }
  return false;
}

class FilesInDwg : public testing::TestWithParam<const char*> {
 protected:
  FilesInDwg() { spec.version = GetParam(); }

  // Whether the record of the handle is there and holds the text.
  bool RecordHolds(Handle handle, const std::string& text) {
    const Writing writing;
    Drawing drawing(spec, writing);
    WriteTables(drawing);
    WriteBlocks(drawing);
    WriteRootDictionary(drawing);
    const auto found = drawing.records.find(handle);
    return found != drawing.records.end() && Holds(found->second, Stored(text));
  }

  std::string Stored(const std::string& text) const { return HasUnicode() ? Utf16(text) : text; }
  bool HasUnicode() const { return std::string(GetParam()) >= "AC1021"; }
  bool IsSince(const std::string& version) const { return std::string(GetParam()) >= version; }

  DrawingSpec spec;
};

TEST_P(FilesInDwg, RecordsOfClassesHoldTheirPaths) {
  spec.underlays = {{.name = "site", .path = "site.pdf", .handle = "A1"},
                    {drawing::UnderlayForm::Dgn, "road", "road.dgn", "Model", "A2"}};
  spec.pointClouds = {{.name = "hall", .path = "hall.rcp", .handle = "A3"}};
  spec.dataLinks = {{.name = "rates", .connection = "rates.xlsx!Sheet", .handle = "A4"}};
  spec.materials = {{.name = "Oak", .diffuse = "oak.jpg", .bump = "rough.png", .handle = "A5"}};
  EXPECT_EQ(RecordHolds(0xA1, "site.pdf"), IsSince("AC1015"));
  EXPECT_EQ(RecordHolds(0xA2, "road.dgn"), IsSince("AC1015"));
  EXPECT_EQ(RecordHolds(0xA2, "Model"), IsSince("AC1015"));
  EXPECT_EQ(RecordHolds(0xA3, "hall.rcp"), IsSince("AC1024"));
  EXPECT_EQ(RecordHolds(0xA4, "rates.xlsx!Sheet"), IsSince("AC1021"));
  EXPECT_EQ(RecordHolds(0xA5, "oak.jpg"), IsSince("AC1021"));
  EXPECT_EQ(RecordHolds(0xA5, "rough.png"), IsSince("AC1021"));
}

TEST_P(FilesInDwg, BlocksAndStylesHoldTheirPaths) {
  drawing::BlockSpec block = drawing::XrefBlock("outer|inner", "inner.dwg");
  block.flags = drawing::kXrefDependent;
  block.handle = "A1";
  spec.blocks = {drawing::XrefBlock("outer", "outer.dwg"), block};
  spec.textStyles.push_back(drawing::ShapeFile("signs.shx", "A2"));
  EXPECT_TRUE(RecordHolds(0xA1, "inner.dwg"));
  EXPECT_TRUE(RecordHolds(0xA1, IsSince("AC1015") ? "outer|inner" : "OUTER|INNER"));
  EXPECT_TRUE(RecordHolds(0xA2, "signs.shx"));
}

// The states of a drawing that is referred to are told by single bits.
TEST_P(FilesInDwg, TheRecordTellsHowItsDrawingIsReferredTo) {
  const auto record = [&](drawing::BlockSpec block) {
    block.handle = "A1";
    spec.blocks = {block};
    const Writing writing;
    Drawing drawing(spec, writing);
    WriteBlocks(drawing);
    return drawing.records.at(0xA1);
  };
  drawing::BlockSpec block = drawing::XrefBlock("Site", "site.dwg");
  const std::string attached = record(block);
  block.isUnloaded = true;
  EXPECT_EQ(record(block) == attached, !IsSince("AC1015"));
  block.isUnloaded = false;
  block.xref = drawing::Xref::Overlaid;
  const std::string overlaid = record(block);
  EXPECT_NE(overlaid, attached);
  block.isOverlayAlone = true;
  EXPECT_NE(record(block), overlaid);
  EXPECT_NE(record(block), attached);
}

TEST_P(FilesInDwg, LongBytesOfAFreeRecordBecomeChunks) {
  const Writing writing;
  const Drawing drawing(spec, writing);
  const std::string bytes = FreeValues(drawing, {Tag(310, std::string(200, 'x')), Tag(310, "")});
  EXPECT_EQ(bytes, "\x36\x01\x7F" + std::string(127, 'x') + "\x36\x01\x49" + std::string(73, 'x') +
                       std::string("\x36\x01\0", 3));
}

TEST_P(FilesInDwg, TheListOfFilesCountsBytes) {
  spec.fileList = {{"F"}, {{"a.shx", "b", 7}}};
  const Writing writing;
  const std::string list = FileListSection(Drawing(spec, writing));
  const auto text = [&](const std::string& plain) {
    const std::string stored = Stored(plain);
    return NumberBytes(stored.size(), 4) + stored;
  };
  const std::string start = NumberBytes(1, 4) + text("F") + NumberBytes(1, 4) + text("a.shx") +
                            text("b") + text("") + text("") + NumberBytes(7, 4);
  EXPECT_EQ(list.substr(0, start.size()), start);
  // Time, size, whether it is shown, count.
  EXPECT_EQ(list.size(), start.size() + 4 + 4 + 2 + 4);
}

TEST_P(FilesInDwg, TheListOfFilesHasCharactersAsWideAsAskedFor) {
  spec.fileList = {{}, {{"ab"}}, 4};
  const Writing writing;
  EXPECT_EQ(FileListSection(Drawing(spec, writing)).substr(8, 12),
            NumberBytes(8, 4) + std::string("a\0\0\0b\0\0\0", 8));
  spec.fileList.characterSize = 3;
  EXPECT_THROW(FileListSection(Drawing(spec, writing)), std::invalid_argument);
}

TEST_P(FilesInDwg, TheListOfFilesStandsInTheFileFromAC1018On) {
  spec.fileList = {{}, {{"listed.shx"}}};
  const std::string listed = IsSince("AC1021") ? Utf16("listed.shx") : "listed.shx";
  EXPECT_EQ(Make(spec).find(listed) != std::string::npos, IsSince("AC1018"));
}

INSTANTIATE_TEST_SUITE_P(Versions, FilesInDwg,
                         testing::Values("AC1014", "AC1015", "AC1018", "AC1021", "AC1024", "AC1027",
                                         "AC1032"),
                         [](const auto& info) { return std::string(info.param); });

}  // namespace
}  // namespace dwg
