// What Graphviz and a browser make of a graph.
#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <regex>
#include <sstream>

#include "GraphDot.h"
#include "GraphHtml.h"
#include "cli/parts/MadeUpDependencies.h"
#include "support/Process.h"
#include "support/Scratch.h"

namespace zdx {

namespace {

using ::testing::HasSubstr;
using ::testing::Not;

// The program of that name in PATH.
std::optional<std::filesystem::path> Program(const char* name) {
  std::istringstream folders(zdx_test::EnvironmentVariable("PATH"));
  for (std::string folder; std::getline(folders, folder, ':');) {
    const std::filesystem::path program = std::filesystem::path(folder) / name;
    std::error_code failure;
    if (std::filesystem::is_regular_file(program, failure)) return program;
  }
  return std::nullopt;
}

std::size_t Count(const std::string& text, const std::string& word) {
  std::size_t count = 0;
  for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + 1)) {
    ++count;
  }
  return count;
}

// A file for each of the hostile names, with text of that name all over.
FileGraph HostileGraph() {
  std::vector<DependencyRecord> records;
  for (const wchar_t* const name : kHostileNames) {
    records.push_back(Named(Missing(DependencyKind::Image, name), name));
    records.back().detail.reason = name;
  }
  return GraphOf(ReportOf(records));
}

// A thousand files in drawings of ten.
FileGraph LargeGraph() {
  std::vector<DependencyRecord> records;
  for (std::size_t i = 0; i < 1000; ++i) {
    const std::wstring path = std::to_wstring(i) + L".dwg";
    const auto parent = i < 10 ? std::nullopt : std::optional(i / 10 - 1);
    records.push_back(i % 7 == 0 ? Missing(DependencyKind::AttachedDrawing, path, parent)
                                 : Found(DependencyKind::AttachedDrawing, path, parent));
  }
  return GraphOf(ReportOf(std::move(records)));
}

// What Graphviz draws; nothing, and the test is skipped, if it isn't here.
std::optional<std::string> Drawn(const std::string& dot) {
  const auto program = Program("dot");
  if (!program) return std::nullopt;
  const zdx_test::ScratchFolder folder;
  const auto file = folder.Write("graph.dot", dot);
  const zdx_test::Outcome outcome =
      zdx_test::RunCommand({*program, {"-Tsvg", file.string()}, {}, folder.path()});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.err, "");
  return outcome.out;
}

constexpr const char* kNoGraphviz = "Graphviz (dot) isn't here";

TEST(Graphviz, DrawsAllFilesAndReferences) {
  const FileGraph graph = GraphOf(ReportOfPlant());
  const auto drawn = Drawn(DotOf(graph));
  if (!drawn) GTEST_SKIP() << kNoGraphviz;
  EXPECT_EQ(Count(*drawn, "class=\"node\""), graph.Nodes().size());
  EXPECT_EQ(Count(*drawn, "class=\"edge\""), graph.Edges().size());
}

TEST(Graphviz, DrawsHostileNamesAsTheyAre) {
  const FileGraph graph = HostileGraph();
  const auto drawn = Drawn(DotOf(graph));
  if (!drawn) GTEST_SKIP() << kNoGraphviz;
  EXPECT_EQ(Count(*drawn, "class=\"node\""), graph.Nodes().size());
  EXPECT_EQ(Count(*drawn, "class=\"edge\""), graph.Edges().size());
  // Titles, as Graphviz writes them.
  for (const char* const name :
       {"xlink:title=\"a&quot;b.png\"", "xlink:title=\"a\\N\\G\\\"",
        "xlink:title=\"a\\x0ab\\x1b[31m.png\"", ">a\\x0ab\\x1b[31m.png</text>",
        "xlink:title=\"&amp;lt;b&amp;gt; &amp; \\\"",
        "xlink:title=\"\xE9\x80\x86\xE6\xB5\x81\xD0\x96.dwg\""}) {
    EXPECT_THAT(*drawn, HasSubstr(name));
  }
}

TEST(Graphviz, DrawsLongNames) {
  for (const wchar_t character : {L'a', L'&', L'\\', L'"', L'\1', L'\u9006'}) {
    const std::wstring name(40000, character);
    const auto drawn =
        Drawn(DotOf(GraphOf(ReportOf({Named(Missing(DependencyKind::Image, name), name)}))));
    if (!drawn) GTEST_SKIP() << kNoGraphviz;
    EXPECT_EQ(Count(*drawn, "class=\"node\""), 2u);
  }
}

