#include "GraphHtml.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <utility>

#include "DependencyWords.h"
#include "DisplayWidth.h"
#include "GraphLayout.h"
#include "GraphPage.h"
#include "ReadableText.h"
#include "Utf8Points.h"

namespace zdx {

namespace {

// Of the picture, in its own units.
constexpr std::size_t kMargin = 16;
constexpr std::size_t kNodeWidth = 204;
constexpr std::size_t kNodeHeight = 36;
constexpr std::size_t kColumnWidth = 290;
constexpr std::size_t kRowHeight = 48;
// What fits into a node.
constexpr std::size_t kLabelColumns = 26;
constexpr std::size_t kNoteColumns = 31;

// A text of a file as text or an attribute's value.
std::string Escaped(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    switch (c) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      case '"':
        escaped += "&quot;";
        break;
      case '\'':
        escaped += "&#39;";
        break;
      default:
        escaped += c;
    }
  }
  return escaped;
}

std::string Escaped(const std::wstring& text) { return Escaped(ReadableText(text)); }

// `text`, or its beginning and "…" if it is wider than `columns`.
std::string Shortened(const std::string& text, std::size_t columns) {
  if (DisplayWidth(text) <= columns) return text;
  std::size_t end = 0;
  std::size_t width = 0;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t start = at;
    NextPoint(text, at);
    width += DisplayWidth(std::string_view(text).substr(start, at - start));
    if (width >= columns) break;
    end = at;
  }
  return text.substr(0, end) + "…";
}

std::string CountText(std::size_t count, const std::string& one) {
  return std::to_string(count) + " " + one + (count == 1 ? "" : "s");
}

std::string TitleOf(const FileGraph& graph) {
  std::vector<std::string> roots;
  for (const GraphNode& node : graph.Nodes()) {
    if (node.isRoot) roots.push_back(Escaped(LeafOf(node.path)));
  }
  const std::string whose = roots.size() == 1 ? roots.front() : CountText(roots.size(), "drawing");
  return "Files that " + whose + (roots.size() == 1 ? " depends on" : " depend on");
}

std::string SummaryOf(const FileGraph& graph) {
  const auto count = [&](bool GraphNode::*flag) {
    return static_cast<std::size_t>(
        std::count_if(graph.Nodes().begin(), graph.Nodes().end(),
                      [flag](const GraphNode& node) { return node.*flag; }));
  };
  const std::size_t roots = count(&GraphNode::isRoot);
  const std::size_t missing = count(&GraphNode::isMissing);
  return CountText(roots, "drawing") + ", " +
         CountText(graph.Nodes().size() - roots, "other file") + ", " +
         CountText(graph.Edges().size(), "reference") + ", " +
         (missing == 0 ? "none" : std::to_string(missing)) + " missing";
}

std::string UseText(const GraphEdge& edge) {
  std::string text = KindText(edge.kind);
  if (!edge.name.empty()) text += " (" + Escaped(edge.name) + ")";
  if (edge.isOverlay && edge.kind != ZDXEngine::DependencyKind::OverlaidDrawing) {
    text += ", overlaid";
  }
  if (edge.isUnloaded) text += ", unloaded";
  return text + ": " + Escaped(edge.storedPath);
}

std::size_t XOf(const GraphPlace& place) { return kMargin + place.column * kColumnWidth; }
std::size_t YOf(const GraphPlace& place) { return kMargin + place.row * kRowHeight; }

std::string Coordinates(std::size_t x, std::size_t y) {
  return std::to_string(x) + " " + std::to_string(y);
}

// A curve between the sides of two nodes that face each other; between nodes of one column it bows
// to the right.  The `number`th between the same two runs beside the others.
std::string Curve(const GraphPlace& from, const GraphPlace& to, std::size_t number) {
  constexpr std::size_t kMostBeside = 8;
  const std::size_t beside = std::min(number, kMostBeside) * 4;
  const std::size_t pull = (from.column == to.column ? 30 : 50) + beside;
  const bool startsRight = from.column <= to.column;
  const bool endsRight = from.column >= to.column;
  const std::size_t startX = XOf(from) + (startsRight ? kNodeWidth : 0);
  const std::size_t endX = XOf(to) + (endsRight ? kNodeWidth : 0);
  // One that leads to its own node needs some room.
  const std::size_t startY = YOf(from) + kNodeHeight / 2 - 6;
  const std::size_t endY = YOf(to) + kNodeHeight / 2 + 6;
  return "M" + Coordinates(startX, startY) + " C" +
         Coordinates(startsRight ? startX + pull : startX - pull, startY + beside) + " " +
         Coordinates(endsRight ? endX + pull : endX - pull, endY + beside) + " " +
         Coordinates(endX, endY);
}

void AppendEdges(std::string& page, const FileGraph& graph, const std::vector<GraphPlace>& places) {
  std::map<std::pair<std::size_t, std::size_t>, std::size_t> numbers;
  for (const GraphEdge& edge : graph.Edges()) {
    page += "<path class=\"edge";
    if (edge.isOverlay) page += " overlay";
    if (edge.isUnloaded) page += " unloaded";
    page += "\" marker-end=\"url(#tip)\" d=\"" +
            Curve(places[edge.from], places[edge.to], numbers[{edge.from, edge.to}]++) +
            "\"><title>" + UseText(edge) + "</title></path>\n";
  }
}

