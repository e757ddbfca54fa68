#include "ZDXEngine/DwgDependentFile.h"

namespace ZDXEngine {
namespace {

constexpr ZDXEngine::FileType kUnknownFile{0};

}  // namespace

DwgDependentFile::DwgDependentFile() = default;

DwgDependentFile::DwgDependentFile(const std::wstring& sourcePath,
                                   const std::wstring& destinationPath, const std::wstring& refId,
                                   const ZDXEngine::FileType& fileType, bool isRootFile)
    : SourcePath(sourcePath),
      DestinationPath(destinationPath),
      FileType(fileType),
      SupportRePath(fileType != kUnknownFile),
      IsRootFile(isRootFile),
      IsOverlay(false),
      RefId(refId) {}

DwgDependentFile::DwgDependentFile(const DwgDependentFile& other) = default;
DwgDependentFile::DwgDependentFile(DwgDependentFile&& other) noexcept = default;
DwgDependentFile& DwgDependentFile::operator=(const DwgDependentFile& other) = default;
DwgDependentFile& DwgDependentFile::operator=(DwgDependentFile&& other) noexcept = default;
DwgDependentFile::~DwgDependentFile() = default;

const std::wstring& DwgDependentFile::GetSourcePath() { return SourcePath; }
const std::wstring& DwgDependentFile::GetAbsolutePath() { return AbsolutePath; }
const std::wstring& DwgDependentFile::GetDestinationPath() { return DestinationPath; }
const ZDXEngine::FileType& DwgDependentFile::GetFileType() { return FileType; }
const bool& DwgDependentFile::GetSupportRePath() { return SupportRePath; }
const bool& DwgDependentFile::GetIsOverlay() { return IsOverlay; }
const std::wstring& DwgDependentFile::GetRefId() const { return RefId; }

void DwgDependentFile::SetAbsolutePath(const std::wstring& absolutePath) {
  AbsolutePath = absolutePath;
}

void DwgDependentFile::SetDestinationPath(const std::wstring& destinationPath) {
  DestinationPath = destinationPath;
}

void DwgDependentFile::SetSupportRePath(bool supportRePath) { SupportRePath = supportRePath; }
void DwgDependentFile::SetIsOverlay(bool isOverlay) { IsOverlay = isOverlay; }
void DwgDependentFile::SetRefId(const std::wstring& refId) { RefId = refId; }

void DwgDependentFile::Dispose() {}

}  // namespace ZDXEngine
