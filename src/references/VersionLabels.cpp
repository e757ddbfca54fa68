#include "references/VersionLabels.h"

#include <iterator>

namespace ZDXEngine {
namespace {

constexpr int kPastAllVersions = 255;

// By the library's number.
constexpr const wchar_t* kVersionLabels[] = {
    L"kDHL_MC0_0",  L"kDHL_AC1_2",  L"kDHL_AC1_40", L"kDHL_AC1_50", L"kDHL_AC2_20", L"kDHL_AC2_10",
    L"kDHL_AC2_21", L"kDHL_AC2_22", L"kDHL_1001",   L"kDHL_1002",   L"kDHL_1003",   L"kDHL_1004",
    L"kDHL_1005",   L"kDHL_1006",   L"kDHL_1007",   L"kDHL_1008",   L"kDHL_1009",   L"kDHL_1010",
    L"kDHL_1011",   L"kDHL_1012",   L"kDHL_1013",   L"kDHL_1014",   L"kDHL_1500",   L"kDHL_1015",
    L"kDHL_1800a",  L"kDHL_1800",   L"kDHL_2100a",  L"kDHL_1021",   L"kDHL_2400a",  L"kDHL_1024",
    L"kDHL_2700a",  L"kDHL_1027",   L"kDHL_3200a",  L"kDHL_1032",
};
static_assert(std::size(kVersionLabels) == kWrittenVersion + 1);

}  // namespace

const wchar_t* VersionLabel(int version) {
  if (version == kPastAllVersions) return L"kDHL_Max";
  const bool isKnown = version >= 0 && version < static_cast<int>(std::size(kVersionLabels));
  return isKnown ? kVersionLabels[version] : L"kDHL_Unknown";
}

}  // namespace ZDXEngine
