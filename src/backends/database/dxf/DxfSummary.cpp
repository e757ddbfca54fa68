// The texts about the drawing as a whole: summary, custom entries and settings.
#include <algorithm>
#include <array>
#include <iterator>

#include "backends/database/dxf/DxfDrawing.h"
#include "backends/database/dxf/Tokens.h"
#include "backends/database/model/BuiltIns.h"
#include "backends/database/model/SummaryRecord.h"
#include "base/CaseFold.h"

namespace zdx::dxf {
namespace {

using model::Setting;
using model::Summary;

struct SettingRow {
  std::string_view variable;
  Setting setting;
  // The first version whose header holds it.
  model::Version since;
};

constexpr SettingRow kSettings[] = {
    {kMenuVariable, Setting::kMenu, 0},
    {kProjectNameVariable, Setting::kProjectName, model::kVersion1018},
    {kHyperlinkBaseVariable, Setting::kHyperlinkBase, model::kVersion1015},
    {kStyleSheetVariable, Setting::kStyleSheet, model::kVersion1015},
    {kDimpostVariable, Setting::kDimpost, 0},
    {kDimapostVariable, Setting::kDimapost, 0},
    {kDimblkVariable, Setting::kDimblk, 0},
    {kDimblk1Variable, Setting::kDimblk1, 0},
    {kDimblk2Variable, Setting::kDimblk2, 0},
};

bool NamesAnArrow(Setting setting) {
  return setting == Setting::kDimblk || setting == Setting::kDimblk1 ||
         setting == Setting::kDimblk2;
}

struct SummaryRow {
  std::optional<std::wstring> Summary::*field;
  std::string_view variable;
};

// From AC1018 on; before, a record has the summary.
constexpr SummaryRow kSummaryFields[] = {
    {&Summary::title, kTitleVariable},
    {&Summary::subject, kSubjectVariable},
    {&Summary::author, kAuthorVariable},
    {&Summary::keywords, kKeywordsVariable},
    {&Summary::comments, kCommentsVariable},
    {&Summary::lastSavedBy, kLastSavedByVariable},
    {&Summary::revisionNumber, kRevisionNumberVariable},
};

}  // namespace

std::optional<std::wstring> DxfDrawing::SettingText(Setting setting) {
  const auto* const row =
      std::find_if(std::begin(kSettings), std::end(kSettings),
                   [setting](const SettingRow& r) { return r.setting == setting; });
  const bool absent = header_.Find(row->variable) == nullptr;
  if (absent && version_ < row->since) return std::nullopt;
  if (!NamesAnArrow(setting)) return VariableText(row->variable);
  const Tag* const name = HeaderTag(row->variable);
  if (name == nullptr) return absent ? std::optional<std::wstring>(L"") : std::nullopt;
  return model::ArrowBlockName(Text(*name, model::TextUse::kName),
                               [this](const std::wstring& name) { return BlockSpelling(name); });
}

// The block table's own spelling of a name; empty if it has no such block.
std::wstring DxfDrawing::BlockSpelling(const std::wstring& name) {
  for (const model::ObjectKey block : TableRecords(model::TableKind::kBlock)) {
    std::optional<std::wstring> spelled = RecordName(model::TableKind::kBlock, block);
    if (spelled && CompareIgnoringCase(*spelled, name) == 0) return *std::move(spelled);
  }
  return {};
}

std::optional<Summary> DxfDrawing::ReadSummary() {
  if (version_ < model::kVersion1012) return std::nullopt;
  return version_ >= model::kVersion1018 ? SummaryOfHeader() : SummaryOfRecord();
}

// The text of a header variable, empty if there is none; nullopt if it can't be read.
std::optional<std::wstring> DxfDrawing::VariableText(std::string_view name) {
  if (header_.Find(name) == nullptr) return L"";
  const Tag* const tag = HeaderTag(name);
  return tag == nullptr ? std::nullopt : std::optional(Text(*tag, model::TextUse::kValue));
}

Summary DxfDrawing::SummaryOfHeader() {
  Summary summary;
  for (const SummaryRow& row : kSummaryFields) summary.*row.field = VariableText(row.variable);
  ReadCustomEntries(summary);
  return summary;
}

// The header has a variable for each name and one behind it for its value.
void DxfDrawing::ReadCustomEntries(Summary& summary) {
  bool wantsValue = false;
  for (const HeaderVariables::Variable& variable : header_.all()) {
    if (variable.name == kCustomNameVariable) {
      wantsValue = variable.value.has_value();
      if (!wantsValue) continue;
      summary.custom.emplace_back(Text(*variable.value, model::TextUse::kValue), std::wstring());
    } else if (variable.name == kCustomValueVariable && wantsValue) {
      wantsValue = false;
      if (variable.value) {
        summary.custom.back().second = Text(*variable.value, model::TextUse::kValue);
      } else {
        summary.custom.pop_back();
      }
    }
  }
}

Summary DxfDrawing::SummaryOfRecord() {
  const std::optional<model::ObjectKey> root = RootDictionary();
  if (!root) return {};
  const std::optional<model::ObjectKey> record = EntryOf(*root, kSummaryKey);
  if (!record || StartOf(*record).type != kXrecord) return {};
  ObjectTags tags(stream_, StartOf(*record).body);
  GoToFreeValues(tags);
  Tag tag;
  model::SummaryRecord summary;
  while (tags.Next(tag)) {
    if (!model::SummaryRecord::Wants(tag.code)) continue;
    summary.Take(tag.code, Text(tag, model::TextUse::kValue));
  }
  WarnOfDamage(tags);
  return summary.Finish(tags.endedByDamage());
}

}  // namespace zdx::dxf
