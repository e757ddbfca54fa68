#include "support/scripted/ForeignServices.h"

namespace scripted {
namespace {

class ForeignServices : public ZnDbHostApplicationServices {
 public:
  ForeignServices() : ZnDbHostApplicationServices(0) {}

  void* workingServiceObject() const override { return nullptr; }
  const wchar_t* getHostIdentityPrimary() const override { return L"someone else"; }
  const wchar_t* getHostIdentitySecondary() const override { return L""; }
  bool substituteFontRequest(ZnFontRequest* /*request*/) override { return false; }
  bool acceptHostQuery(void* /*query*/) override { return false; }
};

}  // namespace

std::unique_ptr<ZnDbHostApplicationServices> NewForeignServices() {
  return std::make_unique<ForeignServices>();
}

}  // namespace scripted
