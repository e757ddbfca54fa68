// A host that looks for files beside the drawing that asks.
#pragma once

#include <string>

#include "platform/zndb/ZnDbHostApplicationServices.h"

namespace walker_test {

class FolderHost : public ZnDbHostApplicationServices {
 public:
  FolderHost() : ZnDbHostApplicationServices(0) {}

  // findFile throws std::runtime_error when it is asked for this name.
  std::wstring forbidden;

  Zent::ErrorStatus findFile(wchar_t* fileOut, int bufferLength, const wchar_t* fileName,
                             ZnDbDatabase* database, int hint) override;
  Zent::ErrorStatus getRoamingRootFolder(const wchar_t*& folder) override;
  void* workingServiceObject() const override { return nullptr; }
  const wchar_t* getHostIdentityPrimary() const override { return L""; }
  const wchar_t* getHostIdentitySecondary() const override { return L""; }
  bool substituteFontRequest(ZnFontRequest* /*request*/) override { return false; }
  bool acceptHostQuery(void* /*query*/) override { return true; }
};

}  // namespace walker_test
