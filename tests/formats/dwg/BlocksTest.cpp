// What stands in blocks, and where they are shown.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "formats/dwg/OpenDrawing.h"
#include "support/drawing/GeoSpec.h"
#include "support/drawing/Tokens.h"
#include "support/dwg/Containers.h"
#include "support/dwg/Drawing.h"
#include "support/dwg/Types.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using zdx::model::ObjectDescription;
using zdx::model::ObjectKey;
using zdx::model::TableKind;

using Kinds = std::vector<ObjectDescription::Kind>;
using Keys = std::vector<ObjectKey>;

ObjectKey KeyOf(const std::string& handle) { return ObjectKey{std::stoull(handle, nullptr, 16)}; }

drawing::EntitySpec Handled(drawing::EntitySpec entity, const std::string& handle) {
  entity.handle = handle;
  return entity;
}

// The record of a block that lists no references, whatever there are.
std::string RecordWithoutReferences(const dwg::Drawing& drawing, const dwg::PlannedBlock& block) {
  dwg::Fields fields = drawing.NewFields(block.record);
  const bool hasTexts = fields.IsSince(dwg::Version::AC1021);
  dwg::BeginObject(fields, drawing.roots.blocks);
  fields.T(block.name);
  if (!hasTexts) fields.B(true);
  fields.BS(0);
  if (!hasTexts) fields.B(false);
  for (int i = 0; i < 5; ++i) fields.B(false);
  if (fields.IsSince(dwg::Version::AC1018)) {
    fields.BL(static_cast<std::int64_t>(block.entities.size()));
  }
  fields.Point3(0.0, 0.0);
  fields.T("");
  fields.RC(0);
  fields.T("");
  fields.BL(0);
  if (hasTexts) {
    fields.BS(0);
    fields.B(true);
    fields.RC(0);
  }
  fields.H(dwg::Link::HardPointer, 0);
  fields.H(dwg::Link::HardOwner, block.begin);
  if (fields.IsSince(dwg::Version::AC1018)) {
    for (const auto& entity : block.entities) fields.H(dwg::Link::HardOwner, entity.handle);
  } else {
    fields.H(dwg::Link::SoftPointer, block.entities.empty() ? 0 : block.entities.front().handle);
    fields.H(dwg::Link::SoftPointer, block.entities.empty() ? 0 : block.entities.back().handle);
  }
  fields.H(dwg::Link::HardOwner, block.end);
  fields.H(dwg::Link::HardPointer, block.layout);
  return dwg::AssembleRecord({static_cast<unsigned>(dwg::Type::BlockRecord)}, fields);
}

class Blocks : public testing::TestWithParam<const char*> {
 protected:
  Blocks() { spec.version = GetParam(); }

  bool Since(const std::string& version) const { return GetParam() >= version; }

  // The drawing with its records changed before they are put into a file.
  OpenDrawing Changed(const std::function<void(dwg::Drawing&)>& change) const {
    const dwg::Writing writing;
    dwg::Drawing made(spec, writing);
    dwg::WriteTables(made);
    dwg::WriteBlocks(made);
    dwg::WriteRootDictionary(made);
    if (made.IsSince(dwg::Version::AC1015)) dwg::WriteLayouts(made);
    change(made);
    if (!made.IsSince(dwg::Version::AC1018)) return OpenDrawing(dwg::FlatFile(made));
    return OpenDrawing(GetParam() == std::string("AC1021") ? dwg::CodedFile(made)
                                                           : dwg::PagedFile(made));
  }

