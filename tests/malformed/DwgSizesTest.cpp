// Small DWG files that promise much: what reading them costs follows from their own size.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "malformed/Cost.h"
#include "malformed/Damage.h"
#include "malformed/DwgDamage.h"
#include "support/dwg/ObjectMap.h"
#include "support/handmade/HandMade.h"

namespace {

using damage::Outcome;
using damage::PagesOf;
using damage::ReadAtFairCost;
using handmade::Bits;
using handmade::Low32;
using handmade::Low64;
using handmade::MakePaged;
using handmade::PagedPart;
using handmade::PagedSpec;
using handmade::Repeating;
using testing::ElementsAre;

constexpr std::uint32_t kMebibyte = 1 << 20;

PagedPart& Part(PagedSpec& spec, const std::string& name) {
  for (PagedPart& part : spec.parts) {
    if (part.name == name) return part;
  }
  throw std::invalid_argument("no such part: " + name);
}

// One page that is said to have `size` bytes, from few.
void Inflate(PagedPart& part, std::uint32_t size) {
  part.size = size;
  part.pageSize = size;
  part.pages = {{Repeating(handmade::Noise(1000), size), 0}};
}

TEST(DwgSizes, SectionsThatDecompressToHundredsOfMegabytes) {
  for (const std::uint32_t size : {32 * kMebibyte, 60 * kMebibyte, 0xFFFFFF00}) {
    PagedSpec spec = PagesOf(damage::SoundRecords("AC1024"));
    for (PagedPart& part : spec.parts) {
      Inflate(part, std::min(size, 60 * kMebibyte));
      part.pageSize = size;
    }
    ReadAtFairCost(MakePaged(spec).bytes);
  }
}

// 2 million pages, all of them the same one, from some thousand bytes.
TEST(DwgSizes, ASectionMapOfMillionsOfPages) {
  PagedSpec spec = PagesOf(damage::SoundRecords("AC1024"));
  const std::string section = Low64(~std::uint64_t{0} >> 1) + Low32(0x7FFFFFFF) + Low32(0x7400) +
                              Low32(1) + Low32(2) + Low32(1) + Low32(0) +
                              handmade::Padded("AcDb:Header", 64);
  const std::string pattern = Low32(1) + Low32(2) + Low32(0x7400) + Low32(0) + Low32(1) + section +
                              Low32(1) + Low32(100) + Low64(0);
  const std::uint32_t size = 31 * kMebibyte;
  spec.sectionMap = {Repeating(pattern, size), size};
  ReadAtFairCost(MakePaged(spec).bytes);
}

// Each entry has a number of its own, and nothing in the file.
TEST(DwgSizes, APageMapOfAMillionPages) {
  PagedSpec spec = PagesOf(damage::SoundRecords("AC1024"));
  spec.editPageMap = [](std::string& map) {
    for (std::uint32_t id = 1000; id < 1000000; ++id) map += Low32(id) + Low32(0);
  };
  const Outcome outcome = ReadAtFairCost(MakePaged(spec).bytes);
  EXPECT_THAT(outcome.reading.Texts(L"Layer Name"), ElementsAre("0", "First", "Second", "Third"));
}

TEST(DwgSizes, APageThatThousandsOfNumbersMean) {
  PagedSpec spec = PagesOf(damage::SoundRecords("AC1024"));
  PagedPart& objects = Part(spec, "AcDb:AcDbObjects");
  const std::uint32_t first = 1;
  objects.size = std::uint64_t{100000} * 0x7400;
  const std::string stored = objects.pages[0].stored;
  for (std::uint64_t i = 1; i < 20000; ++i) {
    objects.pages.push_back({"", i * 0x7400, first});
  }
  ReadAtFairCost(MakePaged(spec).bytes);
}

// A drawing whose root is a dictionary of `entries` empty names and no objects, in a record of
// `size` bytes: all of its zeros stand on pages of their own or, if they aren't `written`, on none.
std::string LargeDictionary(std::uint64_t size, std::uint32_t entries, bool written) {
  constexpr std::uint64_t kPage = 0x7400;
  dwg::Drawing& drawing = damage::SoundRecords("AC1018");
  PagedSpec spec = PagesOf(drawing);
  PagedPart& objects = Part(spec, "AcDb:AcDbObjects");
  const std::string record = handmade::Low16(0x8000 | (size & 0x7FFF)) +
                             handmade::Low16(size >> 15) +
                             Bits()
                                 .BS(42)
                                 .RL(entries * 18 + 400)
                                 .H(0, drawing.roots.named)
                                 .BS(0)
                                 .BL(0)
                                 .B(true)
                                 .BL(entries)
                                 .BS(1)
                                 .RC(0)
                                 .Bytes();
  const std::uint64_t at = objects.pages.size() * kPage;
  objects.pages.push_back({handmade::OneRun(handmade::Padded(record, kPage)), at});
  objects.size = at + kPage + size;
  const std::string zeros = Repeating(std::string(100, '\0'), kPage);
  for (std::uint64_t next = at + kPage; written && next < objects.size; next += kPage) {
    objects.pages.push_back({zeros, next});
  }
  dwg::RecordArea area = dwg::LayOut(drawing.records, 4);
  area.offsets[drawing.roots.named] = at;
  PagedPart& map = Part(spec, "AcDb:Handles");
  const std::string bytes = dwg::ObjectMap(area.offsets, 2032);
  map.size = bytes.size();
  map.pages = {{handmade::OneRun(handmade::Padded(bytes, kPage)), 0}};
  return MakePaged(spec).bytes;
}

TEST(DwgSizes, ADictionaryOfMillionsOfEntriesThatAreNotWritten) {
  const Outcome outcome = ReadAtFairCost(LargeDictionary(30 * kMebibyte, 9000000, false));
  EXPECT_THAT(outcome.reading.Texts(L"Layer Name"), ElementsAre("0", "First", "Second", "Third"));
}

TEST(DwgSizes, ADictionaryOfMillionsOfEntriesFromFewBytes) {
  for (const std::uint64_t size : {7u, 20u}) {
    ReadAtFairCost(LargeDictionary(size * kMebibyte, 99000, true));
    ReadAtFairCost(LargeDictionary(size * kMebibyte, 2200000, true));
  }
}

// 2000 layers by turns on 40 pages of a mebibyte, which are more than are kept: each page would be
// decompressed again for each of its layers.
TEST(DwgSizes, LargePagesThatAreWantedByTurns) {
  constexpr std::uint64_t kPages = 40;
  constexpr std::uint64_t kSlot = 64;
  static const dwg::Writing writing;
  drawing::DrawingSpec drawingSpec = damage::Sound("AC1018");
  for (int i = 0; i < 2000; ++i) drawingSpec.layers.emplace_back("L" + std::to_string(i));
  dwg::Drawing drawing(drawingSpec, writing);
  dwg::WriteTables(drawing);
  dwg::WriteBlocks(drawing);
  dwg::WriteRootDictionary(drawing);
  dwg::RecordArea area = dwg::LayOut(drawing.records, 4);
  PagedSpec spec = PagesOf(drawing);
  PagedPart& objects = Part(spec, "AcDb:AcDbObjects");
  // What stands there still comes first, then the layers' records once more.
  std::vector<std::string> pages(kPages);
  std::string first = std::string(4, '\0') + area.bytes;
  for (std::size_t i = 0; i < drawing.layers.size(); ++i) {
    const dwg::Handle handle = drawing.layers[i].handle;
    std::string& page = pages[i % kPages];
    area.offsets[handle] = (1 + i % kPages) * kMebibyte + page.size();
    page += handmade::Padded(drawing.records.at(handle), kSlot * 2);
  }
  objects.pageSize = kMebibyte;
  objects.size = (1 + kPages) * kMebibyte;
  objects.pages = {{handmade::OneRun(handmade::Padded(first, kMebibyte)), 0}};
  for (std::uint64_t i = 0; i < kPages; ++i) {
    objects.pages.push_back(
        {Repeating(handmade::Padded(pages[i], 16000), kMebibyte), (1 + i) * kMebibyte});
  }
  PagedPart& map = Part(spec, "AcDb:Handles");
  const std::string bytes = dwg::ObjectMap(area.offsets, 2032);
  map.size = bytes.size();
  map.pages = {{handmade::OneRun(handmade::Padded(bytes, 0x7400)), 0}};
  const Outcome outcome = ReadAtFairCost(MakePaged(spec).bytes);
  EXPECT_GT(outcome.reading.Texts(L"Layer Name").size(), 400u);
}

// A table that names two objects by turns, of two pages of the map that are slow to decode.
TEST(DwgSizes, ATableThatLeapsBetweenPagesOfTheMap) {
  const std::string bytes = damage::DwgWith(damage::Sound("AC1032"), [](dwg::Drawing& drawing) {
    const dwg::Handle low = drawing.layers.at(0).handle;
    const std::string layer = drawing.records.at(low);
    const dwg::Handle distant = 0x100000;
    for (dwg::Handle i = 0; i < 2000; ++i) drawing.records[distant + i] = "";
    dwg::Fields fields = drawing.NewFields(drawing.roots.layers);
    dwg::BeginObject(fields, 0);
    constexpr int kTimes = 400000;
    fields.BL(2 * kTimes);
    for (int i = 0; i < kTimes; ++i) {
      fields.H(dwg::Link::SoftOwner, low);
      fields.H(dwg::Link::SoftOwner, distant + 1999);
    }
    drawing.records.at(drawing.roots.layers) = damage::RecordOf(50, fields);
  });
  ReadAtFairCost(bytes);
}

}  // namespace
