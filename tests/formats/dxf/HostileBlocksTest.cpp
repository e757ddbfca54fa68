// Drawings that would make blocks cost more than they may.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <functional>

#include "formats/dxf/HandmadeDrawing.h"
#include "support/drawing/Tokens.h"
#include "support/dxf/Tokens.h"

namespace {

using namespace handmade_dxf;
using zdx::model::ObjectKey;
using zdx::model::TableKind;

std::string Many(std::size_t count, const std::function<std::string(std::size_t)>& part) {
  std::string all;
  for (std::size_t i = 0; i < count; ++i) all += part(i);
  return all;
}

std::string LineOf(int code, const std::string& value) {
  return std::to_string(code) + "\n" + value + "\n";
}

std::string SectionOf(const std::string& name, const std::string& objects) {
  return "  0\nSECTION\n  2\n" + name + "\n" + objects + "  0\nENDSEC\n";
}

std::string RecordText(const std::string& handle, const std::string& name,
                       const std::string& more = {}) {
  return "  0\nBLOCK_RECORD\n  5\n" + handle + "\n" + more + "  2\n" + name + "\n";
}

std::string ExtensionText(const std::string& handle) {
  return LineOf(102, dxf::kExtensionGroup) + LineOf(360, handle) + LineOf(102, dxf::kGroupEnd);
}

std::string InsertText(const std::string& block) { return "  0\nINSERT\n  2\n" + block + "\n"; }

// Handles that no other object of these drawings has.
std::string HandleText(std::size_t number) {
  std::string digits;
  for (std::size_t rest = number + 0x100000; rest != 0; rest /= 16) {
    digits.insert(digits.begin(), "0123456789ABCDEF"[rest % 16]);
  }
  return digits;
}

const std::string kHeader =
    SectionOf("HEADER", LineOf(9, dxf::kVersionVariable) + LineOf(1, "AC1021"));
const std::string kModelRecord = RecordText("1", "*Model_Space");

// What asking everything of all blocks, references and attributes gave, in fair time.
struct Totals {
  std::size_t blocks = 0;
  std::size_t entities = 0;
  std::size_t references = 0;
  std::size_t attributes = 0;
  std::size_t characters = 0;
};

Totals AskEverything(const std::string& bytes) {
  OpenDrawing drawing(bytes);
  const auto begin = std::chrono::steady_clock::now();
  Totals totals;
  for (const ObjectKey block : drawing->TableRecords(TableKind::kBlock)) {
    ++totals.blocks;
    drawing->RecordName(TableKind::kBlock, block);
    if (drawing->IsDynamicBlock(block)) drawing->AnonymousCopies(block);
    if (!drawing->IsLayoutBlock(block)) totals.entities += drawing->BlockEntities(block).size();
    for (const ObjectKey entity : drawing->BlockReferences(block)) {
      ++totals.references;
      drawing->OwnerBlock(entity);
      for (const ObjectKey attribute : drawing->ReadBlockReference(entity).attributes) {
        ++totals.attributes;
        totals.characters += drawing->ReadAttribute(attribute).text.value_or(L"").size();
      }
    }
  }
  drawing->GeoDataObject();
  const std::chrono::duration<double> spent = std::chrono::steady_clock::now() - begin;
  EXPECT_LT(spent.count(), kMostSeconds);
  return totals;
}

TEST(HostileBlocks, WithManyReferencesAreToldSoon) {
  const std::string text =
      kHeader + SectionOf("TABLES", kModelRecord + RecordText("2", "door")) +
      SectionOf("ENTITIES", Many(300'000, [](std::size_t) { return InsertText("door"); }));
  EXPECT_EQ(AskEverything(text).references, 300'000u);
}

TEST(HostileBlocks, OfManyNamesAndAsManyReferencesAreToldSoon) {
  constexpr std::size_t kCount = 60'000;
  const std::string text =
      kHeader +
      SectionOf("BLOCKS", Many(kCount,
                               [](std::size_t i) {
                                 const std::string name = "B" + std::to_string(i);
                                 return "  0\nBLOCK\n  2\n" + name + "\n" +
                                        InsertText("b" + std::to_string(kCount - 1 - i));
                               })) +
      SectionOf("ENTITIES", Many(kCount, [](std::size_t i) {
                  return InsertText("b" + std::to_string(i)) + InsertText(std::to_string(i));
                }));
  const Totals totals = AskEverything(text);
  // Two spaces are made up.
  EXPECT_EQ(totals.blocks, kCount + 2);
  EXPECT_EQ(totals.entities, kCount);
  EXPECT_EQ(totals.references, 2 * kCount);
}

TEST(HostileBlocks, OfOneNameAreTheFirsts) {
  const std::string text =
      kHeader +
      SectionOf("TABLES",
                kModelRecord + Many(50'000, [](std::size_t) { return RecordText("2", "door"); })) +
      SectionOf("BLOCKS", Many(50'000, [](std::size_t) {
                  return "  0\nBLOCK\n  2\ndoor\n" + InsertText("DOOR");
                }));
  const Totals totals = AskEverything(text);
  EXPECT_EQ(totals.entities, 1u);
  EXPECT_EQ(totals.references, 50'000u);
}

TEST(HostileBlocks, WithManyListedReferencesAreToldSoon) {
  const std::string listed =
      "102\n{BLKREFS\n" +
      Many(300'000, [](std::size_t i) { return "331\n" + HandleText(i % 3) + "\n"; }) + "102\n}\n";
  const std::string text =
      kHeader + SectionOf("TABLES", kModelRecord + RecordText("2", "door", listed)) +
      SectionOf("ENTITIES", Many(50'000, [](std::size_t i) {
                  return "  0\nINSERT\n  5\n" + HandleText(i) + "\n  2\ndoor\n";
                }));
  EXPECT_EQ(AskEverything(text).references, 50'000u);
}

TEST(HostileBlocks, OfOneExtensionDictionaryDoNotReadItForEach) {
  const std::string text =
      kHeader +
      SectionOf("TABLES", kModelRecord + Many(30'000,
                                              [](std::size_t i) {
                                                return RecordText(HandleText(i),
                                                                  "B" + std::to_string(i),
                                                                  ExtensionText("70"));
                                              })) +
      SectionOf("OBJECTS", "  0\nDICTIONARY\n  5\n70\n" + Many(100'000, [](std::size_t) {
                             return std::string("  3\nK\n350\n1\n");
                           }));
  EXPECT_EQ(AskEverything(text).blocks, 30'001u);
}

TEST(HostileBlocks, OfManyAttributesWithOneTextDoNotReadItForEach) {
  constexpr std::size_t kText = 1'000'000;
  const std::string text =
      kHeader + SectionOf("TABLES", kModelRecord + RecordText("2", "door")) +
      SectionOf("ENTITIES", InsertText("door") + Many(30'000,
                                                      [](std::size_t) {
                                                        return "  0\nATTRIB\n" +
                                                               ExtensionText("70") +
                                                               "  1\nplain\n  2\nT\n";
                                                      })) +
      SectionOf("OBJECTS", "  0\nDICTIONARY\n  5\n70\n" + LineOf(3, drawing::kMultiLineKey) +
                               "360\n71\n  0\nXRECORD\n  5\n71\n" +
                               LineOf(1, drawing::kEmbeddedObject) +
                               LineOf(1, std::string(kText, 'x')));
  const Totals totals = AskEverything(text);
  EXPECT_EQ(totals.attributes, 30'000u);
  // The first has its text, as far as the file is large enough that others may have theirs.
  EXPECT_GE(totals.characters, kText);
  EXPECT_LE(totals.characters, 2 * text.size());
}

TEST(HostileBlocks, ThatAreVariationsOfEachOtherAreToldSoon) {
  const auto variation = [](std::size_t i) {
    return RecordText(HandleText(i), "B" + std::to_string(i)) +
           LineOf(1001, drawing::kTrueNameApplication) + LineOf(1001, drawing::kCopyApplication) +
           LineOf(1005, HandleText(i + 1));
  };
  const std::string text = kHeader + SectionOf("TABLES", kModelRecord + Many(50'000, variation));
  EXPECT_EQ(AskEverything(text).blocks, 50'001u);
}

TEST(HostileBlocks, ThatContainThemselvesAreToldOnce) {
  const std::string text =
      kHeader + SectionOf("TABLES", kModelRecord + RecordText("2", "A") + RecordText("3", "B")) +
      SectionOf("BLOCKS", "  0\nBLOCK\n  2\nA\n" + InsertText("B") + InsertText("A") +
                              "  0\nENDBLK\n  0\nBLOCK\n  2\nB\n" + InsertText("A") +
                              "  0\nENDBLK\n") +
      SectionOf("ENTITIES", InsertText("*Model_Space"));
  EXPECT_EQ(AskEverything(text).references, 4u);
}

TEST(HostileBlocks, InManySectionsAreThoseOfTheFirst) {
  const auto section = [](const std::string& handle) {
    return SectionOf("ENTITIES", "  0\nINSERT\n  5\n" + handle + "\n  2\ndoor\n");
  };
  OpenDrawing drawing(kHeader + SectionOf("TABLES", kModelRecord + RecordText("2", "door")) +
                      section("A") + section("B"));
  EXPECT_THAT(drawing.ReferencesOf(L"door"), testing::ElementsAre("A"));
}

// Whatever a file is cut to, and whichever byte is changed, reading ends and gives no more than
// there is.
TEST(HostileBlocks, OfAFileThatIsCutOrChangedAnywhereAreRead) {
  const Tags attribute =
      Join({{{0, "ATTRIB"}, {5, "A1"}},
            Extension("70"),
            {{100, drawing::kTextMarker}, {1, "v"}, {100, drawing::kAttributeMarker}, {2, "T"}}});
  const Tags data = {{1001, drawing::kTrueNameApplication}, {1000, "window"}};
  const Contents contents = {
      .version = "AC1018",
      .records = Join({Record("1", "*Model_Space", Extension("72")),
                       Record("2", "*U1", Join({data, {{102, "{BLKREFS"}, {331, "A0"}}}))}),
      .blocks = BlockOf("*U1", Line("20")),
      .entities = Join({Insert("*U1", "A0"), attribute, {{0, "SEQEND"}}}),
      .objects =
          Join({Dictionary("70", drawing::kMultiLineKey, "71"),
                {{0, "XRECORD"}, {5, "71"}, {2, "N"}, {1, drawing::kEmbeddedObject}, {1, "w"}},
                Dictionary("72", drawing::kGeoKey, "73"),
                {{0, "GEODATA"}, {5, "73"}, {100, drawing::kGeoClass}, {90, 1}, {10, 1.0}}})};
  for (const dxf::Form form : {dxf::Form::Ascii, dxf::Form::Binary}) {
    const std::string sound = BytesOf(contents, form);
    EXPECT_EQ(AskEverything(sound).attributes, 1u);
    for (std::size_t at = 60; at < sound.size(); ++at) {
      EXPECT_LE(AskEverything(sound.substr(0, at)).attributes, 1u);
      for (const char byte : {'\0', '0'}) {
        std::string changed = sound;
        changed[at] = byte;
        EXPECT_LE(AskEverything(changed).attributes, 1u);
      }
    }
  }
}

}  // namespace
