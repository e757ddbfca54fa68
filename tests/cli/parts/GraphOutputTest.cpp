// What graphs look like as text; parts/posix asks Graphviz and a browser.
#include <gmock/gmock.h>

#include "GraphDot.h"
#include "GraphHtml.h"
#include "MadeUpDependencies.h"

namespace zdx {

namespace {

using ::testing::HasSubstr;
using ::testing::Not;

TEST(DotOfGraph, HasOneLineForEachFileAndEachReference) {
  DependencyReport report = ReportOfPlant();
  report.dependencies.resize(3);
  report.dependencies[0].detail.isUnloaded = true;
  EXPECT_EQ(DotOf(GraphOf(report)),
            "digraph dependencies {\n"
            "  graph [rankdir=LR, charset=\"UTF-8\"];\n"
            "  node [shape=box, fontname=\"sans-serif\", fontsize=11];\n"
            "  edge [fontname=\"sans-serif\", fontsize=9];\n"
            "  n0 [label=\"plan.dwg\\ndrawing\", tooltip=\"plan.dwg\", penwidth=2];\n"
            "  n1 [label=\"pipes.dwg\\nattached drawing\", tooltip=\"/p/pipes.dwg\"];\n"
            "  n2 [label=\"steel.dxf\\noverlaid drawing\", tooltip=\"/p/steel.dxf\"];\n"
            "  n3 [label=\"logo.png\\nmissing image\", tooltip=\"logo.png\", style=dashed, "
            "color=\"#b3261e\", fontcolor=\"#b3261e\"];\n"
            "  n0 -> n1 [tooltip=\"attached drawing PIPES: pipes.dwg\", color=gray, "
            "label=\"unloaded\"];\n"
            "  n0 -> n2 [tooltip=\"overlaid drawing STEEL: steel.dxf\", style=dashed, "
            "label=\"overlay\"];\n"
            "  n0 -> n3 [tooltip=\"image: logo.png\"];\n"
            "}\n");
}

TEST(DotOfGraph, KeepsNamesInsideTheirQuotes) {
  const std::string dot =
      DotOf(GraphOf(ReportOf({Missing(DependencyKind::Image, L"a\"]; b\\N&amp;\n")})));
  EXPECT_THAT(dot, HasSubstr(R"(tooltip="a\"]; b\\\\N&amp;amp;\\\\x0a")"));
  EXPECT_THAT(dot, HasSubstr(R"(label="N&amp;amp;\\x0a\nmissing image")"));
}

TEST(HtmlOfGraph, MarksWhatItShows) {
  const std::string page = HtmlOf(GraphOf(ReportOfPlant()));
  EXPECT_THAT(page, HasSubstr("<title>Files that plan.dwg depends on</title>"));
  EXPECT_THAT(page, HasSubstr("<p>1 drawing, 5 other files, 5 references, 2 missing</p>"));
  EXPECT_THAT(page, HasSubstr("<g class=\"node root\" id=\"n0\""));
  EXPECT_THAT(page, HasSubstr("<g class=\"node missing\" id=\"n3\""));
  EXPECT_THAT(page, HasSubstr("<path class=\"edge overlay\""));
  EXPECT_THAT(page, HasSubstr("<div>pipes.dwg: font (NOTES): romans.shx</div>"));
}

TEST(HtmlOfGraph, MarksOverlaysAndWhatIsUnloaded) {
  DependencyRecord record = Found(DependencyKind::AttachedDrawing, L"a.dwg");
  record.isOverlay = true;
  record.detail.isUnloaded = true;
  const std::string page = HtmlOf(GraphOf(ReportOf({record})));
  EXPECT_THAT(page, HasSubstr("<path class=\"edge overlay unloaded\""));
  EXPECT_THAT(page, HasSubstr(": attached drawing, overlaid, unloaded: a.dwg</div>"));
}

TEST(HtmlOfGraph, SaysWhatIsWrongWithAFile) {
  DependencyRecord damaged = Found(DependencyKind::AttachedDrawing, L"a.dwg");
  damaged.detail.problem = DependencyProblem::Damaged;
  damaged.detail.reason = L"Half of it is gone.";
  EXPECT_THAT(HtmlOf(GraphOf(ReportOf({damaged}))), HasSubstr("<div>Half of it is gone.</div>"));
}

TEST(HtmlOfGraph, DrawsReferencesToOneFileBesideEachOther) {
  const std::string page =
      HtmlOf(GraphOf(ReportOf({Named(Found(DependencyKind::AttachedDrawing, L"a.dwg"), L"A"),
                               Named(Found(DependencyKind::AttachedDrawing, L"a.dwg"), L"B")})));
  const std::string start = "marker-end=\"url(#tip)\" d=\"";
  const std::size_t first = page.find(start);
  const std::size_t second = page.find(start, first + 1);
  ASSERT_NE(second, std::string::npos);
  EXPECT_NE(page.substr(first, page.find('>', first) - first),
            page.substr(second, page.find('>', second) - second));
}

TEST(HtmlOfGraph, LoadsNothing) {
  const std::string page = HtmlOf(GraphOf(ReportOfPlant()));
  EXPECT_THAT(page, HasSubstr("default-src 'none'"));
  for (const char* const word : {" src=", "<link", "@import", "url(h", "fetch(", "https:"}) {
    EXPECT_THAT(page, Not(HasSubstr(word)));
  }
}

TEST(HtmlOfGraph, HasNoMarkupOfTheFiles) {
  std::vector<DependencyRecord> records;
  for (const wchar_t* const name : kHostileNames) {
    records.push_back(Named(Missing(DependencyKind::Image, name), name));
    records.back().detail.reason = name;
  }
  const std::string page = HtmlOf(GraphOf(ReportOf(records)));
  EXPECT_THAT(page, Not(HasSubstr("<script>document")));
  EXPECT_THAT(page, Not(HasSubstr("<img")));
  EXPECT_THAT(page, Not(HasSubstr("'document.title")));
  EXPECT_THAT(page, Not(HasSubstr("a\"b")));
  EXPECT_THAT(page, Not(HasSubstr("\033")));
  EXPECT_THAT(page, HasSubstr("&lt;/script&gt;&lt;script&gt;document.title=&#39;x&#39;"));
}

TEST(HtmlOfGraph, ShortensALongNameInThePictureAlone) {
  const std::wstring name = std::wstring(30, L'a') + L".png";
  const std::string page = HtmlOf(GraphOf(ReportOf({Found(DependencyKind::Image, name)})));
  EXPECT_THAT(page, HasSubstr(">" + std::string(25, 'a') + "…</text>"));
  EXPECT_THAT(page, HasSubstr("<div>/p/" + std::string(30, 'a') + ".png</div>"));
}

TEST(HtmlOfGraph, OfSeveralDrawingsNamesTheirNumber) {
  FileGraph graph = GraphOf(ReportOfPlant());
  DependencyReport other = ReportOf({});
  other.root.file = L"/p/other.dwg";
  graph.Add(other);
  EXPECT_THAT(HtmlOf(graph), HasSubstr("<title>Files that 2 drawings depend on</title>"));
}

}  // namespace

}  // namespace zdx
