#include "interface/seam/BlockWalk.h"

#include <gtest/gtest.h>

#include <memory>

#include "ZDXEngine/Utf8.h"
#include "backends/database/zndb/DatabaseProvider.h"
#include "platform/zndb/Provider.h"

namespace zdx_test {
namespace {

// The embedded database stands behind the library for a while.
class Installed {
 public:
  Installed() : before_(zndb::InstallProvider(zdx::database::EmbeddedProvider())) {}
  ~Installed() { zndb::InstallProvider(before_); }
  Installed(const Installed&) = delete;
  Installed& operator=(const Installed&) = delete;

 private:
  zndb::Provider* before_;
};

template <class Class>
Class* Opened(ZnDbObjectId id) {
  Class* object = nullptr;
  zndbOpenObject(object, id, Class::desc(), ZnDb::kForRead, false);
  return object;
}

std::string Text(const ZnString& text) {
  return ZDXEngine::Utf8FromWide(static_cast<const wchar_t*>(text));
}

std::string NameOfBlock(ZnDbObjectId id) {
  ZnString name;
  auto* const record = Opened<ZnDbBlockTableRecord>(id);
  if (record == nullptr || record->getName(name) != Zent::kOk) return "(unknown)";
  return Text(name);
}

// What `get` gives of `object`; a text that can't be read fails the test.
template <class Class, class Base>
std::string TextOf(const Class& object, Zent::ErrorStatus (Base::*get)(ZnString&) const) {
  ZnString text;
  EXPECT_EQ((object.*get)(text), Zent::kOk);
  return Text(text);
}

WalkedAttribute WalkAttribute(const ZnDbAttribute& attribute) {
  return {TextOf(attribute, &ZnDbAttribute::tag), TextOf(attribute, &ZnDbText::textString),
          attribute.isMTextAttribute()};
}

WalkedDefinition WalkDefinition(const ZnDbAttributeDefinition& definition) {
  return {TextOf(definition, &ZnDbAttributeDefinition::tag),
          TextOf(definition, &ZnDbAttributeDefinition::prompt),
          TextOf(definition, &ZnDbText::textString), definition.isConstant()};
}

WalkedReference WalkReference(ZnDbBlockReference& reference, ZnDbObjectId block) {
  EXPECT_EQ(reference.blockTableRecord(), block);
  WalkedReference walked;
  walked.owner = NameOfBlock(reference.ownerId());
  const std::unique_ptr<ZnDbObjectIterator> attributes(reference.attributeIterator());
  for (; !attributes->done(); attributes->step(false, true)) {
    ZnDbAttribute* attribute = nullptr;
    EXPECT_EQ(reference.openAttribute(attribute, attributes->objectId(), ZnDb::kForRead, false),
              Zent::kOk);
    if (attribute != nullptr) walked.attributes.push_back(WalkAttribute(*attribute));
  }
  return walked;
}

void WalkReferences(const ZnDbBlockTableRecord& record, WalkedBlock& walked) {
  ZnDbBlockReferenceIdIterator* made = nullptr;
  EXPECT_EQ(record.newBlockReferenceIdIterator(made), Zent::kOk);
  const std::unique_ptr<ZnDbBlockReferenceIdIterator> references(made);
  for (; references->position < references->count; ++references->position) {
    ZnDbBlockReference* reference = nullptr;
    EXPECT_EQ(references->getBlockReference(reference, ZnDb::kForRead, false), Zent::kOk);
    if (reference == nullptr) continue;
    walked.references.push_back(WalkReference(*reference, record.objectId()));
  }
}

void WalkEntity(const ZnDbEntity& entity, WalkedBlock& walked) {
  const ZnRxClass* const type = entity.isA();
  walked.entities.push_back(ZDXEngine::Utf8FromWide(type->name()));
  if (type->isDerivedFrom(ZnDbAttributeDefinition::desc())) {
    walked.definitions.push_back(
        WalkDefinition(static_cast<const ZnDbAttributeDefinition&>(entity)));
  } else if (type->isDerivedFrom(ZnDbText::desc())) {
    walked.texts.push_back(TextOf(static_cast<const ZnDbText&>(entity), &ZnDbText::textString));
  } else if (type->isDerivedFrom(ZnDbMText::desc())) {
    walked.texts.push_back(TextOf(static_cast<const ZnDbMText&>(entity), &ZnDbMText::text));
  }
}

void WalkEntities(const ZnDbBlockTableRecord& record, WalkedBlock& walked) {
  ZnDbBlockTableRecordIterator* made = nullptr;
  EXPECT_EQ(record.newIterator(made, true, true), Zent::kOk);
  const std::unique_ptr<ZnDbBlockTableRecordIterator> entities(made);
  for (; !entities->done(); entities->step(true, true)) {
    ZnDbEntity* entity = nullptr;
    EXPECT_EQ(entities->getEntity(entity, ZnDb::kForRead, false), Zent::kOk);
    if (entity == nullptr) continue;
    WalkEntity(*entity, walked);
  }
  EXPECT_EQ(record.hasAttributeDefinitions(), !walked.definitions.empty());
}

void WalkCopies(ZnDbObjectId record, WalkedBlock& walked) {
  auto* const dynamic = new ZnDbDynBlockTableRecord(record);
  walked.isDynamic = dynamic->isDynamicBlock();
  ZnDbObjectIdArray copies;
  EXPECT_EQ(dynamic->getAnonymousBlockIds(copies) == Zent::kOk, walked.isDynamic);
  for (const ZnDbObjectId copy : copies) walked.copies.push_back(NameOfBlock(copy));
}

WalkedBlock WalkBlock(ZnDbObjectId id) {
  WalkedBlock walked;
  walked.name = NameOfBlock(id);
  const auto* const record = Opened<ZnDbBlockTableRecord>(id);
  EXPECT_NE(record, nullptr);
  if (record == nullptr) return walked;
  walked.isLayout = record->isLayout();
  WalkEntities(*record, walked);
  WalkReferences(*record, walked);
  WalkCopies(id, walked);
  return walked;
}

}  // namespace

std::vector<WalkedBlock> WalkBlocks(const std::wstring& path) {
  const Installed installed;
  ZnDbDatabase database(false, true);
  const bool isDwg = path.ends_with(L".dwg");
  EXPECT_EQ(isDwg ? database.readDwgFile(path.c_str(), 4, true, nullptr)
                  : database.dxfIn(path.c_str(), nullptr),
            Zent::kOk);
  std::vector<WalkedBlock> blocks;
  ZnDbBlockTable* table = nullptr;
  EXPECT_EQ(database.getSymbolTable(table, ZnDb::kForRead), Zent::kOk);
  if (table == nullptr) return blocks;
  ZnDbSymbolTableIterator* made = nullptr;
  EXPECT_EQ(table->newIterator(made, true, true), Zent::kOk);
  const std::unique_ptr<ZnDbSymbolTableIterator> records(made);
  for (; !records->done(); records->step(true, true)) {
    ZnDbObjectId id;
    EXPECT_EQ(records->getRecordId(id), Zent::kOk);
    blocks.push_back(WalkBlock(id));
  }
  return blocks;
}

std::string LineOf(const WalkedAttribute& attribute) {
  return attribute.tag + " = " + attribute.text + (attribute.isMultiLine ? " (many lines)" : "");
}

std::string LineOf(const WalkedReference& reference) {
  std::string line = reference.owner + ":";
  for (const WalkedAttribute& attribute : reference.attributes) {
    line.append(" ").append(LineOf(attribute)).append(";");
  }
  return line;
}

std::string LineOf(const WalkedDefinition& definition) {
  return definition.tag + ", " + definition.prompt + " = " + definition.text +
         (definition.isConstant ? " (constant)" : "");
}

}  // namespace zdx_test
