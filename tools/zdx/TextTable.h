// Rows of labels and values for a person's eye.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zdx {

// All texts are valid UTF-8, fit for a terminal.
struct TextRow {
  std::string label;
  // Shown one below the other; none for a row that is only a label.
  std::vector<std::string> lines;
};

// Appends `title` and below it the rows, with all values in one column.  A label that is much
// longer than labels usually are doesn't push the others' values away: its value follows it
// directly.
void AppendTable(std::string& text, std::string_view title, const std::vector<TextRow>& rows);

}  // namespace zdx
