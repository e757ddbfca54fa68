// What the drawing library is told about its host.
#pragma once

#include "ZDXEngine/ZDXService.h"
#include "platform/zndb/ZnDbHostApplicationServices.h"

namespace ZDXEngine {

// This engine's answers.  One object exists per process, made by SetupHostApplication.  Its
// construction and destruction start and stop COM and leave the engine's only trace, in the debug
// output.
class ZDXHostApplication : public ZnDbHostApplicationServices {
 public:
  explicit ZDXHostApplication(const HostApplicationParam& param);
  ~ZDXHostApplication() override;

  Zent::ErrorStatus findFile(wchar_t* fileOut, int bufferLength, const wchar_t* fileName,
                             ZnDbDatabase* database, int hint) override;
  Zent::ErrorStatus getRoamingRootFolder(const wchar_t*& folder) override;
  // What the base class stores, unchanged.
  void* workingServiceObject() const override;
  // The client's texts; the pointers hold until the next UpdateParam, and are never null.
  const wchar_t* getHostIdentityPrimary() const override;
  const wchar_t* getHostIdentitySecondary() const override;
  // Passes the request on to getSubstituteFont.
  bool substituteFontRequest(ZnFontRequest* request) override;
  // Always true.
  bool acceptHostQuery(void* query) override;

  // Overwrites the parameters; `param` may be the object's own.
  void UpdateParam(const HostApplicationParam& param);
  const HostApplicationParam& Param() const { return param_; }

 private:
  HostApplicationParam param_;
};

}  // namespace ZDXEngine
