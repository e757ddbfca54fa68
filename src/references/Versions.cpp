#include <algorithm>
#include <cstdint>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>

#include "ZDXEngine/FileReferenceMgr.h"
#include "drawing/DrawingFile.h"
#include "platform/os/Files.h"
#include "properties/appinfo/SourceFile.h"
#include "references/VersionLabels.h"

namespace ZDXEngine {
namespace {

constexpr std::uint32_t kSignatureLength = 6;

struct Signature {
  std::string_view bytes;
  int version;
};

// AC1018 isn't told by its signature, nor what is older than AC1015.
constexpr Signature kSignatures[] = {
    {"AC1015", 23}, {"AC1021", 27}, {"AC1024", 29}, {"AC1027", 31}, {"AC1032", 33},
};

struct CloseFile {
  void operator()(void* file) const { os::CloseHandle(file); }
};

// The first bytes of the file; fewer if it has no more or can't be read.
std::string ReadSignature(const std::wstring& path) {
  const os::FileHandle opened = OpenSourceFile(path);
  if (opened == os::kInvalidHandle) return {};
  const std::unique_ptr<void, CloseFile> file(opened);
  std::string bytes;
  while (bytes.size() < kSignatureLength) {
    char buffer[kSignatureLength];
    const auto wanted = static_cast<std::uint32_t>(kSignatureLength - bytes.size());
    std::uint32_t count = 0;
    if (os::ReadFile(file.get(), buffer, wanted, &count, nullptr) == 0 || count == 0) break;
    bytes.append(buffer, count);
  }
  return bytes;
}

int VersionOfFile(const std::wstring& path) {
  const std::string bytes = ReadSignature(path);
  const Signature* const known =
      std::find_if(std::begin(kSignatures), std::end(kSignatures),
                   [&bytes](const Signature& signature) { return signature.bytes == bytes; });
  return known == std::end(kSignatures) ? kUnknownVersion : known->version;
}

}  // namespace

std::wstring FileReferenceMgr::GetCurrentVersion() { return VersionLabel(kWrittenVersion); }

std::wstring FileReferenceMgr::GetLastSavedAsFileVersion(const std::wstring& path) {
  ZnDbDatabase database(false, true);
  OpenDrawing(path, &database, true);
  const int saved = database.lastSavedAsVersion();
  return VersionLabel(saved != 0 ? saved : database.originalFileVersion());
}

// Any failure means that the version isn't known.
std::wstring FileReferenceMgr::GetTerrane3DVersion(const std::wstring& path) {
  int version = kUnknownVersion;
  try {
    version = VersionOfFile(path);
  } catch (...) {
  }
  return VersionLabel(version);
}

}  // namespace ZDXEngine