  // The drawing with an attribute A02 whose lines stand in its record as `pieces`.
  OpenDrawing WithPieces(const std::vector<drawing::Tag>& pieces) {
    spec.blocks = {{.name = "FRAME"}};
    spec.entities = {
        Handled(drawing::Insert("FRAME", {{.tag = "REMARK", .handle = "A02"}}), "A01")};
    std::vector<drawing::Tag> tags = {{70, 2}, {2, "REMARK"}, {1, drawing::kEmbeddedObject}};
    tags.insert(tags.end(), pieces.begin(), pieces.end());
    return Changed([&tags](dwg::Drawing& made) {
      dwg::Fields fields = made.NewFields(0xA02);
      const drawing::ObjectSpec lines = drawing::Xrecord(tags);
      dwg::BeginEntity(made, fields, {}, {0xA01, dwg::Space::None, {}, true},
                       {{drawing::kMultiLineKey, lines}});
      fields.H(dwg::Link::HardPointer, 0);
      dwg::PutText(fields, {"plain", {}, 1.0});
      if (made.IsSince(dwg::Version::AC1024)) fields.RC(0);
      fields.T("REMARK_001");
      fields.BS(0);
      fields.RC(0);
      if (made.IsSince(dwg::Version::AC1021)) fields.B(true);
      made.records.erase(0xA02);
      made.AddEntity(dwg::Type::Attribute, fields);
    });
  }

  Keys EntitiesOf(OpenDrawing& opened, const std::wstring& block) {
    return opened->BlockEntities(opened.Block(block));
  }
  Keys ReferencesOf(OpenDrawing& opened, const std::wstring& block) {
    return opened->BlockReferences(opened.Block(block));
  }

  drawing::DrawingSpec spec;
};

TEST_P(Blocks, HaveTheirEntitiesInStoredOrder) {
  spec.blocks = {{.name = "FRAME",
                  .definitions = {{.tag = "NUMBER", .handle = "A01"}},
                  .entities = {Handled(drawing::Line("0", {}, {1, 1}), "A05"),
                               Handled(drawing::Circle("0", {}, 2), "A03"),
                               Handled(drawing::Text("0", {}, 1, "Up"), "A04"),
                               Handled(drawing::Insert("EMPTY", {{.tag = "A"}}), "A09"),
                               Handled(drawing::Dot("0", {}), "A07")}},
                 {.name = "EMPTY"}};
  OpenDrawing opened(spec);
  const Keys entities = EntitiesOf(opened, L"FRAME");
  EXPECT_THAT(entities, ElementsAre(KeyOf("A01"), KeyOf("A05"), KeyOf("A03"), KeyOf("A04"),
                                    KeyOf("A09"), KeyOf("A07")));
  Kinds kinds;
  std::vector<std::wstring> classes;
  for (const ObjectKey entity : entities) {
    kinds.push_back(opened->Describe(entity).kind);
    classes.push_back(opened->Describe(entity).className);
    EXPECT_EQ(opened->OwnerBlock(entity), opened.Block(L"FRAME"));
  }
  using enum ObjectDescription::Kind;
  EXPECT_EQ(kinds,
            (Kinds{kAttributeDefinition, kEntity, kEntity, kText, kBlockReference, kEntity}));
  EXPECT_THAT(classes, ElementsAre(L"AcDbAttributeDefinition", L"AcDbLine", L"AcDbCircle",
                                   L"AcDbText", L"AcDbBlockReference", L"AcDbPoint"));
  EXPECT_EQ(opened->EntityText(KeyOf("A04")), L"Up");
  EXPECT_EQ(opened->EntityText(KeyOf("A05")), std::nullopt);
  EXPECT_THAT(EntitiesOf(opened, L"EMPTY"), IsEmpty());
  EXPECT_EQ(opened.report->warningCount, 0u);
}

TEST_P(Blocks, EntitiesStandInModelSpaceOrOnPaperByTheirMode) {
  spec.entities = {Handled(drawing::Line("0", {}, {1, 1}), "A01")};
  spec.layouts = {{"Layout1", {Handled(drawing::Line("0", {}, {1, 1}), "A02")}}};
  OpenDrawing opened(spec);
  EXPECT_EQ(opened->OwnerBlock(KeyOf("A01")), opened.Block(L"*Model_Space"));
  EXPECT_THAT(EntitiesOf(opened, L"*Model_Space"), ElementsAre(KeyOf("A01")));
  if (!Since("AC1015")) return;
  EXPECT_EQ(opened->OwnerBlock(KeyOf("A02")), opened.Block(L"*Paper_Space"));
  EXPECT_THAT(EntitiesOf(opened, L"*Paper_Space"), ElementsAre(KeyOf("A02")));
}

