#include "TextOutput.h"

#include <optional>
#include <span>
#include <vector>

#include "BlockValues.h"
#include "NumberText.h"
#include "PropertyNames.h"
#include "PropertyValue.h"
#include "ReadableText.h"
#include "TextGroups.h"
#include "TextHead.h"
#include "TextTable.h"
#include "ThumbnailPicture.h"

namespace zdx {

namespace {

using ZDXEngine::_PropData;

// With commas between thousands.
std::string Grouped(std::size_t number) {
  std::string digits = std::to_string(number);
  for (std::size_t at = digits.size(); at > 3; at -= 3) digits.insert(at - 3, ",");
  return digits;
}

// Turns a value into the lines that show it.
struct ShowValue {
  using Lines = std::vector<std::string>;

  Lines operator()(std::monostate) const { return {"(none)"}; }
  Lines operator()(bool flag) const { return {flag ? "yes" : "no"}; }
  Lines operator()(double number) const { return {NumberText(number)}; }
  Lines operator()(std::wstring_view text) const {
    return text.empty() ? Lines{"(empty)"} : ReadableLines(text);
  }
  Lines operator()(std::span<const std::uint8_t> bytes) const {
    return {"(" + Grouped(bytes.size()) + " bytes)"};
  }
};

// "256 x 94 pixels, 24 bits (72,248 bytes)"; empty if the picture can't be understood.
std::string ShownPicture(const _PropData& property) {
  const PropertyValue value = ValueOf(property);
  const auto* const bytes = std::get_if<std::span<const std::uint8_t>>(&value);
  const auto picture = bytes == nullptr ? std::nullopt : ReadThumbnail(*bytes);
  if (!picture) return {};
  return std::to_string(picture->width) + " x " + std::to_string(picture->height) + " pixels, " +
         std::to_string(picture->bits) + (picture->bits == 1 ? " bit (" : " bits (") +
         Grouped(bytes->size()) + " bytes)";
}

std::vector<std::string> Shown(const _PropData& property) {
  if (IsThumbnail(property)) {
    const std::string picture = ShownPicture(property);
    if (!picture.empty()) return {picture};
  }
  return std::visit(ShowValue{}, ValueOf(property));
}

bool IsEmptyText(const _PropData& property) {
  const PropertyValue value = ValueOf(property);
  const auto* const text = std::get_if<std::wstring_view>(&value);
  return text != nullptr && text->empty();
}

std::wstring SummaryLabel(const _PropData& property) {
  for (const SummaryField& field : SummaryFields()) {
    if (property.name == field.number) return field.name;
  }
  return IsThumbnail(property) ? L"Thumbnail" : L"Property " + property.name;
}

std::wstring LabelOf(const _PropData& property) {
  switch (SetOf(property)) {
    case PropertySet::kSummary:
      return SummaryLabel(property);
    case PropertySet::kCustom:
    case PropertySet::kStorage:
      return property.name;
    case PropertySet::kUnknown:
      break;
  }
  return property.formatId + L" " + property.name;
}

std::string OnOneLine(const _PropData& property) {
  const PropertyValue value = ValueOf(property);
  const auto* const text = std::get_if<std::wstring_view>(&value);
  if (text != nullptr && !text->empty()) return ReadableText(*text);
  return Shown(property).front();
}

// One group as it grows.
struct Rows {
  std::vector<TextRow> rows;
  // The last row has its first column only, and its second may follow.
  bool awaitsSecond = false;
};

void AddToPairs(Rows& group, const _PropData& property) {
  if (!IsSecondOfPair(property)) {
    group.rows.push_back({OnOneLine(property), {}});
    group.awaitsSecond = true;
    return;
  }
  if (!group.awaitsSecond) group.rows.push_back({"(no name)", {}});
  // Most line types have no comment, and "(empty)" behind each would only be noise.
  if (!IsEmptyText(property)) group.rows.back().lines = Shown(property);
  group.awaitsSecond = false;
}

void AddRow(Rows& group, GroupLayout layout, const _PropData& property) {
  switch (layout) {
    case GroupLayout::kFields:
      group.rows.push_back({ReadableText(LabelOf(property)), Shown(property)});
      break;
    case GroupLayout::kList:
      group.rows.push_back({OnOneLine(property), {}});
      break;
    case GroupLayout::kPairs:
      AddToPairs(group, property);
      break;
  }
}

std::string TitleOf(const TextGroup& group, const std::vector<TextRow>& rows) {
  std::string title(group.title);
  if (group.layout != GroupLayout::kFields) title += " (" + std::to_string(rows.size()) + ")";
  return title;
}

void AppendGroups(std::string& text, std::span<const _PropData> properties) {
  const std::span<const TextGroup> groups = TextGroups();
  std::vector<Rows> filled(groups.size());
  for (const _PropData& property : properties) {
    // The head line tells it.
    if (IsDrawingType(property)) continue;
    const std::size_t at = TextGroupOf(property);
    AddRow(filled[at], groups[at].layout, property);
  }
  for (std::size_t i = 0; i < groups.size(); ++i) {
    const std::vector<TextRow>& rows = filled[i].rows;
    if (rows.empty()) continue;
    text.push_back('\n');
    AppendTable(text, TitleOf(groups[i], rows), rows);
  }
}

// "Block TITLE", or "Block TITLE, NOTES" of blocks that share a format id.
std::string TitleOf(const BlockValues& group) {
  std::string title = "Block ";
  for (const BlockFilter* const block : group.blocks) {
    if (block != group.blocks.front()) title += ", ";
    title += ReadableText(block->blockName);
  }
  return group.values.empty() ? title + " (none)" : title;
}

void AppendBlocks(std::string& text, const DrawingReport& report) {
  for (const BlockValues& group : SortBlockValues(report.BlockProperties(), report.blocks)) {
    std::vector<TextRow> rows;
    for (const _PropData* const value : group.values) {
      rows.push_back({ReadableText(value->name), Shown(*value)});
    }
    text.push_back('\n');
    AppendTable(text, TitleOf(group), rows);
  }
}

}  // namespace

std::string TextOf(const std::wstring& path, const DrawingReport& report) {
  std::string text = TextHead(path, report.drawingType, report.diagnostics);
  AppendGroups(text, report.OwnProperties());
  AppendBlocks(text, report);
  return text;
}

}  // namespace zdx
