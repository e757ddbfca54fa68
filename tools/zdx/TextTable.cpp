#include "TextTable.h"

#include <algorithm>
#include <cstddef>

#include "DisplayWidth.h"

namespace zdx {

namespace {

constexpr std::size_t kTitleIndent = 2;
constexpr std::size_t kRowIndent = 4;
constexpr std::size_t kGap = 2;
constexpr std::size_t kWidestColumn = 32;

std::size_t LabelColumn(const std::vector<TextRow>& rows) {
  std::size_t column = 0;
  for (const TextRow& row : rows) {
    const std::size_t width = DisplayWidth(row.label);
    if (width <= kWidestColumn) column = std::max(column, width);
  }
  return column;
}

void AppendRow(std::string& text, const TextRow& row, std::size_t column) {
  text.append(kRowIndent, ' ').append(row.label);
  std::size_t at = DisplayWidth(row.label);
  for (const std::string& line : row.lines) {
    if (&line != &row.lines.front()) {
      text.push_back('\n');
      at = 0;
      if (!line.empty()) text.append(kRowIndent, ' ');
    }
    if (line.empty()) continue;
    text.append(std::max(column, at) - at + kGap, ' ').append(line);
  }
  text.push_back('\n');
}

}  // namespace

void AppendTable(std::string& text, std::string_view title, const std::vector<TextRow>& rows) {
  text.append(kTitleIndent, ' ').append(title).push_back('\n');
  const std::size_t column = LabelColumn(rows);
  for (const TextRow& row : rows) AppendRow(text, row, column);
}

}  // namespace zdx