// What a browser makes of a page; nothing if there is none.
std::optional<std::string> Shown(const std::string& page) {
  const auto program = Program("chromium");
  if (!program) return std::nullopt;
  const zdx_test::ScratchFolder folder;
  const auto file = folder.Write("graph.html", page);
  const zdx_test::Outcome outcome = zdx_test::RunCommand(
      {*program,
       {"--headless", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage",
        "--user-data-dir=" + (folder.path() / "profile").string(), "--dump-dom",
        "file://" + file.string()},
       {"HOME=" + folder.path().string()},
       folder.path()});
  EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
  return outcome.out;
}

constexpr const char* kNoBrowser = "chromium isn't here";

TEST(Browser, ShowsAllFilesAndReferences) {
  const FileGraph graph = LargeGraph();
  const auto shown = Shown(HtmlOf(graph));
  if (!shown) GTEST_SKIP() << kNoBrowser;
  EXPECT_EQ(Count(*shown, "<g class=\"node"), 1001u);
  EXPECT_EQ(Count(*shown, "<path class=\"edge"), 1000u);
  EXPECT_EQ(Count(*shown, "<li class=\"file"), 1001u);
  // The script ran.
  EXPECT_THAT(*shown, HasSubstr(">1001 of 1001 files<"));
}

TEST(Browser, TakesHostileNamesForText) {
  const FileGraph graph = HostileGraph();
  const auto shown = Shown(HtmlOf(graph));
  if (!shown) GTEST_SKIP() << kNoBrowser;
  EXPECT_THAT(*shown, HasSubstr("<title>Files that plan.dwg depends on</title>"));
  EXPECT_EQ(Count(*shown, "<script"), 1u);
  EXPECT_THAT(*shown, Not(HasSubstr("<img")));
  EXPECT_EQ(Count(*shown, "<g class=\"node"), graph.Nodes().size());
  EXPECT_EQ(Count(*shown, "<path class=\"edge"), graph.Edges().size());
  const std::string files = std::to_string(graph.Nodes().size());
  EXPECT_THAT(*shown, HasSubstr(">" + files + " of " + files + " files<"));
}

// A script of ours behind the page's uses its controls, and leaves what it saw.
TEST(Browser, ShowsTheFilesThatAreAskedFor) {
  std::string page = HtmlOf(LargeGraph());
  page.insert(page.find("</body>"),
              "<script>filter.value='998'; filter.oninput(); const a=found.textContent;"
              "filter.value=''; only.checked=true; only.onchange();"
              "document.getElementById('larger').onclick();"
              "document.body.dataset.seen=a+'; '+found.textContent+'; '+"
              "(picture.getAttribute('width')/width)+'; '+"
              "document.querySelectorAll('li:not([hidden])').length;</script>\n");
  const auto shown = Shown(page);
  if (!shown) GTEST_SKIP() << kNoBrowser;
  EXPECT_THAT(*shown, HasSubstr("data-seen=\"1 of 1001 files; 143 of 1001 files; 1.25; 143\""));
}

TEST(Browser, LooksForWordsInAnyOrderAndWithBlanksAround) {
  std::string page = HtmlOf(GraphOf(ReportOfPlant()));
  page.insert(page.find("</body>"),
              "<script>document.body.dataset.seen=['NOTES romans', ' ', 'steel romans'].map("
              "(words)=>{filter.value=words; filter.oninput(); return found.textContent;})"
              ".join('; ');</script>\n");
  const auto shown = Shown(page);
  if (!shown) GTEST_SKIP() << kNoBrowser;
  EXPECT_THAT(*shown, HasSubstr("data-seen=\"1 of 6 files; 6 of 6 files; 0 of 6 files\""));
}

TEST(Browser, ShowsTheWholeOfALargeGraph) {
  std::string page = HtmlOf(LargeGraph());
  page.insert(
      page.find("</body>"),
      "<script>const press=(name)=>document.getElementById(name).onclick();"
      "press('whole'); const first=scale; press('smaller'); press('smaller'); press('whole');"
      "document.body.dataset.seen=scale===first&&graph.scrollWidth<=graph.clientWidth&&"
      "graph.scrollHeight<=graph.clientHeight;</script>\n");
  const auto shown = Shown(page);
  if (!shown) GTEST_SKIP() << kNoBrowser;
  EXPECT_THAT(*shown, HasSubstr("data-seen=\"true\""));
}

}  // namespace

}  // namespace zdx
