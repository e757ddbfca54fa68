// What the drawing-database library promises of blocks and of a drawing's location.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <stdexcept>
#include <utility>
#include <vector>

#include "backends/database/zndb/DatabaseProvider.h"
#include "platform/zndb/Provider.h"
#include "support/Paths.h"
#include "support/Scratch.h"
#include "support/drawing/GeoSpec.h"
#include "support/dwg/DwgMaker.h"
#include "support/dxf/DxfMaker.h"
#include "support/scripted/World.h"

namespace block_contract {
namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;

// A provider with a drawing of the block "Door", whose definitions are "A" with the prompt "Width"
// and the text "90" and the constant "MAKER" of the text "Smith", and which holds a line behind
// them.  A reference of it with two attributes stands in model space, another with two in the block
// "House", the second of many lines.  "House" also holds a text and a multi-line text.  The block
// "Gate" is dynamic and has the copies "*U7" and "*U8".  "Site" stands for an attached drawing and
// "Grid", whose handle is AB, for an overlaid one.  The drawing's location is tied to its point
// (1, 2, 3) and counts in metres.
class Subject {
 public:
  virtual ~Subject() = default;
  // Reads the drawing into `database`.
  virtual Zent::ErrorStatus Read(ZnDbDatabase& database) = 0;
};

class Scripted : public Subject {
 public:
  Scripted() {
    scripted::Record& modelSpace = world_.drawing.blocks.Add(L"*Model_Space");
    modelSpace.layout = true;
    scripted::Record& door = world_.drawing.blocks.Add(L"Door");
    scripted::Record& house = world_.drawing.blocks.Add(L"House");
    door.AddDefinition(L"A", L"Width", L"90");
    door.AddConstant(L"MAKER", L"", L"Smith");
    door.Add(scripted::EntityKind::kPlain);
    scripted::Entity& reference = door.AddReference(&modelSpace);
    reference.AddAttribute(L"A", L"80");
    reference.AddAttribute(L"B", L"81");
    scripted::Entity& inHouse = door.AddReference(&house);
    inHouse.AddAttribute(L"A", L"70");
    inHouse.AddAttribute(L"NOTE", L"one;two").multiLine = true;
    house.Add(scripted::EntityKind::kText).text = L"on one line";
    house.Add(scripted::EntityKind::kMText).text = L"on\\Pmany";
    scripted::Record& gate = world_.drawing.blocks.Add(L"Gate");
    gate.dynamic = true;
    for (const wchar_t* copy : {L"*U7", L"*U8"}) {
      gate.copies.push_back(&world_.drawing.blocks.Add(copy));
    }
    world_.drawing.blocks.Add(L"Site");
    scripted::Record& grid = world_.drawing.blocks.Add(L"Grid");
    grid.overlay = true;
    grid.handle = 0xAB;
    world_.drawing.location.emplace();
    world_.drawing.location->designPoint = {1, 2, 3};
    world_.drawing.location->horizontalUnits = 6;
  }
  Zent::ErrorStatus Read(ZnDbDatabase& database) override {
    return database.dxfIn(L"plan.dxf", nullptr);
  }

 private:
  scripted::World world_;
};

class Embedded : public Subject {
 public:
  explicit Embedded(bool asDwg)
      : asDwg_(asDwg), before_(zndb::InstallProvider(zdx::database::EmbeddedProvider())) {
    drawing::DrawingSpec spec;
    spec.blocks = {
        {.name = "Door",
         .definitions = {{.tag = "A", .value = "90", .prompt = "Width"},
                         {.tag = "MAKER", .value = "Smith", .flags = drawing::kConstant}},
         .entities = {drawing::Line("0", {}, {1, 1})}},
        {.name = "House",
         .entities = {drawing::Insert("Door",
                                      {{.tag = "A", .value = "70"},
                                       {.tag = "NOTE", .value = "one;two", .multiLine = true}}),
                      drawing::Text("0", {}, 1, "on one line"),
                      drawing::MText("0", {}, 1, "on\\Pmany")}},
        {.name = "Gate", .isDynamic = true},
        {.name = "*U7", .copyOf = "Gate"},
        {.name = "*U8", .copyOf = "Gate"},
        drawing::XrefBlock("Site", "site.dwg"),
        drawing::XrefBlock("Grid", "grid.dwg", drawing::Xref::Overlaid)};
    spec.blocks.back().handle = "AB";
    spec.entities = {
        drawing::Insert("Door", {{.tag = "A", .value = "80"}, {.tag = "B", .value = "81"}})};
    drawing::GeoSpec geo;
    geo.designPoint = {1, 2, 3};
    geo.horizontalUnits = 6;
    spec.modelExtension = {{drawing::kGeoKey, drawing::GeoObject(geo)}};
    file_.emplace(asDwg ? dwg::Make(spec) : dxf::Make(spec), asDwg ? ".dwg" : ".dxf");
  }
  ~Embedded() override { zndb::InstallProvider(before_); }
  Zent::ErrorStatus Read(ZnDbDatabase& database) override {
    const std::wstring path = zdx_test::NameOf(file_->path());
    return asDwg_ ? database.readDwgFile(path.c_str(), 4, true, nullptr)
                  : database.dxfIn(path.c_str(), nullptr);
  }

