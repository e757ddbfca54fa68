#include "walker/FolderHost.h"

#include <cstddef>
#include <filesystem>
#include <stdexcept>

#include "platform/zndb/ZnDbDatabase.h"
#include "support/Paths.h"

namespace walker_test {

Zent::ErrorStatus FolderHost::findFile(wchar_t* fileOut, int bufferLength, const wchar_t* fileName,
                                       ZnDbDatabase* database, int /*hint*/) {
  if (!forbidden.empty() && forbidden == fileName) throw std::runtime_error("forbidden");
  const std::filesystem::path beside =
      zdx_test::PathOf(std::wstring(database->originalFileName())).parent_path() /
      zdx_test::PathOf(std::wstring(fileName));
  const std::wstring found = zdx_test::NameOf(beside);
  if (!std::filesystem::exists(beside) || found.size() >= static_cast<std::size_t>(bufferLength)) {
    return Zent::kFileNotFound;
  }
  fileOut[found.copy(fileOut, found.size())] = L'\0';
  return Zent::kOk;
}

Zent::ErrorStatus FolderHost::getRoamingRootFolder(const wchar_t*& folder) {
  folder = L"";
  return Zent::kOk;
}

}  // namespace walker_test
