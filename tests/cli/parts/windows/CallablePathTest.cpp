#include <gtest/gtest.h>
#include <windows.h>

#include "SystemNames.h"

namespace zdx {

namespace {

std::wstring Repeated(const std::wstring& text, int count) {
  std::wstring all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

std::wstring CurrentFolder() {
  std::wstring folder(32768, L'\0');
  folder.resize(GetCurrentDirectoryW(static_cast<DWORD>(folder.size()), folder.data()));
  return folder;
}

// 300 units.
const std::wstring kLong = Repeated(L"folder..89", 30);

TEST(CallablePath, ThatIsShortStaysAsItIs) {
  for (const wchar_t* const path : {L"", L"a.dxf", L"C:\\plans\\a.dxf", L"C:/plans/../a.dxf",
                                    L"\\\\server\\share\\a.dxf", L"NUL", L"a*.dxf"}) {
    EXPECT_EQ(CallablePath(path), path);
  }
}

TEST(CallablePath, ThatIsLongIsExtended) {
  EXPECT_EQ(CallablePath(L"C:\\" + kLong), L"\\\\?\\C:\\" + kLong);
}

TEST(CallablePath, ThatIsLongInAShareIsExtendedForThat) {
  EXPECT_EQ(CallablePath(L"\\\\server\\share\\" + kLong), L"\\\\?\\UNC\\server\\share\\" + kLong);
}

TEST(CallablePath, IsExtendedFromWhereNamesBesideItMayBeTooLong) {
  const std::wstring most = L"C:\\" + std::wstring(247 - 3, L'a');
  EXPECT_EQ(CallablePath(most), most);
  EXPECT_EQ(CallablePath(most + L"a"), L"\\\\?\\" + most + L"a");
}

TEST(CallablePath, IsResolvedBeforeItIsExtended) {
  EXPECT_EQ(CallablePath(L"C:/x/../y/./" + kLong + L"/a.dxf"),
            L"\\\\?\\C:\\y\\" + kLong + L"\\a.dxf");
}

TEST(CallablePath, OfARelativeNameBeginsAtTheCurrentFolder) {
  const std::wstring folder = CurrentFolder();
  const std::wstring separator = folder.ends_with(L'\\') ? L"" : L"\\";
  EXPECT_EQ(CallablePath(kLong), L"\\\\?\\" + folder + separator + kLong);
}

TEST(CallablePath, ThatIsLongOnlyAsItIsWrittenStaysAsItIs) {
  const std::wstring path = L"C:\\" + Repeated(L"x\\..\\", 100) + L"a.dxf";
  EXPECT_EQ(CallablePath(path), path);
}

TEST(CallablePath, ThatIsExtendedWithSlashesIsResolved) {
  EXPECT_EQ(CallablePath(L"//?/C:/" + kLong + L"/a.dxf"), L"\\\\?\\C:\\" + kLong + L"\\a.dxf");
}

TEST(CallablePath, ThatIsExtendedAlreadyStaysAsItIs) {
  for (const wchar_t* const head :
       {L"\\\\?\\C:\\", L"\\\\?\\UNC\\server\\share\\", L"\\\\.\\", L"\\??\\C:\\"}) {
    EXPECT_EQ(CallablePath(head + kLong), head + kLong);
  }
}

}  // namespace

}  // namespace zdx