 private:
  bool asDwg_;
  zndb::Provider* before_;
  std::optional<zdx_test::ScratchFile> file_;
};

template <class T>
T* Open(ZnDbObjectId id) {
  T* object = nullptr;
  EXPECT_EQ(zndbOpenObject(object, id, T::desc(), ZnDb::kForRead, false), Zent::kOk);
  return object;
}

// The text that `get` gives.
template <class Object, class Class>
std::wstring Text(const Object& object, Zent::ErrorStatus (Class::*get)(ZnString& text) const) {
  ZnString text;
  EXPECT_EQ((object.*get)(text), Zent::kOk);
  return std::wstring(text);
}

class BlockContract : public testing::TestWithParam<const char*> {
 protected:
  BlockContract() {
    if (std::string(GetParam()) == "Scripted") {
      subject = std::make_unique<Scripted>();
    } else {
      subject = std::make_unique<Embedded>(std::string(GetParam()) == "EmbeddedDwg");
    }
    database.emplace(false, true);
    EXPECT_EQ(subject->Read(*database), Zent::kOk);
    EXPECT_EQ(database->getSymbolTable(table, ZnDb::kForRead), Zent::kOk);
  }
  ~BlockContract() override { table->close(); }

  std::unique_ptr<ZnDbSymbolTableIterator> Records() const {
    ZnDbSymbolTableIterator* made = nullptr;
    EXPECT_EQ(table->newIterator(made, true, true), Zent::kOk);
    return std::unique_ptr<ZnDbSymbolTableIterator>(made);
  }
  ZnDbObjectId IdOf(const wchar_t* name) const {
    ZnDbObjectId id;
    EXPECT_EQ(table->getIdAt(name, id, false), Zent::kOk) << name;
    return id;
  }
  ZnDbBlockTableRecord* Block(const wchar_t* name) const {
    return Open<ZnDbBlockTableRecord>(IdOf(name));
  }
  static std::unique_ptr<ZnDbBlockTableRecordIterator> Entities(const ZnDbBlockTableRecord& block) {
    ZnDbBlockTableRecordIterator* made = nullptr;
    EXPECT_EQ(block.newIterator(made, true, true), Zent::kOk);
    return std::unique_ptr<ZnDbBlockTableRecordIterator>(made);
  }
  static std::unique_ptr<ZnDbBlockReferenceIdIterator> References(
      const ZnDbBlockTableRecord& block) {
    ZnDbBlockReferenceIdIterator* made = nullptr;
    EXPECT_EQ(block.newBlockReferenceIdIterator(made), Zent::kOk);
    return std::unique_ptr<ZnDbBlockReferenceIdIterator>(made);
  }
  // The reference of "Door" that stands in the block of this id.
  ZnDbBlockReference* ReferenceIn(ZnDbObjectId owner) const {
    ZnDbBlockTableRecord* const door = Block(L"Door");
    const auto references = References(*door);
    door->close();
    for (; references->position < references->count; ++references->position) {
      ZnDbBlockReference* reference = nullptr;
      EXPECT_EQ(references->getBlockReference(reference, ZnDb::kForRead, false), Zent::kOk);
      if (reference->ownerId() == owner) return reference;
      reference->close();
    }
    throw std::out_of_range("no such reference");
  }

