#include "backends/walker/WalkerProvider.h"

#include "backends/walker/EmbeddedDepends.h"
#include "backends/walker/EmbeddedSurroundings.h"

namespace zdx {

bool WalkerProvider::initializeEconveyEngine() { return true; }
bool WalkerProvider::unInitializeEconveyEngine() { return true; }

std::unique_ptr<ZnDwgDepends::DependsBody> WalkerProvider::createDepends(
    const wchar_t* path, ZnDwgDepends::DwgDependsSettings settings, const wchar_t* /*reserved1*/,
    const wchar_t* /*reserved2*/, bool directOnly, bool /*keepsDatabase*/) {
  return std::make_unique<walker::EmbeddedDepends>(std::make_unique<walker::EmbeddedSurroundings>(),
                                                   path, settings, directOnly);
}

}  // namespace zdx