TEST_P(Blocks, OfLayoutsAreKnown) {
  spec.blocks = {{.name = "FRAME"}, {.name = "*U7"}};
  spec.layouts = {"Layout1", "Layout2"};
  OpenDrawing opened(spec);
  std::vector<std::string> layouts;
  const auto& records = opened->TableRecords(TableKind::kBlock);
  for (std::size_t i = 0; i < records.size(); ++i) {
    if (opened->IsLayoutBlock(records[i])) layouts.push_back(opened.BlockNames()[i]);
  }
  EXPECT_THAT(layouts, SizeIs(Since("AC1015") ? 3 : 2));
  EXPECT_FALSE(opened->IsLayoutBlock(opened.Block(L"FRAME")));
  EXPECT_FALSE(opened->IsLayoutBlock(opened.Block(L"*U7")));
}

TEST_P(Blocks, AreShownWhereverAReferenceNamesThem) {
  spec.blocks = {{.name = "FRAME"},
                 {.name = "SHEET",
                  .entities = {Handled(drawing::Insert("FRAME"), "A09"),
                               Handled(drawing::Insert("OTHER"), "A08")}},
                 {.name = "OTHER"},
                 {.name = "UNUSED"}};
  spec.entities = {Handled(drawing::Insert("FRAME"), "A03"),
                   Handled(drawing::Insert("SHEET"), "A02")};
  OpenDrawing opened(spec);
  EXPECT_THAT(ReferencesOf(opened, L"FRAME"), ElementsAre(KeyOf("A03"), KeyOf("A09")));
  EXPECT_THAT(ReferencesOf(opened, L"SHEET"), ElementsAre(KeyOf("A02")));
  EXPECT_THAT(ReferencesOf(opened, L"OTHER"), ElementsAre(KeyOf("A08")));
  EXPECT_THAT(ReferencesOf(opened, L"UNUSED"), IsEmpty());
  EXPECT_EQ(opened->ReadBlockReference(KeyOf("A09")).block, opened.Block(L"FRAME"));
  EXPECT_EQ(opened.report->warningCount, 0u);
}

TEST_P(Blocks, ReferencesAreFoundByTheirHandlesWhereNoBlockListsAny) {
  spec.blocks = {{.name = "FRAME"},
                 {.name = "SHEET", .entities = {Handled(drawing::Insert("FRAME"), "A01")}}};
  spec.entities = {Handled(drawing::Insert("FRAME"), "A09"), drawing::Insert("SHEET"),
                   Handled(drawing::Insert("FRAME"), "A03")};
  OpenDrawing opened = Changed([](dwg::Drawing& made) {
    if (!made.IsSince(dwg::Version::AC1015)) return;
    for (const dwg::PlannedBlock& block : made.blocks) {
      made.records.at(block.record) = RecordWithoutReferences(made, block);
    }
  });
  EXPECT_THAT(ReferencesOf(opened, L"FRAME"),
              ElementsAre(KeyOf("A01"), KeyOf("A03"), KeyOf("A09")));
  EXPECT_THAT(ReferencesOf(opened, L"SHEET"), SizeIs(1));
}

TEST_P(Blocks, ABlockThatListsNoReferencesHasNoneIfAnotherListsSome) {
  if (!Since("AC1015")) GTEST_SKIP() << "this version has no such lists";
  spec.blocks = {{.name = "FRAME"}, {.name = "OTHER"}};
  spec.entities = {drawing::Insert("FRAME"), drawing::Insert("OTHER")};
  OpenDrawing opened = Changed([](dwg::Drawing& made) {
    const dwg::PlannedBlock& block = *made.BlockNamed("FRAME");
    made.records.at(block.record) = RecordWithoutReferences(made, block);
  });
  EXPECT_THAT(ReferencesOf(opened, L"FRAME"), IsEmpty());
  EXPECT_THAT(ReferencesOf(opened, L"OTHER"), SizeIs(1));
}

