#include "host/SupportFileSearch.h"

#include <algorithm>
#include <cstdint>

#include "drawing/DrawingFile.h"
#include "platform/common/CommonUtils.h"
#include "platform/os/Paths.h"
#include "platform/zndb/ZnDbDatabase.h"

namespace ZDXEngine {
namespace {

constexpr const wchar_t* kDrawingExtension = L".dwg";

struct HintRow {
  int hint;
  const wchar_t* extension;
};

constexpr HintRow kHintRows[] = {
    {2, L".shx"}, {3, L".ttf"}, {5, kDrawingExtension}, {6, L".pat"}, {7, L".zdx"}, {8, L".fmp"},
};

// What is added to a name without an extension; null for nothing.
const wchar_t* DefaultExtension(int hint) {
  for (const HintRow& row : kHintRows) {
    if (row.hint == hint) return row.extension;
  }
  return nullptr;
}

// Only this one: templates and standards are looked for like any other file.
bool IsDrawingName(const std::wstring& name) {
  return Common::StringUtils::Order(GetExtension(name), L".DWG", Common::StringOrder{0},
                                    Common::StringCase{1}) == 0;
}

struct Search {
  const HostApplicationParam& param;
  wchar_t* fileOut;
  int bufferLength;
  const wchar_t* fileName;
  ZnDbDatabase* database;

  Zent::ErrorStatus ForDrawing() const;
  Zent::ErrorStatus ForOther(const wchar_t* extension) const;

 private:
  // Callers rely on `fileOut` having room for any path, whatever its length is said to be.
  os::Errno Copy(const wchar_t* path) const {
    return os::wcsncpy_s(fileOut, os::kPathSize, path, os::kPathSize);
  }
  bool FoundBesideDrawing(const std::wstring& name) const;
  bool FoundIn(const wchar_t* folders, const wchar_t* extension) const;
  Zent::ErrorStatus AlongPaths(const wchar_t* extension) const;
};

bool Search::FoundBesideDrawing(const std::wstring& name) const {
  wchar_t path[os::kPathSize] = {};
  os::PathCombineW(path, DatabaseFolder(database).c_str(), name.c_str());
  if (os::PathFileExistsW(path) == 0) return false;
  Copy(path);
  return true;
}

// A buffer that is too small counts as nothing found.
bool Search::FoundIn(const wchar_t* folders, const wchar_t* extension) const {
  const auto size = static_cast<std::uint32_t>(std::max(bufferLength, 0));
  wchar_t* part = nullptr;
  const std::uint32_t length = os::SearchPathW(folders, fileName, extension, size, fileOut, &part);
  return length > 0 && length < size;
}

Zent::ErrorStatus Search::AlongPaths(const wchar_t* extension) const {
  if (FoundIn(nullptr, extension)) return Zent::kOk;
  if (param.supportSearchPath.empty()) return Zent::kFileNotFound;
  return FoundIn(param.supportSearchPath.c_str(), extension) ? Zent::kOk : Zent::kFileNotFound;
}

Zent::ErrorStatus Search::ForDrawing() const {
  if (database == nullptr) return AlongPaths(kDrawingExtension);
  if (os::PathIsRelativeW(fileName) != 0) {
    if (FoundBesideDrawing(fileName)) return Zent::kOk;
  } else if (os::PathFileExistsW(fileName) != 0) {
    return Copy(fileName);
  }
  // A drawing that moved together with the one that asks lies beside it, whatever folder the
  // reference names.
  if (FoundBesideDrawing(LeafName(fileName))) return Zent::kOk;
  return AlongPaths(kDrawingExtension);
}

Zent::ErrorStatus Search::ForOther(const wchar_t* extension) const {
  const bool isBeside =
      database != nullptr && os::PathIsRelativeW(fileName) != 0 && FoundBesideDrawing(fileName);
  return isBeside ? Zent::kOk : AlongPaths(extension);
}

}  // namespace

Zent::ErrorStatus FindSupportFile(const HostApplicationParam& param, wchar_t* fileOut,
                                  int bufferLength, const wchar_t* fileName, ZnDbDatabase* database,
                                  int hint) {
  const Search search{param, fileOut, bufferLength, fileName, database};
  if (IsDrawingName(fileName)) return search.ForDrawing();
  if (!param.enableSupportFileSearch) return Zent::kFileNotFound;
  return search.ForOther(DefaultExtension(hint));
}

std::wstring DatabaseFolder(ZnDbDatabase* database) {
  wchar_t folder[os::kPathSize] = {};
  os::wcscpy_s(folder, os::kPathSize, database->originalFileName());
  os::PathRemoveFileSpecW(folder);
  return folder;
}

std::wstring LeafName(const std::wstring& name) {
  const std::wstring::size_type separator = name.rfind(L'\\');
  return separator == std::wstring::npos ? name : name.substr(separator + 1);
}

}  // namespace ZDXEngine
