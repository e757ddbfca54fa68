// What grows with a walk, and what mustn't grow faster than it.
#include <chrono>

#include "unit/references/ReferencesTest.h"

using references::Walked;
using references::WalkInto;
using ZDXEngine::ZnDwgDependentFile;

namespace {

int nodesAlive = 0;

// A node that keeps no account of its calls, which would take longer than the walk.
class PlainNode : public ZnDwgDepends::DwgFile {
 public:
  explicit PlainNode(std::uint64_t id) : id_(id) { ++nodesAlive; }
  ~PlainNode() override { --nodesAlive; }

  const wchar_t* filename() const override { return L"f.png"; }
  ZnDwgDepends::FileType fileType() const override { return 2; }
  const std::vector<ZnDwgDepends::File*>& getDirectDependents() const override {
    return dependents;
  }
  const ZnDbDatabase* database() const override { return nullptr; }
  std::uint64_t xrefId() const override { return id_; }
  bool getDependents(std::vector<ZnDwgDepends::File*>& files, bool /*all*/) const override {
    files = dependents;
    return true;
  }

  std::vector<ZnDwgDepends::File*> dependents;

 private:
  std::uint64_t id_;
};

// The walker library, whose walks give the root and `kCount` files below it, all in one list.
class PlainWalker : public ZnDwgDepends::Provider {
 public:
  static constexpr std::uint64_t kCount = 100000;

  static Provider* Bind() {
    static PlainWalker walker;
    return &walker;
  }
  bool initializeEconveyEngine() override { return true; }
  bool unInitializeEconveyEngine() override { return true; }
  std::unique_ptr<ZnDwgDepends::DependsBody> createDepends(const wchar_t*,
                                                           ZnDwgDepends::DwgDependsSettings,
                                                           const wchar_t*, const wchar_t*, bool,
                                                           bool) override {
    return std::make_unique<Walk>();
  }

 private:
  class Walk : public ZnDwgDepends::DependsBody {
   public:
    void setDeleteRoot(bool) override {}
    bool getDependencies(std::vector<ZnDwgDepends::File*>& files, bool) override {
      auto* const root = new PlainNode(0);
      files.push_back(root);
      for (std::uint64_t id = 1; id <= kCount; ++id) files.push_back(new PlainNode(id));
      // One of them is the root's own, the others stand further below.
      root->dependents.push_back(files.back());
      return true;
    }
    bool getErrorInfos(std::vector<ZnDwgDepends::DwgDepends::ErrorInfo>&) override { return true; }
  };
};

class LargeWalk : public references::ReferencesTest {
 protected:
  LargeWalk() { ZnDwgDepends::InstallBinder(PlainWalker::Bind); }
  ~LargeWalk() override { EXPECT_EQ(nodesAlive, 0); }

  static double SecondsOf(const std::function<void()>& act) {
    const auto begin = std::chrono::steady_clock::now();
    act();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
  }
};

// To look at each pair of references takes minutes.
constexpr double kPatience = 10;

TEST_F(LargeWalk, TakesTimeThatGrowsAsItsReferencesDo) {
  Walked walked;
  EXPECT_LT(SecondsOf([&] { WalkInto(walked); }), kPatience);
  EXPECT_EQ(walked.records.size(), PlainWalker::kCount);
}

TEST_F(LargeWalk, OfWhichFewAreKeptTakesNoLonger) {
  Walked walked;
  EXPECT_LT(SecondsOf([&] { WalkInto(walked, {}, true); }), kPatience);
  EXPECT_EQ(walked.records.size(), 1u);
  EXPECT_EQ(nodesAlive, 2);
}

TEST_F(LargeWalk, AsALongChainIsReleasedToItsEnd) {
  SetFlag(true);
  auto* const root = new PlainNode(0);
  PlainNode* last = root;
  for (std::uint64_t id = 1; id < 500000; ++id) {
    auto* const next = new PlainNode(id);
    last->dependents.push_back(next);
    last = next;
  }
  ZnDwgDependentFile(root, L"0", true).Dispose();
  EXPECT_EQ(nodesAlive, 0);
}

}  // namespace
