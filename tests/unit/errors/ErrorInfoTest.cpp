#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

#include "ZDXEngine/ErrorInfo.h"

using ZDXEngine::ErrorInfo;
using ZDXEngine::FileState;

namespace {

constexpr FileState kState{2};

TEST(ErrorInfo, TheReferenceComesFirstAndTheMessageLast) {
  ErrorInfo info(L"A", kState, L"B");
  EXPECT_EQ(info.GetErrorMessage(), L"B");
  EXPECT_EQ(info.GetFileState(), kState);
  EXPECT_EQ(std::as_const(info).GetRefId(), L"A");
}

TEST(ErrorInfo, TheStateIsOfThirtyTwoBits) {
  static_assert(std::is_same_v<std::underlying_type_t<FileState>, std::int32_t>);
}

TEST(ErrorInfo, ACopyHasAllThreeFields) {
  const ErrorInfo info(L"A", kState, L"B");
  ErrorInfo copy(info);
  EXPECT_EQ(copy.GetErrorMessage(), L"B");
  EXPECT_EQ(copy.GetFileState(), kState);
  EXPECT_EQ(copy.GetRefId(), L"A");
}

TEST(ErrorInfo, AssignmentReplacesAllThreeFields) {
  const ErrorInfo info(L"A", kState, L"B");
  ErrorInfo target(L"x", FileState{0}, L"y");
  target = info;
  EXPECT_EQ(target.GetErrorMessage(), L"B");
  EXPECT_EQ(target.GetFileState(), kState);
  EXPECT_EQ(target.GetRefId(), L"A");
}

TEST(ErrorInfo, AssignmentToItselfChangesNothing) {
  ErrorInfo info(L"A", kState, L"B");
  ErrorInfo& same = info;
  info = same;
  EXPECT_EQ(info.GetErrorMessage(), L"B");
  EXPECT_EQ(info.GetRefId(), L"A");
}

// The record may hold anything afterwards that can be read and replaced.
TEST(ErrorInfo, MovedToItselfItIsStillARecord) {
  ErrorInfo info(L"A", kState, L"B");
  ErrorInfo& same = info;
  info = std::move(same);
  EXPECT_TRUE(info.GetErrorMessage() == L"B" || info.GetErrorMessage().empty());
  EXPECT_TRUE(info.GetRefId() == L"A" || info.GetRefId().empty());
  EXPECT_EQ(info.GetFileState(), kState);
  info = ErrorInfo(L"C", FileState{0}, L"D");
  EXPECT_EQ(info.GetErrorMessage(), L"D");
  EXPECT_EQ(info.GetRefId(), L"C");
}

// Long enough that no text is kept inside the string object itself.
const std::wstring kLong(200, L'x');

TEST(ErrorInfo, AMovedFromRecordHoldsTwoEmptyTextsAndKeepsItsState) {
  for (const std::wstring& text : {std::wstring(L"A"), kLong}) {
    ErrorInfo info(text, kState, text);
    ErrorInfo moved(std::move(info));
    EXPECT_EQ(info.GetErrorMessage(), L"");  // NOLINT(bugprone-use-after-move)
    EXPECT_EQ(info.GetRefId(), L"");
    EXPECT_EQ(info.GetFileState(), kState);
    EXPECT_EQ(moved.GetErrorMessage(), text);
  }
}

TEST(ErrorInfo, ARecordMovedByAssignmentHoldsTwoEmptyTextsAndKeepsItsState) {
  for (const std::wstring& text : {std::wstring(L"A"), kLong}) {
    ErrorInfo info(text, kState, text);
    ErrorInfo target(L"x", FileState{0}, L"y");
    target = std::move(info);
    EXPECT_EQ(info.GetErrorMessage(), L"");  // NOLINT(bugprone-use-after-move)
    EXPECT_EQ(info.GetRefId(), L"");
    EXPECT_EQ(info.GetFileState(), kState);
    EXPECT_EQ(target.GetRefId(), text);
    EXPECT_EQ(target.GetFileState(), kState);
  }
}

}  // namespace
