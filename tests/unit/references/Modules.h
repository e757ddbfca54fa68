// A vertical module in the test program itself.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ZDXEngine/FileReferenceService.h"
#include "support/scripted/World.h"

namespace references {

// What the module does; a test sets it.
struct Module {
  std::function<std::vector<ZDXEngine::VerticalRecord>(const ZnDbDatabase*)> onGet;
  std::function<std::vector<std::wstring>(ZnDbDatabase*, ZDXEngine::VerticalRecord&)> onUpdate;
};

// The module, as it was never used.
Module& FreshModule();

// What the module exports.
std::vector<ZDXEngine::VerticalRecord> AskedModule(const ZnDbDatabase* database);
std::vector<std::wstring> ToldModule(ZnDbDatabase* database,
                                     ZDXEngine::VerticalRecord& destinations);

// Makes the linker find the module as `name`.
void Export(scripted::World& world, const std::wstring& name);

}  // namespace references
