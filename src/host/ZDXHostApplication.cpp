#include "host/ZDXHostApplication.h"

#include "host/RoamingFolder.h"
#include "host/SupportFileSearch.h"
#include "platform/os/Os.h"

namespace ZDXEngine {

ZDXHostApplication::ZDXHostApplication(const HostApplicationParam& param)
    : ZnDbHostApplicationServices(1), param_(param) {
  os::OutputDebugStringW(L"ZDXHostApplication");
  os::CoInitialize(nullptr);
}

ZDXHostApplication::~ZDXHostApplication() {
  os::OutputDebugStringW(L"~ZDXHostApplication");
  os::CoUninitialize();
}

Zent::ErrorStatus ZDXHostApplication::findFile(wchar_t* fileOut, int bufferLength,
                                               const wchar_t* fileName, ZnDbDatabase* database,
                                               int hint) {
  return FindSupportFile(param_, fileOut, bufferLength, fileName, database, hint);
}

Zent::ErrorStatus ZDXHostApplication::getRoamingRootFolder(const wchar_t*& folder) {
  folder = RoamingRootFolder();
  return Zent::kOk;
}

void* ZDXHostApplication::workingServiceObject() const { return storedServiceObject_; }

const wchar_t* ZDXHostApplication::getHostIdentityPrimary() const {
  return param_.hostIdentityPrimary.c_str();
}

const wchar_t* ZDXHostApplication::getHostIdentitySecondary() const {
  return param_.hostIdentitySecondary.c_str();
}

bool ZDXHostApplication::substituteFontRequest(ZnFontRequest* request) {
  return getSubstituteFont(request);
}

bool ZDXHostApplication::acceptHostQuery(void* /*query*/) { return true; }

void ZDXHostApplication::UpdateParam(const HostApplicationParam& param) {
  if (&param == &param_) return;
  param_.enableSupportFileSearch = param.enableSupportFileSearch;
  param_.supportSearchPath = param.supportSearchPath;
  param_.hostIdentityPrimary = param.hostIdentityPrimary;
  param_.hostIdentitySecondary = param.hostIdentitySecondary;
}

}  // namespace ZDXEngine