TEST_P(Blocks, ListsTellEachReferenceOnceThatTheDrawingHas) {
  if (!Since("AC1015")) GTEST_SKIP() << "this version has no such lists";
  spec.blocks = {{.name = "FRAME"}};
  spec.entities = {Handled(drawing::Insert("FRAME"), "A02"), drawing::Line("0", {}, {1, 1})};
  const dwg::Writing writing;
  dwg::Drawing made(spec, writing);
  // Nothing, nobody, a layer and one of them twice.
  made.BlockNamed("FRAME")->inserts = {0, 0xFFF00, made.layers[0].handle, 0xA02};
  dwg::WriteTables(made);
  dwg::WriteBlocks(made);
  dwg::WriteRootDictionary(made);
  OpenDrawing opened(made.IsSince(dwg::Version::AC1018) ? GetParam() == std::string("AC1021")
                                                              ? dwg::CodedFile(made)
                                                              : dwg::PagedFile(made)
                                                        : dwg::FlatFile(made));
  EXPECT_THAT(ReferencesOf(opened, L"FRAME"), ElementsAre(KeyOf("A02")));
}

TEST_P(Blocks, AReferenceHasItsAttributesInStoredOrder) {
  spec.blocks = {{.name = "FRAME"}};
  spec.entities = {Handled(drawing::Insert("FRAME", {{.tag = "A", .value = "1", .handle = "A09"},
                                                     {.tag = "B", .value = "2", .handle = "A03"},
                                                     {.tag = "C", .value = "3", .handle = "A05"}}),
                           "A01"),
                   Handled(drawing::Insert("FRAME"), "A02"),
                   Handled(drawing::Insert("FRAME", {{.tag = "A", .handle = "A12"}}), "A11")};
  OpenDrawing opened(spec);
  EXPECT_THAT(opened->ReadBlockReference(KeyOf("A01")).attributes,
              ElementsAre(KeyOf("A09"), KeyOf("A03"), KeyOf("A05")));
  EXPECT_THAT(opened->ReadBlockReference(KeyOf("A02")).attributes, IsEmpty());
  EXPECT_THAT(opened->ReadBlockReference(KeyOf("A11")).attributes, ElementsAre(KeyOf("A12")));
  const zdx::model::Attribute attribute = opened->ReadAttribute(KeyOf("A03"));
  EXPECT_EQ(attribute.tag, L"B");
  EXPECT_EQ(attribute.text, L"2");
  EXPECT_EQ(attribute.prompt, std::nullopt);
  EXPECT_FALSE(attribute.isMultiLine);
  EXPECT_EQ(opened->Describe(KeyOf("A03")).kind, ObjectDescription::Kind::kAttribute);
  EXPECT_EQ(opened->OwnerBlock(KeyOf("A03")), std::nullopt);
  EXPECT_EQ(opened.report->warningCount, 0u);
}

TEST_P(Blocks, ADefinitionHasItsPromptTextAndWhetherItIsConstant) {
  spec.blocks = {{.name = "FRAME",
                  .definitions = {{.tag = "NUMBER",
                                   .value = "0",
                                   .prompt = "N\xC3\xBAmero?",
                                   .flags = drawing::kPreset,
                                   .handle = "A01"},
                                  {.tag = "SCALE",
                                   .value = "1:100",
                                   .flags = drawing::kConstant | drawing::kInvisible,
                                   .handle = "A02"}}}};
  OpenDrawing opened(spec);
  const zdx::model::Attribute number = opened->ReadAttribute(KeyOf("A01"));
  EXPECT_EQ(number.tag, L"NUMBER");
  EXPECT_EQ(number.prompt, L"N\u00FAmero?");
  EXPECT_EQ(number.text, L"0");
  EXPECT_FALSE(number.isConstant);
  const zdx::model::Attribute scale = opened->ReadAttribute(KeyOf("A02"));
  EXPECT_EQ(scale.text, L"1:100");
  EXPECT_EQ(scale.prompt, L"");
  EXPECT_TRUE(scale.isConstant);
}

