// The automation calls of POSIX systems know the types of the interface alone.
#include <gtest/gtest.h>

#include "backends/posix/PosixProvider.h"

namespace posix_provider {
namespace {

TEST(PosixProvider, ATypeOfNoPropertyIsRefusedAndLeavesTheTargetEmpty) {
  zdx::PosixProvider os;
  constexpr VARTYPE kDispatch = 9;
  for (const VARTYPE type : {kDispatch, static_cast<VARTYPE>(VT_ARRAY | VT_BSTR)}) {
    VARIANT source{};
    source.vt = type;
    VARIANT target{};
    target.vt = VT_BSTR;
    target.bstrVal = os.SysAllocString(L"Walls");
    EXPECT_EQ(os.VariantCopy(&target, &source), DISP_E_BADVARTYPE) << type;
    EXPECT_EQ(target.vt, VT_EMPTY) << type;
  }
}

}  // namespace
}  // namespace posix_provider
