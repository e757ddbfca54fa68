#include "library/Defaults.h"

#include "backends/System.h"
#include "backends/common/CommonProvider.h"
#include "backends/database/modeldoc/ModelDocuments.h"
#include "backends/database/zndb/DatabaseProvider.h"
#include "backends/walker/WalkerProvider.h"
#include "platform/common/CommonUtils.h"
#include "platform/econvey/ZnDwgDepends.h"
#include "platform/modeldoc/ZnModelDocObjUtil.h"
#include "platform/os/Files.h"
#include "platform/os/Graphics.h"
#include "platform/os/Modules.h"
#include "platform/os/Os.h"
#include "platform/os/Paths.h"
#include "platform/zndb/Provider.h"

namespace ZDXEngine {
namespace {

// A provider made once and never destroyed: objects destroyed at exit still call it.
template <class Provider, class... Arguments>
Provider* Lasting(Arguments... arguments) {
  static Provider* const provider = new Provider(arguments...);
  return provider;
}

ZnDwgDepends::Provider* BindWalker() { return Lasting<zdx::WalkerProvider>(); }

}  // namespace

void InstallDefaultProviders() {
  os::InstallProvider(zdx::MakeSystem().release());
  os::InstallFileProvider(zdx::MakeSystemFiles().release());
  os::InstallGraphicsProvider(zdx::MakeSystemGraphics().release());
  os::InstallPathProvider(zdx::MakeSystemPaths().release());
  os::InstallModuleProvider(zdx::MakeSystemModules().release());
  Common::InstallProvider(Lasting<zdx::CommonProvider>(zdx::LoadModuleString));
  zndb::InstallProvider(zdx::database::EmbeddedProvider());
  modeldoc::InstallProvider(Lasting<zdx::database::ModelDocuments>());
  ZnDwgDepends::InstallBinder(BindWalker);
}

}  // namespace ZDXEngine