TEST_P(Blocks, AttributesWithManyLinesHaveTheirTrueTagAndAllLines) {
  const std::string lines = "one\\Ptwo; three";
  spec.blocks = {{.name = "FRAME",
                  .definitions = {{.tag = "REMARK",
                                   .value = lines,
                                   .prompt = "What?",
                                   .flags = drawing::kConstant,
                                   .multiLine = true,
                                   .handle = "A01"}}}};
  spec.entities = {drawing::Insert(
      "FRAME", {{.tag = "REMARK", .value = lines, .multiLine = true, .handle = "A02"},
                {.tag = "PLAIN", .value = "x", .handle = "A03"}})};
  OpenDrawing opened(spec);
  for (const char* handle : {"A01", "A02"}) {
    const zdx::model::Attribute attribute = opened->ReadAttribute(KeyOf(handle));
    EXPECT_EQ(attribute.tag, L"REMARK");
    EXPECT_EQ(attribute.text, L"one\\Ptwo; three");
    EXPECT_TRUE(attribute.isMultiLine);
  }
  EXPECT_EQ(opened->ReadAttribute(KeyOf("A01")).prompt, L"What?");
  EXPECT_TRUE(opened->ReadAttribute(KeyOf("A01")).isConstant);
  EXPECT_FALSE(opened->ReadAttribute(KeyOf("A03")).isMultiLine);
  EXPECT_EQ(opened.report->warningCount, 0u);
}

TEST_P(Blocks, ManyLinesMayStandInPieces) {
  if (Since("AC1032")) GTEST_SKIP() << "this version holds them in one text";
  OpenDrawing opened = WithPieces({{3, "one, "}, {3, "two, "}, {1, "three"}, {1, "no line"}});
  const zdx::model::Attribute attribute = opened->ReadAttribute(KeyOf("A02"));
  EXPECT_EQ(attribute.tag, L"REMARK");
  EXPECT_EQ(attribute.text, L"one, two, three");
  EXPECT_TRUE(attribute.isMultiLine);
}

TEST_P(Blocks, PiecesOfManyLinesMayCutACharacter) {
  if (Since("AC1032")) GTEST_SKIP() << "this version holds them in one text";
  OpenDrawing opened = WithPieces({{3, "one \\U+4E"}, {1, "2D"}});
  const zdx::model::Attribute attribute = opened->ReadAttribute(KeyOf("A02"));
  EXPECT_EQ(attribute.text, Since("AC1021") ? L"one \\U+4E2D" : L"one \u4E2D");
  EXPECT_EQ(opened.report->warningCount, 0u);
}

TEST_P(Blocks, TagsMayHoldEscapesInEveryVersion) {
  const std::string tag = "T\\U+00E9";
  spec.blocks = {{.name = "FRAME", .definitions = {{.tag = tag, .value = tag, .handle = "A01"}}}};
  spec.entities = {drawing::Insert("FRAME", {{.tag = tag, .multiLine = true, .handle = "A02"}})};
  OpenDrawing opened(spec);
  EXPECT_EQ(opened->ReadAttribute(KeyOf("A01")).tag, L"T\u00E9");
  EXPECT_EQ(opened->ReadAttribute(KeyOf("A02")).tag, L"T\u00E9");
  EXPECT_EQ(opened->ReadAttribute(KeyOf("A01")).text, Since("AC1021") ? L"T\\U+00E9" : L"T\u00E9");
}

