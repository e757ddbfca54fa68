// Under which names the host is asked for a file, and how often.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "backends/walker/Search.h"
#include "walker/MadeUpWorld.h"

namespace walker_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zdx::model::FileUse;
using zdx::walker::IsAddress;
using zdx::walker::NamesToTry;
using zdx::walker::Search;

TEST(Search, ANameWithAnExtensionIsAskedForAsItIs) {
  EXPECT_THAT(NamesToTry(FileUse::kAttachedDrawing, L"a.dxf"), ElementsAre(L"a.dxf"));
  EXPECT_THAT(NamesToTry(FileUse::kFont, L"arial.ttf"), ElementsAre(L"arial.ttf"));
}

TEST(Search, ADrawingWithoutOneIsADwg) {
  EXPECT_THAT(NamesToTry(FileUse::kAttachedDrawing, L"a"), ElementsAre(L"a.dwg"));
  EXPECT_THAT(NamesToTry(FileUse::kOverlaidDrawing, L"v1.2\\a"), ElementsAre(L"v1.2\\a.dwg"));
  EXPECT_THAT(NamesToTry(FileUse::kOverlaidDrawing, L"v1.2/a"), ElementsAre(L"v1.2/a.dwg"));
}

TEST(Search, AFontWithoutOneIsAskedForAsItIsAndThenAsCompiledShapes) {
  for (const FileUse use : {FileUse::kFont, FileUse::kBigFont, FileUse::kShapeFile}) {
    EXPECT_THAT(NamesToTry(use, L"txt"), ElementsAre(L"txt", L"txt.shx"));
  }
}

TEST(Search, OtherFilesWithoutOneAreAskedForAsTheyAre) {
  EXPECT_THAT(NamesToTry(FileUse::kImage, L"picture"), ElementsAre(L"picture"));
  EXPECT_THAT(NamesToTry(FileUse::kMenu, L"plant"), ElementsAre(L"plant"));
}

TEST(Search, AnAddressBeginsWithAScheme) {
  for (const wchar_t* const path : {L"https://host/a", L"file://a", L"a+b-c.1://x"}) {
    EXPECT_TRUE(IsAddress(path)) << path;
    EXPECT_THAT(NamesToTry(FileUse::kImage, path), IsEmpty());
  }
  for (const wchar_t* const path :
       {L"C:\\a", L"://a", L"1a://b", L"folder/a://b", L"http:/a", L"", L"\\\\host\\a"}) {
    EXPECT_FALSE(IsAddress(path)) << path;
  }
}

TEST(Search, HintsTellDrawingsAndFonts) {
  MadeUpWorld world;
  Search search(world);
  search.Look(Attached(L"a.dwg"), L"root.dwg", nullptr);
  search.Look(Overlaid(L"b.dwg"), L"root.dwg", nullptr);
  search.Look(Reference(FileUse::kFont, L"f.shx"), L"root.dwg", nullptr);
  search.Look(Reference(FileUse::kBigFont, L"g.shx"), L"root.dwg", nullptr);
  search.Look(Reference(FileUse::kShapeFile, L"h.shx"), L"root.dwg", nullptr);
  search.Look(Reference(FileUse::kImage, L"i.png"), L"root.dwg", nullptr);
  search.Look(Reference(FileUse::kPlotStyleTable, L"j.ctb"), L"root.dwg", nullptr);
  std::vector<int> hints;
  for (const auto& question : world.asked) hints.push_back(question.hint);
  EXPECT_THAT(hints, ElementsAre(5, 5, 2, 2, 2, 0, 0));
}

TEST(Search, TheFirstNameThatIsFoundCounts) {
  MadeUpWorld world;
  world.files[L"txt"] = L"/fonts/txt";
  world.files[L"txt.shx"] = L"/fonts/txt.shx";
  world.files[L"bold.shx"] = L"/fonts/bold.shx";
  Search search(world);
  EXPECT_EQ(search.Look(Reference(FileUse::kFont, L"txt"), L"root.dwg", nullptr), L"/fonts/txt");
  EXPECT_EQ(search.Look(Reference(FileUse::kFont, L"bold"), L"root.dwg", nullptr),
            L"/fonts/bold.shx");
  EXPECT_EQ(search.Look(Reference(FileUse::kFont, L"thin"), L"root.dwg", nullptr), L"");
}

TEST(Search, TheHostIsAskedOnceForDrawingsOfOneFolder) {
  MadeUpWorld world;
  world.files[L"a.shx"] = L"/fonts/a.shx";
  Search search(world);
  const auto font = Reference(FileUse::kFont, L"a.shx");
  EXPECT_EQ(search.Look(font, L"/one/a.dwg", nullptr), L"/fonts/a.shx");
  EXPECT_EQ(search.Look(font, L"/one/b.dwg", nullptr), L"/fonts/a.shx");
  EXPECT_EQ(world.asked.size(), 1U);
  search.Look(font, L"/two/b.dwg", nullptr);
  EXPECT_EQ(world.asked.size(), 2U);
  // As an image, the same name is another question.
  search.Look(Reference(FileUse::kImage, L"a.shx"), L"/one/a.dwg", nullptr);
  EXPECT_EQ(world.asked.size(), 3U);
}

}  // namespace
}  // namespace walker_test
