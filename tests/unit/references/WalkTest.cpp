// The walk: what is asked of the library, in which order, and how a walk ends.
#include "unit/references/ReferencesTest.h"

using references::Catch;
using references::DependencySettings;
using references::Shown;
using references::Thrown;
using references::Walked;
using references::WalkInto;
using references::WalkTest;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

using Walk = WalkTest;
using ErrorCondition = ZnDwgDepends::DwgDepends::ErrorCondition;

TEST_F(Walk, CallsTheLibraryInItsOrder) {
  world.walker.Add("image", L"i.png", 2, 42);
  Walked walked;
  WalkInto(walked);
  EXPECT_THAT(
      world.Calls(),
      ElementsAre(
          "DwgDepends(C:\\a.dwg, 0xb8d, \"\", \"\", false, true)", "setDeleteRoot(false)",
          "getDependencies(true)", "ZnDbDatabase(false, true)", "root.database()",
          "getErrorInfos()", "root.filename()", "root.fileType()", "root.fileType()",
          "image.xrefId()", "image.filename()", "image.fileType()", "image.fileType()",
          "getSymbolTable(ZnDbBlockTable, 0)", "blocks.assertReadEnabled()",
          "blocks.getIdAt(wd_m, false)", "blocks.objectId()", "blocks.close()",
          "namedObjectsDictionaryId()", "zndbOpenObject(named objects, ZnDbDictionary, 0, false)",
          "named objects.getAt(IDW_DICT_ROOT)", "named objects.close()",
          "zndbOpenObject(named objects, ZnDbDictionary, 0, false)",
          "named objects.getAt(ZNME_SCOPE_NAME)", "named objects.close()",
          "zndbOpenObject(named objects, ZnDbDictionary, 0, false)", "named objects.getAt(Root)",
          "named objects.close()", "hasPartonicModelDocViews(database 1)", "~DwgDepends()"));
}

TEST_F(Walk, ListsWhatTheLibraryFindsInItsOrder) {
  world.walker.Add("image", L"C:\\i.png", 2, 42);
  world.walker.Add("font", L"txt.shx", 9, 7);
  world.walker.Add("style", L"a.ctb", 3, 18446744073709551615u);
  Walked walked;
  WalkInto(walked);
  EXPECT_THAT(Shown(walked.records),
              ElementsAre("42 C:\\i.png type 2 repathable", "7 txt.shx type 10 repathable",
                          "18446744073709551615 a.ctb type 10"));
  EXPECT_EQ(Shown(*walked.root), "0 C:\\a.dwg type 1 repathable");
  EXPECT_FALSE(walked.statusFlag);
}

TEST_F(Walk, GivesTheDatabaseOfTheRootsNode) {
  Walked walked;
  WalkInto(walked);
  EXPECT_EQ(walked.database, world.walker.NodeOf(root)->database());
  EXPECT_NE(walked.database, nullptr);
}

TEST_F(Walk, OfADrawingWithoutReferencesGivesItsRecordAndItsTypeAlone) {
  Walked walked;
  WalkInto(walked);
  EXPECT_THAT(walked.records, IsEmpty());
  EXPECT_EQ(Shown(*walked.root), "0 C:\\a.dwg type 1 repathable");
  EXPECT_EQ(walked.drawingType, references::DwgFileType::Zent);
  EXPECT_FALSE(walked.statusFlag);
}

// Walks in worlds of their own.

struct MaskOf {
  DependencySettings settings;
  const char* mask;
};

TEST(WalkAlone, EverySettingSwitchesItsBit) {
  const MaskOf rows[] = {
      {{}, "0xb8d"},
      {{.WalkBit10 = true}, "0xb9d"},
      {{.WalkBit20 = true}, "0xbad"},
      {{.WalkBit400 = true}, "0xf8d"},
      {{.WalkBit40 = true}, "0xbcd"},
      {{.DetectOverlays = true}, "0xb8d"},
      {{.WalkBit1000 = true}, "0x1b8d"},
      {{true, true, true, true, true, true}, "0x1ffd"},
  };
  for (const MaskOf& row : rows) {
    scripted::World world;
    world.walker.Add("root", L"C:\\a.dwg");
    Walked walked;
    WalkInto(walked, row.settings);
    EXPECT_THAT(world.Calls({"DwgDepends"}), ElementsAre(HasSubstr(row.mask))) << row.mask;
    walked.Release();
    EXPECT_THAT(world.Leftovers(), IsEmpty());
  }
}

TEST(WalkSettings, StandInTheirOrderAndAreFalseAtFirst) {
  const DependencySettings settings;
  const bool* const fields[] = {&settings.WalkBit10,      &settings.WalkBit20,
                                &settings.WalkBit400,     &settings.WalkBit40,
                                &settings.DetectOverlays, &settings.WalkBit1000};
  for (int i = 0; i < 6; ++i) {
    EXPECT_EQ(fields[i], &settings.WalkBit10 + i);
    EXPECT_FALSE(*fields[i]);
  }
  static_assert(sizeof(DependencySettings) == 6);
}

