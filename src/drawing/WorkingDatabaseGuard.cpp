#include "drawing/WorkingDatabaseGuard.h"

#include "drawing/HostProduct.h"
#include "platform/zndb/ZnDbHostApplicationServices.h"

namespace ZDXEngine {

WorkingDatabaseGuard::WorkingDatabaseGuard(ZnDbDatabase* database) {
  ZnDbHostApplicationServices* const services = zndbHostApplicationServices();
  ZnDbDatabase* const current = services->workingDatabase();
  const bool maySwitch = services->prodcode() == kHostProductCode || current == nullptr;
  if (!maySwitch || database == current) return;
  services->setWorkingDatabase(database);
  previousDatabase = current;
  switched = true;
}

WorkingDatabaseGuard::~WorkingDatabaseGuard() {
  if (switched) zndbHostApplicationServices()->setWorkingDatabase(previousDatabase);
}

}  // namespace ZDXEngine
