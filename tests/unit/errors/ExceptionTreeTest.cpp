#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
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

// The leaf itself is asked, never the FileError in it alone.
using Owned = std::unique_ptr<FileError>;

struct Leaf {
  const char* name;
  Owned (*make)(const std::wstring& path);
  // A copy of one that `make` made, of the same class.
  Owned (*copy)(const FileError& leaf);
  int errorCode;
  const wchar_t* messageForA;
};

// How a failing test names its subject.
void PrintTo(const Leaf& leaf, std::ostream* out) { *out << leaf.name; }

template <class T>
Owned Make(const std::wstring& path) {
  return std::make_unique<T>(path);
}

template <int kResourceId>
Owned MakeConversion(const std::wstring& path) {
  return std::make_unique<ConversionToZENTFormatFailed>(kResourceId, path);
}

template <class T>
Owned Copy(const FileError& leaf) {
  return std::make_unique<T>(dynamic_cast<const T&>(leaf));
}

template <class T>
constexpr Leaf Row(const char* name, int errorCode, const wchar_t* messageForA) {
  return {name, Make<T>, Copy<T>, errorCode, messageForA};
}

template <int kResourceId>
constexpr Leaf ConversionRow(const char* name, const wchar_t* messageForA) {
  return {name, MakeConversion<kResourceId>, Copy<ConversionToZENTFormatFailed>, 109, messageForA};
}

const Leaf kLeaves[] = {
    Row<ReadError>("ReadError", 101, L"Unable to read file  'A' \n"),
    Row<NotFound>("NotFound", 102, L"Unable to find file 'A' \n"),
    Row<InvalidFormat>("InvalidFormat", 103, L"'A' is not a valid Zentrace drawing file \n"),
    Row<SecurityError>("SecurityError", 104, L"Security related errors encountered on file 'A' \n"),
    Row<NoAccess>("NoAccess", 105, L"Unable to access file 'A' \n"),
    Row<NotConvertDigitalSigned>("NotConvertDigitalSigned", 106,
                                 L"Unable to convert digitally signed file 'A' \n"),
    Row<SharingViolation>("SharingViolation", 107, L"Sharing violation on file 'A' \n"),
    Row<DataTooLarge>("DataTooLarge", 108, L"File 'A' has too large data \n"),
    ConversionRow<112>("ConversionToR14", L"Unable to convert file 'A' to Zentrace R14 \n"),
    ConversionRow<113>("ConversionTo2000", L"Unable to convert file 'A' to Zentrace 2000 \n"),
    ConversionRow<115>("ConversionTo2004", L"Unable to convert file 'A' to Zentrace 2004 \n"),
    ConversionRow<116>("ConversionTo2007", L"Unable to convert file 'A' to Zentrace 2007 \n"),
    ConversionRow<117>("ConversionTo2010", L"Unable to convert file 'A' to Zentrace 2010 \n"),
    ConversionRow<118>("ConversionTo2013", L"Unable to convert file 'A' to Zentrace 2013 \n"),
    ConversionRow<148>("ConversionTo2017", L"Unable to convert file 'A' to Zentrace 2017 \n"),
    Row<SaveFileError>("SaveFileError", 110, L"Unable to save file 'A' \n"),
    Row<BadDwgHeader>("BadDwgHeader", 302, L"The header of the file 'A' is not valid \n"),
    Row<GetVerticalDependenciesError>("GetVerticalDependenciesError", 303,
                                      L"Unable to get vertical dependencies \n"),
    Row<UpdateVerticalDependenciesError>("UpdateVerticalDependenciesError", 304,
                                         L"Unable to update vertical dependencies \n"),
};

class EveryLeaf : public ExceptionTree, public testing::WithParamInterface<Leaf> {};

TEST_P(EveryLeaf, HasItsOwnErrorCode) {
  EXPECT_EQ(GetParam().make(L"A")->errorCode, GetParam().errorCode);
}

TEST_P(EveryLeaf, HasItsSentenceWithThePathInPlace) {
  EXPECT_EQ(GetParam().make(L"A")->errorMessage, GetParam().messageForA);
}

TEST_P(EveryLeaf, WhatIsTheSameForAll) {
  EXPECT_STREQ(GetParam().make(L"A")->what(), "Unknown exception");
}

TEST_P(EveryLeaf, ACopyHasBothFieldsAndTheSameWhat) {
  const Owned copy = GetParam().copy(*GetParam().make(L"A"));
  EXPECT_EQ(copy->errorCode, GetParam().errorCode);
  EXPECT_EQ(copy->errorMessage, GetParam().messageForA);
  EXPECT_STREQ(copy->what(), "Unknown exception");
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

template <class Leaf, class Other>
constexpr bool kIsAnother = !std::is_same_v<Leaf, Other>;

template <class Leaf, class... Leaves>
constexpr bool IsBelowNoOther() {
  return !((kIsAnother<Leaf, Leaves> && std::is_base_of_v<Leaves, Leaf>) || ...);
}

template <class... Leaves>
constexpr bool AreAllBesideOneAnother() {
  return (IsBelowNoOther<Leaves, Leaves...>() && ...);
}

TEST(ExceptionClasses, NoLeafIsCaughtAsAnother) {
  static_assert(
      AreAllBesideOneAnother<ReadError, NotFound, InvalidFormat, SecurityError, NoAccess,
                             NotConvertDigitalSigned, SharingViolation, DataTooLarge,
                             ConversionToZENTFormatFailed, SaveFileError, BadDwgHeader,
                             GetVerticalDependenciesError, UpdateVerticalDependenciesError>());
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
