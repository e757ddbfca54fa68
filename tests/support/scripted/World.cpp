#include "support/scripted/World.h"

#include <algorithm>

#include "support/scripted/ForeignServices.h"

namespace scripted {
namespace {

World* current = nullptr;

}  // namespace

World::World()
    : library(log_, ledger_),
      utilities(log_),
      system(log_, ledger_),
      files(log_, ledger_),
      graphics(log_, ledger_),
      paths(log_),
      modules(log_),
      walker(log_, ledger_),
      modelDocuments(log_,
                     [this](const ZnDbDatabase* database) { return library.NameOf(database); }),
      previousLibrary_(zndb::InstallProvider(&library)),
      previousUtilities_(Common::InstallProvider(&utilities)),
      previousSystem_(os::InstallProvider(&system)),
      previousFiles_(os::InstallFileProvider(&files)),
      previousGraphics_(os::InstallGraphicsProvider(&graphics)),
      previousPaths_(os::InstallPathProvider(&paths)),
      previousModules_(os::InstallModuleProvider(&modules)),
      previousModelDocuments_(modeldoc::InstallProvider(&modelDocuments)) {
  current = this;
  ZnDwgDepends::InstallBinder(&World::Bind);
}

World::~World() {
  foreignServices_.reset();
  ZnDwgDepends::InstallBinder(nullptr);
  modeldoc::InstallProvider(previousModelDocuments_);
  os::InstallModuleProvider(previousModules_);
  os::InstallPathProvider(previousPaths_);
  os::InstallGraphicsProvider(previousGraphics_);
  os::InstallFileProvider(previousFiles_);
  os::InstallProvider(previousSystem_);
  Common::InstallProvider(previousUtilities_);
  zndb::InstallProvider(previousLibrary_);
  current = nullptr;
}

void World::Fail(std::string call, Zent::ErrorStatus status, int nth) {
  log_.Add({.call = std::move(call), .outcome = {.status = status}, .nth = nth});
}

void World::FailWithNull(std::string call, Zent::ErrorStatus status, int nth) {
  log_.Add({.call = std::move(call), .outcome = {.status = status, .null = true}, .nth = nth});
}

void World::ReturnNull(std::string call, int nth) {
  log_.Add({.call = std::move(call), .outcome = {.null = true}, .nth = nth});
}

void World::Throw(std::string call, int nth) {
  log_.Add({.call = std::move(call), .outcome = {}, .throws = true, .nth = nth});
}

void World::GivePreview(bool withPalette) {
  library.preview = [this, withPalette](os::HBITMAP& bitmap, os::HPALETTE& palette) {
    bitmap = graphics.NewBitmap();
    if (withPalette) palette = graphics.NewPalette();
  };
}

void World::InstallServices() {
  foreignServices_ = NewForeignServices();
  library.services = foreignServices_.get();
  ForgetCalls();
}

std::vector<std::string> World::Calls() const { return Texts(log_.Calls()); }

std::vector<std::string> World::Calls(std::initializer_list<std::string_view> operations) const {
  return Texts(log_.Calls(), operations);
}

int World::Count(std::string_view operation) const {
  return static_cast<int>(std::ranges::count(log_.Calls(), operation, &Call::operation));
}

ZnDwgDepends::Provider* World::Bind() {
  ++current->timesBound_;
  return &current->walker;
}

}  // namespace scripted
