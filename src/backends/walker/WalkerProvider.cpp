#include "backends/walker/WalkerProvider.h"

namespace zdx {

bool WalkerProvider::initializeEconveyEngine() { return true; }
bool WalkerProvider::unInitializeEconveyEngine() { return true; }

}  // namespace zdx
