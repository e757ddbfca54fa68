#include <gtest/gtest.h>

#include "backends/database/dxf/GroupCodes.h"

namespace zdx::dxf {
namespace {

TEST(GroupCodes, TheBordersOfEachRangeHaveItsKind) {
  for (const int code : {0,   9,   100, 102, 105, 300, 309, 320,  369,  390, 399,
                         410, 419, 430, 439, 470, 481, 999, 1000, 1003, 1005}) {
    EXPECT_EQ(KindOf(code), ValueKind::kText) << code;
  }
  for (const int code : {10, 59, 110, 149, 210, 239, 460, 469, 1010, 1059}) {
    EXPECT_EQ(KindOf(code), ValueKind::kDouble) << code;
  }
  for (const int code : {60, 79, 170, 179, 270, 280, 289, 370, 389, 400, 409, 1060, 1070}) {
    EXPECT_EQ(KindOf(code), ValueKind::kInt16) << code;
  }
  for (const int code : {90, 99, 420, 429, 440, 459, 1071}) {
    EXPECT_EQ(KindOf(code), ValueKind::kInt32) << code;
  }
  for (const int code : {160, 169}) EXPECT_EQ(KindOf(code), ValueKind::kInt64) << code;
  for (const int code : {290, 299}) EXPECT_EQ(KindOf(code), ValueKind::kBool) << code;
  for (const int code : {310, 319, 1004}) EXPECT_EQ(KindOf(code), ValueKind::kBytes) << code;
}

TEST(GroupCodes, OtherCodesHaveNoKnownKind) {
  for (const int code : {-5,  -1,  80,  89,  103, 104, 106,  109,  150,  159,
                         180, 209, 240, 269, 482, 998, 1006, 1072, 5000, 65535}) {
    EXPECT_EQ(KindOf(code), ValueKind::kUnknown) << code;
  }
}

}  // namespace
}  // namespace zdx::dxf
