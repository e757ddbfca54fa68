// A client outside the shared library catches its exceptions by class.
#include <gtest/gtest.h>

#include <string>

#include "ZDXEngine/FilePropertyMgr.h"
#include "ZDXEngine/ZDXService.h"
#include "ZDXEngine/ZdxEngineException.h"

namespace {

using ZDXEngine::FileError;
using ZDXEngine::FilePropertyMgr;
using ZDXEngine::NotFound;
using ZDXEngine::ReadError;
using ZDXEngine::ZdxEngineException;

constexpr const wchar_t* kNoSuchDrawing = L"/no/such/folder/drawing.dxf";

class ClientOfTheSharedLibrary : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { ZDXEngine::ZDXService::SetupHostApplication(); }
  static void Open(const wchar_t* path) { FilePropertyMgr::Instance().GetFileType(path); }
};

TEST_F(ClientOfTheSharedLibrary, CatchesAMissingDrawingByItsOwnClass) {
  EXPECT_THROW(Open(kNoSuchDrawing), NotFound);
}

TEST_F(ClientOfTheSharedLibrary, CatchesAnUnknownExtensionByItsOwnClass) {
  EXPECT_THROW(Open(L"/no/such/folder/drawing.txt"), ReadError);
}

// Only the base's own run-time type lets a handler of another image find a derived object.
template <class Base>
bool CaughtAs(const wchar_t* path) {
  try {
    FilePropertyMgr::Instance().GetFileType(path);
  } catch (const Base&) {
    return true;
  } catch (...) {
  }
  return false;
}

TEST_F(ClientOfTheSharedLibrary, CatchesAMissingDrawingByEachBase) {
  EXPECT_TRUE(CaughtAs<FileError>(kNoSuchDrawing));
  EXPECT_TRUE(CaughtAs<ZdxEngineException>(kNoSuchDrawing));
  EXPECT_TRUE(CaughtAs<std::exception>(kNoSuchDrawing));
}

TEST_F(ClientOfTheSharedLibrary, ReadsTheNumberAndTheSentence) {
  try {
    Open(kNoSuchDrawing);
    FAIL() << "nothing thrown";
  } catch (const ZdxEngineException& error) {
    EXPECT_EQ(error.errorCode, 102);
    EXPECT_EQ(error.errorMessage, L"Unable to find file '/no/such/folder/drawing.dxf' \n");
    EXPECT_STREQ(error.what(), "Unknown exception");
  }
}

}  // namespace
