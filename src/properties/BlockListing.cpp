#include "ZDXEngine/BlockListing.h"

#include <unordered_set>
#include <utility>

#include "drawing/DrawingFile.h"
#include "platform/zndb/ZnDbDatabase.h"
#include "properties/read/BlockRecords.h"
#include "properties/read/LibraryText.h"

namespace ZDXEngine {
namespace {

// A block of the table, and the anonymous copies that it has as a dynamic block.
struct ListedBlock {
  ZnDbObjectId id;
  BlockInfo info;
  ZnDbObjectIdArray copies;
};

AttributeDefinitionInfo Described(const ZnDbAttributeDefinition& definition) {
  return {ReadText(definition, &ZnDbAttributeDefinition::tag).value_or(L""),
          ReadText(definition, &ZnDbAttributeDefinition::prompt).value_or(L""),
          ReadText(definition, &ZnDbText::textString).value_or(L""), definition.isConstant()};
}

std::vector<AttributeDefinitionInfo> DefinitionsOf(const ZnDbBlockTableRecord& record) {
  std::vector<AttributeDefinitionInfo> definitions;
  ForEachDefinition(record, [&](const ZnDbAttributeDefinition& definition) {
    definitions.push_back(Described(definition));
  });
  return definitions;
}

std::uint64_t CountReferences(const ZnDbBlockTableRecord& record) {
  const auto references = NewReferenceIterator(record);
  return references == nullptr || references->count < 0
             ? 0
             : static_cast<std::uint64_t>(references->count);
}

std::uint64_t CountReferences(const ZnDbObjectIdArray& blocks) {
  std::uint64_t count = 0;
  for (const ZnDbObjectId id : blocks) {
    const BlockRecord record(OpenForRead<ZnDbBlockTableRecord>(id));
    if (record != nullptr) count += CountReferences(*record);
  }
  return count;
}

// Adds the block to `blocks` if it is to be listed.
void List(const ZnDbBlockTableRecord& record, ZnDbObjectId id, std::vector<ListedBlock>& blocks) {
  if (record.isLayout() || !record.hasAttributeDefinitions()) return;
  ListedBlock block = {id, {}, {}};
  block.info.definitions = DefinitionsOf(record);
  if (block.info.definitions.empty()) return;
  block.info.name = ReadText(record, &ZnDbSymbolTableRecord::getName).value_or(L"");
  block.info.references = CountReferences(record);
  block.copies = AnonymousCopies(id);
  block.info.variations = CountReferences(block.copies);
  blocks.push_back(std::move(block));
}

std::vector<ListedBlock> ListBlocks(ZnDbDatabase& database) {
  std::vector<ListedBlock> blocks;
  ZnDbBlockTable* opened = nullptr;
  if (database.getSymbolTable(opened, ZnDb::kForRead) != Zent::kOk) return blocks;
  const ClosedObject<ZnDbBlockTable> table(opened);
  const auto iterator = NewIterator(*table);
  if (iterator == nullptr) return blocks;
  for (; !iterator->done(); iterator->step(true, true)) {
    ZnDbObjectId id;
    const BlockRecord record = OpenCurrentBlock(*iterator, id);
    if (record != nullptr) List(*record, id, blocks);
  }
  return blocks;
}

}  // namespace

std::vector<BlockInfo> ListBlocksWithAttributes(const std::wstring& path) {
  ZnDbDatabase database(false, true);
  OpenDrawing(path, &database, true);
  std::vector<ListedBlock> blocks = ListBlocks(database);
  std::unordered_set<ZnDbStub*> copies;
  for (const ListedBlock& block : blocks) {
    for (const ZnDbObjectId copy : block.copies) copies.insert(copy.stub());
  }
  std::vector<BlockInfo> listed;
  for (ListedBlock& block : blocks) {
    if (!copies.contains(block.id.stub())) listed.push_back(std::move(block.info));
  }
  return listed;
}

}  // namespace ZDXEngine
