#include <algorithm>
#include <cstddef>

#include "DependencyReport.h"
#include "DependencyTree.h"
#include "DependencyWords.h"
#include "DisplayWidth.h"
#include "ReadableText.h"
#include "TextHead.h"

namespace zdx {

namespace {

using ZDXEngine::DependencyKind;

constexpr std::size_t kIndent = 2;
constexpr std::size_t kGap = 2;
// A longer name doesn't push the others' second column away.
constexpr std::size_t kWidestName = 60;
// Below as many drawings a number stands for the branches, or a long chain would fill the disk.
constexpr std::size_t kDeepestBranch = 32;

// The branches that lead to the entries of a tree, one after the other.
class Branches {
 public:
  std::string Next(const TreeEntry& entry) {
    const std::size_t depth = std::min(entry.depth, kDeepestBranch);
    trunk_.resize(std::min(trunk_.size(), depth));
    std::string text;
    for (const bool goesOn : trunk_) text += goesOn ? "│  " : "   ";
    if (trunk_.size() < kDeepestBranch) trunk_.push_back(!entry.isLast);
    if (entry.depth > kDeepestBranch) text += "(" + std::to_string(entry.depth) + " below) ";
    return text + (entry.isLast ? "└─ " : "├─ ");
  }

 private:
  std::vector<bool> trunk_;
};

std::string KindOf(const DependencyRecord& record) {
  std::string text = KindText(record.detail.kind);
  if (!record.detail.name.empty()) text += " (" + ReadableText(record.detail.name) + ")";
  return text;
}

void AppendPart(std::string& text, const std::string& part) {
  if (part.empty()) return;
  if (!text.empty()) text += ", ";
  text += part;
}

std::string StateOf(const DependencyRecord& record) {
  const ZDXEngine::DependencyDetail& detail = record.detail;
  std::string text = ProblemText(detail.problem);
  if (!IsMissing(record) && !detail.reason.empty()) {
    text += (text.empty() ? "" : ": ") + ReadableText(detail.reason);
  }
  if (text.empty() && !detail.exists) text = "not looked for";
  if (record.isOverlay && detail.kind != DependencyKind::OverlaidDrawing) {
    AppendPart(text, "overlaid");
  }
  if (detail.isUnloaded) AppendPart(text, "unloaded");
  if (detail.isRepeated) AppendPart(text, "repeated");
  return text;
}

struct Row {
  std::string name;
  std::string kind;
  std::string state;
};

std::vector<Row> RowsOf(const DependencyReport& report) {
  std::vector<Row> rows;
  Branches branches;
  for (const TreeEntry& entry : TreeOf(report)) {
    const DependencyRecord& record = *entry.record;
    rows.push_back({branches.Next(entry) + ReadableText(record.detail.storedPath), KindOf(record),
                    StateOf(record)});
  }
  return rows;
}

std::size_t WidthOf(const std::vector<Row>& rows, std::string Row::*column) {
  std::size_t widest = 0;
  for (const Row& row : rows) {
    const std::size_t width = DisplayWidth(row.*column);
    if (width <= kWidestName) widest = std::max(widest, width);
  }
  return widest;
}

void AppendCell(std::string& text, const std::string& cell, std::size_t width) {
  text.append(cell).append(std::max(width, DisplayWidth(cell)) - DisplayWidth(cell) + kGap, ' ');
}

void AppendRows(std::string& text, const std::vector<Row>& rows) {
  const std::size_t names = WidthOf(rows, &Row::name);
  const std::size_t kinds = WidthOf(rows, &Row::kind);
  for (const Row& row : rows) {
    text.append(kIndent, ' ');
    AppendCell(text, row.name, names);
    if (row.state.empty()) {
      text += row.kind + "\n";
    } else {
      AppendCell(text, row.kind, kinds);
      text += row.state + "\n";
    }
  }
}

// "7 files, 2 missing".
std::string CountText(const DependencyReport& report) {
  const FileCount count = CountFiles(report);
  const std::string all =
      count.all == 1 ? std::string("1 file") : std::to_string(count.all) + " files";
  return all + ", " + (count.missing == 0 ? "none" : std::to_string(count.missing)) + " missing";
}

}  // namespace

std::string TextOf(const std::wstring& path, const DependencyReport& report) {
  std::string text = TextHead(path, report.drawingType, report.diagnostics) + "\n";
  if (report.dependencies.empty()) return text + "  The drawing needs no other files.\n";
  const std::vector<Row> rows = RowsOf(report);
  AppendRows(text, rows);
  if (!rows.empty()) text += '\n';
  return text + "  " + CountText(report) + "\n";
}

}  // namespace zdx
