#include "properties/read/BlockFilters.h"

#include <algorithm>

#include "platform/common/CommonUtils.h"

namespace ZDXEngine {
namespace {

bool IsNamed(const BlockFilterParam& filter, const wchar_t* blockName) {
  return Common::StringUtils::Order(filter.blockName, blockName, Common::StringOrder{0},
                                    Common::StringCase{1}) == 0;
}

template <class Fits>
BlockFilterParam* FirstFilter(std::vector<BlockFilterParam>& filters, Fits fits) {
  const auto found = std::ranges::find_if(filters, fits);
  return found == filters.end() ? nullptr : &*found;
}

}  // namespace

BlockFilterParam* FindFilter(std::vector<BlockFilterParam>& filters, const wchar_t* blockName) {
  return FirstFilter(filters,
                     [&](const BlockFilterParam& filter) { return IsNamed(filter, blockName); });
}

BlockFilterParam* FindFreeFilter(std::vector<BlockFilterParam>& filters, const wchar_t* blockName) {
  return FirstFilter(filters, [&](const BlockFilterParam& filter) {
    return !filter.matched && IsNamed(filter, blockName);
  });
}

BlockFilterParam* FindFilter(std::vector<BlockFilterParam>& filters, const GUID& formatId) {
  return FirstFilter(filters,
                     [&](const BlockFilterParam& filter) { return filter.formatId == formatId; });
}

}  // namespace ZDXEngine
