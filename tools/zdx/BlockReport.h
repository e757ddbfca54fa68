// The blocks of one file that have attributes.
#pragma once

#include <string>
#include <vector>

#include "ZDXEngine/BlockListing.h"
#include "ZDXEngine/Diagnostics.h"

namespace zdx {

struct BlockReport {
  std::vector<ZDXEngine::BlockInfo> blocks;
  // Empty but for its path if the engine tells of another opening.
  ZDXEngine::Diagnostics diagnostics;
};

// The blocks as a head and groups of aligned rows, UTF-8, ending in a line end.
std::string TextOf(const std::wstring& path, const BlockReport& report);

// One JSON document on one line, UTF-8, ending in a line end.  docs/json.md tells its form.
std::string JsonOf(const std::wstring& path, const BlockReport& report);

}  // namespace zdx
