#include <gmock/gmock.h>

#include <set>
#include <utility>

#include "FileGraph.h"
#include "GraphLayout.h"
#include "MadeUpDependencies.h"

namespace zdx {

namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;

std::vector<std::wstring> PathsIn(const FileGraph& graph) {
  std::vector<std::wstring> paths;
  for (const GraphNode& node : graph.Nodes()) paths.push_back(node.path);
  return paths;
}

std::vector<std::pair<std::size_t, std::size_t>> EndsIn(const FileGraph& graph) {
  std::vector<std::pair<std::size_t, std::size_t>> ends;
  for (const GraphEdge& edge : graph.Edges()) ends.emplace_back(edge.from, edge.to);
  return ends;
}

TEST(FileGraph, HasANodeForEachFileAndAnEdgeForEachReference) {
  const FileGraph graph = GraphOf(ReportOfPlant());
  EXPECT_THAT(PathsIn(graph), ElementsAre(L"plan.dwg", L"/p/pipes.dwg", L"/p/steel.dxf",
                                          L"logo.png", L"romans.shx", L"/p/brick.jpg"));
  EXPECT_THAT(EndsIn(graph), ElementsAre(std::pair(0, 1), std::pair(0, 2), std::pair(0, 3),
                                         std::pair(1, 4), std::pair(1, 5)));
  EXPECT_TRUE(graph.Nodes()[0].isRoot);
  EXPECT_FALSE(graph.Nodes()[1].isRoot);
  EXPECT_TRUE(graph.Nodes()[3].isMissing);
  EXPECT_FALSE(graph.Nodes()[2].isMissing);
  EXPECT_TRUE(graph.Edges()[1].isOverlay);
  EXPECT_FALSE(graph.Edges()[0].isOverlay);
  EXPECT_EQ(graph.Edges()[0].name, L"PIPES");
}

TEST(FileGraph, LeadsACircleBackToItsDrawing) {
  const FileGraph graph = GraphOf(ReportOf({Found(DependencyKind::AttachedDrawing, L"a.dwg"),
                                            Found(DependencyKind::AttachedDrawing, L"plan.dwg", 0),
                                            Found(DependencyKind::AttachedDrawing, L"a.dwg", 0)}));
  EXPECT_THAT(graph.Nodes(), SizeIs(2));
  EXPECT_THAT(EndsIn(graph), ElementsAre(std::pair(0, 1), std::pair(1, 0), std::pair(1, 1)));
}

TEST(FileGraph, KeepsTwoReferencesOfOneDrawingToOneFile) {
  const DependencyRecord image = Found(DependencyKind::Image, L"a.png");
  EXPECT_THAT(GraphOf(ReportOf({image, image})).Edges(), SizeIs(2));
}

TEST(FileGraph, OfSeveralDrawingsHasWhatTheyShareOnce) {
  FileGraph graph = GraphOf(ReportOfPlant());
  DependencyReport pipes = ReportOf({Named(Missing(DependencyKind::Font, L"romans.shx"), L"NOTES"),
                                     Found(DependencyKind::Texture, L"brick.jpg"),
                                     Found(DependencyKind::Image, L"new.png")});
  pipes.root.sourcePath = L"pipes.dwg";
  pipes.root.file = L"/p/pipes.dwg";
  graph.Add(pipes);
  EXPECT_THAT(graph.Nodes(), SizeIs(7));
  EXPECT_THAT(graph.Edges(), SizeIs(6));
  EXPECT_TRUE(graph.Nodes()[1].isRoot);
  EXPECT_EQ(graph.Edges()[5].from, 1u);
}

TEST(FileGraph, OfWhatIsMissingAloneHasWhatLeadsThere) {
  DependencyReport report = ReportOfPlant();
  report.onlyMissing = true;
  EXPECT_THAT(PathsIn(GraphOf(report)),
              ElementsAre(L"plan.dwg", L"/p/pipes.dwg", L"logo.png", L"romans.shx"));
}

TEST(FileGraph, TellsTheEndOfAPathOfEitherSystem) {
  EXPECT_EQ(LeafOf(L"/a/b.dwg"), L"b.dwg");
  EXPECT_EQ(LeafOf(L"c:\\a\\b.dwg"), L"b.dwg");
  EXPECT_EQ(LeafOf(L"b.dwg"), L"b.dwg");
  EXPECT_EQ(LeafOf(L"a/"), L"a/");
}

TEST(FileGraph, HasANoteOnEachFile) {
  DependencyReport report = ReportOfPlant();
  report.dependencies[0].detail.problem = DependencyProblem::Damaged;
  const FileGraph graph = GraphOf(report);
  EXPECT_EQ(NoteOn(graph.Nodes()[0]), "drawing");
  EXPECT_EQ(NoteOn(graph.Nodes()[1]), "attached drawing, damaged");
  EXPECT_EQ(NoteOn(graph.Nodes()[3]), "missing image");
}

TEST(GraphLayout, HasAColumnForEachDistanceAndARowForEachBranch) {
  const std::vector<GraphPlace> places = LayOut(GraphOf(ReportOfPlant()));
  std::vector<std::pair<std::size_t, std::size_t>> told;
  for (const GraphPlace& place : places) told.emplace_back(place.column, place.row);
  EXPECT_THAT(told, ElementsAre(std::pair(0, 0), std::pair(1, 0), std::pair(1, 2), std::pair(1, 3),
                                std::pair(2, 0), std::pair(2, 1)));
}

TEST(GraphLayout, PutsNoTwoFilesOntoOnePlace) {
  FileGraph graph = GraphOf(ReportOfPlant());
  DependencyReport other = ReportOf({Found(DependencyKind::AttachedDrawing, L"pipes.dwg"),
                                     Found(DependencyKind::AttachedDrawing, L"plan.dwg"),
                                     Found(DependencyKind::AttachedDrawing, L"other.dwg", 1),
                                     Found(DependencyKind::Image, L"x.png", 1)});
  other.root.file = L"/p/other.dwg";
  graph.Add(other);
  std::set<std::pair<std::size_t, std::size_t>> taken;
  for (const GraphPlace& place : LayOut(graph)) taken.emplace(place.column, place.row);
  EXPECT_EQ(taken.size(), graph.Nodes().size());
}

TEST(GraphLayout, LeavesRowsForAllThatIsBelowAFile) {
  const auto drawing = [](const wchar_t* name, std::optional<std::size_t> parent) {
    return Found(DependencyKind::AttachedDrawing, name, parent);
  };
  const FileGraph graph = GraphOf(
      ReportOf({drawing(L"a", {}), drawing(L"b", {}), drawing(L"a1", 0), drawing(L"a2", 0),
                drawing(L"a21", 3), drawing(L"a22", 3), drawing(L"b1", 1), drawing(L"b11", 6)}));
  std::set<std::pair<std::size_t, std::size_t>> taken;
  for (const GraphPlace& place : LayOut(graph)) taken.emplace(place.column, place.row);
  EXPECT_EQ(taken.size(), graph.Nodes().size());
}

TEST(GraphLayout, MayBeDeeperThanAStack) {
  const std::vector<GraphPlace> places = LayOut(GraphOf(ReportOfChain(100000)));
  EXPECT_EQ(places.back().column, 100000u);
  EXPECT_EQ(places.back().row, 0u);
}

}  // namespace

}  // namespace zdx
