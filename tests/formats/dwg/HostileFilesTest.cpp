// Files that are sound as far as their checks go, but would cost more than they may.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

#include "backends/database/dwg/PreviewArea.h"
#include "backends/database/dwg/Tokens.h"
#include "backends/database/dwg/container/Decompression.h"
#include "backends/database/dwg/records/ObjectMap.h"
#include "base/LittleEndian.h"
#include "formats/dwg/LayersOf.h"
#include "formats/dwg/OpenDrawing.h"
#include "support/drawing/Tokens.h"
#include "support/dwg/Bytes.h"
#include "support/dwg/Checksums.h"
#include "support/dwg/Compression.h"
#include "support/dwg/Containers.h"
#include "support/dwg/Drawing.h"
#include "support/dwg/DwgMaker.h"
#include "support/dwg/Record.h"
#include "support/dwg/Types.h"

namespace {

namespace model = zdx::model;

// A section of bytes that counts how many of them were asked for.
class CountingSection : public zdx::dwg::Section {
 public:
  explicit CountingSection(std::string bytes) : bytes_(std::move(bytes)) {}

  std::uint64_t size() const override { return bytes_.size(); }
  std::optional<std::string_view> Bytes(std::uint64_t at, std::uint64_t count,
                                        zdx::dwg::Scratch& /*scratch*/) override {
    if (at > bytes_.size() || count > bytes_.size() - at) return std::nullopt;
    asked_ += count;
    return std::string_view(bytes_).substr(at, count);
  }
  std::uint64_t PlaceOf(std::uint64_t at) const override { return at; }
  std::uint64_t asked() const { return asked_; }

