#include "drawing/DrawingFile.h"

#include <algorithm>
#include <iterator>

#include "errors/Throw.h"
#include "platform/common/CommonUtils.h"
#include "platform/zndb/ZnString.h"

namespace ZDXEngine {
namespace {

constexpr const wchar_t* kDwgExtensions[] = {L".DWG", L".DWS", L".DWT"};
constexpr const wchar_t* kDxfExtension = L".DXF";

constexpr int kOpenToWrite = 3;
constexpr int kOpenToRead = 4;

bool SameName(const std::wstring& a, const wchar_t* b) {
  return Common::StringUtils::Order(a, b, Common::StringOrder{0}, Common::StringCase{1}) == 0;
}

Zent::ErrorStatus ReadByExtension(const std::wstring& path, ZnDbDatabase* database, bool readOnly) {
  const std::wstring extension = GetExtension(path);
  if (IsDwgExtension(extension)) {
    return database->readDwgFile(path.c_str(), readOnly ? kOpenToRead : kOpenToWrite, false,
                                 nullptr);
  }
  if (IsDxfExtension(extension)) return database->dxfIn(path.c_str(), nullptr);
  return Zent::kInvalidInput;
}

}  // namespace

std::wstring GetExtension(const std::wstring& path) {
  const ZnString name(path.c_str());
  const int dot = name.findLastOneOf(L".");
  if (dot <= 0) return std::wstring();
  const ZnString extension = name.substr(dot, name.length() - dot);
  return std::wstring(static_cast<const wchar_t*>(extension));
}

bool IsDwgExtension(const std::wstring& extension) {
  return std::any_of(
      std::begin(kDwgExtensions), std::end(kDwgExtensions),
      [&extension](const wchar_t* candidate) { return SameName(extension, candidate); });
}

bool IsDxfExtension(const std::wstring& extension) { return SameName(extension, kDxfExtension); }

void OpenDrawing(const std::wstring& path, ZnDbDatabase* database, bool readOnly) {
  ThrowForStatus(ReadByExtension(path, database, readOnly), path);
}

}  // namespace ZDXEngine
