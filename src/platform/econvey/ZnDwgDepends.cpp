#include "platform/econvey/ZnDwgDepends.h"

#include <cassert>

namespace ZnDwgDepends {
namespace {

constinit Binder installedBinder = nullptr;
constinit Provider* bound = nullptr;

Provider& Bound() {
  if (bound == nullptr) {
    assert(installedBinder != nullptr && "no provider installed");
    bound = installedBinder();
  }
  return *bound;
}

}  // namespace

void InstallBinder(Binder binder) {
  installedBinder = binder;
  bound = nullptr;
}

bool initializeEconveyEngine() { return Bound().initializeEconveyEngine(); }
bool unInitializeEconveyEngine() { return Bound().unInitializeEconveyEngine(); }

}  // namespace ZnDwgDepends