std::string ClassesOf(const GraphNode& node) {
  return std::string(node.isRoot ? " root" : "") + (node.isMissing ? " missing" : "");
}

void AppendNode(std::string& page, std::size_t number, const GraphNode& node,
                const GraphPlace& place) {
  page += "<g class=\"node" + ClassesOf(node) + "\" id=\"n" + std::to_string(number) +
          "\" transform=\"translate(" + Coordinates(XOf(place), YOf(place)) + ")\"><title>" +
          Escaped(node.path) + "</title><rect width=\"" + std::to_string(kNodeWidth) +
          "\" height=\"" + std::to_string(kNodeHeight) + "\" rx=\"5\"/><text x=\"8\" y=\"15\">" +
          Escaped(Shortened(ReadableText(LeafOf(node.path)), kLabelColumns)) +
          "</text><text class=\"note\" x=\"8\" y=\"29\">" +
          Escaped(Shortened(NoteOn(node), kNoteColumns)) + "</text></g>\n";
}

void AppendPicture(std::string& page, const FileGraph& graph, const std::string& title) {
  const std::vector<GraphPlace> places = LayOut(graph);
  std::size_t width = 0;
  std::size_t height = 0;
  for (const GraphPlace& place : places) {
    width = std::max(width, XOf(place) + kColumnWidth);
    height = std::max(height, YOf(place) + 2 * kRowHeight);
  }
  const std::string size[] = {std::to_string(width), std::to_string(height)};
  page += "<svg xmlns=\"http://www.w3.org/2000/svg\" role=\"img\" aria-label=\"" + title +
          ": a graph; the list below tells the same\" width=\"" + size[0] + "\" height=\"" +
          size[1] + "\" viewBox=\"0 0 " + size[0] + " " + size[1] +
          "\">\n<defs><marker id=\"tip\" viewBox=\"0 0 8 8\" refX=\"8\" refY=\"4\" "
          "markerWidth=\"8\" markerHeight=\"8\" orient=\"auto\"><path d=\"M0 0L8 4L0 8z\"/>"
          "</marker></defs>\n";
  AppendEdges(page, graph, places);
  for (std::size_t i = 0; i < places.size(); ++i) AppendNode(page, i, graph.Nodes()[i], places[i]);
  page += "</svg>\n";
}

void AppendList(std::string& page, const FileGraph& graph) {
  std::vector<std::vector<const GraphEdge*>> uses(graph.Nodes().size());
  for (const GraphEdge& edge : graph.Edges()) uses[edge.to].push_back(&edge);
  page += "<ul>\n";
  for (std::size_t i = 0; i < uses.size(); ++i) {
    const GraphNode& node = graph.Nodes()[i];
    page += "<li class=\"file" + ClassesOf(node) + "\"><a href=\"#n" + std::to_string(i) + "\">" +
            Escaped(LeafOf(node.path)) + "</a> <span class=\"note\">" + Escaped(NoteOn(node)) +
            "</span><div>" + Escaped(node.path) + "</div>";
    if (!node.reason.empty()) page += "<div>" + Escaped(node.reason) + "</div>";
    for (const GraphEdge* const use : uses[i]) {
      page += "<div>" + Escaped(LeafOf(graph.Nodes()[use->from].path)) + ": " + UseText(*use) +
              "</div>";
    }
    page += "</li>\n";
  }
  page += "</ul>\n";
}

}  // namespace

std::string HtmlOf(const FileGraph& graph) {
  const std::string title = TitleOf(graph);
  std::string page =
      "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
      "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; "
      "style-src 'unsafe-inline'; script-src 'unsafe-inline'\">\n"
      "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>" +
      title + "</title>\n<style>";
  page.append(kPageStyle).append("</style>\n</head>\n<body>\n<h1>" + title + "</h1>\n<p>");
  page += SummaryOf(graph) +
          "</p>\n<p hidden><button type=\"button\" id=\"smaller\">Smaller</button> "
          "<button type=\"button\" id=\"larger\">Larger</button> "
          "<button type=\"button\" id=\"whole\">Whole graph</button> "
          "<button type=\"button\" id=\"plain\">Full size</button></p>\n"
          "<div class=\"graph\" tabindex=\"0\">\n";
  AppendPicture(page, graph, title);
  page +=
      "</div>\n<h2>Files</h2>\n<p hidden><input type=\"search\" id=\"filter\" "
      "placeholder=\"Part of a name\" aria-label=\"Show files with these words\">"
      "<label><input type=\"checkbox\" id=\"only\"> missing files only</label> "
      "<span id=\"found\" role=\"status\"></span></p>\n";
  AppendList(page, graph);
  return page.append("<script>").append(kPageScript).append("</script>\n</body>\n</html>\n");
}

}  // namespace zdx
