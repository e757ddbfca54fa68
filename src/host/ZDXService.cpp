#include "ZDXEngine/ZDXService.h"

#include "drawing/HostProduct.h"
#include "host/DynamicLinker.h"
#include "host/ZDXHostApplication.h"
#include "platform/econvey/ZnDwgDepends.h"
#include "platform/zndb/ZnDbDatabase.h"

namespace ZDXEngine {
namespace ZDXService {
namespace {

// Unloaded in the order in which they are loaded, not in reverse.
constexpr const wchar_t* kObjectModules[] = {L"znismobj24.zdx", L"znGeomentObj.zdx",
                                             L"znModelDocObj.zdx"};

ZDXHostApplication* hostApplication = nullptr;
ZnDbDatabase* engineDatabase = nullptr;

bool InOurKindOfHost() { return zndbHostApplicationServices()->prodcode() == kHostProductCode; }

}  // namespace

void SetupHostApplication() { SetupHostApplication(HostApplicationParam()); }

void SetupHostApplication(const HostApplicationParam& param) {
  if (zndbHostApplicationServices() != nullptr) return;
  // Destroyed by the exit handlers, never earlier and never rebuilt.
  static ZDXHostApplication hostApplicationObject(param);
  hostApplication = &hostApplicationObject;
  zndbSetHostApplicationServices(hostApplication);
}

void UpdateHostAppParam(const HostApplicationParam& param) {
  if (hostApplication != nullptr) hostApplication->UpdateParam(param);
}

void ValidateHostApplication(long locale) {
  if (!InOurKindOfHost()) return;
  zndbValidateSetup(ZnLocale(static_cast<int>(locale)));
}

void InitHostApplication() {
  if (!InOurKindOfHost() || engineDatabase != nullptr) return;
  for (const wchar_t* name : kObjectModules) DynamicLinker()->loadModule(name, false, false);
  // Null if the library's heap has no block; the next call tries again.
  engineDatabase = new ZnDbDatabase(true, true);
  zndbHostApplicationServices()->setWorkingDatabase(engineDatabase);
}

void InitializeEConvyEngine() { ZnDwgDepends::initializeEconveyEngine(); }

void UnInitializeEConveyEngine() { ZnDwgDepends::unInitializeEconveyEngine(); }

void UnInitializeHostApplication() {
  if (!InOurKindOfHost() || engineDatabase == nullptr) return;
  zndbCleanUp();
  // The services object keeps the old working database until something else sets it.
  delete engineDatabase;
  engineDatabase = nullptr;
  for (const wchar_t* name : kObjectModules) DynamicLinker()->unloadModule(name, false);
}

}  // namespace ZDXService
}  // namespace ZDXEngine
