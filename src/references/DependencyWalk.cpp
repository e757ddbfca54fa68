#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>

#include "ZDXEngine/FileReferenceMgr.h"
#include "errors/Throw.h"
#include "platform/common/CommonUtils.h"
#include "platform/econvey/ZnDwgDepends.h"
#include "platform/modeldoc/ZnModelDocObjUtil.h"
#include "platform/zndb/ZnDbDatabase.h"
#include "properties/read/DrawingFlavour.h"
#include "references/OverlaidBlocks.h"
#include "references/WalkSettings.h"

namespace ZDXEngine {
namespace {

using ZnDwgDepends::DwgDepends;
using Files = std::vector<ZnDwgDepends::File*>;

constexpr const wchar_t* kRootRefId = L"0";

// What is wrong with any other file isn't told.
void ThrowForRoot(DwgDepends& walk, const ZnDwgDepends::DwgFile& root) {
  std::vector<DwgDepends::ErrorInfo> errors;
  walk.getErrorInfos(errors);
  for (const auto& [name, condition] : errors) {
    if (Common::StringUtils::Order(name, root.filename(), Common::StringOrder{0},
                                   Common::StringCase{1}) == 0) {
      ThrowForCondition(name, condition);
    }
  }
}

Files RootAndItsOwn(ZnDwgDepends::DwgFile* root) {
  Files dependents;
  root->getDependents(dependents, false);
  Files files = {root};
  files.insert(files.end(), dependents.begin(), dependents.end());
  return files;
}

// Of nodes that no record will own nobody else takes care.  One may be listed more than once.
void DeleteAllBut(const Files& kept, const Files& files) {
  std::unordered_set<ZnDwgDepends::File*> settled(kept.begin(), kept.end());
  for (ZnDwgDepends::File* const file : files) {
    if (settled.insert(file).second) delete file;
  }
}

// The records of one walk, each RefId once.
class RecordList {
 public:
  // `overlaysOf`: the database to ask for overlays, null for none.
  RecordList(ZnDbDatabase* overlaysOf, bool rootOwnsAll)
      : overlaysOf_(overlaysOf), rootOwnsAll_(rootOwnsAll) {}

  void Add(ZnDwgDepends::DwgFile* file) {
    const std::uint64_t id = file->xrefId();
    auto candidate = std::make_unique<ZnDwgDependentFile>(file, std::to_wstring(id), false);
    const auto [place, isNew] = byRefId_.try_emplace(candidate->GetRefId(), candidate.get());
    if (!isNew) {
      LetGo(std::move(candidate), *place->second);
      return;
    }
    if (overlaysOf_ != nullptr) candidate->SetIsOverlay(IsOverlaid(id));
    records_.push_back(candidate.get());
    static_cast<void>(candidate.release());
  }

  std::vector<DwgDependentFile*> Take() { return std::move(records_); }

 private:
  // A second record of a node that has one, or of one that belongs to the root, is left alone.
  void LetGo(std::unique_ptr<ZnDwgDependentFile> candidate, ZnDwgDependentFile& found) const {
    if (rootOwnsAll_ || found.GetDwgFile() == candidate->GetDwgFile()) {
      static_cast<void>(candidate.release());
    }
  }

  bool IsOverlaid(std::uint64_t id) {
    if (!overlaid_) overlaid_ = OverlaidBlocks(overlaysOf_);
    return overlaid_->contains(id);
  }

  ZnDbDatabase* overlaysOf_;
  bool rootOwnsAll_;
  std::optional<std::unordered_set<std::uint64_t>> overlaid_;
  std::unordered_map<std::wstring, ZnDwgDependentFile*> byRefId_;
  std::vector<DwgDependentFile*> records_;
};

DwgFileType FlavourOfWalked(ZnDbDatabase* database) {
  const DwgFileType flavour = GetDrawingFlavour(database);
  const bool isVariant =
      flavour == DwgFileType::Zent && ZnModelDocObjUtil::hasPartonicModelDocViews(database);
  return isVariant ? DwgFileType::ZentVariant : flavour;
}

}  // namespace

std::vector<DwgDependentFile*> FileReferenceMgr::GetZnDependencies(
    ZnDbDatabase*& database, const std::wstring& path, const DependencySettings& settings,
    bool& statusFlag, DwgDependentFile*& root, DwgFileType& drawingType,
    bool directDependentsOnly) {
  statusFlag = false;
  root = nullptr;
  const auto walk = std::make_unique<DwgDepends>(path.c_str(), SettingsMask(settings), L"", L"",
                                                 directDependentsOnly, true);
  walk->setDeleteRoot(false);
  Files files;
  walk->getDependencies(files, true);
  auto* const rootFile =
      files.empty() ? nullptr : dynamic_cast<ZnDwgDepends::DwgFile*>(files.front());
  if (rootFile == nullptr) return {};
  database = const_cast<ZnDbDatabase*>(rootFile->database());
  ThrowForRoot(*walk, *rootFile);
  root = new ZnDwgDependentFile(rootFile, kRootRefId, true);
  if (directDependentsOnly) {
    const Files all = std::move(files);
    files = RootAndItsOwn(rootFile);
    if (!UseNewDwgUpdateApproach) DeleteAllBut(files, all);
  }
  RecordList records(settings.DetectOverlays ? database : nullptr, UseNewDwgUpdateApproach);
  for (std::size_t i = 1; i < files.size(); ++i) {
    // Every node of a walk is of this class.
    if (files[i] != nullptr) records.Add(static_cast<ZnDwgDepends::DwgFile*>(files[i]));
  }
  if (database != nullptr) drawingType = FlavourOfWalked(database);
  return records.Take();
}

}  // namespace ZDXEngine
