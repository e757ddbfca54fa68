// The texts about the drawing as a whole: summary, custom entries and settings; and its preview.
#include <algorithm>
#include <iterator>

#include "backends/database/dwg/DwgDrawing.h"
#include "backends/database/dwg/PreviewArea.h"
#include "backends/database/dwg/SummarySection.h"
#include "backends/database/dwg/Tokens.h"
#include "backends/database/dwg/records/FreeRecord.h"
#include "backends/database/model/BuiltIns.h"
#include "backends/database/model/SummaryRecord.h"
#include "base/CaseFold.h"

namespace zdx::dwg {
namespace {

using model::Setting;
using model::Summary;

struct SettingRow {
  Setting setting;
  Key key;
};

constexpr SettingRow kSettings[] = {
    {Setting::kMenu, Key::kMenu},
    {Setting::kProjectName, Key::kProjectName},
    {Setting::kHyperlinkBase, Key::kHyperlinkBase},
    {Setting::kStyleSheet, Key::kStyleSheet},
    {Setting::kDimpost, Key::kDimpost},
    {Setting::kDimapost, Key::kDimapost},
    {Setting::kDimblk, Key::kDimblk},
    {Setting::kDimblk1, Key::kDimblk1},
    {Setting::kDimblk2, Key::kDimblk2},
};

bool NamesAnArrow(Setting setting) {
  return setting == Setting::kDimblk || setting == Setting::kDimblk1 ||
         setting == Setting::kDimblk2;
}

// In the order of the section, but for the hyperlink base at its end.
constexpr std::optional<std::wstring> Summary::*kSummaryFields[] = {
    &Summary::title,    &Summary::subject,     &Summary::author,        &Summary::keywords,
    &Summary::comments, &Summary::lastSavedBy, &Summary::revisionNumber};

}  // namespace

std::optional<std::wstring> DwgDrawing::SettingText(Setting setting) {
  const auto* const row =
      std::find_if(std::begin(kSettings), std::end(kSettings),
                   [setting](const SettingRow& r) { return r.setting == setting; });
  const FieldValues::Value* const value = Header().Find(row->key);
  if (value == nullptr) return std::nullopt;
  return NamesAnArrow(setting) ? ArrowName(*value) : Text(value->bytes, model::TextUse::kValue);
}

// The header names an arrow's block by its handle or, up to AC1014, by its name.
std::optional<std::wstring> DwgDrawing::ArrowName(const FieldValues::Value& value) {
  if (format_.version <= model::kVersion1014) {
    return model::ArrowBlockName(Text(value.bytes, model::TextUse::kName),
                                 [this](const std::wstring& name) { return BlockSpelling(name); });
  }
  const model::Handle block = value.number;
  if (block == 0) return L"";
  if (!Find(block)) {
    Warn(L"The header names an arrow's block that isn't there.", block);
    return std::nullopt;
  }
  return RecordName(model::TableKind::kBlock, model::ObjectKey{block});
}

// The block table's own spelling of a name; empty if it has no such block.
std::wstring DwgDrawing::BlockSpelling(const std::wstring& name) {
  for (const model::ObjectKey block : TableRecords(model::TableKind::kBlock)) {
    std::optional<std::wstring> spelled = RecordName(model::TableKind::kBlock, block);
    if (spelled && CompareIgnoringCase(*spelled, name) == 0) return *std::move(spelled);
  }
  return {};
}

std::optional<Summary> DwgDrawing::ReadSummary() {
  return format_.version >= model::kVersion1018 ? SummaryOfSection() : SummaryOfRecord();
}

// A file without the section has an empty summary.
Summary DwgDrawing::SummaryOfSection() {
  Summary summary;
  Section* const section = container_->Find(SectionId::kSummary);
  if (section == nullptr) return summary;
  Scratch scratch;
  const auto bytes = section->Bytes(0, section->size(), scratch);
  const StoredSummary stored = ReadSummarySection(bytes.value_or(std::string_view()), format_);
  if (stored.damaged) WarnAt(L"The summary ends early.", section->PlaceOf(0));
  for (std::size_t i = 0; i < std::size(kSummaryFields); ++i) {
    auto& field = summary.*kSummaryFields[i];
    field.reset();
    if (stored.fields[i]) field = Text(*stored.fields[i], model::TextUse::kValue);
  }
  for (const auto& [name, value] : stored.custom) {
    summary.custom.emplace_back(Text(name, model::TextUse::kValue),
                                Text(value, model::TextUse::kValue));
  }
  return summary;
}

Summary DwgDrawing::SummaryOfRecord() {
  const std::optional<model::ObjectKey> root = RootDictionary();
  if (!root) return {};
  const auto handle = EntryOf(static_cast<model::Handle>(*root), kSummaryKey);
  const std::optional<Object> record = handle ? Read(*handle) : std::nullopt;
  if (!record || record->like != kFreeRecordType) return {};
  const FieldValues::Value* const content = record->fields.Find(Key::kBytes);
  model::SummaryRecord summary;
  if (content == nullptr) return summary.Finish(true);
  GroupReader groups(content->bytes, format_);
  while (const std::optional<Group> group = groups.Next()) {
    if (!group->isText || !model::SummaryRecord::Wants(group->code)) continue;
    summary.Take(group->code,
                 GroupText(group->text, group->codePage, model::TextUse::kValue, *handle));
  }
  if (groups.endedByDamage()) Warn(L"The record of the summary is damaged.", *handle);
  return summary.Finish(groups.endedByDamage());
}

std::vector<model::StoredPicture> DwgDrawing::PreviewPictures() {
  Section* const section = container_->Find(SectionId::kPreview);
  if (section == nullptr) return {};
  return ReadPreviewArea(*section, *report_);
}

}  // namespace zdx::dwg
