#include <algorithm>
#include <iterator>

#include "drawing/DrawingFile.h"
#include "drawing/WorkingDatabaseGuard.h"

namespace ZDXEngine {
namespace {

enum class Target { kAny, kDrawing, kDxf };

// A save class: the versions that take it, the one they are written as, and for which target.
struct SaveClass {
  int number;
  int firstVersion;
  int lastVersion;
  int writtenVersion;
  Target target;
};

constexpr SaveClass kSaveClasses[] = {
    {8, 32, 33, 33, Target::kAny},     {7, 30, 31, 31, Target::kAny}, {6, 28, 29, 29, Target::kAny},
    {5, 26, 27, 27, Target::kAny},     {4, 24, 25, 25, Target::kAny}, {3, 22, 23, 23, Target::kAny},
    {2, 21, 21, 21, Target::kDrawing}, {1, 16, 16, 16, Target::kDxf},
};

constexpr int kNoSaveClass = 0;
constexpr int kNewestSaveClass = 8;
// The classes that SaveDwgAs writes.
constexpr int kFirstDwgClass = 2;
constexpr int kLastDwgClass = 7;
constexpr int kDecimalPlaces = 16;

template <class Predicate>
const SaveClass* FindSaveClass(Predicate predicate) {
  const SaveClass* const row =
      std::find_if(std::begin(kSaveClasses), std::end(kSaveClasses), predicate);
  return row == std::end(kSaveClasses) ? nullptr : row;
}

const SaveClass* SaveClassOfVersion(int version) {
  return FindSaveClass([version](const SaveClass& row) {
    return row.firstVersion <= version && version <= row.lastVersion;
  });
}

const SaveClass* SaveClassByNumber(int number) {
  return FindSaveClass([number](const SaveClass& row) { return row.number == number; });
}

// A file that was once saved down keeps the version of that save.
int VersionToKeep(const ZnDbDatabase& database) {
  const int version = database.lastSavedAsVersion();
  return version != 0 ? version : database.originalFileVersion();
}

std::wstring OwnFileName(const ZnDbDatabase& database) {
  const wchar_t* name = nullptr;
  if (database.getFilename(name) != Zent::kOk || name == nullptr) return std::wstring();
  return name;
}

bool TakesTarget(const SaveClass& row, const std::wstring& path) {
  const std::wstring extension = GetExtension(path);
  if (IsDwgExtension(extension)) return row.target == Target::kDrawing;
  if (IsDxfExtension(extension)) return row.target == Target::kDxf;
  return false;
}

Zent::ErrorStatus SaveDwg(ZnDbDatabase* database, const std::wstring& path) {
  const int saveClass = GetSaveClass(database, &path);
  const WorkingDatabaseGuard guard(database);
  if (saveClass == kNoSaveClass) return kStatusCannotWriteBack;
  if (saveClass != kNewestSaveClass) return SaveDwgAs(database, path, saveClass);
  // The newest class alone asks for a backup.
  return database->saveAs(path.c_str(), true, SaveClassByNumber(saveClass)->writtenVersion,
                          nullptr);
}

}  // namespace

int GetSaveClass(ZnDbDatabase* database, const std::wstring* path) {
  const SaveClass* const row = SaveClassOfVersion(VersionToKeep(*database));
  if (row != nullptr && row->target == Target::kAny) return row->number;
  const std::wstring name = path != nullptr ? *path : OwnFileName(*database);
  if (row == nullptr || name.empty()) return kNoSaveClass;
  return TakesTarget(*row, name) ? row->number : kNoSaveClass;
}

Zent::ErrorStatus SaveDrawing(ZnDbDatabase* database, const std::wstring& path) {
  const std::wstring extension = GetExtension(path);
  if (IsDwgExtension(extension)) return SaveDwg(database, path);
  if (IsDxfExtension(extension)) return SaveDxf(database, path);
  return kStatusCannotWriteBack;
}

Zent::ErrorStatus SaveDwgAs(ZnDbDatabase* database, const std::wstring& path, int saveClass) {
  const WorkingDatabaseGuard guard(database);
  if (saveClass < kFirstDwgClass || saveClass > kLastDwgClass) return Zent::kOk;
  return database->saveAs(path.c_str(), false, SaveClassByNumber(saveClass)->writtenVersion,
                          nullptr);
}

Zent::ErrorStatus SaveDxf(ZnDbDatabase* database, const std::wstring& path) {
  const WorkingDatabaseGuard guard(database);
  const SaveClass* const row = SaveClassByNumber(GetSaveClass(database, &path));
  if (row == nullptr || row->target == Target::kDrawing) return kStatusCannotWriteBack;
  return database->dxfOut(path.c_str(), kDecimalPlaces, row->writtenVersion, false);
}

}  // namespace ZDXEngine