 private:
  std::string bytes_;
  std::uint64_t asked_ = 0;
};

constexpr std::size_t kPageObjects = 30000;

// A page of the object map that begins with `first`; every object stands at offset 1.
std::string MapPage(unsigned first) {
  std::string entries = {static_cast<char>(first % 128 | 0x80),
                         static_cast<char>(first / 128 % 128 | 0x80),
                         static_cast<char>(first / 128 / 128), '\x01'};
  for (std::size_t i = 1; i < kPageObjects; ++i) entries += std::string("\x01\x00", 2);
  const std::size_t size = entries.size() + 2;
  std::string page = {static_cast<char>(size >> 8), static_cast<char>(size)};
  page += entries;
  const unsigned check = dwg::Crc16(page);
  return page + static_cast<char>(check >> 8) + static_cast<char>(check);
}

TEST(HostileFiles, ALookUpReadsASmallPartOfItsPageOfTheObjectMap) {
  CountingSection section(MapPage(1) + MapPage(40000) + std::string("\x00\x02", 2));
  model::Report report;
  zdx::dwg::ObjectMap map(section, report);
  for (model::Handle i = 0; i < 100; ++i) {
    EXPECT_EQ(map.Find(1 + i), 1u);
    EXPECT_EQ(map.Find(40000 + i), 1u);
  }
  EXPECT_LT(section.asked(), section.size() + 200 * 2000);
  EXPECT_EQ(report.warningCount, 0u);
}

TEST(HostileFiles, PreviewPicturesHaveNoMoreBytesThanTheirArea) {
  constexpr std::size_t kSize = 100000;
  std::string area(zdx::dwg::kPreviewMark);
  dwg::AppendNumber(area, 0, 4);
  area += '\xFF';
  for (int i = 0; i < 255; ++i) {
    area += '\x02';
    dwg::AppendNumber(area, 21 + 255 * 9, 4);
    dwg::AppendNumber(area, kSize, 4);
  }
  area += std::string(kSize, 'x');
  CountingSection section(area);
  model::Report report;
  EXPECT_EQ(zdx::dwg::ReadPreviewArea(section, report).size(), 1u);
  EXPECT_GE(report.warningCount, 1u);
}

// The records of all layers but the first are said to stand where one of a megabyte does.
TEST(HostileFiles, ALargeRecordThatManyHandlesLeadToIsCheckedForNoneOfThem) {
  drawing::DrawingSpec spec;
  spec.version = "AC1015";
  for (int i = 0; i < 5000; ++i) spec.layers.emplace_back("Layer " + std::to_string(i));
  const dwg::Writing writing;
  dwg::Drawing drawing(spec, writing);
  dwg::WriteTables(drawing);
  dwg::WriteBlocks(drawing);
  dwg::WriteRootDictionary(drawing);
  for (std::size_t i = 1; i + 1 < drawing.layers.size(); ++i) {
    drawing.records[drawing.layers[i].handle].clear();
  }
  const dwg::Handle last = drawing.layers.back().handle;
  dwg::Fields fields = drawing.NewFields(last + 1);
  dwg::BeginObject(fields, 1);
  dwg::RecordHead head{51};
  for (int i = 0; i < 20; ++i) head.data.push_back({1, std::string(60000, 'x')});
  drawing.records[last] = dwg::AssembleRecord(head, fields);

  const Told told = LayersOf(dwg::FlatFile(drawing));
  EXPECT_THAT(told.names, testing::ElementsAre(L"0"));
  EXPECT_GE(told.warnings, 1u);
  EXPECT_LT(told.seconds, 10.0);
}

TEST(HostileFiles, TheBeginThatBlocksShareIsReadForOneOfThem) {
  drawing::DrawingSpec spec;
  spec.version = "AC1018";
  spec.blocks = {{"*U1"}, {"*U2"}, {"*U3"}};
  const dwg::Writing writing;
  dwg::Drawing drawing(spec, writing);
  dwg::Handle begin = 0;
  for (dwg::PlannedBlock& block : drawing.blocks) {
    if (block.spec == nullptr) continue;
    if (begin == 0) begin = block.begin;
    block.begin = begin;
  }
  dwg::WriteTables(drawing);
  dwg::WriteBlocks(drawing);
  dwg::WriteRootDictionary(drawing);
  const Told told = LayersOf(dwg::PagedFile(drawing), model::TableKind::kBlock);
  EXPECT_THAT(told.names, testing::Contains(L"*U"));
  EXPECT_GE(told.warnings, 1u);
}

// The file with the page map at its end, where it has `count` pages more than the file.
std::string WithLongPageMap(std::string bytes, std::size_t count) {
  constexpr std::size_t kHeaderAt = 0x80;
  constexpr std::size_t kHeaderSize = 0x6C;
  const std::string mask = dwg::MaskBytes(kHeaderSize);
  std::string header = bytes.substr(kHeaderAt, kHeaderSize);
  for (std::size_t i = 0; i < kHeaderSize; ++i) header[i] = static_cast<char>(header[i] ^ mask[i]);
  const std::size_t at = 0x100 + zdx::LittleEndianAt<std::uint32_t>(header, 0x54);
  const auto stored = zdx::LittleEndianAt<std::uint32_t>(bytes, at + 8);
  const std::string_view page = std::string_view(bytes).substr(at + 20, stored);
  std::string map =
      zdx::dwg::DecompressPaged(page, zdx::LittleEndianAt<std::uint32_t>(bytes, at + 4)).bytes;
  for (std::size_t i = 0; i < count; ++i) {
    dwg::AppendNumber(map, 1000 + i, 4);
    dwg::AppendNumber(map, 0, 4);
  }
  dwg::PutNumber(header, 0x54, bytes.size() - 0x100, 8);
  dwg::PutNumber(header, 0x68, 0, 4);
  dwg::PutNumber(header, 0x68, dwg::Crc32(header), 4);
  for (std::size_t i = 0; i < kHeaderSize; ++i) header[i] = static_cast<char>(header[i] ^ mask[i]);
  bytes.replace(kHeaderAt, kHeaderSize, header);
  const std::string compressed = dwg::Compressed(map, dwg::Squeeze::Repeats);
  std::string head = dwg::NumberBytes(0x41630E3B, 4) + dwg::NumberBytes(map.size(), 4) +
                     dwg::NumberBytes(compressed.size(), 4) + dwg::NumberBytes(2, 4);
  const auto sum = dwg::PageSum(dwg::PageSum(0, head + std::string(4, '\0')), compressed);
  return bytes + head + dwg::NumberBytes(sum, 4) + compressed;
}

TEST(HostileFiles, APageMapLongerThanTheFileIsNotFollowed) {
  drawing::DrawingSpec spec;
  spec.version = "AC1018";
  const std::string sound = dwg::Make(spec);
  EXPECT_EQ(LayersOf(WithLongPageMap(sound, 0)).warnings, 0u);
  const Told told = LayersOf(WithLongPageMap(sound, 200000));
  EXPECT_THAT(told.names, testing::ElementsAre(L"0"));
}

// The drawing's records changed before they are put into a file of AC1018.
OpenDrawing PagedWith(const drawing::DrawingSpec& spec,
                      const std::function<void(dwg::Drawing& drawing)>& change) {
  const dwg::Writing writing;
  dwg::Drawing drawing(spec, writing);
  dwg::WriteTables(drawing);
  dwg::WriteBlocks(drawing);
  dwg::WriteRootDictionary(drawing);
  dwg::WriteLayouts(drawing);
  change(drawing);
  return OpenDrawing(dwg::PagedFile(drawing));
}

// A block that names `handle` so many times, as an entity or as a reference.
void NameManyTimes(dwg::Drawing& drawing, dwg::PlannedBlock& block, dwg::Handle handle, int times,
                   bool isReference) {
  dwg::Fields fields = drawing.NewFields(block.record);
  dwg::BeginObject(fields, drawing.roots.blocks);
  fields.T(block.name);
  fields.B(true);
  fields.BS(0);
  for (int i = 0; i < 6; ++i) fields.B(false);
  fields.BL(isReference ? 0 : times);
  fields.Point3(0.0, 0.0);
  fields.T("");
  for (int i = 0; i < times && isReference; ++i) fields.RC(1);
  fields.RC(0);
  fields.T("");
  fields.BL(0);
  fields.H(dwg::Link::HardPointer, 0);
  fields.H(dwg::Link::HardOwner, block.begin);
  for (int i = 0; i < times && !isReference; ++i) fields.H(dwg::Link::HardOwner, handle);
  fields.H(dwg::Link::HardOwner, block.end);
  for (int i = 0; i < times && isReference; ++i) fields.H(dwg::Link::SoftPointer, handle);
  fields.H(dwg::Link::HardPointer, 0);
  const dwg::RecordHead head{static_cast<unsigned>(dwg::Type::BlockRecord)};
  drawing.records[block.record] = dwg::AssembleRecord(head, fields);
}

drawing::DrawingSpec BlocksAndInsert() {
  drawing::DrawingSpec spec;
  spec.version = "AC1018";
  spec.blocks = {{.name = "A"}, {.name = "B"}, {.name = "C"}, {.name = "D"}};
  spec.entities = {drawing::Insert("A", {{.tag = "FIRST"}, {.tag = "SECOND"}})};
  spec.entities[0].handle = "50";
  return spec;
}

// Three blocks name one entity half a million times each: more than a file of that size can hold.
TEST(HostileFiles, ListsOfBlocksTellNoMoreThanADrawingHas) {
  constexpr int kTimes = 480000;
  OpenDrawing opened = PagedWith(BlocksAndInsert(), [](dwg::Drawing& drawing) {
    for (dwg::PlannedBlock& block : drawing.blocks) {
      if (block.spec != nullptr) NameManyTimes(drawing, block, 0x50, kTimes, false);
    }
  });
  std::size_t told = 0;
  for (const wchar_t* name : {L"A", L"B", L"C", L"D"}) {
    told += opened->BlockEntities(opened.Block(name)).size();
  }
  EXPECT_GE(told, std::size_t{kTimes});
  EXPECT_LE(told, std::size_t{3 * kTimes});
  EXPECT_GE(opened.report->warningCount, 1u);
  // Who asks again gets the same.
  EXPECT_EQ(opened->BlockEntities(opened.Block(L"A")).size(), std::size_t{kTimes});
}

TEST(HostileFiles, AReferenceThatABlockListsManyTimesIsToldOnce) {
  OpenDrawing opened = PagedWith(BlocksAndInsert(), [](dwg::Drawing& drawing) {
    NameManyTimes(drawing, *drawing.BlockNamed("A"), 0x50, 50000, true);
  });
  EXPECT_EQ(opened->BlockReferences(opened.Block(L"A")).size(), 1u);
}

TEST(HostileFiles, AttributesThatReferencesShareAreToldOfOneOfThemAndOnce) {
  drawing::DrawingSpec spec = BlocksAndInsert();
  spec.entities[0].attributes[0].handle = "60";
  spec.entities.push_back(drawing::Insert("A"));
  spec.entities[1].handle = "51";
  OpenDrawing opened = PagedWith(spec, [](dwg::Drawing& drawing) {
    for (const dwg::Handle insert : {0x50, 0x51}) {
      dwg::Fields fields = drawing.NewFields(insert);
      dwg::BeginEntity(drawing, fields, {}, {1, dwg::Space::Model}, {});
      fields.Point3(0.0, 0.0);
      fields.BB(3);
      fields.BD(0.0);
      fields.Point3(0.0, 0.0, 1.0);
      fields.B(true);
      fields.BL(50000);
      fields.H(dwg::Link::HardPointer, drawing.BlockNamed("A")->record);
      for (int i = 0; i < 50000; ++i) fields.H(dwg::Link::HardOwner, 0x60);
      drawing.AddEntity(dwg::Type::Insert, fields);
    }
  });
  EXPECT_EQ(opened->ReadBlockReference(model::ObjectKey{0x50}).attributes.size(), 1u);
  EXPECT_EQ(opened->ReadBlockReference(model::ObjectKey{0x51}).attributes.size(), 0u);
}

// How many files of that use a drawing names, told within seconds.
std::size_t CountFiles(OpenDrawing& opened, model::FileUse use) {
  const auto begin = std::chrono::steady_clock::now();
  const std::vector<model::FileReference> files = opened->FileReferences();
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begin;
  EXPECT_LT(taken.count(), 10.0);
  return static_cast<std::size_t>(
      std::count_if(files.begin(), files.end(),
                    [use](const model::FileReference& file) { return file.use == use; }));
}

// Entries under so many keys that all name one object.
std::vector<dwg::NamedHandle> ManyEntries(int count, dwg::Handle handle) {
  std::vector<dwg::NamedHandle> entries;
  for (int i = 0; i < count; ++i) entries.push_back({"KEY" + std::to_string(i), handle});
  return entries;
}

constexpr dwg::Handle kLargeDictionary = 0x50000;

// Links stand in a dictionary that is known by its objects alone, so that all are looked at.
TEST(HostileFiles, ADictionaryThatTheRootNamesManyTimesIsSearchedOnce) {
  drawing::DrawingSpec spec;
  spec.version = "AC1024";
  spec.dataLinks = {{.name = "rates", .connection = "rates.xlsx!Sheet", .handle = "A01"}};
  OpenDrawing opened = PagedWith(spec, [](dwg::Drawing& drawing) {
    dwg::WriteDictionary(drawing, kLargeDictionary, drawing.roots.named,
                         ManyEntries(50000, drawing.roots.named));
    dwg::WriteDictionary(drawing, drawing.roots.named, 0, ManyEntries(50000, kLargeDictionary));
  });
  EXPECT_EQ(CountFiles(opened, model::FileUse::kLinkedData), 0u);
}

TEST(HostileFiles, APictureUnderManyKeysIsToldOnce) {
  drawing::DrawingSpec spec;
  spec.version = "AC1018";
  spec.images = {{.name = "APE", .path = "a.png", .handle = "A01"}};
  OpenDrawing opened = PagedWith(spec, [](dwg::Drawing& drawing) {
    dwg::WriteDictionary(drawing, kLargeDictionary, drawing.roots.named, ManyEntries(50000, 0xA01));
    dwg::WriteDictionary(drawing, drawing.roots.named, 0, {{drawing::kImageKey, kLargeDictionary}});
  });
  EXPECT_EQ(CountFiles(opened, model::FileUse::kImage), 1u);
}

TEST(HostileFiles, AMaterialTellsNoMorePicturesThanDrawingsHave) {
  drawing::DrawingSpec spec;
  spec.version = "AC1024";
  spec.materials = {{.name = "OAK", .diffuse = "oak.jpg", .handle = "A01"}};
  OpenDrawing opened = PagedWith(spec, [](dwg::Drawing& drawing) {
    dwg::Fields fields = drawing.NewFields(0xA01);
    dwg::BeginObject(fields, drawing.roots.named);
    fields.T("OAK");
    fields.T("");
    for (int i = 0; i < 150000; ++i) fields.T("o.p");
    drawing.records[0xA01] = dwg::AssembleRecord({drawing.ClassNumber("MATERIAL")}, fields);
  });
  const std::size_t told = CountFiles(opened, model::FileUse::kTexture);
  EXPECT_GE(told, 90000u);
  EXPECT_LE(told, 100000u);
  EXPECT_GE(opened.report->warningCount, 1u);
}

TEST(HostileFiles, LongPathsAreToldUpToSomeMillionsOfCharacters) {
  constexpr std::size_t kLength = 60000;
  constexpr std::size_t kMost = std::size_t{4} << 20;
  drawing::DrawingSpec spec;
  spec.version = "AC1018";
  for (int i = 0; i < 75; ++i) {
    spec.fileList.files.push_back({std::to_string(i) + std::string(kLength - 2, 'x')});
  }
  OpenDrawing opened(spec);
  std::size_t characters = 0;
  for (const model::FileReference& file : opened->FileReferences()) {
    characters += file.path.size();
  }
  EXPECT_GE(characters, kMost - 2 * kLength);
  EXPECT_LE(characters, kMost);
  EXPECT_GE(opened.report->warningCount, 1u);
}

TEST(HostileFiles, AFreeRecordTellsNoMoreGroupsThanDrawingsHave) {
  drawing::DrawingSpec spec;
  spec.version = "AC1018";
  drawing::ObjectSpec record = drawing::Xrecord(std::vector<drawing::Tag>(150000, {280, 1}));
  record.handle = "A01";
  spec.rootEntries.emplace_back("RECORD", record);
  OpenDrawing opened(spec);
  EXPECT_EQ(opened->FreeValues(model::ObjectKey{0xA01}).size(), 100000u);
  EXPECT_EQ(opened.report->warningCount, 1u);
}

// A record that ends where its path begins.
TEST(DamagedRecords, WhatNamesNoFileAnyMoreCostsOnlyItself) {
  drawing::DrawingSpec spec;
  spec.version = "AC1018";
  spec.images = {{.name = "APE", .path = "a.png", .handle = "A01"},
                 {.name = "BEE", .path = "b.png", .handle = "A02"}};
  spec.textStyles = {{"FIRST", "first.shx"}, {"SECOND", "second.shx"}};
  spec.textStyles[0].handle = "A03";
  spec.blocks = {drawing::XrefBlock("SITE", "site.dwg"), drawing::XrefBlock("ROAD", "road.dwg")};
  spec.blocks[0].handle = "A04";
  OpenDrawing opened = PagedWith(spec, [](dwg::Drawing& drawing) {
    const auto cut = [&drawing](dwg::Handle handle, unsigned type) {
      dwg::Fields fields = drawing.NewFields(handle);
      dwg::BeginObject(fields, drawing.roots.named);
      drawing.records[handle] = dwg::AssembleRecord({type}, fields);
    };
    cut(0xA01, drawing.ClassNumber("IMAGEDEF"));
    cut(0xA03, 53);
    cut(0xA04, 49);
  });
  std::vector<std::wstring> told;
  for (const model::FileReference& file : opened->FileReferences()) {
    if (file.use < model::FileUse::kPlotStyleTable) told.push_back(file.path);
  }
  EXPECT_THAT(told, testing::ElementsAre(L"road.dwg", L"b.png", L"second.shx"));
  // One warning for all of them: a compressed page is the place of each.
  EXPECT_EQ(opened.report->warningCount, 1u);
}

}  // namespace
