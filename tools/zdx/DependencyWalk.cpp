#include "DependencyWalk.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <memory>
#include <optional>
#include <system_error>
#include <unordered_map>
#include <utility>

#include "DependencyWords.h"
#include "DrawingFile.h"
#include "SystemNames.h"
#include "SystemPath.h"

namespace zdx {

namespace {

using ZDXEngine::DwgDependentFile;
using ZDXEngine::FileReferenceMgr;

// Deletes a record as the class that it is, since its destructor isn't virtual.
void Release(DwgDependentFile* record) {
  if (record == nullptr) return;
  record->Dispose();
  if (auto* const bound = dynamic_cast<ZDXEngine::ZnDwgDependentFile*>(record)) {
    std::default_delete<ZDXEngine::ZnDwgDependentFile>()(bound);
  } else {
    std::default_delete<DwgDependentFile>()(record);
  }
}

// What a walk hands out.
struct WalkedRecords {
  WalkedRecords() = default;
  WalkedRecords(const WalkedRecords&) = delete;
  WalkedRecords& operator=(const WalkedRecords&) = delete;
  ~WalkedRecords() {
    for (DwgDependentFile* const record : list) Release(record);
    // The drawing is the root's.
    Release(root);
  }

  DwgDependentFile* root = nullptr;
  std::vector<DwgDependentFile*> list;
};

// What tells files from each other.
class FileNames {
 public:
  explicit FileNames(const std::wstring& drawing)
      : drawing_(PathOfName(CallablePath(drawing))), drawingsName_(Resolved(drawing_, drawing)) {}

  const std::wstring& OfTheDrawing() const { return drawingsName_; }

  // The path of a file that exists, without links; `name` if there is none.
  std::wstring Of(const std::wstring& name, bool exists) {
    if (!exists) return name;
    const auto known = known_.find(name);
    if (known != known_.end()) return known->second;
    return known_[name] = Resolved(PathOfName(name), name);
  }

  // Whether `name` is another name of the drawing's: another link, or spelt in another case.
  bool LeadsToTheDrawing(const std::wstring& name) const {
    std::error_code failure;
    return std::filesystem::equivalent(drawing_, PathOfName(name), failure);
  }

  // A service's file may be told as it stands beside the drawing.
  std::wstring BesideTheDrawing(const std::wstring& name) const {
    return NameOfPath(drawing_.parent_path() / PathOfName(name));
  }

 private:
  static std::wstring Resolved(const std::filesystem::path& path, const std::wstring& name) {
    std::error_code failure;
    const std::filesystem::path resolved = std::filesystem::canonical(path, failure);
    return failure ? name : NameOfPath(resolved);
  }

  std::filesystem::path drawing_;
  std::wstring drawingsName_;
  std::unordered_map<std::wstring, std::wstring> known_;
};

DependencyRecord RecordOf(DwgDependentFile& from) {
  DependencyRecord record;
  record.refId = from.GetRefId();
  record.sourcePath = from.GetSourcePath();
  record.absolutePath = from.GetAbsolutePath();
  record.fileType = static_cast<std::int32_t>(from.GetFileType());
  record.supportRePath = from.GetSupportRePath();
  record.isOverlay = from.GetIsOverlay();
  return record;
}

std::wstring FileOf(const DependencyRecord& record, FileNames& files) {
  const bool exists = record.detail.exists;
  if (record.detail.kind != ZDXEngine::DependencyKind::Service) {
    if (record.detail.isRepeated && files.LeadsToTheDrawing(record.sourcePath)) {
      return files.OfTheDrawing();
    }
    return files.Of(record.sourcePath, exists);
  }
  const std::wstring& name = record.absolutePath.empty() ? record.sourcePath : record.absolutePath;
  return files.Of(exists ? files.BesideTheDrawing(name) : name, exists);
}

// A record whose parent doesn't stand before it counts as the drawing's own.
void KeepParentsBefore(std::vector<DependencyRecord>& records) {
  for (std::size_t i = 0; i < records.size(); ++i) {
    std::optional<std::size_t>& parent = records[i].detail.parent;
    if (parent && *parent >= i) parent.reset();
  }
}

void Fill(DependencyReport& report, const WalkedRecords& walked, const std::wstring& drawing) {
  FileNames files(drawing);
  if (walked.root != nullptr) report.root = RecordOf(*walked.root);
  report.root.sourcePath = drawing;
  report.root.detail.exists = true;
  report.root.file = files.OfTheDrawing();
  const std::vector<ZDXEngine::DependencyDetail> details =
      ZDXEngine::DescribeDependencies(walked.root, walked.list);
  for (std::size_t i = 0; i < std::min(details.size(), walked.list.size()); ++i) {
    DependencyRecord record = RecordOf(*walked.list[i]);
    record.detail = details[i];
    record.file = FileOf(record, files);
    report.dependencies.push_back(std::move(record));
  }
  KeepParentsBefore(report.dependencies);
}

// What FileReferenceMgr::GetDependencies does, but that the records are ours when a service fails.
ZDXEngine::DwgFileType Walk(const std::wstring& path, const ZDXEngine::DependencySettings& settings,
                            const DependencyWanted& wanted, WalkedRecords& walked) {
  FileReferenceMgr& manager = FileReferenceMgr::Instance();
  ZnDbDatabase* database = nullptr;
  bool unused = false;
  ZDXEngine::DwgFileType type = ZDXEngine::DwgFileType::Unrecognized;
  walked.list = manager.GetZnDependencies(database, path, settings, unused, walked.root, type,
                                          wanted.directOnly);
  for (const auto& [key, service] : manager.GetExternalVerticalReferenceServices(wanted.services)) {
    const std::vector<DwgDependentFile*> more =
        manager.GetVerticalDependencies(database, service->Get_GetDependenciesFuncPtr());
    walked.list.insert(walked.list.end(), more.begin(), more.end());
  }
  return type;
}

}  // namespace

ZDXEngine::ServiceModules ServicesNotLoaded(const ZDXEngine::ServiceModules& requested) {
  const FileReferenceMgr::Services& held =
      FileReferenceMgr::Instance().GetExternalVerticalReferenceServices(requested);
  ZDXEngine::ServiceModules absent;
  std::copy_if(requested.begin(), requested.end(), std::inserter(absent, absent.end()),
               [&](const auto& service) { return !held.contains(service); });
  return absent;
}

std::variant<DependencyReport, Failure> ReadDependencies(const std::wstring& path,
                                                         const DependencyWanted& wanted) {
  return ReadFile(path, [&](const std::wstring& name) {
    ZDXEngine::DependencySettings settings;
    settings.DetectOverlays = wanted.overlays;
    WalkedRecords walked;
    const ZDXEngine::DwgFileType type = Walk(name, settings, wanted, walked);
    DependencyReport report;
    report.drawingType = DrawingTypeText(type);
    Fill(report, walked, path);
    return report;
  });
}

}  // namespace zdx
