#include <gtest/gtest.h>

#include "backends/database/model/LinkedFile.h"

namespace zdx::model {
namespace {

TEST(LinkedFile, EndsBehindItsExtensionWherePartsAreNamed) {
  EXPECT_EQ(LinkedFile(L"C:\\data\\book.xlsx!Sheet1!A1:C9"), L"C:\\data\\book.xlsx");
  EXPECT_EQ(LinkedFile(L"../data/book.csv!A1"), L"../data/book.csv");
}

TEST(LinkedFile, IsTheWholeTextWhereNoPartIsNamed) {
  EXPECT_EQ(LinkedFile(L"C:\\data\\book.xlsx"), L"C:\\data\\book.xlsx");
  EXPECT_EQ(LinkedFile(L"book"), L"book");
  EXPECT_EQ(LinkedFile(L""), L"");
}

TEST(LinkedFile, MayHoldTheMarkInItsFoldersAndItsName) {
  EXPECT_EQ(LinkedFile(L"C:\\a!b\\book.xlsx!S!A1"), L"C:\\a!b\\book.xlsx");
  EXPECT_EQ(LinkedFile(L"C:\\v1.2\\book!new.xlsx!S"), L"C:\\v1.2\\book!new.xlsx");
  EXPECT_EQ(LinkedFile(L"v.1/what!.xls!S"), L"v.1/what!.xls");
  EXPECT_EQ(LinkedFile(L"dots..!x.xls!S"), L"dots..!x.xls");
}

}  // namespace
}  // namespace zdx::model