TEST_F(Walk, PassesOnWhetherDirectOnesAloneAreAskedFor) {
  Walked walked;
  WalkInto(walked, {}, true);
  EXPECT_THAT(world.Calls({"DwgDepends"}),
              ElementsAre("DwgDepends(C:\\a.dwg, 0xb8d, \"\", \"\", true, true)"));
}

// Nothing found

TEST(WalkAlone, ThatFindsNothingTouchesNeitherDatabaseNorType) {
  scripted::World world;
  Walked walked;
  WalkInto(walked);
  EXPECT_THAT(walked.records, IsEmpty());
  EXPECT_EQ(walked.root, nullptr);
  EXPECT_EQ(walked.database, Walked::Untouched());
  EXPECT_EQ(walked.drawingType, Walked::kUntouched);
  EXPECT_FALSE(walked.statusFlag);
  EXPECT_THAT(world.Calls({"~DwgDepends", "getErrorInfos"}), ElementsAre("~DwgDepends()"));
  EXPECT_THAT(world.Leftovers(), IsEmpty());
}

TEST_F(Walk, WhoseFirstFileIsOfAnotherClassGivesNothing) {
  root.isDwgFile = false;
  const scripted::WalkedFile& image = world.walker.Add("image", L"i.png", 2, 42);
  Walked walked;
  WalkInto(walked);
  EXPECT_THAT(walked.records, IsEmpty());
  EXPECT_EQ(walked.root, nullptr);
  EXPECT_EQ(walked.database, Walked::Untouched());
  EXPECT_EQ(walked.drawingType, Walked::kUntouched);
  EXPECT_FALSE(walked.statusFlag);
  EXPECT_THAT(world.Calls({"~DwgDepends", "getErrorInfos"}), ElementsAre("~DwgDepends()"));
  DeleteNodes({&root, &image});
}

TEST(WalkAlone, WhoseFirstFileIsNullGivesNothing) {
  scripted::World world;
  world.walker.AddNull();
  Walked walked;
  WalkInto(walked);
  EXPECT_THAT(walked.records, IsEmpty());
  EXPECT_EQ(walked.root, nullptr);
  EXPECT_EQ(walked.database, Walked::Untouched());
  EXPECT_THAT(world.Leftovers(), IsEmpty());
}

// Results that nobody looks at

TEST_F(Walk, DoesNotMindAnAnswerFalse) {
  scripted::WalkedFile& image = world.walker.Add("image", L"i.png", 2, 42);
  root.dependents = {&image};
  for (const char* const call : {"getDependencies", "getErrorInfos", "getDependents"}) {
    world.ReturnNull(call);
  }
  Walked walked;
  WalkInto(walked, {}, true);
  EXPECT_THAT(Shown(walked.records), ElementsAre("42 i.png type 2 repathable"));
}

// Failures

TEST_F(Walk, ThrowsWhatIsWrongWithTheRoot) {
  world.walker.errors = {{L"C:\\A.DWG", ErrorCondition::kSharingViolation}};
  Walked walked;
  const Thrown thrown = Catch([&] { WalkInto(walked); });
  EXPECT_EQ(thrown.type, typeid(ZDXEngine::SharingViolation));
  EXPECT_THAT(scripted::Shown(thrown.message), HasSubstr("C:\\A.DWG"));
  EXPECT_EQ(walked.root, nullptr);
  EXPECT_EQ(walked.database, world.walker.NodeOf(root)->database());
  EXPECT_EQ(walked.drawingType, Walked::kUntouched);
  EXPECT_FALSE(walked.statusFlag);
  EXPECT_TRUE(world.walker.IsAlive(root));
  EXPECT_EQ(world.Count("~DwgDepends"), 1);
  DeleteNodes({&root});
}

TEST_F(Walk, EveryConditionOfTheRootHasItsException) {
  const std::pair<int, std::type_index> rows[] = {
      {0, typeid(ZDXEngine::ReadError)},     {1, typeid(ZDXEngine::ReadError)},
      {2, typeid(ZDXEngine::NotFound)},      {3, typeid(ZDXEngine::NoAccess)},
      {4, typeid(ZDXEngine::ReadError)},     {7, typeid(ZDXEngine::DataTooLarge)},
      {16, typeid(ZDXEngine::BadDwgHeader)}, {17, typeid(ZDXEngine::ReadError)},
  };
  for (const auto& [condition, type] : rows) {
    world.walker.errors = {{L"C:\\a.dwg", static_cast<ErrorCondition>(condition)}};
    Walked walked;
    EXPECT_EQ(Catch([&] { WalkInto(walked); }).type, type) << condition;
  }
  DeleteNodes({&root});
}

