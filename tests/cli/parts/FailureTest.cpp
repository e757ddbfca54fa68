#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

#include "Failure.h"
#include "ZDXEngine/Automation.h"
#include "ZDXEngine/ZdxEngineException.h"

namespace zdx {

namespace {

template <class Exception>
Failure Described(const Exception& exception) {
  try {
    throw exception;
  } catch (...) {
    return DescribeCurrentException();
  }
}

TEST(FailureOf, AnEngineExceptionHasItsClassAndCodeAndATrimmedSentence) {
  const Failure failure = Described(ZDXEngine::NotFound(L"a.dxf"));
  EXPECT_EQ(failure.className, "NotFound");
  EXPECT_EQ(failure.code, 102);
  EXPECT_EQ(failure.message, "Unable to find file 'a.dxf'");
}

TEST(FailureOf, EachLeafHasItsOwnName) {
  EXPECT_EQ(Described(ZDXEngine::ReadError(L"a")).className, "ReadError");
  EXPECT_EQ(Described(ZDXEngine::InvalidFormat(L"a")).className, "InvalidFormat");
  EXPECT_EQ(Described(ZDXEngine::SecurityError(L"a")).className, "SecurityError");
  EXPECT_EQ(Described(ZDXEngine::NoAccess(L"a")).className, "NoAccess");
  EXPECT_EQ(Described(ZDXEngine::NotConvertDigitalSigned(L"a")).className,
            "NotConvertDigitalSigned");
  EXPECT_EQ(Described(ZDXEngine::SharingViolation(L"a")).className, "SharingViolation");
  EXPECT_EQ(Described(ZDXEngine::DataTooLarge(L"a")).className, "DataTooLarge");
  EXPECT_EQ(Described(ZDXEngine::ConversionToZENTFormatFailed(112, L"a")).className,
            "ConversionToZENTFormatFailed");
  EXPECT_EQ(Described(ZDXEngine::SaveFileError(L"a")).className, "SaveFileError");
  EXPECT_EQ(Described(ZDXEngine::BadDwgHeader(L"a")).className, "BadDwgHeader");
  EXPECT_EQ(Described(ZDXEngine::FileError(102, 106, L"a")).className, "FileError");
}

TEST(FailureOf, AComErrorHasItsStatus) {
  const Failure failure = Described(_com_error(E_OUTOFMEMORY));
  EXPECT_EQ(failure.className, "_com_error");
  EXPECT_EQ(failure.code, E_OUTOFMEMORY);
  EXPECT_EQ(failure.message, "COM failure 0x8007000E");
}

TEST(FailureOf, TheOtherCarrierOfAStatusHasItToo) {
  const Failure failure = Described(ATL::CAtlException(E_INVALIDARG));
  EXPECT_EQ(failure.className, "CAtlException");
  EXPECT_EQ(failure.code, E_INVALIDARG);
}

TEST(FailureOf, ExhaustedMemoryHasNoCode) {
  const Failure failure = Described(std::bad_alloc());
  EXPECT_EQ(failure.className, "bad_alloc");
  EXPECT_EQ(failure.code, std::nullopt);
}

TEST(FailureOf, AnyOtherExceptionTellsItsWordsAsValidUtf8) {
  const Failure failure = Described(std::runtime_error("caf\xE9 \n"));
  EXPECT_EQ(failure.className, "exception");
  EXPECT_EQ(failure.code, std::nullopt);
  EXPECT_EQ(failure.message, "caf\xEF\xBF\xBD");
}

}  // namespace

}  // namespace zdx
