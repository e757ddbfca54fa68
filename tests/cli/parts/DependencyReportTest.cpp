#include <gmock/gmock.h>

#include <algorithm>
#include <nlohmann/json.hpp>

#include "DependencyTree.h"
#include "MadeUpDependencies.h"

namespace zdx {

namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;
using ::testing::StartsWith;

std::vector<std::string> IdsIn(const nlohmann::json& list) {
  std::vector<std::string> ids;
  for (const nlohmann::json& entry : list) ids.push_back(entry.at("refId").get<std::string>());
  return ids;
}

nlohmann::json ListOf(const DependencyReport& report) {
  return nlohmann::json::parse(JsonOf(L"plan.dwg", report)).at("dependencies");
}

TEST(DependencyTree, HasEachReferenceDirectlyBelowItsDrawing) {
  const DependencyReport report = ReportOfPlant();
  std::vector<std::wstring> paths;
  std::vector<std::size_t> depths;
  std::vector<bool> last;
  for (const TreeEntry& entry : TreeOf(report)) {
    paths.push_back(entry.record->detail.storedPath);
    depths.push_back(entry.depth);
    last.push_back(entry.isLast);
  }
  EXPECT_THAT(paths,
              ElementsAre(L"pipes.dwg", L"romans.shx", L"brick.jpg", L"steel.dxf", L"logo.png"));
  EXPECT_THAT(depths, ElementsAre(0, 1, 1, 0, 0));
  EXPECT_THAT(last, ElementsAre(false, false, true, false, true));
}

TEST(DependencyTree, OfWhatIsMissingKeepsWhatLeadsThere) {
  DependencyReport report = ReportOfPlant();
  report.onlyMissing = true;
  std::vector<std::wstring> paths;
  for (const TreeEntry& entry : TreeOf(report)) paths.push_back(entry.record->detail.storedPath);
  EXPECT_THAT(paths, ElementsAre(L"pipes.dwg", L"romans.shx", L"logo.png"));
}

TEST(DependencyTree, MayBeDeeperThanAStack) {
  const DependencyReport report = ReportOfChain(100000);
  const std::vector<TreeEntry> tree = TreeOf(report);
  ASSERT_THAT(tree, SizeIs(100000));
  EXPECT_EQ(tree.back().depth, 99999u);
}

TEST(MissingFiles, AreThoseThatWereLookedForInVain) {
  EXPECT_TRUE(IsMissing(Missing(DependencyKind::Image, L"a.png")));
  EXPECT_FALSE(IsMissing(Found(DependencyKind::Image, L"a.png")));
  // Nobody looks for an address in the file system.
  DependencyRecord address = Found(DependencyKind::Image, L"https://example.org/a.png");
  address.detail.exists = false;
  EXPECT_FALSE(IsMissing(address));
  DependencyRecord damaged = Found(DependencyKind::AttachedDrawing, L"a.dwg");
  damaged.detail.problem = DependencyProblem::Damaged;
  EXPECT_FALSE(IsMissing(damaged));
}

TEST(MissingFiles, OfServicesAreToldApartAsOthersAre) {
  EXPECT_FALSE(IsMissing(Found(DependencyKind::Service, L"a.txt")));
  EXPECT_TRUE(IsMissing(Missing(DependencyKind::Service, L"a.txt")));
  DependencyRecord address = Found(DependencyKind::Service, L"https://example.org/a.txt");
  address.detail.exists = false;
  EXPECT_FALSE(IsMissing(address));
  EXPECT_THAT(TextOf(L"a", ReportOf({address})), HasSubstr("file of a service  not looked for\n"));
}

TEST(CountOfFiles, CountsEachFileOnceAndTheDrawingNever) {
  const FileCount count = CountFiles(ReportOf(
      {Found(DependencyKind::AttachedDrawing, L"a.dwg"), Missing(DependencyKind::Font, L"f.shx"),
       Missing(DependencyKind::Font, L"f.shx", 0), Found(DependencyKind::AttachedDrawing, L"a.dwg"),
       Found(DependencyKind::AttachedDrawing, L"plan.dwg", 0)}));
  EXPECT_EQ(count.all, 2u);
  EXPECT_EQ(count.missing, 1u);
}

TEST(TextOfDependencies, IsATreeWithWhatIsMissingMarked) {
  EXPECT_EQ(TextOf(L"plan.dwg", ReportOfPlant()),
            "plan.dwg\n"
            "  Zent drawing, DWG, AC1032\n"
            "\n"
            "  ├─ pipes.dwg      attached drawing (PIPES)\n"
            "  │  ├─ romans.shx  font (NOTES)              MISSING\n"
            "  │  └─ brick.jpg   texture\n"
            "  ├─ steel.dxf      overlaid drawing (STEEL)\n"
            "  └─ logo.png       image                     MISSING\n"
            "\n"
            "  5 files, 2 missing\n");
}

TEST(TextOfDependencies, OfOneDrawingNamesOneFile) {
  EXPECT_THAT(TextOf(L"a", ReportOf({Found(DependencyKind::Image, L"a.png")})),
              EndsWith("\n\n  1 file, none missing\n"));
}

TEST(TextOfDependencies, SaysThatThereAreNone) {
  EXPECT_THAT(TextOf(L"plan.dwg", ReportOf({})),
              EndsWith("AC1032\n\n  The drawing needs no other files.\n"));
}

TEST(TextOfDependencies, OfWhatIsMissingAloneHasTheBranchesThatLeadThere) {
  DependencyReport report = ReportOfPlant();
  report.onlyMissing = true;
  EXPECT_THAT(TextOf(L"plan.dwg", report),
              EndsWith("\n\n"
                       "  ├─ pipes.dwg      attached drawing (PIPES)\n"
                       "  │  └─ romans.shx  font (NOTES)              MISSING\n"
                       "  └─ logo.png       image                     MISSING\n"
                       "\n"
                       "  5 files, 2 missing\n"));
  report.dependencies.resize(2);
  EXPECT_THAT(TextOf(L"plan.dwg", report), EndsWith("AC1032\n\n  2 files, none missing\n"));
}

TEST(TextOfDependencies, TellsWhatIsSpecialAboutAReference) {
  DependencyRecord repeated = Found(DependencyKind::AttachedDrawing, L"a.dwg");
  repeated.detail.isRepeated = true;
  repeated.isOverlay = true;
  DependencyRecord unloaded = Missing(DependencyKind::Image, L"b.png");
  unloaded.detail.isUnloaded = true;
  DependencyRecord damaged = Found(DependencyKind::AttachedDrawing, L"c.dwg");
  damaged.detail.problem = DependencyProblem::Damaged;
  damaged.detail.reason = L"Half of it\nis gone.";
  DependencyRecord address = Found(DependencyKind::Image, L"d.png");
  address.detail.exists = false;
  DependencyRecord overlaid = Found(DependencyKind::OverlaidDrawing, L"e.dwg");
  overlaid.isOverlay = true;
  DependencyRecord missing = Missing(DependencyKind::Image, L"f.png");
  missing.detail.reason = L"There is no such file.";
  const std::string text =
      TextOf(L"a", ReportOf({repeated, unloaded, damaged, address, overlaid, missing}));
  EXPECT_THAT(text, HasSubstr("e.dwg  overlaid drawing\n"));
  EXPECT_THAT(text, HasSubstr("f.png  image             MISSING\n"));
  EXPECT_THAT(text, HasSubstr("d.png  image             not looked for\n"));
  EXPECT_THAT(text, HasSubstr("a.dwg  attached drawing  overlaid, repeated\n"));
  EXPECT_THAT(text, HasSubstr("b.png  image             MISSING, unloaded\n"));
  EXPECT_THAT(text, HasSubstr("c.dwg  attached drawing  damaged: Half of it\\x0ais gone.\n"));
}

TEST(TextOfDependencies, AlignsNamesOfWideCharacters) {
  EXPECT_THAT(TextOf(L"a", ReportOf({Found(DependencyKind::Image, L"\u5730\u56F3"),
                                     Found(DependencyKind::Image, L"abcdef")})),
              HasSubstr("├─ \xE5\x9C\xB0\xE5\x9B\xB3    image\n  └─ abcdef  image\n"));
}

TEST(TextOfDependencies, DoesNotAlignWithAVeryLongName) {
  EXPECT_THAT(TextOf(L"a", ReportOf({Found(DependencyKind::Image, std::wstring(70, L'x') + L".png"),
                                     Found(DependencyKind::Image, L"b.png")})),
              HasSubstr("└─ b.png  image\n"));
}

TEST(TextOfDependencies, HasNothingThatActsOnATerminal) {
  std::vector<DependencyRecord> records;
  for (const wchar_t* const name : kHostileNames) {
    records.push_back(Named(Missing(DependencyKind::Image, name), name));
  }
  const std::string text = TextOf(L"a", ReportOf(records));
  EXPECT_THAT(text, Not(HasSubstr("\033")));
  EXPECT_THAT(text, Not(HasSubstr("\xE2\x80\xAE")));
  // The head has two lines, and an empty one follows it and the tree.
  EXPECT_EQ(static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')),
            std::size(kHostileNames) + 5);
}

TEST(TextOfDependencies, OfALongChainStaysSmall) {
  const std::string text = TextOf(L"a", ReportOfChain(10000));
  EXPECT_LT(text.size(), 3u * 1000 * 1000);
  EXPECT_THAT(text, HasSubstr("(9999 below) └─ 9999.dwg"));
  EXPECT_THAT(text, HasSubstr("(33 below) └─ 33.dwg"));
  EXPECT_THAT(text, HasSubstr("   └─ 32.dwg"));
}

TEST(JsonOfDependencies, IsOneDocumentWithItsKeysInOrder) {
  DependencyReport report =
      ReportOf({Named(Missing(DependencyKind::Font, L"romans.shx"), L"NOTES")});
  report.dependencies[0].detail.reason = L"why";
  report.dependencies[0].fileType = 10;
  EXPECT_EQ(
      JsonOf(L"plan.dwg", report),
      "{\"schema\":\"zdx/1\",\"file\":\"plan.dwg\",\"status\":\"ok\",\"drawingType\":\"Zent\","
      "\"format\":\"DWG\",\"signature\":\"AC1032\",\"codePage\":null,\"root\":{\"refId\":\"0\","
      "\"sourcePath\":\"plan.dwg\",\"absolutePath\":\"\",\"fileType\":1,\"supportRePath\":true,"
      "\"isOverlay\":false,\"exists\":true},\"dependencies\":[{\"refId\":\"1\",\"sourcePath\":"
      "\"romans.shx\",\"absolutePath\":\"\",\"fileType\":10,\"supportRePath\":true,\"isOverlay\":"
      "false,\"exists\":false,\"kind\":\"font\",\"storedPath\":\"romans.shx\",\"name\":\"NOTES\","
      "\"parent\":\"0\",\"parentPath\":\"plan.dwg\",\"unloaded\":false,\"repeated\":false,"
      "\"problem\":\"notFound\",\"reason\":\"why\"}],\"warnings\":[]}\n");
}

TEST(JsonOfDependencies, KeepsTheEnginesOrderAndNamesParents) {
  const nlohmann::json list = ListOf(ReportOfPlant());
  EXPECT_THAT(IdsIn(list), ElementsAre("1", "2", "3", "4", "5"));
  EXPECT_EQ(list[3].at("parent"), "1");
  EXPECT_EQ(list[3].at("parentPath"), "/p/pipes.dwg");
  EXPECT_EQ(list[2].at("parent"), "0");
}

TEST(JsonOfDependencies, OfWhatIsMissingAloneHasNothingElse) {
  DependencyReport report = ReportOfPlant();
  report.onlyMissing = true;
  EXPECT_THAT(IdsIn(ListOf(report)), ElementsAre("3", "4"));
}

TEST(JsonOfDependencies, NestsEachReferenceInItsDrawing) {
  DependencyReport report = ReportOfPlant();
  report.nested = true;
  const nlohmann::json list = ListOf(report);
  EXPECT_THAT(IdsIn(list), ElementsAre("1", "2", "3"));
  EXPECT_THAT(IdsIn(list[0].at("dependencies")), ElementsAre("4", "5"));
  EXPECT_THAT(list[0].at("dependencies")[1].at("dependencies"), IsEmpty());
  EXPECT_THAT(list[1].at("dependencies"), IsEmpty());
  report.onlyMissing = true;
  const nlohmann::json missing = ListOf(report);
  EXPECT_THAT(IdsIn(missing), ElementsAre("1", "3"));
  EXPECT_THAT(IdsIn(missing[0].at("dependencies")), ElementsAre("4"));
}

TEST(JsonOfDependencies, ClosesEachLevelOfADeepTree) {
  DependencyReport report = ReportOf({Found(DependencyKind::AttachedDrawing, L"a.dwg"),
                                      Found(DependencyKind::AttachedDrawing, L"b.dwg", 0),
                                      Found(DependencyKind::AttachedDrawing, L"c.dwg", 1),
                                      Found(DependencyKind::Image, L"d.png", 0)});
  report.nested = true;
  const nlohmann::json list = ListOf(report);
  ASSERT_THAT(list, SizeIs(1));
  EXPECT_THAT(IdsIn(list[0].at("dependencies")), ElementsAre("2", "4"));
  EXPECT_THAT(IdsIn(list[0].at("dependencies")[0].at("dependencies")), ElementsAre("3"));
}

TEST(JsonOfDependencies, MayNestDeeperThanAStack) {
  DependencyReport report = ReportOfChain(30000);
  report.nested = true;
  EXPECT_THAT(JsonOf(L"a", report), StartsWith("{\"schema\""));
}

TEST(JsonOfDependencies, IsAnEmptyListWhereThereAreNone) {
  DependencyReport report = ReportOf({});
  EXPECT_EQ(ListOf(report), nlohmann::json::array());
  report.nested = true;
  EXPECT_EQ(ListOf(report), nlohmann::json::array());
}

TEST(JsonOfDependencies, KeepsTextsAsTheyAre) {
  std::vector<DependencyRecord> records;
  for (const wchar_t* const name : kHostileNames) {
    records.push_back(Missing(DependencyKind::Image, name));
  }
  const nlohmann::json list = ListOf(ReportOf(records));
  EXPECT_EQ(list[0].at("storedPath"), "a\"b.png");
  EXPECT_EQ(list[2].at("storedPath"), "a\nb\033[31m.png");
  EXPECT_EQ(list[7].at("storedPath"), "\xE2\x80\xAEgnp.exe");
}

}  // namespace

}  // namespace zdx
