#include "support/scripted/ForeignServices.h"

namespace scripted {
namespace {

class ForeignServices : public ZnDbHostApplicationServices {
 public:
  ForeignServices() : ZnDbHostApplicationServices(0) {}

  Zent::ErrorStatus findFile(wchar_t* /*fileOut*/, int /*bufferLength*/,
                             const wchar_t* /*fileName*/, ZnDbDatabase* /*database*/,
                             int /*hint*/) override {
    return Zent::kFileNotFound;
  }
  Zent::ErrorStatus getRoamingRootFolder(const wchar_t*& folder) override {
    folder = L"";
    return Zent::kOk;
  }
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
