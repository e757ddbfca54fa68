#include "support/PublicWalk.h"

#include <gtest/gtest.h>

#include <memory>

#include "ZDXEngine/Utf8.h"
#include "ZDXEngine/ZDXService.h"
#include "support/Paths.h"
#include "support/PublicRead.h"

namespace zdx_test {
namespace {

using ZDXEngine::DwgDependentFile;
using ZDXEngine::FileReferenceMgr;

// The records of a walk, with the flag that they were made under.  Whoever owns what, the walked
// drawing's record comes last under the flag; without it any order will do.
class Records {
 public:
  explicit Records(NodeOwner owner)
      : before_(FileReferenceMgr::Instance().SetUseNewDwgUpdateApproachFeatureFlag(
            owner == NodeOwner::Root)) {}
  ~Records() {
    for (DwgDependentFile* file : files) Release(file);
    if (root != nullptr) Release(root);
    FileReferenceMgr::Instance().SetUseNewDwgUpdateApproachFeatureFlag(before_);
  }
  Records(const Records&) = delete;
  Records& operator=(const Records&) = delete;

  DwgDependentFile* root = nullptr;
  std::vector<DwgDependentFile*> files;

 private:
  // The destructor isn't virtual, so each is deleted as what it is.
  static void Release(DwgDependentFile* file) {
    file->Dispose();
    if (auto* const bound = dynamic_cast<ZDXEngine::ZnDwgDependentFile*>(file)) {
      std::unique_ptr<ZDXEngine::ZnDwgDependentFile>(bound).reset();
    } else {
      std::unique_ptr<DwgDependentFile>(file).reset();
    }
  }

  bool before_;
};

WalkedFile Plain(DwgDependentFile& record) {
  WalkedFile file;
  file.refId = ZDXEngine::Utf8FromWide(record.GetRefId());
  file.source = ZDXEngine::Utf8FromWide(record.GetSourcePath());
  file.fileType = static_cast<int>(record.GetFileType());
  file.canBeRepathed = record.GetSupportRePath();
  file.isOverlay = record.GetIsOverlay();
  return file;
}

void SearchForEveryFile() {
  StartEngine();
  ZDXEngine::HostApplicationParam param;
  param.enableSupportFileSearch = true;
  ZDXEngine::ZDXService::UpdateHostAppParam(param);
}

}  // namespace

std::string WalkedFile::StoredPath() const { return ZDXEngine::Utf8FromWide(detail.storedPath); }

std::string WalkedFile::Name() const { return ZDXEngine::Utf8FromWide(detail.name); }

WalkedFile FileWalk::At(const std::string& path) const {
  for (const WalkedFile& file : files) {
    if (file.StoredPath() == path) return file;
  }
  ADD_FAILURE() << "no reference to " << path;
  return {};
}

FileWalk WalkFiles(const std::filesystem::path& drawing, const WalkOptions& options) {
  SearchForEveryFile();
  Records records(options.owner);
  FileWalk walk;
  ZnDbDatabase* database = nullptr;
  records.files = FileReferenceMgr::Instance().GetZnDependencies(
      database, NameOf(drawing), options.settings, walk.statusFlag, records.root, walk.drawingType,
      options.directOnly);
  walk.hasDatabase = database != nullptr;
  EXPECT_NE(records.root, nullptr);
  if (records.root == nullptr) return walk;
  walk.root = Plain(*records.root);
  const auto details = ZDXEngine::DescribeDependencies(records.root, records.files);
  EXPECT_EQ(details.size(), records.files.size());
  for (std::size_t i = 0; i < records.files.size(); ++i) {
    walk.files.push_back(Plain(*records.files[i]));
    if (i < details.size()) walk.files.back().detail = details[i];
  }
  return walk;
}

}  // namespace zdx_test
