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

DwgDepends::DwgDepends(const wchar_t* path, DwgDependsSettings settings, const wchar_t* reserved1,
                       const wchar_t* reserved2, bool directOnly, bool keepsDatabase)
    : body_(
          Bound().createDepends(path, settings, reserved1, reserved2, directOnly, keepsDatabase)) {}

DwgDepends::~DwgDepends() = default;

void DwgDepends::setDeleteRoot(bool deletes) { body_->setDeleteRoot(deletes); }

bool DwgDepends::getDependencies(std::vector<File*>& files, bool all) {
  return body_->getDependencies(files, all);
}

bool DwgDepends::getErrorInfos(std::vector<ErrorInfo>& errors) {
  return body_->getErrorInfos(errors);
}

}  // namespace ZnDwgDepends
