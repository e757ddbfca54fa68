#include "backends/walker/EmbeddedSurroundings.h"

#include <new>
#include <string_view>

#include "backends/System.h"
#include "backends/database/zndb/EmbeddedDatabase.h"
#include "backends/walker/Conditions.h"
#include "base/CaseFold.h"
#include "platform/zndb/ZnDbHostApplicationServices.h"

namespace zdx::walker {
namespace {

constexpr std::wstring_view kDxfExtension = L".dxf";
constexpr int kOpenToRead = 4;

bool IsDxf(std::wstring_view path) {
  const std::size_t length = kDxfExtension.size();
  return path.size() > length &&
         CompareIgnoringCase(path.substr(path.size() - length), kDxfExtension) == 0;
}

database::EmbeddedDatabase& BodyOf(ZnDbDatabase& database) {
  return static_cast<database::EmbeddedDatabase&>(database.body());
}

Reading Failed(Zent::ErrorStatus status) {
  Reading reading;
  reading.condition = ConditionOf(status);
  return reading;
}

Reading ReadDrawing(const std::wstring& path) {
  std::unique_ptr<ZnDbDatabase> database(new ZnDbDatabase(false, true));
  if (database == nullptr) return Failed(Zent::kOutOfMemory);
  const Zent::ErrorStatus status =
      IsDxf(path) ? database->dxfIn(path.c_str(), nullptr)
                  : database->readDwgFile(path.c_str(), kOpenToRead, false, nullptr);
  const database::EmbeddedDatabase& body = BodyOf(*database);
  if (status != Zent::kOk) {
    Reading reading = Failed(status);
    if (!body.report().errors.empty()) reading.reason = body.report().errors.front().text;
    return reading;
  }
  Reading reading;
  reading.references = body.drawing()->FileReferences();
  reading.database = std::move(database);
  return reading;
}

}  // namespace

Reading EmbeddedSurroundings::Read(const std::wstring& path) {
  try {
    return ReadDrawing(path);
  } catch (const std::bad_alloc&) {
    return Failed(Zent::kOutOfMemory);
  }
}

std::wstring EmbeddedSurroundings::Find(const std::wstring& name, ZnDbDatabase* asking, int hint) {
  ZnDbHostApplicationServices* const host = zndbHostApplicationServices();
  wchar_t found[os::kPathSize] = {};
  if (host == nullptr ||
      host->findFile(found, os::kPathSize, name.c_str(), asking, hint) != Zent::kOk) {
    return {};
  }
  return ExistingPath(found);
}

std::wstring EmbeddedSurroundings::Identity(const std::wstring& path) { return FileIdentity(path); }

}  // namespace zdx::walker
