// What the loader runs.
#include <algorithm>

#include "backends/posix/ModuleStrings.h"
#include "library/Defaults.h"
#include "library/EntryPoint.h"
#include "resources/StringTable.h"

namespace ZDXEngine {
namespace {

// The reason with which a loader tells that the process loaded the module.
constexpr std::uint32_t kProcessAttach = 1;

// The loader gives no handle here; an address within the image serves as one.
char imageAnchor = 0;

const wchar_t* FindText(unsigned int id) {
  const auto table = StringTable();
  const auto row = std::lower_bound(
      table.begin(), table.end(), id,
      [](const StringTableEntry& entry, unsigned int wanted) { return entry.id < wanted; });
  return row == table.end() || row->id != id ? nullptr : row->text;
}

// Runs when the image is loaded, before the client can call anything.
__attribute__((constructor)) void OnLoad() {
  InstallDefaultProviders();
  zdx::RegisterModuleStrings(&imageAnchor, FindText);
  OnLoaderNotification(&imageAnchor, kProcessAttach);
}

}  // namespace
}  // namespace ZDXEngine
