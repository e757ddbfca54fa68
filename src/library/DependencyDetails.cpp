#include "ZDXEngine/DependencyDetails.h"

#include <unordered_map>

#include "backends/System.h"
#include "backends/walker/Node.h"
#include "backends/walker/Search.h"
#include "platform/os/Paths.h"

namespace ZDXEngine {
namespace {

using zdx::model::FileUse;
using zdx::walker::ErrorCondition;
using zdx::walker::Node;

// The records' places in the list, by their nodes.
using Places = std::unordered_map<const Node*, std::size_t>;

// In the order of FileUse.
constexpr DependencyKind kKinds[] = {
    DependencyKind::AttachedDrawing, DependencyKind::OverlaidDrawing,
    DependencyKind::Image,           DependencyKind::PdfUnderlay,
    DependencyKind::DwfUnderlay,     DependencyKind::DgnUnderlay,
    DependencyKind::PointCloud,      DependencyKind::LinkedData,
    DependencyKind::Texture,         DependencyKind::Font,
    DependencyKind::BigFont,         DependencyKind::ShapeFile,
    DependencyKind::PlotStyleTable,  DependencyKind::PrinterConfiguration,
    DependencyKind::StyleSheet,      DependencyKind::Menu,
    DependencyKind::Listed,
};
static_assert(sizeof kKinds / sizeof *kKinds == static_cast<std::size_t>(FileUse::kListed) + 1);

DependencyProblem ProblemOf(ErrorCondition condition) {
  switch (condition) {
    case ErrorCondition::kNoError:
      return DependencyProblem::None;
    case ErrorCondition::kNotFound:
      return DependencyProblem::NotFound;
    case ErrorCondition::kNoAccess:
      return DependencyProblem::NoAccess;
    case ErrorCondition::kReadFailed:
      return DependencyProblem::Damaged;
    case ErrorCondition::kSharingViolation:
      return DependencyProblem::InUse;
    case ErrorCondition::kTooLarge:
      return DependencyProblem::TooLarge;
    case ErrorCondition::kBadHeader:
      return DependencyProblem::NotReadable;
    default:
      return DependencyProblem::Other;
  }
}

// Null for a record of a service or of a walk that isn't the embedded one's.
const Node* NodeOf(DwgDependentFile* record) {
  auto* const found = dynamic_cast<ZnDwgDependentFile*>(record);
  return found == nullptr ? nullptr : dynamic_cast<const Node*>(found->GetDwgFile());
}

DependencyDetail DetailOf(const Node& node, const Places& places) {
  const zdx::walker::FileFacts& facts = node.facts();
  DependencyDetail detail;
  detail.kind = kKinds[static_cast<std::size_t>(facts.use)];
  detail.storedPath = facts.storedPath;
  detail.name = facts.name;
  const auto parent = places.find(facts.parent);
  if (parent != places.end()) detail.parent = parent->second;
  detail.exists = facts.isFound;
  detail.isUnloaded = facts.isUnloaded;
  detail.isRepeated = facts.isRepeated;
  detail.problem = ProblemOf(facts.condition);
  detail.reason = facts.reason;
  return detail;
}

// `path` as the drawing at `drawing` means it.
std::wstring FromFolderOf(const std::wstring& drawing, const std::wstring& path) {
  if (os::PathIsRelativeW(path.c_str()) == 0) return path;
  const std::wstring full = zdx::FullPath(drawing);
  const std::size_t separator = full.find_last_of(L"/\\");
  return separator == std::wstring::npos ? path : full.substr(0, separator + 1) + path;
}

DependencyDetail DetailOfService(DwgDependentFile& record, const std::wstring& drawing) {
  DependencyDetail detail;
  detail.storedPath = record.GetSourcePath();
  const std::wstring& absolute = record.GetAbsolutePath();
  const std::wstring path = absolute.empty() ? detail.storedPath : absolute;
  detail.exists = !path.empty() && !zdx::ExistingPath(FromFolderOf(drawing, path)).empty();
  if (!detail.exists && !zdx::walker::IsAddress(path)) {
    detail.problem = DependencyProblem::NotFound;
  }
  return detail;
}

}  // namespace

std::vector<DependencyDetail> DescribeDependencies(DwgDependentFile* root,
                                                   const std::vector<DwgDependentFile*>& records) {
  Places places;
  for (std::size_t at = 0; at < records.size(); ++at) {
    if (const Node* const node = NodeOf(records[at])) places.emplace(node, at);
  }
  const std::wstring drawing = root == nullptr ? std::wstring() : root->GetSourcePath();
  std::vector<DependencyDetail> details;
  details.reserve(records.size());
  for (DwgDependentFile* const record : records) {
    const Node* const node = NodeOf(record);
    details.push_back(node != nullptr ? DetailOf(*node, places)
                                      : DetailOfService(*record, drawing));
  }
  return details;
}

}  // namespace ZDXEngine
