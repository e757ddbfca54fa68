#include "GraphDot.h"

#include <cstddef>
#include <string_view>

#include "DependencyWords.h"
#include "ReadableText.h"
#include "Utf8Points.h"

namespace zdx {

namespace {

constexpr std::string_view kMissingColour = "#b3261e";

// Graphviz reads no quoted text of more than 16,384 bytes, and a byte here is at most ten there.
constexpr std::size_t kMostBytes = 1500;

// The beginning of `text`, valid UTF-8, if it is too long.
std::string Cut(const std::string& text) {
  if (text.size() <= kMostBytes) return text;
  std::size_t end = 0;
  for (std::size_t at = 0; at < kMostBytes;) {
    end = at;
    NextPoint(text, at);
  }
  return text.substr(0, end) + "…";
}

// `text` inside quotes, with `backslash` for each backslash.  Graphviz takes entities, as HTML has
// them, for characters.
std::string Quoted(const std::string& text, std::string_view backslash) {
  std::string quoted;
  for (const char c : Cut(text)) {
    if (c == '&') {
      quoted += "&amp;";
    } else if (c == '\\') {
      quoted += backslash;
    } else {
      if (c == '"') quoted += '\\';
      quoted += c;
    }
  }
  return quoted;
}

// "\N" and its kin are looked for before entities become characters in a label, in a tip also after
// that.
std::string LabelText(const std::string& text) { return Quoted(text, "\\\\"); }
std::string TipText(const std::string& text) { return Quoted(text, "&#92;&#92;"); }

std::string NodeName(std::size_t place) { return "n" + std::to_string(place); }

void AppendNode(std::string& text, std::size_t place, const GraphNode& node) {
  text += "  " + NodeName(place) + " [label=\"" + LabelText(ReadableText(LeafOf(node.path))) +
          "\\n" + LabelText(NoteOn(node)) + "\", tooltip=\"" + TipText(ReadableText(node.path)) +
          "\"";
  if (node.isRoot) text += ", penwidth=2";
  if (node.isMissing) {
    text.append(", style=dashed, color=\"").append(kMissingColour);
    text.append("\", fontcolor=\"").append(kMissingColour).append("\"");
  }
  text += "];\n";
}

void AppendEdge(std::string& text, const GraphEdge& edge) {
  std::string title = KindText(edge.kind);
  if (!edge.name.empty()) title += " " + ReadableText(edge.name);
  title += ": " + ReadableText(edge.storedPath);
  text += "  " + NodeName(edge.from) + " -> " + NodeName(edge.to) + " [tooltip=\"" +
          TipText(title) + "\"";
  if (edge.isOverlay) text += ", style=dashed, label=\"overlay\"";
  if (edge.isUnloaded) text += edge.isOverlay ? ", color=gray" : ", color=gray, label=\"unloaded\"";
  text += "];\n";
}

}  // namespace

std::string DotOf(const FileGraph& graph) {
  std::string text =
      "digraph dependencies {\n"
      "  graph [rankdir=LR, charset=\"UTF-8\"];\n"
      "  node [shape=box, fontname=\"sans-serif\", fontsize=11];\n"
      "  edge [fontname=\"sans-serif\", fontsize=9];\n";
  for (std::size_t i = 0; i < graph.Nodes().size(); ++i) AppendNode(text, i, graph.Nodes()[i]);
  for (const GraphEdge& edge : graph.Edges()) AppendEdge(text, edge);
  return text + "}\n";
}

}  // namespace zdx
