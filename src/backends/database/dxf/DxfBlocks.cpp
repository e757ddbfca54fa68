// The blocks, what stands in them, and where they are shown.
#include <algorithm>

#include "backends/database/dxf/DxfDrawing.h"
#include "backends/database/dxf/GroupedTags.h"
#include "backends/database/dxf/Tokens.h"

namespace zdx::dxf {
namespace {

using model::ObjectKey;

// What stands in a reference or a polyline, and what closes sequences and blocks.
bool IsPartOfAnother(std::string_view type) {
  return type == kAttribute || type == kVertex || type == kEndOfSequence || type == kEndOfBlock;
}

}  // namespace

BlockTable& DxfDrawing::Blocks() {
  if (!blocks_) {
    const std::vector<ObjectKey>& records = ReadTables().blocks;
    blocks_.emplace(SourceOfBlocks(), records, FindSection(kBlocksSection));
  }
  return *blocks_;
}

BlockSource DxfDrawing::SourceOfBlocks() {
  BlockSource source;
  source.stream = &stream_;
  source.version = version_;
  source.nameOf = [this](std::string_view name) { return TypeText(name); };
  source.warn = [this](const wchar_t* text, std::size_t at) { Warn(text, at); };
  source.warnOfDamage = [this](std::size_t at) {
    if (at != kNowhere) WarnOfDamage(at);
  };
  return source;
}

const ReferenceIndex& DxfDrawing::References() {
  if (!references_) {
    SectionsOfEntities();
    std::vector<std::size_t> places;
    for (const std::size_t at : sections_.references()) {
      if (IsAmongEntities(at)) places.push_back(at);
    }
    references_.emplace(SourceOfBlocks(), Blocks(), places);
  }
  return *references_;
}

const DxfDrawing::EntitySections& DxfDrawing::SectionsOfEntities() {
  if (!entitySections_) {
    entitySections_ = {FindSection(kBlocksSection), FindSection(kEntitiesSection)};
  }
  return *entitySections_;
}

bool DxfDrawing::IsAmongEntities(std::size_t at) {
  const EntitySections& sections = SectionsOfEntities();
  for (const std::optional<Section>& section : {sections.blocks, sections.entities}) {
    if (section && at >= section->begin && at < section->end) return true;
  }
  return false;
}

std::optional<std::wstring> DxfDrawing::TrueNameOf(ObjectKey record) {
  const Block* const block = Blocks().Find(record);
  if (block == nullptr || block->trueNameAt == kNowhere) return std::nullopt;
  std::size_t at = block->trueNameAt;
  Tag tag;
  if (stream_.Read(at, tag) != TagStream::Outcome::kTag) return std::nullopt;
  return Text(tag, model::TextUse::kName);
}

bool DxfDrawing::IsLayoutBlock(ObjectKey block) {
  const Block* const found = Blocks().Find(block);
  return found != nullptr && found->isLayout;
}

// The entities of model space and of the paper that was in use stand in a section of their own.
std::vector<ObjectKey> DxfDrawing::BlockEntities(ObjectKey block) {
  std::vector<ObjectKey> entities;
  const Block* const found = Blocks().Find(block);
  if (found == nullptr) return entities;
  ObjectStart start = stream_.NextObject(found->begin);
  for (; start.Found() && start.at < found->end; start = stream_.NextObject(start.body)) {
    if (!IsPartOfAnother(start.type)) entities.push_back(ObjectKey{start.at});
  }
  const std::optional<Section>& section = SectionsOfEntities().entities;
  if (!found->isLayout || !section) return entities;
  start = stream_.NextObject(section->begin);
  for (; start.Found() && start.at < section->end; start = stream_.NextObject(start.body)) {
    if (IsPartOfAnother(start.type) || OwnerOf(start) != found) continue;
    entities.push_back(ObjectKey{start.at});
  }
  return entities;
}

// The block in which `entity` stands, which is none's part; null if it isn't known.
const Block* DxfDrawing::OwnerOf(const ObjectStart& entity) {
  const EntitySections& sections = SectionsOfEntities();
  const BlockTable& blocks = Blocks();
  if (!sections.entities || entity.at < sections.entities->begin ||
      entity.at >= sections.entities->end) {
    return blocks.Containing(entity.at);
  }
  const EntityHead head = ReadHead(stream_, entity.body);
  const Block* const owner = head.owner == 0 ? nullptr : blocks.OfHandle(head.owner);
  if (owner != nullptr && owner->isLayout) return owner;
  return head.isOnPaper ? blocks.paperSpace() : blocks.modelSpace();
}

std::optional<ObjectKey> DxfDrawing::OwnerBlock(ObjectKey entity) {
  const ObjectStart start = StartOf(entity);
  if (!start.Found() || IsPartOfAnother(start.type)) return std::nullopt;
  const Block* const owner = OwnerOf(start);
  return owner == nullptr ? std::nullopt : std::optional(owner->key);
}

std::vector<ObjectKey> DxfDrawing::BlockReferences(ObjectKey block) {
  std::vector<ObjectKey> keys;
  const Block* const found = Blocks().Find(block);
  if (found == nullptr) return keys;
  const auto references = References().Of(*found);
  std::vector<bool> isTold(references.size());
  keys.reserve(references.size());
  const auto tell = [&](std::size_t i) {
    if (!isTold[i]) keys.push_back(ObjectKey{references[i].at});
    isTold[i] = true;
  };
  for (const model::Handle handle : ListedReferences(block)) {
    const auto reference =
        std::lower_bound(references.begin(), references.end(), handle,
                         [](const auto& r, model::Handle h) { return r.handle - 1 < h - 1; });
    if (reference == references.end() || reference->handle != handle) continue;
    tell(static_cast<std::size_t>(reference - references.begin()));
  }
  for (std::size_t i = 0; i < references.size(); ++i) tell(i);
  return keys;
}

// The handles that a record lists as those of its references, which may be out of date.
std::vector<model::Handle> DxfDrawing::ListedReferences(ObjectKey record) {
  std::vector<model::Handle> handles;
  GroupedTags tags(stream_, StartOf(record).body);
  Tag tag;
  while (tags.Next(tag)) {
    if (tag.code != kReferenceCode || tags.group() != kReferencesGroup) continue;
    if (const model::Handle handle = ParseHandle(tag.value); handle != 0) handles.push_back(handle);
  }
  return handles;
}

bool DxfDrawing::IsDynamicBlock(ObjectKey block) {
  Block* const found = Blocks().Find(block);
  if (found == nullptr) return false;
  if (!found->isDynamic) {
    found->isDynamic = ExtensionEntry(found->extension, kDynamicBlockKey).has_value();
  }
  return *found->isDynamic;
}

std::vector<ObjectKey> DxfDrawing::AnonymousCopies(ObjectKey block) {
  const Block* const found = Blocks().Find(block);
  return found == nullptr ? std::vector<ObjectKey>() : Blocks().Variations(found->handle);
}

}  // namespace zdx::dxf
