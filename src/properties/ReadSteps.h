// The fixed row of steps by which the properties of a drawing are read.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "ZDXEngine/FilePropertyMgr.h"
#include "platform/zndb/ZnDbDatabase.h"

namespace ZDXEngine {

// What a step works on.
struct ReadRequest {
  const std::wstring& path;
  ZnDbDatabase* database;
  std::vector<BlockFilterParam>& filters;
};

// A step runs if the selection is 0 or has its bit, and appends to the list.
struct ReadStep {
  FilePropertyMgr::FilePropertiesSet bit;
  void (*collect)(std::vector<_PropData>& properties, const ReadRequest& request);
};

// All steps in the order in which they run.
std::span<const ReadStep> ReadSteps();

}  // namespace ZDXEngine
