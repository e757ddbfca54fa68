#include "platform/modeldoc/ZnModelDocObjUtil.h"

#include "platform/ProviderSlot.h"

namespace modeldoc {
namespace {

constinit platform::ProviderSlot<Provider> modelDocSlot;

}  // namespace

Provider* InstallProvider(Provider* provider) { return modelDocSlot.Install(provider); }

}  // namespace modeldoc

bool ZnModelDocObjUtil::hasPartonicModelDocViews(ZnDbDatabase* database) {
  return modeldoc::modelDocSlot.Get().hasPartonicModelDocViews(database);
}

Zent::ErrorStatus ZnModelDocObjUtil::unpackPartonicDrawingFile(ZnDbDatabase* database,
                                                               ZnString& unpacked) {
  return modeldoc::modelDocSlot.Get().unpackPartonicDrawingFile(database, unpacked);
}

Zent::ErrorStatus ZnModelDocObjUtil::setRedirectionsInfo(ZnDbDatabase* database,
                                                         const ZnString& redirections) {
  return modeldoc::modelDocSlot.Get().setRedirectionsInfo(database, redirections);
}
