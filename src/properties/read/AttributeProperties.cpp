#include "properties/read/AttributeProperties.h"

#include <memory>
#include <optional>

#include "properties/read/AttributeTexts.h"
#include "properties/read/BlockFilters.h"
#include "properties/read/LibraryText.h"
#include "properties/read/OpenObject.h"

namespace ZDXEngine {
namespace {

using Filters = std::vector<BlockFilterParam>;

// How the values of a reference are published.
struct Publication {
  GUID formatId;
  bool usePrompt;
  bool byId;
};

std::optional<std::wstring> NameOfBlock(ZnDbObjectId id) {
  const ClosedObject<ZnDbBlockTableRecord> block(OpenForRead<ZnDbBlockTableRecord>(id));
  if (block == nullptr) return std::nullopt;
  return ReadText(*block, &ZnDbSymbolTableRecord::getName);
}

// The filter that `find` finds for the block's name, from now on matched; or null.
BlockFilterParam* MatchByName(Filters& filters, ZnDbObjectId block,
                              BlockFilterParam* (*find)(Filters&, const wchar_t*)) {
  const std::optional<std::wstring> name = NameOfBlock(block);
  BlockFilterParam* const filter = name ? find(filters, name->c_str()) : nullptr;
  if (filter != nullptr) filter->matched = true;
  return filter;
}

Publication PublicationOf(const ZnDbBlockReference& reference, const GUID& formatId,
                          Filters& filters, bool byId) {
  if (byId) {
    const BlockFilterParam* const filter = FindFilter(filters, formatId);
    return {formatId, filter == nullptr || filter->usePrompt, true};
  }
  const BlockFilterParam* const filter =
      MatchByName(filters, reference.blockTableRecord(), FindFreeFilter);
  if (filter == nullptr) return {formatId, false, false};
  return {filter->formatId, filter->usePrompt, true};
}

std::wstring NameOfConstant(const ZnDbAttributeDefinition& definition, bool usePrompt) {
  std::wstring name;
  if (usePrompt) name = ReadText(definition, &ZnDbAttributeDefinition::prompt).value_or(L"");
  return name.empty() ? ReadText(definition, &ZnDbAttributeDefinition::tag).value_or(L"") : name;
}

}  // namespace

void AddConstantAttribute(std::vector<_PropData>& properties, ZnDbAttributeDefinition* definition,
                          const GUID& formatId, Filters& filters, bool byId) {
  const BlockFilterParam* const filter =
      byId ? FindFilter(filters, formatId)
           : MatchByName(filters, definition->ownerId(), FindFilter);
  if (filter == nullptr) return;
  const std::wstring name = NameOfConstant(*definition, filter->usePrompt);
  AddTextProperty(properties, definition, name, filter->formatId, byId);
  definition->close();
}

void AddReferenceAttributes(std::vector<_PropData>& properties, ZnDbBlockReference* reference,
                            const GUID& formatId, Filters& filters, bool byId) {
  {
    const std::unique_ptr<ZnDbObjectIterator> iterator(reference->attributeIterator());
    if (iterator == nullptr || iterator->done()) return;
    const Publication publication = PublicationOf(*reference, formatId, filters, byId);
    ReferencePrompts prompts(*reference);
    int ordinal = 0;
    for (; !iterator->done(); iterator->step(false, true)) {
      ZnDbAttribute* opened = nullptr;
      const Zent::ErrorStatus status =
          reference->openAttribute(opened, iterator->objectId(), ZnDb::kForRead, false);
      if (status != Zent::kOk) continue;
      const ClosedObject<ZnDbAttribute> attribute(opened);
      AddAttribute(properties, attribute.get(), publication.formatId, prompts,
                   publication.usePrompt, ++ordinal, publication.byId);
    }
  }
  reference->close();
}

void AddAttribute(std::vector<_PropData>& properties, const ZnDbAttribute* attribute,
                  const GUID& formatId, ReferencePrompts& prompts, bool usePrompt, int ordinal,
                  bool byId) {
  const std::wstring tag = ReadText(*attribute, &ZnDbAttribute::tag).value_or(L"");
  const bool isMultiLine = attribute->isMTextAttribute();
  std::wstring name;
  if (usePrompt) name = prompts.Find(tag, ordinal);
  if (name.empty()) name = tag;
  if (isMultiLine) {
    AddMTextProperty(properties, attribute, name, formatId, byId);
  } else {
    AddTextProperty(properties, attribute, name, formatId, byId);
  }
}

}  // namespace ZDXEngine
