// Asking the engine what drawings depend on.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "DependencyReport.h"
#include "Failure.h"
#include "ZDXEngine/FileReferenceMgr.h"

namespace zdx {

// What is to be found out.
struct DependencyWanted {
  bool directOnly = false;
  // Whether it is told of each reference if it is an overlay.
  bool overlays = false;
  ZDXEngine::ServiceModules services;
};

// The services that were asked for and can't be had; tries to load them.  The engine must be
// running.
ZDXEngine::ServiceModules ServicesNotLoaded(const ZDXEngine::ServiceModules& requested);

// Walks the drawing at `path`.  The engine must be running.
std::variant<DependencyReport, Failure> ReadDependencies(const std::wstring& path,
                                                         const DependencyWanted& wanted);

}  // namespace zdx
