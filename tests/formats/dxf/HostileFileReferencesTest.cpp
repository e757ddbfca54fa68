// Drawings that would make their files and free records cost more than they may.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>

#include "formats/dxf/HandmadeDrawing.h"
#include "support/drawing/Tokens.h"
#include "support/dxf/Tokens.h"

namespace dxf_hostile_references {
namespace {

using namespace handmade_dxf;
using zdx::model::FileReference;
using zdx::model::FreeValue;

std::string SectionText(const std::string& name, const std::string& objects) {
  return "  0\nSECTION\n  2\n" + name + "\n" + objects + "  0\nENDSEC\n";
}

const std::string kHeaderText =
    SectionText("HEADER", "  9\n" + std::string(dxf::kVersionVariable) + "\n  1\nAC1021\n");

template <class Part>
std::string Repeated(std::size_t count, const Part& part) {
  std::string all;
  for (std::size_t i = 0; i < count; ++i) all += part(i);
  return all;
}

std::string EntryText(const std::string& handle) { return "  3\nK\n350\n" + handle + "\n"; }

// What the drawing tells of files, in fair time.
std::vector<FileReference> ToldSoon(const std::string& bytes) {
  OpenDrawing drawing(bytes);
  const auto begin = std::chrono::steady_clock::now();
  auto references = drawing->FileReferences();
  const std::chrono::duration<double> spent = std::chrono::steady_clock::now() - begin;
  EXPECT_LT(spent.count(), kMostSeconds);
  return references;
}

TEST(HostileFileReferences, OfADictionaryThatStandsUnderManyKeysAreToldSoon) {
  constexpr std::size_t kEntries = 100'000;
  const std::string many = Repeated(kEntries, [](std::size_t) { return EntryText("30"); });
  const auto references = ToldSoon(
      kHeaderText +
      SectionText("OBJECTS", "  0\nDICTIONARY\n  5\nC\n" +
                                 Repeated(kEntries, [](std::size_t) { return EntryText("D"); }) +
                                 "  0\nDICTIONARY\n  5\nD\n" + many +
                                 "  0\nIMAGEDEF\n  5\n30\n  1\na.png\n"));
  EXPECT_EQ(references.size(), 1u);
}

TEST(HostileFileReferences, OfManyRecordsOfOneHandleAreToldSoon) {
  constexpr std::size_t kRecords = 100'000;
  const auto references = ToldSoon(
      kHeaderText + SectionText("OBJECTS", "  0\nDICTIONARY\n  5\nC\n" + EntryText("D") +
                                               "  0\nDICTIONARY\n  5\nD\n" + EntryText("30") +
                                               Repeated(kRecords, [](std::size_t) {
                                                 return "  0\nIMAGEDEF\n  5\n30\n  1\na.png\n";
                                               })));
  EXPECT_EQ(references.size(), kRecords);
}

// Each would have a copy of the name.
TEST(HostileFileReferences, OfOneRecordAreNoMoreThanItMayHave) {
  const std::string name(1'000'000, 'n');
  const std::string paths = Repeated(300'000, [](std::size_t) { return "  3\na.png\n"; });
  const auto references = ToldSoon(
      kHeaderText + SectionText("OBJECTS", "  0\nDICTIONARY\n  5\nC\n" + EntryText("D") +
                                               "  0\nDICTIONARY\n  5\nD\n  3\n" + name +
                                               "\n350\n30\n  0\nMATERIAL\n  5\n30\n" + paths));
  EXPECT_EQ(references.size(), 2u);
}

TEST(HostileFileReferences, OfOneNameAreTheFirsts) {
  const auto references =
      ToldSoon(kHeaderText +
               SectionText("TABLES", "  0\nBLOCK_RECORD\n  5\n1\n  2\n*Model_Space\n" +
                                         Repeated(50'000,
                                                  [](std::size_t) {
                                                    return "  0\nBLOCK_RECORD\n  5\n2\n  2\nsite\n";
                                                  })) +
               SectionText("BLOCKS", Repeated(50'000, [](std::size_t) {
                             return "  0\nBLOCK\n  2\nsite\n 70\n4\n  1\nsite.dwg\n  0\nENDBLK\n";
                           })));
  EXPECT_EQ(references.size(), 1u);
}

TEST(HostileFileReferences, OfAFileThatIsCutOrChangedAnywhereAreNoMoreThanThereAre) {
  const Tags block = {{0, "BLOCK"},    {2, "site"}, {70, 12},
                      {1, "site.dwg"}, {3, "site"}, {0, "ENDBLK"}};
  const Contents contents = {
      .version = "AC1018",
      .records = Join({Record("1", "*Model_Space"),
                       Record("2", "site"),
                       {{0, "STYLE"}, {5, "3"}, {2, "S"}, {70, 0}, {3, "f.shx"}, {4, "b.shx"}}}),
      .blocks = block,
      .objects = Join(
          {Dictionary("C", "P", "D"),
           Dictionary("D", "I", "30"),
           {{0, "IMAGEDEF"}, {5, "30"}, {100, drawing::kImageDefinitionMarker}, {1, "i.png"}},
           {{0, "LAYOUT"}, {5, "31"}, {100, drawing::kPlotSettingsMarker}, {2, "p.pc3"}, {7, "c"}},
           {{0, "XRECORD"}, {5, "32"}, {100, drawing::kXrecordMarker}, {300, "n"}, {310, "abc"}}})};
  for (const dxf::Form form : {dxf::Form::Ascii, dxf::Form::Binary}) {
    const auto ask = [](const std::string& bytes) {
      OpenDrawing drawing(bytes);
      const std::size_t told = drawing->FileReferences().size();
      if (const auto record = drawing->Find(0x32)) {
        EXPECT_LE(drawing->FreeValues(*record).size(), 3u);
      }
      return told;
    };
    const std::string sound = BytesOf(contents, form);
    EXPECT_EQ(ask(sound), 6u);
    for (std::size_t at = 60; at < sound.size(); ++at) {
      EXPECT_LE(ask(sound.substr(0, at)), 6u);
      for (const char byte : {'\0', '0'}) {
        std::string changed = sound;
        changed[at] = byte;
        EXPECT_LE(ask(changed), 6u);
      }
    }
  }
}

}  // namespace
}  // namespace dxf_hostile_references
