// Dynamic blocks, and the blocks that carry their variations.
#include <algorithm>

#include "backends/database/dwg/DwgDrawing.h"
#include "backends/database/dwg/Tokens.h"
#include "backends/database/dwg/records/ExtendedData.h"
#include "base/CaseFold.h"

namespace zdx::dwg {

bool DwgDrawing::IsDynamicBlock(model::ObjectKey block) {
  const auto handle = static_cast<model::Handle>(block);
  const auto record = ReadBlock(handle, {Key::kExtension}, Record::Extent::kFront);
  if (!record) return false;
  return ExtensionEntry(handle, record->fields, kDynamicBlockKey) ||
         DataOf(handle, kTrueNameApplication);
}

std::vector<model::ObjectKey> DwgDrawing::AnonymousCopies(model::ObjectKey block) {
  FindVariations();
  const auto handle = static_cast<model::Handle>(block);
  std::vector<model::ObjectKey> copies;
  auto at = std::lower_bound(variations_->begin(), variations_->end(), handle,
                             [](const Variation& variation, model::Handle wanted) {
                               return variation.dynamicBlock < wanted;
                             });
  for (; at != variations_->end() && at->dynamicBlock == handle; ++at) copies.push_back(at->block);
  return copies;
}

void DwgDrawing::FindVariations() {
  if (variations_) return;
  variations_.emplace();
  for (const model::ObjectKey record : TableRecords(model::TableKind::kBlock)) {
    const auto handle = static_cast<model::Handle>(record);
    const auto data = DataOf(handle, kVariationApplication);
    const auto dynamicBlock = data ? FirstReference(*data, format_) : std::nullopt;
    // A block that names itself carries no variation.
    if (dynamicBlock && *dynamicBlock != handle) variations_->push_back({record, *dynamicBlock});
  }
  std::stable_sort(variations_->begin(), variations_->end(),
                   [](const Variation& left, const Variation& right) {
                     return left.dynamicBlock < right.dynamicBlock;
                   });
}

std::optional<std::string> DwgDrawing::DataOf(model::Handle handle, std::wstring_view application) {
  const std::optional<std::uint64_t> at = Map().Find(handle);
  std::optional<Record> record;
  if (!at || !Load(record, handle, *at, Record::Extent::kFront)) return std::nullopt;
  for (auto& [reference, bytes] : record->ExtendedData()) {
    if (CompareIgnoringCase(ApplicationName(reference.From(handle)), application) == 0) {
      return std::move(bytes);
    }
  }
  return std::nullopt;
}

const std::wstring& DwgDrawing::ApplicationName(model::Handle handle) {
  const auto [known, isNew] = applicationNames_.try_emplace(handle);
  if (!isNew) return known->second;
  const std::optional<Object> record = Read(handle, {Key::kName});
  if (record && record->type == kApplicationType) {
    known->second = TextOf(record->fields, Key::kName, handle).value_or(std::wstring());
  }
  return known->second;
}

}  // namespace zdx::dwg