TEST_P(Blocks, AreDynamicByTheirExtensionAndTheirName) {
  spec.applications.emplace_back("AcDbBlockRepBTag");
  spec.applications.emplace_back("AcDbDynamicBlockTrueName");
  spec.blocks = {
      {.name = "GATE", .handle = "A00"},
      {.name = "*U2", .extendedData = {{1001, "AcDbBlockRepBTag"}, {1070, 1}, {1005, "A00"}}},
      {.name = "WALL", .handle = "A10"},
      {.name = "*U1", .extendedData = {{1001, "AcDbBlockRepBTag"}, {1070, 1}, {1005, "A00"}}},
      {.name = "DOOR", .extension = {{drawing::kDynamicBlockKey, drawing::Xrecord()}}},
      {.name = "ROOF", .extendedData = {{1001, "AcDbDynamicBlockTrueName"}, {1000, "ROOF"}}}};
  spec.blocks[0].isDynamic = true;
  OpenDrawing opened(spec);
  for (const wchar_t* name : {L"GATE", L"DOOR", L"ROOF"}) {
    EXPECT_TRUE(opened->IsDynamicBlock(opened.Block(name))) << name;
  }
  for (const wchar_t* name : {L"WALL", L"*U2", L"*Model_Space"}) {
    EXPECT_FALSE(opened->IsDynamicBlock(opened.Block(name))) << name;
  }
  EXPECT_THAT(opened->AnonymousCopies(opened.Block(L"GATE")),
              ElementsAre(opened.Block(L"*U2"), opened.Block(L"*U1")));
  EXPECT_THAT(opened->AnonymousCopies(opened.Block(L"WALL")), IsEmpty());
}

TEST_P(Blocks, AreNoVariationsOfThemselves) {
  spec.blocks = {{.name = "GATE", .isDynamic = true, .copyOf = "GATE"},
                 {.name = "*U1", .copyOf = "GATE"}};
  OpenDrawing opened(spec);
  EXPECT_THAT(opened->AnonymousCopies(opened.Block(L"GATE")), ElementsAre(opened.Block(L"*U1")));
}

TEST_P(Blocks, ModelSpaceKnowsWhereItLiesOnTheEarth) {
  drawing::GeoSpec geo;
  geo.designPoint = {1.5, 2.5, 3.5};
  geo.referencePoint = {4.5, 5.5, 6.5};
  geo.northX = -1.0;
  geo.northY = 1.0;
  geo.correctsSeaLevel = true;
  geo.coordinateSystem = "<Dictionary/>";
  spec.modelExtension = {{drawing::kGeoKey, drawing::GeoObject(geo)}};
  OpenDrawing opened(spec);
  const auto object = opened->GeoDataObject();
  ASSERT_TRUE(object);
  EXPECT_EQ(opened->Describe(*object).kind, ObjectDescription::Kind::kGeoData);
  const auto data = opened->ReadGeoData(*object);
  ASSERT_TRUE(data);
  EXPECT_EQ(data->coordinateType, 3);
  EXPECT_THAT(data->designPoint, ElementsAre(1.5, 2.5, 3.5));
  EXPECT_THAT(data->referencePoint, ElementsAre(4.5, 5.5, 6.5));
  EXPECT_THAT(data->northVector, ElementsAre(-1.0, 1.0));
  EXPECT_NEAR(data->northAngle, 0.785398163397448, 1e-15);
  EXPECT_TRUE(data->correctsSeaLevel);
  EXPECT_EQ(data->coordinateSystem, L"<Dictionary/>");
}

TEST_P(Blocks, WithoutALocationObjectThereIsNone) {
  spec.modelExtension = {{drawing::kGeoKey, drawing::Xrecord()}};
  OpenDrawing other(spec);
  EXPECT_EQ(other->GeoDataObject(), std::nullopt);
  EXPECT_EQ(other.report->warningCount, 1u);
  spec.modelExtension.clear();
  OpenDrawing none(spec);
  EXPECT_EQ(none->GeoDataObject(), std::nullopt);
  EXPECT_EQ(none.report->warningCount, 0u);
}