TEST_F(Walk, TheFirstEntryOfTheRootCounts) {
  world.walker.errors = {{L"C:\\other.dwg", ErrorCondition::kNoAccess},
                         {L"C:\\a.DWG", ErrorCondition::kNotFound},
                         {L"C:\\a.dwg", ErrorCondition::kBadHeader}};
  Walked walked;
  EXPECT_EQ(Catch([&] { WalkInto(walked); }).type, typeid(ZDXEngine::NotFound));
  DeleteNodes({&root});
}

TEST_F(Walk, ComparesNamesWithoutRegardToCase) {
  world.walker.errors = {{L"C:\\other.dwg", ErrorCondition::kNoAccess}};
  Walked walked;
  WalkInto(walked);
  EXPECT_THAT(world.Calls({"Order"}), Contains("Order(C:\\other.dwg, C:\\a.dwg, 0, 1)"));
}

TEST_F(Walk, SaysNothingOfWhatIsWrongWithOthers) {
  scripted::WalkedFile& lost = world.walker.Add("lost", L"C:\\lost.dwg", 0, 42);
  root.dependents = {&lost};
  world.walker.errors = {{L"C:\\lost.dwg", ErrorCondition::kNotFound}};
  Walked walked;
  EXPECT_NO_THROW(WalkInto(walked));
  EXPECT_THAT(Shown(walked.records), ElementsAre("42 C:\\lost.dwg type 1 repathable"));
}

TEST(WalkAlone, AFaultOfTheLibraryPassesThroughAndEndsTheWalker) {
  for (const char* const call : {"setDeleteRoot", "getDependencies", "getErrorInfos"}) {
    scripted::World world;
    world.Throw(call);
    world.walker.Add("root", L"C:\\a.dwg");
    Walked walked;
    EXPECT_THROW(WalkInto(walked), scripted::Fault) << call;
    EXPECT_FALSE(walked.statusFlag);
    EXPECT_EQ(walked.root, nullptr);
    EXPECT_EQ(world.Count("~DwgDepends"), 1) << call;
  }
}

TEST_F(Walk, AFailureOfTheFlavourPassesThroughWhenTheRootIsKnown) {
  world.Fail("getSymbolTable", 5);
  Walked walked;
  EXPECT_EQ(Catch([&] { WalkInto(walked); }).type, typeid(ZDXEngine::ReadError));
  EXPECT_EQ(Shown(*walked.root), "0 C:\\a.dwg type 1 repathable");
  EXPECT_EQ(walked.drawingType, Walked::kUntouched);
  EXPECT_EQ(world.Count("~DwgDepends"), 1);
}

// Kind of drawing

TEST_F(Walk, TellsTheFlavourOfTheRoot) {
  world.drawing.blocks.Add(L"wd_m");
  Walked walked;
  WalkInto(walked);
  EXPECT_EQ(walked.drawingType, references::DwgFileType::Zne);
}

TEST_F(Walk, APlainDrawingWithModelViewsIsAVariant) {
  world.modelDocuments.hasViews = true;
  Walked walked;
  WalkInto(walked);
  EXPECT_EQ(walked.drawingType, references::DwgFileType::ZentVariant);
}

TEST_F(Walk, NoOtherFlavourIsAskedForModelViews) {
  world.modelDocuments.hasViews = true;
  world.drawing.namedObjects.Add(L"IDW_DICT_ROOT");
  Walked walked;
  WalkInto(walked);
  EXPECT_EQ(walked.drawingType, references::DwgFileType::Partonic);
  EXPECT_EQ(world.Count("hasPartonicModelDocViews"), 0);
}

TEST_F(Walk, WithoutADatabaseTouchesTheTypeNot) {
  root.hasDatabase = false;
  world.walker.Add("image", L"i.png", 2, 42);
  Walked walked;
  WalkInto(walked, {.DetectOverlays = true});
  EXPECT_EQ(walked.database, nullptr);
  EXPECT_EQ(walked.drawingType, Walked::kUntouched);
  EXPECT_THAT(Shown(walked.records), ElementsAre("42 i.png type 2 repathable"));
  EXPECT_EQ(world.Count("getSymbolTable"), 0);
  EXPECT_EQ(world.Count("hasPartonicModelDocViews"), 0);
}

// The walker is gone and the nodes live on, until their records are disposed of.
TEST_F(Walk, NodesOutliveTheWalker) {
  const scripted::WalkedFile& image = world.walker.Add("image", L"i.png", 2, 42);
  Walked walked;
  WalkInto(walked);
  EXPECT_EQ(world.Count("~DwgDepends"), 1);
  EXPECT_TRUE(world.walker.IsAlive(root));
  EXPECT_TRUE(world.walker.IsAlive(image));
}

}  // namespace
