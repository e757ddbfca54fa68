// Every class of the tree has its destructor here, so that its type is emitted once and a client
// catches it by class across the library's edge.
#include "ZDXEngine/ZdxEngineException.h"

#include "platform/common/CommonUtils.h"
#include "resources/ResourceModule.h"

namespace ZDXEngine {
namespace {

// The number of a class and the text of its sentence are separate constants.
struct ClassConstants {
  int errorCode;
  int resourceId;
};

constexpr ClassConstants kReadError = {101, 101};
constexpr ClassConstants kNotFound = {102, 102};
constexpr ClassConstants kInvalidFormat = {103, 103};
constexpr ClassConstants kSecurityError = {104, 104};
constexpr ClassConstants kNoAccess = {105, 107};
constexpr ClassConstants kNotConvertDigitalSigned = {106, 109};
constexpr ClassConstants kSharingViolation = {107, 110};
constexpr ClassConstants kDataTooLarge = {108, 111};
constexpr ClassConstants kSaveFileError = {110, 114};
constexpr ClassConstants kBadDwgHeader = {302, 149};
constexpr ClassConstants kGetVerticalDependenciesError = {303, 150};
constexpr ClassConstants kUpdateVerticalDependenciesError = {304, 151};

// Its thrower gives the resource.
constexpr int kConversionToZENTFormatFailedCode = 109;

}  // namespace

ZdxEngineException::ZdxEngineException() = default;
ZdxEngineException::ZdxEngineException(const ZdxEngineException&) = default;
ZdxEngineException& ZdxEngineException::operator=(const ZdxEngineException&) = default;
ZdxEngineException::~ZdxEngineException() = default;

// Pinned: standard libraries differ in what an exception without a text says.
const char* ZdxEngineException::what() const noexcept { return "Unknown exception"; }

FileError::FileError(const int& code, const int& resourceId, const std::wstring& path) {
  errorCode = code;
  const std::wstring format =
      Common::StringUtils::LoadStrW(ResourceModule(), static_cast<unsigned int>(resourceId));
  Common::StringUtils::FormatMsg1(errorMessage, format, path);
}
FileError::FileError(const FileError&) = default;
FileError& FileError::operator=(const FileError&) = default;
FileError::~FileError() = default;

ReadError::ReadError(const std::wstring& path)
    : FileError(kReadError.errorCode, kReadError.resourceId, path) {}
ReadError::~ReadError() = default;

NotFound::NotFound(const std::wstring& path)
    : FileError(kNotFound.errorCode, kNotFound.resourceId, path) {}
NotFound::~NotFound() = default;

InvalidFormat::InvalidFormat(const std::wstring& path)
    : FileError(kInvalidFormat.errorCode, kInvalidFormat.resourceId, path) {}
InvalidFormat::~InvalidFormat() = default;

SecurityError::SecurityError(const std::wstring& path)
    : FileError(kSecurityError.errorCode, kSecurityError.resourceId, path) {}
SecurityError::~SecurityError() = default;

NoAccess::NoAccess(const std::wstring& path)
    : FileError(kNoAccess.errorCode, kNoAccess.resourceId, path) {}
NoAccess::~NoAccess() = default;

NotConvertDigitalSigned::NotConvertDigitalSigned(const std::wstring& path)
    : FileError(kNotConvertDigitalSigned.errorCode, kNotConvertDigitalSigned.resourceId, path) {}
NotConvertDigitalSigned::~NotConvertDigitalSigned() = default;

SharingViolation::SharingViolation(const std::wstring& path)
    : FileError(kSharingViolation.errorCode, kSharingViolation.resourceId, path) {}
SharingViolation::~SharingViolation() = default;

DataTooLarge::DataTooLarge(const std::wstring& path)
    : FileError(kDataTooLarge.errorCode, kDataTooLarge.resourceId, path) {}
DataTooLarge::~DataTooLarge() = default;

ConversionToZENTFormatFailed::ConversionToZENTFormatFailed(const int& resourceId,
                                                           const std::wstring& path)
    : FileError(kConversionToZENTFormatFailedCode, resourceId, path) {}
ConversionToZENTFormatFailed::~ConversionToZENTFormatFailed() = default;

SaveFileError::SaveFileError(const std::wstring& path)
    : FileError(kSaveFileError.errorCode, kSaveFileError.resourceId, path) {}
SaveFileError::~SaveFileError() = default;

BadDwgHeader::BadDwgHeader(const std::wstring& path)
    : FileError(kBadDwgHeader.errorCode, kBadDwgHeader.resourceId, path) {}
BadDwgHeader::~BadDwgHeader() = default;

GetVerticalDependenciesError::GetVerticalDependenciesError(const std::wstring& path)
    : FileError(kGetVerticalDependenciesError.errorCode, kGetVerticalDependenciesError.resourceId,
                path) {}
GetVerticalDependenciesError::~GetVerticalDependenciesError() = default;

UpdateVerticalDependenciesError::UpdateVerticalDependenciesError(const std::wstring& path)
    : FileError(kUpdateVerticalDependenciesError.errorCode,
                kUpdateVerticalDependenciesError.resourceId, path) {}
UpdateVerticalDependenciesError::~UpdateVerticalDependenciesError() = default;

}  // namespace ZDXEngine
