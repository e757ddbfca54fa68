#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <type_traits>

#include "ZDXEngine/ZdxEngineException.h"
#include "support/scripted/ScriptedTest.h"
#include "unit/resources/ExpectedTexts.h"

using namespace ZDXEngine;  // NOLINT: the whole tree is the subject
using testing::ElementsAre;

namespace {

class ExceptionTree : public scripted::ScriptedTest {
 protected:
  ExceptionTree() { world.utilities.texts = expected::FailureTexts(); }
};

struct Leaf {
  const char* name;
  FileError (*make)(const std::wstring& path);
  int errorCode;
  const wchar_t* messageForA;
};

// How a failing test names its subject.
void PrintTo(const Leaf& leaf, std::ostream* out) { *out << leaf.name; }

template <class T>
FileError Make(const std::wstring& path) {
  return T(path);
}

template <int kResourceId>
FileError MakeConversion(const std::wstring& path) {
  return ConversionToZENTFormatFailed(kResourceId, path);
}

const Leaf kLeaves[] = {
    {"ReadError", Make<ReadError>, 101, L"Unable to read file  'A' \n"},
    {"NotFound", Make<NotFound>, 102, L"Unable to find file 'A' \n"},
    {"InvalidFormat", Make<InvalidFormat>, 103, L"'A' is not a valid Zentrace drawing file \n"},
    {"SecurityError", Make<SecurityError>, 104,
     L"Security related errors encountered on file 'A' \n"},
    {"NoAccess", Make<NoAccess>, 105, L"Unable to access file 'A' \n"},
    {"NotConvertDigitalSigned", Make<NotConvertDigitalSigned>, 106,
     L"Unable to convert digitally signed file 'A' \n"},
    {"SharingViolation", Make<SharingViolation>, 107, L"Sharing violation on file 'A' \n"},
    {"DataTooLarge", Make<DataTooLarge>, 108, L"File 'A' has too large data \n"},
    {"ConversionToR14", MakeConversion<112>, 109, L"Unable to convert file 'A' to Zentrace R14 \n"},
    {"ConversionTo2000", MakeConversion<113>, 109,
     L"Unable to convert file 'A' to Zentrace 2000 \n"},
    {"ConversionTo2004", MakeConversion<115>, 109,
     L"Unable to convert file 'A' to Zentrace 2004 \n"},
    {"ConversionTo2007", MakeConversion<116>, 109,
     L"Unable to convert file 'A' to Zentrace 2007 \n"},
    {"ConversionTo2010", MakeConversion<117>, 109,
     L"Unable to convert file 'A' to Zentrace 2010 \n"},
    {"ConversionTo2013", MakeConversion<118>, 109,
     L"Unable to convert file 'A' to Zentrace 2013 \n"},
    {"ConversionTo2017", MakeConversion<148>, 109,
     L"Unable to convert file 'A' to Zentrace 2017 \n"},
    {"SaveFileError", Make<SaveFileError>, 110, L"Unable to save file 'A' \n"},
    {"BadDwgHeader", Make<BadDwgHeader>, 302, L"The header of the file 'A' is not valid \n"},
    {"GetVerticalDependenciesError", Make<GetVerticalDependenciesError>, 303,
     L"Unable to get vertical dependencies \n"},
    {"UpdateVerticalDependenciesError", Make<UpdateVerticalDependenciesError>, 304,
     L"Unable to update vertical dependencies \n"},
};

class EveryLeaf : public ExceptionTree, public testing::WithParamInterface<Leaf> {};

TEST_P(EveryLeaf, HasItsOwnErrorCode) {
  EXPECT_EQ(GetParam().make(L"A").errorCode, GetParam().errorCode);
}

TEST_P(EveryLeaf, HasItsSentenceWithThePathInPlace) {
  EXPECT_EQ(GetParam().make(L"A").errorMessage, GetParam().messageForA);
}

TEST_P(EveryLeaf, WhatIsTheSameForAll) {
  EXPECT_STREQ(GetParam().make(L"A").what(), "Unknown exception");
}

INSTANTIATE_TEST_SUITE_P(Tree, EveryLeaf, testing::ValuesIn(kLeaves),
                         [](const auto& info) { return std::string(info.param.name); });

template <class T>
constexpr bool kIsLeaf = std::is_base_of_v<FileError, T>&& std::is_copy_constructible_v<T>;

TEST(ExceptionClasses, AllThirteenLeavesAreFileErrors) {
  static_assert(kIsLeaf<ReadError> && kIsLeaf<NotFound> && kIsLeaf<InvalidFormat>);
  static_assert(kIsLeaf<SecurityError> && kIsLeaf<NoAccess> && kIsLeaf<NotConvertDigitalSigned>);
  static_assert(kIsLeaf<SharingViolation> && kIsLeaf<DataTooLarge> && kIsLeaf<SaveFileError>);
  static_assert(kIsLeaf<ConversionToZENTFormatFailed> && kIsLeaf<BadDwgHeader>);
  static_assert(kIsLeaf<GetVerticalDependenciesError>);
  static_assert(kIsLeaf<UpdateVerticalDependenciesError>);
  static_assert(std::is_base_of_v<ZdxEngineException, FileError>);
  static_assert(std::is_base_of_v<std::exception, ZdxEngineException>);
}

TEST(ExceptionClasses, FileErrorAndTheLeavesAddNoField) {
  static_assert(sizeof(FileError) == sizeof(ZdxEngineException));
  static_assert(sizeof(ConversionToZENTFormatFailed) == sizeof(ZdxEngineException));
  static_assert(sizeof(NotFound) == sizeof(ZdxEngineException));
}

TEST_F(ExceptionTree, ALeafIsCaughtAsAFileErrorAndAsTheWholeTree) {
  EXPECT_THROW(throw NotFound(L"A"), FileError);
  EXPECT_THROW(throw NotFound(L"A"), ZdxEngineException);
  EXPECT_THROW(throw NotFound(L"A"), std::exception);
}

TEST_F(ExceptionTree, ACopyHasBothFieldsAndTheSameWhat) {
  const NotFound original(L"A");
  const NotFound copy(original);
  EXPECT_EQ(copy.errorCode, 102);
  EXPECT_EQ(copy.errorMessage, L"Unable to find file 'A' \n");
  EXPECT_STREQ(copy.what(), "Unknown exception");
}

TEST_F(ExceptionTree, ACopyIsIndependentOfItsOriginal) {
  NotFound original(L"A");
  const NotFound copy(original);
  original.errorMessage.clear();
  EXPECT_EQ(copy.errorMessage, L"Unable to find file 'A' \n");
}

TEST_F(ExceptionTree, APlainFileErrorTakesAnyNumberAndAnyText) {
  const FileError error(102, 106, L"A");
  EXPECT_EQ(error.errorCode, 102);
  EXPECT_EQ(error.errorMessage, L"Child file is not found \n");
}

TEST_F(ExceptionTree, TheTextIsLoadedThenFormattedWithThePath) {
  const NotFound error(L"A");
  EXPECT_THAT(world.Calls(),
              ElementsAre("LoadStrW(0, 102)", "FormatMsg1(Unable to find file '%1!s!' \\n, A)"));
}

TEST_F(ExceptionTree, TheTextIsReadAnewForEachFailure) {
  const NotFound first(L"A");
  world.utilities.texts[102] = L"<%1!s!>";
  const NotFound second(L"A");
  EXPECT_EQ(second.errorMessage, L"<A>");
}

TEST_F(ExceptionTree, ThePathGoesIntoTheSentenceUnchanged) {
  const std::wstring path = L"\\\\server\\share\\'quoted' %1!s! 100%\n.dwg";
  EXPECT_EQ(NotFound(path).errorMessage, L"Unable to find file '" + path + L"' \n");
}

TEST_F(ExceptionTree, VerticalSentencesAreTheSameForEveryPath) {
  EXPECT_EQ(GetVerticalDependenciesError(L"A").errorMessage,
            GetVerticalDependenciesError(L"another").errorMessage);
  EXPECT_EQ(UpdateVerticalDependenciesError(L"A").errorMessage,
            UpdateVerticalDependenciesError(L"another").errorMessage);
}

TEST_F(ExceptionTree, AMissingTextLeavesTheErrorCodeRight) {
  world.utilities.texts.clear();
  const SharingViolation error(L"A");
  EXPECT_EQ(error.errorCode, 107);
  EXPECT_EQ(error.errorMessage, L"");
}

}  // namespace
