#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <typeindex>
#include <typeinfo>

#include "errors/Throw.h"
#include "support/scripted/ScriptedTest.h"
#include "unit/resources/ExpectedTexts.h"

using namespace ZDXEngine;  // NOLINT: the whole tree is the subject
using testing::ElementsAre;
using testing::IsEmpty;
using ErrorCondition = ZnDwgDepends::DwgDepends::ErrorCondition;

namespace {

// What left a call: its exact class, and its fields.
struct Thrown {
  std::type_index type = typeid(void);
  int errorCode = 0;
  std::wstring message;
};

Thrown Catch(const std::function<void()>& act) {
  try {
    act();
  } catch (const ZdxEngineException& error) {
    return {typeid(error), error.errorCode, error.errorMessage};
  }
  return {};
}

class Throwing : public scripted::ScriptedTest {
 protected:
  Throwing() { world.utilities.texts = expected::FailureTexts(); }
};

using ForStatus = Throwing;
using ForCondition = Throwing;
using ForVerticalFailure = Throwing;
using ResourceText = Throwing;

Thrown ThrownForStatus(int status) {
  return Catch([&] { ThrowForStatus(status, L"C:\\a.dwg"); });
}

TEST_F(ForStatus, ZeroReturnsAndBuildsNoException) {
  EXPECT_NO_THROW(ThrowForStatus(0, L"A"));
  EXPECT_THAT(world.Calls(), IsEmpty());
}

TEST_F(ForStatus, FileNotFoundThrowsNotFound) {
  EXPECT_EQ(ThrownForStatus(76).type, typeid(NotFound));
}

TEST_F(ForStatus, NotADrawingThrowsInvalidFormat) {
  EXPECT_EQ(ThrownForStatus(314).type, typeid(InvalidFormat));
}

TEST_F(ForStatus, TheTenStatusesOfProtectionThrowSecurityError) {
  for (const int status : {1001, 1002, 1003, 1101, 1102, 1103, 1104, 1201, 1202, 1203}) {
    EXPECT_EQ(ThrownForStatus(status).type, typeid(SecurityError)) << status;
  }
}

TEST_F(ForStatus, TheNeighboursOfTheStatusesOfProtectionThrowReadError) {
  for (const int status : {1000, 1004, 1100, 1105, 1200, 1204}) {
    EXPECT_EQ(ThrownForStatus(status).type, typeid(ReadError)) << status;
  }
}

TEST_F(ForStatus, EveryOtherStatusThrowsReadError) {
  for (const int status : {-76, -1, 1, 3, 15, 75, 77, 313, 315, 434, 2147483647}) {
    EXPECT_EQ(ThrownForStatus(status).type, typeid(ReadError)) << status;
  }
}

TEST_F(ForStatus, TheSentenceNamesThePath) {
  EXPECT_EQ(ThrownForStatus(76).message, L"Unable to find file 'C:\\a.dwg' \n");
}

Thrown ThrownForCondition(int condition) {
  return Catch([&] { ThrowForCondition(L"A", static_cast<ErrorCondition>(condition)); });
}

struct ConditionRow {
  int condition;
  std::type_index type;
  int errorCode;
  unsigned int resourceId;
};

const ConditionRow kConditions[] = {
    {0, typeid(ReadError), 101, 101},
    {1, typeid(ReadError), 101, 101},
    {2, typeid(NotFound), 102, 102},
    {3, typeid(NoAccess), 105, 107},
    {4, typeid(ReadError), 101, 101},
    {5, typeid(NotConvertDigitalSigned), 106, 109},
    {6, typeid(SharingViolation), 107, 110},
    {7, typeid(DataTooLarge), 108, 111},
    {8, typeid(ConversionToZENTFormatFailed), 109, 112},
    {9, typeid(ConversionToZENTFormatFailed), 109, 113},
    {10, typeid(ConversionToZENTFormatFailed), 109, 115},
    {11, typeid(ConversionToZENTFormatFailed), 109, 116},
    {12, typeid(ConversionToZENTFormatFailed), 109, 117},
    {13, typeid(ConversionToZENTFormatFailed), 109, 118},
    {14, typeid(ConversionToZENTFormatFailed), 109, 148},
    {15, typeid(SaveFileError), 110, 114},
    {16, typeid(BadDwgHeader), 302, 149},
    {17, typeid(ReadError), 101, 101},
    {-1, typeid(ReadError), 101, 101},
};

TEST_F(ForCondition, EachConditionThrowsItsClass) {
  for (const ConditionRow& row : kConditions) {
    EXPECT_EQ(ThrownForCondition(row.condition).type, row.type) << row.condition;
  }
}

TEST_F(ForCondition, EachConditionHasTheErrorCodeOfItsClass) {
  for (const ConditionRow& row : kConditions) {
    EXPECT_EQ(ThrownForCondition(row.condition).errorCode, row.errorCode) << row.condition;
  }
}

TEST_F(ForCondition, EachConditionReadsItsText) {
  for (const ConditionRow& row : kConditions) {
    world.ForgetCalls();
    ThrownForCondition(row.condition);
    EXPECT_THAT(world.Calls({"LoadStrW"}),
                ElementsAre("LoadStrW(0, " + std::to_string(row.resourceId) + ")"))
        << row.condition;
  }
}

TEST_F(ForCondition, TheSentenceNamesThePathOfTheFailure) {
  EXPECT_EQ(ThrownForCondition(14).message, L"Unable to convert file 'A' to Zentrace 2017 \n");
}

TEST_F(ForVerticalFailure, ListingThrowsGetVerticalDependenciesError) {
  const Thrown thrown = Catch([] { ThrowForVerticalFailure(L"FileReferenceMgr", 0); });
  EXPECT_EQ(thrown.type, typeid(GetVerticalDependenciesError));
  EXPECT_EQ(thrown.message, L"Unable to get vertical dependencies \n");
}

TEST_F(ForVerticalFailure, UpdatingThrowsUpdateVerticalDependenciesError) {
  const Thrown thrown = Catch([] { ThrowForVerticalFailure(L"FileReferenceMgr", 1); });
  EXPECT_EQ(thrown.type, typeid(UpdateVerticalDependenciesError));
  EXPECT_EQ(thrown.message, L"Unable to update vertical dependencies \n");
}

TEST_F(ForVerticalFailure, AnyOtherOperationThrowsReadErrorWithThePath) {
  for (const int operation : {-1, 2, 99}) {
    const Thrown thrown = Catch([&] { ThrowForVerticalFailure(L"A", operation); });
    EXPECT_EQ(thrown.type, typeid(ReadError)) << operation;
    EXPECT_EQ(thrown.message, L"Unable to read file  'A' \n") << operation;
  }
}

TEST_F(ResourceText, ComesAsItStandsWithItsPlaceholder) {
  EXPECT_EQ(LoadResourceText(102), L"Unable to find file '%1!s!' \n");
  EXPECT_THAT(world.Calls(), ElementsAre("LoadStrW(0, 102)"));
}

TEST_F(ResourceText, IsEmptyIfThereIsNone) { EXPECT_EQ(LoadResourceText(105), L""); }

}  // namespace
