#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "backends/database/dwg/records/ClassTable.h"
#include "formats/dwg/Containers.h"
#include "support/handmade/HandMade.h"

namespace zdx::dwg {
namespace {

using handmade::Bits;
using handmade::Low16;
using handmade::Low32;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr Format kClassesOf1015 = {model::kVersion1015, 0};
constexpr Format kClassesOf1018 = {model::kVersion1018, 0};
constexpr Format kClassesOf1021 = {model::kVersion1021, 0};

std::string FramedClasses(const Bits& fields) {
  std::string bytes("\x8D\xA1\xC4\xB8\xC4\xA9\xF8\xC5\xC0\xDC\xF4\x5F\xE7\xCF\xB6\x8A", 16);
  bytes += Low32(fields.Bytes().size()) + fields.Bytes();
  return bytes + Low16(handmade::SlowCrc16(bytes.substr(16)));
}

// The data of a class but for its texts, and the texts.
struct Class {
  unsigned number;
  std::string className;
  std::string dxfName;
  bool isEntity;
};
const std::vector<Class> kClasses = {{500, "Wall", "WALL", true}, {501, "List", "LIST", false}};

Bits OldClasses(Format format) {
  Bits bits;
  if (format.version >= model::kVersion1018) bits.BS(501).RC(0).RC(0).B(true);
  for (const Class& row : kClasses) {
    bits.BS(row.number).BS(0).T("app").T(row.className).T(row.dxfName).B(false);
    bits.BS(row.isEntity ? 0x1F2 : 0x1F3);
    if (format.version >= model::kVersion1018) bits.BL(3).BL(22).BL(0).BL(0).BL(0);
  }
  return bits;
}

Bits NewClasses() {
  Bits data = Bits().BS(501).RC(0).RC(0).B(true);
  Bits texts;
  for (const Class& row : kClasses) {
    data.BS(row.number).BS(0).B(false).BS(row.isEntity ? 0x1F2 : 0x1F3);
    data.BL(3).BL(22).BL(0).BL(0).BL(0);
    texts.WideT("app").WideT(row.className).WideT(row.dxfName);
  }
  data.Append(texts).RS(static_cast<unsigned>(texts.size())).B(true);
  return Bits().RL(static_cast<std::uint32_t>(32 + data.size())).Append(data);
}

class ClassTableTest : public testing::Test {
 protected:
  ClassTable Read(const std::string& bytes, Format format) {
    PlainSection section(bytes, 0x900);
    return ClassTable(section, format, report);
  }

  model::Report report;
};

TEST_F(ClassTableTest, BelowAC1018ClassesComeUntilTheEnd) {
  const ClassTable table = Read(FramedClasses(OldClasses(kClassesOf1015)), kClassesOf1015);
  ASSERT_NE(table.Find(501), nullptr);
  EXPECT_EQ(table.Find(500)->className, "Wall");
  EXPECT_TRUE(table.Find(500)->isEntity);
  EXPECT_EQ(table.Find(501)->className, "List");
  EXPECT_FALSE(table.Find(501)->isEntity);
  EXPECT_EQ(table.Find(502), nullptr);
  EXPECT_THAT(TextsOf(report), IsEmpty());
}

TEST_F(ClassTableTest, FromAC1018TheHighestNumberStandsBeforeThem) {
  Bits fields = OldClasses(kClassesOf1018);
  // More bytes than fill the last one.
  const ClassTable table = Read(FramedClasses(fields.RL(0)), kClassesOf1018);
  ASSERT_NE(table.Find(501), nullptr);
  EXPECT_EQ(table.Find(501)->className, "List");
  EXPECT_THAT(TextsOf(report), IsEmpty());
}

TEST_F(ClassTableTest, FromAC1021TextsStandApart) {
  const ClassTable table = Read(FramedClasses(NewClasses()), kClassesOf1021);
  ASSERT_NE(table.Find(501), nullptr);
  EXPECT_EQ(table.Find(500)->className, handmade::Wide("Wall"));
  EXPECT_TRUE(table.Find(500)->isEntity);
  EXPECT_EQ(table.Find(501)->className, handmade::Wide("List"));
  EXPECT_THAT(TextsOf(report), IsEmpty());
}

TEST_F(ClassTableTest, AHighestNumberBelow500IsAnEmptyTable) {
  EXPECT_EQ(Read(FramedClasses(Bits().BS(499).RC(0).RC(0).B(true)), kClassesOf1018).Find(500),
            nullptr);
  EXPECT_THAT(TextsOf(report), IsEmpty());
}

TEST_F(ClassTableTest, ATableThatEndsEarlyKeepsItsClasses) {
  Bits fields = Bits().BS(0xFFFF).RC(0).RC(0).B(true);
  fields.BS(500).BS(0).T("app").T("Wall").T("WALL").B(false).BS(0x1F2);
  fields.BL(3).BL(22).BL(0).BL(0).BL(0).BS(501);
  const ClassTable table = Read(FramedClasses(fields), kClassesOf1018);
  ASSERT_NE(table.Find(500), nullptr);
  EXPECT_EQ(table.Find(501), nullptr);
  EXPECT_THAT(TextsOf(report), ElementsAre(L"The list of classes ends early."));
  EXPECT_EQ(report.warnings[0].offset, 0x900u);
}

TEST_F(ClassTableTest, AClassIsLikeATypeByItsNameOrByTheEndOfIt) {
  Bits fields;
  unsigned number = 500;
  for (const char* name : {"IMAGEDEF", "FARPOINTCLOUDDEF", "POINTCLOUDDEFINER", "FARIMAGEDEF"}) {
    fields.BS(number++).BS(0).T("app").T("Class").T(name).B(false).BS(0x1F3);
  }
  const ClassTable table = Read(FramedClasses(fields), kClassesOf1015);
  EXPECT_EQ(table.Find(500)->like, kImageDefinitionType);
  EXPECT_EQ(table.Find(501)->like, kPointCloudDefinitionType);
  EXPECT_EQ(table.Find(502)->like, std::nullopt);
  EXPECT_EQ(table.Find(503)->like, std::nullopt);
  EXPECT_TRUE(table.HasLike(kPointCloudDefinitionType));
  EXPECT_FALSE(table.HasLike(kMaterialType));
}

TEST_F(ClassTableTest, OfARepeatedNumberTheFirstCounts) {
  Bits fields;
  for (const char* name : {"First", "Second"}) {
    fields.BS(500).BS(0).T("app").T(name).T("X").B(false).BS(0x1F3);
  }
  EXPECT_EQ(Read(FramedClasses(fields), kClassesOf1015).Find(500)->className, "First");
}

}  // namespace
}  // namespace zdx::dwg