  std::unique_ptr<Subject> subject;
  std::optional<ZnDbDatabase> database;
  ZnDbBlockTable* table = nullptr;
};

TEST_P(BlockContract, OnlyLayoutsAreLayouts) {
  for (const auto& [name, isLayout] :
       {std::pair(L"*Model_Space", true), std::pair(L"Door", false), std::pair(L"House", false)}) {
    ZnDbBlockTableRecord* const block = Block(name);
    EXPECT_EQ(block->isLayout(), isLayout) << name;
    block->close();
  }
}

TEST_P(BlockContract, OnlyABlockWithDefinitionsHasThem) {
  for (const auto& [name, hasThem] :
       {std::pair(L"*Model_Space", false), std::pair(L"Door", true), std::pair(L"House", false)}) {
    ZnDbBlockTableRecord* const block = Block(name);
    EXPECT_EQ(block->hasAttributeDefinitions(), hasThem) << name;
    block->close();
  }
}

TEST_P(BlockContract, OnlyAnOverlaidDrawingIsAnOverlay) {
  for (const auto& [name, isOverlay] :
       {std::pair(L"*Model_Space", false), std::pair(L"Door", false), std::pair(L"Site", false),
        std::pair(L"Grid", true)}) {
    ZnDbBlockTableRecord* const block = Block(name);
    EXPECT_EQ(block->isFromOverlayReference(), isOverlay) << name;
    block->close();
  }
}

TEST_P(BlockContract, AnIdTellsTheHandleOfItsObject) {
  EXPECT_EQ(IdOf(L"Grid").nonForwardedHandle(), 0xABu);
  EXPECT_EQ(ZnDbObjectId().nonForwardedHandle(), 0u);
}

TEST_P(BlockContract, AWalkStartsAgainAtEitherEnd) {
  const auto records = Records();
  const auto first = IdOf(L"*Model_Space");
  const auto last = IdOf(L"Grid");
  while (!records->done()) records->step(true, true);
  for (const auto& [atBeginning, id] : {std::pair(true, first), std::pair(false, last)}) {
    records->start(atBeginning, true);
    ASSERT_FALSE(records->done());
    ZnDbObjectId at;
    ASSERT_EQ(records->getRecordId(at), Zent::kOk);
    EXPECT_EQ(at, id);
  }
}

TEST_P(BlockContract, SeekGoesToARecordAndTheWalkGoesOnFromThere) {
  const auto records = Records();
  ASSERT_EQ(records->seek(IdOf(L"House")), Zent::kOk);
  ZnDbObjectId at;
  ASSERT_EQ(records->getRecordId(at), Zent::kOk);
  EXPECT_EQ(at, IdOf(L"House"));
  ASSERT_EQ(records->seek(IdOf(L"Door")), Zent::kOk);
  records->step(true, true);
  ASSERT_EQ(records->getRecordId(at), Zent::kOk);
  EXPECT_EQ(at, IdOf(L"House"));
}

TEST_P(BlockContract, ASeekThatFailsStaysWhereItIs) {
  const auto records = Records();
  ASSERT_EQ(records->seek(IdOf(L"Door")), Zent::kOk);
  EXPECT_NE(records->seek(ZnDbObjectId()), Zent::kOk);
  EXPECT_NE(records->seek(table->objectId()), Zent::kOk);
  ZnDbObjectId at;
  ASSERT_EQ(records->getRecordId(at), Zent::kOk);
  EXPECT_EQ(at, IdOf(L"Door"));
}

TEST_P(BlockContract, EntitiesComeInStoredOrderEachOfItsClass) {
  ZnDbBlockTableRecord* const door = Block(L"Door");
  const auto entities = Entities(*door);
  std::vector<bool> definitions;
  for (; !entities->done(); entities->step(true, true)) {
    ZnDbEntity* entity = nullptr;
    ASSERT_EQ(entities->getEntity(entity, ZnDb::kForRead, false), Zent::kOk);
    EXPECT_TRUE(entity->isA()->isDerivedFrom(ZnDbEntity::desc()));
    EXPECT_EQ(entity->ownerId(), IdOf(L"Door"));
    definitions.push_back(entity->isA()->isDerivedFrom(ZnDbAttributeDefinition::desc()));
    entity->close();
  }
  EXPECT_THAT(definitions, ElementsAre(true, true, false));
  door->close();
}

TEST_P(BlockContract, AnEntityIsTheOneThatItsIdNames) {
  ZnDbBlockTableRecord* const door = Block(L"Door");
  const auto entities = Entities(*door);
  ZnDbObjectId id;
  ASSERT_EQ(entities->getEntityId(id), Zent::kOk);
  ZnDbEntity* entity = nullptr;
  ASSERT_EQ(entities->getEntity(entity, ZnDb::kForRead, false), Zent::kOk);
  EXPECT_EQ(entity->objectId(), id);
  entity->close();
  door->close();
}

TEST_P(BlockContract, ADefinitionTellsAllThatItSays) {
  ZnDbBlockTableRecord* const door = Block(L"Door");
  const auto entities = Entities(*door);
  ZnDbObjectId id;
  ASSERT_EQ(entities->getEntityId(id), Zent::kOk);
  auto* const first = Open<ZnDbAttributeDefinition>(id);
  EXPECT_STREQ(first->isA()->name(), L"ZnDbAttributeDefinition");
  EXPECT_EQ(Text(*first, &ZnDbAttributeDefinition::tag), L"A");
  EXPECT_EQ(Text(*first, &ZnDbAttributeDefinition::prompt), L"Width");
  EXPECT_EQ(Text(*first, &ZnDbText::textString), L"90");
  EXPECT_FALSE(first->isConstant());
  first->close();
  entities->step(true, true);
  ASSERT_EQ(entities->getEntityId(id), Zent::kOk);
  auto* const second = Open<ZnDbAttributeDefinition>(id);
  EXPECT_EQ(Text(*second, &ZnDbText::textString), L"Smith");
  EXPECT_TRUE(second->isConstant());
  second->close();
  door->close();
}

TEST_P(BlockContract, AnEntityMayBeClosedTwiceAndReadAfterwards) {
  ZnDbBlockTableRecord* const door = Block(L"Door");
  const auto entities = Entities(*door);
  ZnDbEntity* entity = nullptr;
  ASSERT_EQ(entities->getEntity(entity, ZnDb::kForRead, false), Zent::kOk);
  EXPECT_EQ(entity->close(), Zent::kOk);
  EXPECT_EQ(entity->close(), Zent::kOk);
  EXPECT_EQ(entity->ownerId(), IdOf(L"Door"));
  door->close();
}

TEST_P(BlockContract, ReferencesAreThoseOfEveryBlock) {
  ZnDbBlockTableRecord* const door = Block(L"Door");
  const auto references = References(*door);
  EXPECT_EQ(references->position, 0);
  ASSERT_EQ(references->count, 2);
  std::vector<ZnDbObjectId> owners;
  for (; references->position < references->count; ++references->position) {
    ZnDbObjectId id;
    ASSERT_EQ(references->getBlockReferenceId(id), Zent::kOk);
    auto* const reference = Open<ZnDbBlockReference>(id);
    EXPECT_EQ(reference->blockTableRecord(), IdOf(L"Door"));
    owners.push_back(reference->ownerId());
    reference->close();
  }
  EXPECT_THAT(owners, UnorderedElementsAre(IdOf(L"*Model_Space"), IdOf(L"House")));
  door->close();
}

TEST_P(BlockContract, LookingAtAReferenceDoesNotStep) {
  ZnDbBlockTableRecord* const door = Block(L"Door");
  const auto references = References(*door);
  ZnDbObjectId id;
  ASSERT_EQ(references->getBlockReferenceId(id), Zent::kOk);
  for (int i = 0; i < 2; ++i) {
    ZnDbBlockReference* reference = nullptr;
    ASSERT_EQ(references->getBlockReference(reference, ZnDb::kForRead, false), Zent::kOk);
    EXPECT_EQ(reference->objectId(), id);
    EXPECT_EQ(reference->close(), Zent::kOk);
    EXPECT_EQ(reference->close(), Zent::kOk);
  }
  EXPECT_EQ(references->position, 0);
  door->close();
}

TEST_P(BlockContract, ABlockThatNobodyShowsHasNoReferences) {
  ZnDbBlockTableRecord* const house = Block(L"House");
  EXPECT_EQ(References(*house)->count, 0);
  house->close();
}

TEST_P(BlockContract, AttributesComeInStoredOrderWithTagAndText) {
  ZnDbBlockReference* const reference = ReferenceIn(IdOf(L"*Model_Space"));
  const std::unique_ptr<ZnDbObjectIterator> attributes(reference->attributeIterator());
  std::vector<std::wstring> words;
  for (; !attributes->done(); attributes->step(false, true)) {
    ZnDbAttribute* attribute = nullptr;
    ASSERT_EQ(reference->openAttribute(attribute, attributes->objectId(), ZnDb::kForRead, false),
              Zent::kOk);
    EXPECT_EQ(attribute->objectId(), attributes->objectId());
    EXPECT_TRUE(attribute->isA()->isDerivedFrom(ZnDbAttribute::desc()));
    EXPECT_FALSE(attribute->isMTextAttribute());
    words.push_back(Text(*attribute, &ZnDbAttribute::tag) + L"=" +
                    Text(*attribute, &ZnDbText::textString));
    attribute->close();
  }
  EXPECT_THAT(words, ElementsAre(L"A=80", L"B=81"));
  reference->close();
}

TEST_P(BlockContract, AnAttributeOfManyLinesSaysSoAndTellsThemAll) {
  ZnDbBlockReference* const reference = ReferenceIn(IdOf(L"House"));
  const std::unique_ptr<ZnDbObjectIterator> attributes(reference->attributeIterator());
  attributes->step(false, true);
  ZnDbAttribute* attribute = nullptr;
  ASSERT_EQ(reference->openAttribute(attribute, attributes->objectId(), ZnDb::kForRead, false),
            Zent::kOk);
  EXPECT_TRUE(attribute->isMTextAttribute());
  EXPECT_EQ(Text(*attribute, &ZnDbAttribute::tag), L"NOTE");
  EXPECT_EQ(Text(*attribute, &ZnDbText::textString), L"one;two");
  attribute->close();
  reference->close();
}

TEST_P(BlockContract, TextsOfBothKindsTellWhatTheySay) {
  ZnDbBlockTableRecord* const house = Block(L"House");
  const auto entities = Entities(*house);
  std::vector<std::wstring> texts;
  for (; !entities->done(); entities->step(true, true)) {
    ZnDbEntity* entity = nullptr;
    ASSERT_EQ(entities->getEntity(entity, ZnDb::kForRead, false), Zent::kOk);
    if (entity->isA()->isDerivedFrom(ZnDbText::desc())) {
      texts.push_back(Text(static_cast<ZnDbText&>(*entity), &ZnDbText::textString));
    } else if (entity->isA()->isDerivedFrom(ZnDbMText::desc())) {
      texts.push_back(Text(static_cast<ZnDbMText&>(*entity), &ZnDbMText::text));
    }
    entity->close();
  }
  EXPECT_THAT(texts, ElementsAre(L"on one line", L"on\\Pmany"));
  house->close();
}

TEST_P(BlockContract, TheNullIdOpensNoAttribute) {
  ZnDbBlockReference* const reference = ReferenceIn(IdOf(L"House"));
  ZnDbAttribute* attribute = nullptr;
  EXPECT_NE(reference->openAttribute(attribute, ZnDbObjectId(), ZnDb::kForRead, false), Zent::kOk);
  EXPECT_EQ(attribute, nullptr);
  reference->close();
}

// What is made to ask is never given back: a tool that looks for leaks would tell of it.
TEST_P(BlockContract, ABlockThatIsNotDynamicHasNoCopies) {
  const auto* const dynamic = new ZnDbDynBlockTableRecord(IdOf(L"Door"));
  ASSERT_NE(dynamic, nullptr);
  EXPECT_FALSE(dynamic->isDynamicBlock());
  ZnDbObjectIdArray copies = {IdOf(L"House")};
  dynamic->getAnonymousBlockIds(copies);
  EXPECT_TRUE(copies.empty());
}

TEST_P(BlockContract, WhatIsNoBlockIsNotDynamic) {
  const auto* const dynamic = new ZnDbDynBlockTableRecord(table->objectId());
  ASSERT_NE(dynamic, nullptr);
  EXPECT_FALSE(dynamic->isDynamicBlock());
  ZnDbObjectIdArray copies = {IdOf(L"House")};
  EXPECT_NE(dynamic->getAnonymousBlockIds(copies), Zent::kOk);
}

TEST_P(BlockContract, ADynamicBlockHasItsCopiesInTableOrder) {
  const auto* const dynamic = new ZnDbDynBlockTableRecord(IdOf(L"Gate"));
  ASSERT_NE(dynamic, nullptr);
  EXPECT_TRUE(dynamic->isDynamicBlock());
  ZnDbObjectIdArray copies;
  EXPECT_EQ(dynamic->getAnonymousBlockIds(copies), Zent::kOk);
  EXPECT_THAT(copies, ElementsAre(IdOf(L"*U7"), IdOf(L"*U8")));
}

TEST_P(BlockContract, TheLocationIsAnObjectOfItsOwnClass) {
  ZnDbObjectId id;
  ASSERT_EQ(zndbGetGeoDataObjId(&*database, id), Zent::kOk);
  ASSERT_FALSE(id.isNull());
  auto* const location = Open<ZnDbGeoData>(id);
  EXPECT_EQ(location->objectId(), id);
  EXPECT_TRUE(location->isA()->isDerivedFrom(ZnDbGeoData::desc()));
  EXPECT_EQ(location->designPoint().x, 1);
  EXPECT_EQ(location->designPoint().y, 2);
  EXPECT_EQ(location->designPoint().z, 3);
  EXPECT_EQ(location->horizontalUnits(), 6);
  EXPECT_EQ(location->close(), Zent::kOk);
}

TEST_P(BlockContract, ABlockIsNoLocation) {
  ZnDbGeoData* location = nullptr;
  EXPECT_NE(zndbOpenObject(location, IdOf(L"Door"), ZnDbGeoData::desc(), ZnDb::kForRead, false),
            Zent::kOk);
  EXPECT_EQ(location, nullptr);
}

// What a caller gets who doesn't look at the end.
class EmbeddedBlocks : public BlockContract {};

TEST_P(EmbeddedBlocks, PastTheEndThereIsNoEntity) {
  ZnDbBlockTableRecord* const door = Block(L"Door");
  const auto entities = Entities(*door);
  ZnDbEntity* entity = nullptr;
  ASSERT_EQ(entities->getEntity(entity, ZnDb::kForRead, false), Zent::kOk);
  for (int i = 0; i < 4; ++i) entities->step(true, true);
  EXPECT_TRUE(entities->done());
  ZnDbObjectId id;
  EXPECT_NE(entities->getEntityId(id), Zent::kOk);
  EXPECT_NE(entities->getEntity(entity, ZnDb::kForRead, false), Zent::kOk);
  EXPECT_EQ(entity, nullptr);
  door->close();
}

TEST_P(EmbeddedBlocks, OutsideTheCountThereIsNoReference) {
  ZnDbBlockTableRecord* const door = Block(L"Door");
  const auto references = References(*door);
  for (const int position : {-1, references->count}) {
    ZnDbBlockReference* reference = nullptr;
    references->position = 0;
    ASSERT_EQ(references->getBlockReference(reference, ZnDb::kForRead, false), Zent::kOk);
    references->position = position;
    ZnDbObjectId id;
    EXPECT_NE(references->getBlockReferenceId(id), Zent::kOk) << position;
    EXPECT_NE(references->getBlockReference(reference, ZnDb::kForRead, false), Zent::kOk);
    EXPECT_EQ(reference, nullptr);
  }
  door->close();
}

TEST_P(EmbeddedBlocks, PastTheEndTheAttributesIdIsNull) {
  ZnDbBlockReference* const reference = ReferenceIn(IdOf(L"House"));
  const std::unique_ptr<ZnDbObjectIterator> attributes(reference->attributeIterator());
  for (int i = 0; i < 3; ++i) attributes->step(false, true);
  EXPECT_TRUE(attributes->done());
  EXPECT_TRUE(attributes->objectId().isNull());
  reference->close();
}

INSTANTIATE_TEST_SUITE_P(Providers, BlockContract,
                         testing::Values("EmbeddedDxf", "EmbeddedDwg", "Scripted"),
                         [](const auto& info) { return info.param; });
INSTANTIATE_TEST_SUITE_P(Forms, EmbeddedBlocks, testing::Values("EmbeddedDxf", "EmbeddedDwg"),
                         [](const auto& info) { return info.param; });

}  // namespace
}  // namespace block_contract
