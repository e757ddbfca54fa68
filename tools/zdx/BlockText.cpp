#include "BlockReport.h"
#include "ReadableText.h"
#include "TextHead.h"
#include "TextTable.h"

namespace zdx {

namespace {

using ZDXEngine::AttributeDefinitionInfo;
using ZDXEngine::BlockInfo;

// "44 references", "1 reference, 3 to its variations".
std::string CountText(const BlockInfo& block) {
  std::string text = block.references == 0   ? "no references"
                     : block.references == 1 ? "1 reference"
                                             : std::to_string(block.references) + " references";
  if (block.variations > 0) text += ", " + std::to_string(block.variations) + " to its variations";
  return text;
}

// The prompt, and below it the text that the definition gives.
TextRow RowOf(const AttributeDefinitionInfo& definition) {
  TextRow row{ReadableText(definition.tag), {}};
  if (!definition.prompt.empty()) row.lines.push_back(ReadableText(definition.prompt));
  if (!definition.text.empty() || definition.isConstant) {
    std::vector<std::string> lines = definition.text.empty() ? std::vector<std::string>{"(empty)"}
                                                             : ReadableLines(definition.text);
    lines.front().insert(0, definition.isConstant ? "constant: " : "default: ");
    row.lines.insert(row.lines.end(), lines.begin(), lines.end());
  }
  return row;
}

}  // namespace

std::string TextOf(const std::wstring& path, const BlockReport& report) {
  std::string text = TextHead(path, {}, report.diagnostics);
  if (report.blocks.empty()) return text + "\n  No block has attributes.\n";
  for (const BlockInfo& block : report.blocks) {
    std::vector<TextRow> rows;
    for (const AttributeDefinitionInfo& definition : block.definitions) {
      rows.push_back(RowOf(definition));
    }
    text.push_back('\n');
    AppendTable(text, ReadableText(block.name) + " (" + CountText(block) + ")", rows);
  }
  return text;
}

}  // namespace zdx
