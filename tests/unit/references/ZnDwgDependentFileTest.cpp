// A record that is bound to a node of a walk.
#include <type_traits>
#include <utility>

#include "unit/references/ReferencesTest.h"

using references::Manager;
using references::ReferencesTest;
using testing::ElementsAre;
using testing::IsEmpty;
using ZDXEngine::DwgDependentFile;
using ZDXEngine::FileType;
using ZDXEngine::ZnDwgDependentFile;

namespace {

class BoundRecord : public ReferencesTest {
 protected:
  scripted::WalkedFile& AddFile(const std::string& label, int type = 2) {
    return world.walker.AddUnlisted(label, L"C:\\" + std::wstring(label.begin(), label.end()),
                                    type);
  }
  ZnDwgDependentFile RecordOf(const scripted::WalkedFile& file, bool isRoot = false) {
    return ZnDwgDependentFile(world.walker.DwgFileOf(file), L"17", isRoot);
  }
};

TEST_F(BoundRecord, TellsWhatItsNodeTells) {
  const scripted::WalkedFile& file = AddFile("image");
  ZnDwgDependentFile record = RecordOf(file);
  EXPECT_EQ(record.GetSourcePath(), L"C:\\image");
  EXPECT_EQ(record.GetAbsolutePath(), L"");
  EXPECT_EQ(record.GetDestinationPath(), L"");
  EXPECT_EQ(record.GetRefId(), L"17");
  EXPECT_EQ(record.GetFileType(), FileType{2});
  EXPECT_TRUE(record.GetSupportRePath());
  EXPECT_FALSE(record.GetIsOverlay());
  EXPECT_EQ(record.GetDwgFile(), world.walker.NodeOf(file));
  DeleteNodes({&file});
}

TEST_F(BoundRecord, AsksForTheNameAndThenTwiceForTheType) {
  const scripted::WalkedFile& file = AddFile("image");
  world.walker.NodeOf(file);
  RecordOf(file);
  EXPECT_THAT(world.Calls(),
              ElementsAre("image.filename()", "image.fileType()", "image.fileType()"));
  DeleteNodes({&file});
}

TEST_F(BoundRecord, TakesItsClassFromTheSecondAnswer) {
  scripted::WalkedFile& file = AddFile("image", 7);
  file.laterFileType = 3;
  ZnDwgDependentFile record = RecordOf(file);
  EXPECT_TRUE(record.GetSupportRePath());
  EXPECT_EQ(record.GetFileType(), FileType{10});
  DeleteNodes({&file});
}

struct Classified {
  int libraryType;
  int type;
  bool repathable;
};

TEST_F(BoundRecord, HasTheClassOfItsLibraryType) {
  const Classified rows[] = {
      {-1, 0, false}, {0, 1, true},    {1, 1, true},    {2, 2, true},    {3, 10, false},
      {4, 10, false}, {5, 10, false},  {6, 10, false},  {7, 4, true},    {8, 3, true},
      {9, 10, true},  {10, 10, false}, {11, 10, false}, {12, 10, true},  {13, 10, false},
      {14, 10, true}, {15, 10, false}, {99, 10, false}, {-2, 10, false},
  };
  for (const Classified& row : rows) {
    const scripted::WalkedFile& file = AddFile("file", row.libraryType);
    ZnDwgDependentFile record = RecordOf(file);
    EXPECT_EQ(static_cast<int>(record.GetFileType()), row.type) << row.libraryType;
    EXPECT_EQ(record.GetSupportRePath(), row.repathable) << row.libraryType;
    record.Dispose();
  }
}

TEST_F(BoundRecord, IsARecordWithoutAVirtualDestructor) {
  static_assert(std::is_base_of_v<DwgDependentFile, ZnDwgDependentFile>);
  static_assert(std::is_convertible_v<ZnDwgDependentFile*, DwgDependentFile*>);
  static_assert(!std::has_virtual_destructor_v<ZnDwgDependentFile>);
}

template <class Record>
concept TakesANode = requires(Record record, ZnDwgDepends::DwgFile* node) {
  record.SetDwgFile(node);
};

TEST_F(BoundRecord, IsBoundByItsOwnClassAlone) { static_assert(!TakesANode<ZnDwgDependentFile>); }

TEST_F(BoundRecord, ItsEndLeavesTheNode) {
  const scripted::WalkedFile& file = AddFile("image");
  { const ZnDwgDependentFile record = RecordOf(file, true); }
  EXPECT_TRUE(world.walker.IsAlive(file));
  DeleteNodes({&file});
}

TEST_F(BoundRecord, ACopyNamesTheSameNode) {
  const scripted::WalkedFile& file = AddFile("image");
  ZnDwgDependentFile record = RecordOf(file);
  ZnDwgDependentFile copy(record);
  EXPECT_EQ(copy.GetDwgFile(), record.GetDwgFile());
  EXPECT_EQ(copy.GetSourcePath(), L"C:\\image");
  EXPECT_EQ(record.GetSourcePath(), L"C:\\image");
  copy.Dispose();
}

TEST_F(BoundRecord, AnAssignedOneNamesTheSameNode) {
  const scripted::WalkedFile& file = AddFile("image");
  const scripted::WalkedFile& other = AddFile("other", 3);
  ZnDwgDependentFile record = RecordOf(file);
  ZnDwgDependentFile assigned = RecordOf(other);
  EXPECT_EQ(&(assigned = record), &assigned);
  EXPECT_EQ(assigned.GetDwgFile(), world.walker.NodeOf(file));
  EXPECT_EQ(assigned.GetFileType(), FileType{2});
  EXPECT_TRUE(world.walker.IsAlive(other));
  DeleteNodes({&file, &other});
}

TEST_F(BoundRecord, AMovedFromOneKeepsItsNodeAndLosesItsTexts) {
  const scripted::WalkedFile& file = AddFile("image");
  ZnDwgDependentFile record = RecordOf(file);
  ZnDwgDependentFile moved(std::move(record));
  EXPECT_EQ(record.GetDwgFile(), world.walker.NodeOf(file));
  EXPECT_EQ(record.GetSourcePath(), L"");
  EXPECT_EQ(record.GetRefId(), L"");
  EXPECT_EQ(record.GetFileType(), FileType{2});
  EXPECT_EQ(moved.GetDwgFile(), world.walker.NodeOf(file));
  EXPECT_EQ(moved.GetSourcePath(), L"C:\\image");
  DeleteNodes({&file});
}

TEST_F(BoundRecord, OneMovedByAssignmentKeepsItsNodeAndLosesItsTexts) {
  const scripted::WalkedFile& file = AddFile("image");
  const scripted::WalkedFile& other = AddFile("other");
  ZnDwgDependentFile record = RecordOf(file);
  ZnDwgDependentFile assigned = RecordOf(other);
  EXPECT_EQ(&(assigned = std::move(record)), &assigned);
  EXPECT_EQ(record.GetDwgFile(), world.walker.NodeOf(file));
  EXPECT_EQ(record.GetSourcePath(), L"");
  EXPECT_EQ(assigned.GetDwgFile(), world.walker.NodeOf(file));
  DeleteNodes({&file, &other});
}

// The flag is false: each record owns its node.

TEST_F(BoundRecord, ItsDisposalDeletesItsNodeAlone) {
  scripted::WalkedFile& parent = AddFile("parent");
  scripted::WalkedFile& child = AddFile("child");
  parent.dependents = {&child};
  ZnDwgDependentFile record = RecordOf(parent);
  record.Dispose();
  EXPECT_FALSE(world.walker.IsAlive(parent));
  EXPECT_TRUE(world.walker.IsAlive(child));
  EXPECT_EQ(record.GetDwgFile(), nullptr);
  DeleteNodes({&child});
}

TEST_F(BoundRecord, WhetherItIsTheRootIsAllTheSameToItsDisposal) {
  scripted::WalkedFile& parent = AddFile("parent");
  scripted::WalkedFile& child = AddFile("child");
  parent.dependents = {&child};
  ZnDwgDependentFile record = RecordOf(parent, true);
  record.Dispose();
  EXPECT_FALSE(world.walker.IsAlive(parent));
  EXPECT_TRUE(world.walker.IsAlive(child));
  DeleteNodes({&child});
}

TEST_F(BoundRecord, ASecondDisposalDoesNothing) {
  const scripted::WalkedFile& file = AddFile("image");
  ZnDwgDependentFile record = RecordOf(file);
  record.Dispose();
  world.ForgetCalls();
  record.Dispose();
  EXPECT_THAT(world.Calls(), IsEmpty());
}

TEST_F(BoundRecord, IsDisposedOfThroughItsBase) {
  const scripted::WalkedFile& file = AddFile("image");
  ZnDwgDependentFile record = RecordOf(file);
  DwgDependentFile& base = record;
  base.Dispose();
  EXPECT_FALSE(world.walker.IsAlive(file));
}

// The flag is true: the root's record owns all nodes.

class BoundRecordOfATree : public BoundRecord {
 protected:
  BoundRecordOfATree() { SetFlag(true); }
};

TEST_F(BoundRecordOfATree, AnOrdinaryOneReleasesNothing) {
  const scripted::WalkedFile& file = AddFile("image");
  ZnDwgDependentFile record = RecordOf(file);
  world.ForgetCalls();
  record.Dispose();
  EXPECT_THAT(world.Calls(), IsEmpty());
  EXPECT_TRUE(world.walker.IsAlive(file));
  EXPECT_EQ(record.GetDwgFile(), world.walker.NodeOf(file));
  DeleteNodes({&file});
}

TEST_F(BoundRecordOfATree, TheRootsDeletesEachNodeAfterThoseBelowIt) {
  scripted::WalkedFile& root = AddFile("root");
  scripted::WalkedFile& first = AddFile("first");
  scripted::WalkedFile& second = AddFile("second");
  scripted::WalkedFile& below = AddFile("below");
  scripted::WalkedFile& deepest = AddFile("deepest");
  root.dependents = {&first, nullptr, &second};
  first.dependents = {nullptr, &below};
  below.dependents = {&deepest};
  ZnDwgDependentFile record = RecordOf(root, true);
  record.Dispose();
  EXPECT_THAT(world.Calls({"delete"}),
              ElementsAre("deepest.delete()", "below.delete()", "first.delete()", "second.delete()",
                          "root.delete()"));
}

TEST_F(BoundRecordOfATree, TheRootsKeepsItsPointer) {
  const scripted::WalkedFile& root = AddFile("root");
  ZnDwgDependentFile record = RecordOf(root, true);
  record.Dispose();
  EXPECT_FALSE(world.walker.IsAlive(root));
  EXPECT_EQ(record.GetDwgFile(), world.walker.NodeOf(root));
}

TEST_F(BoundRecordOfATree, TheRootsAsksForTheDirectDependentsOfEachNodeOnce) {
  scripted::WalkedFile& root = AddFile("root");
  scripted::WalkedFile& child = AddFile("child");
  root.dependents = {&child};
  RecordOf(root, true).Dispose();
  EXPECT_THAT(world.Calls({"getDirectDependents", "getDependents"}),
              ElementsAre("root.getDirectDependents()", "child.getDirectDependents()"));
}

TEST_F(BoundRecordOfATree, TheFlagIsThatOfTheOneManager) {
  const scripted::WalkedFile& file = AddFile("image");
  ZnDwgDependentFile record = RecordOf(file);
  record.Dispose();
  EXPECT_TRUE(world.walker.IsAlive(file));
  Manager().SetUseNewDwgUpdateApproachFeatureFlag(false);
  record.Dispose();
  EXPECT_FALSE(world.walker.IsAlive(file));
}

// Once a record has lost its node to a disposal under the other flag there is nothing to delete.
TEST_F(BoundRecordOfATree, ARootWithoutANodeReleasesNothing) {
  const scripted::WalkedFile& root = AddFile("root");
  ZnDwgDependentFile record = RecordOf(root, true);
  SetFlag(false);
  record.Dispose();
  SetFlag(true);
  world.ForgetCalls();
  record.Dispose();
  EXPECT_THAT(world.Calls(), IsEmpty());
}

}  // namespace
