#include "EngineSession.h"

#include "ZDXEngine/ZDXService.h"

namespace zdx {

namespace {

constexpr long kEnglish = 1033;

}  // namespace

namespace service = ZDXEngine::ZDXService;

EngineSession::EngineSession() {
  service::SetupHostApplication();
  service::ValidateHostApplication(kEnglish);
  service::InitHostApplication();
  service::InitializeEConvyEngine();
}

EngineSession::~EngineSession() {
  service::UnInitializeEConveyEngine();
  service::UnInitializeHostApplication();
}

}  // namespace zdx