// Where each entity names the one behind it.
class Chains : public Blocks {
 protected:
  // Leads from the entity `handle` of the block A to `next`.
  static void Lead(dwg::Drawing& made, dwg::Handle handle, dwg::Handle next, dwg::Handle owner) {
    dwg::Fields fields = made.NewFields(handle);
    dwg::BeginEntity(made, fields, {}, {owner, dwg::Space::None, {1, next}}, {});
    made.records.erase(handle);
    made.AddEntity(dwg::Type::Circle, fields);
  }

  static drawing::BlockSpec Block(const char* name, int first) {
    drawing::BlockSpec block{.name = name};
    for (int i = first; i < first + 9; ++i) {
      block.entities.push_back(Handled(drawing::Circle("0", {}, 1), "A0" + std::to_string(i)));
    }
    return block;
  }
};

TEST_P(Chains, ThatAreRingsEndAndTellEachEntityOnce) {
  for (const dwg::Handle back : {0xA01, 0xA02, 0xA03, 0xA04, 0xA05}) {
    spec.blocks = {Block("A", 1)};
    OpenDrawing opened = Changed(
        [back](dwg::Drawing& made) { Lead(made, 0xA05, back, made.BlockNamed("A")->record); });
    EXPECT_THAT(EntitiesOf(opened, L"A"),
                ElementsAre(KeyOf("A01"), KeyOf("A02"), KeyOf("A03"), KeyOf("A04"), KeyOf("A05")));
    EXPECT_EQ(opened.report->warningCount, 1u);
  }
}

TEST_P(Chains, EndWhereAnEntityBelongsToAnotherBlock) {
  spec.blocks = {Block("A", 1), {.name = "B", .entities = {drawing::Dot("0", {})}}};
  OpenDrawing opened =
      Changed([](dwg::Drawing& made) { Lead(made, 0xA05, 0xA06, made.BlockNamed("B")->record); });
  EXPECT_THAT(EntitiesOf(opened, L"A"), SizeIs(4));
  EXPECT_EQ(opened.report->warningCount, 1u);
}

TEST_P(Chains, EndWhereTheDrawingHasNoNextEntity) {
  spec.blocks = {Block("A", 1)};
  OpenDrawing opened =
      Changed([](dwg::Drawing& made) { Lead(made, 0xA05, 0xFFF00, made.BlockNamed("A")->record); });
  EXPECT_THAT(EntitiesOf(opened, L"A"), SizeIs(5));
  EXPECT_EQ(opened.report->warningCount, 1u);
}

TEST_P(Chains, OfAttributesBelongToTheirReference) {
  spec.blocks = {{.name = "FRAME"}};
  spec.entities = {
      Handled(drawing::Insert("FRAME", {{.tag = "A", .handle = "A03"}, {.tag = "B"}}), "A01"),
      Handled(drawing::Insert("FRAME", {{.tag = "C", .handle = "A04"}}), "A02")};
  OpenDrawing opened = Changed([](dwg::Drawing& made) { Lead(made, 0xA03, 0xA04, 0xA01); });
  EXPECT_THAT(opened->ReadBlockReference(KeyOf("A01")).attributes, IsEmpty());
  EXPECT_THAT(opened->ReadBlockReference(KeyOf("A02")).attributes, ElementsAre(KeyOf("A04")));
}

INSTANTIATE_TEST_SUITE_P(Each, Chains, testing::Values("AC1014", "AC1015"),
                         [](const auto& info) { return std::string(info.param); });

INSTANTIATE_TEST_SUITE_P(Each, Blocks,
                         testing::Values("AC1014", "AC1015", "AC1018", "AC1021", "AC1024", "AC1027",
                                         "AC1032"),
                         [](const auto& info) { return std::string(info.param); });

}  // namespace
