#include "EngineSession.h"

namespace zdx {

namespace {

constexpr long kEnglish = 1033;

}  // namespace

namespace service = ZDXEngine::ZDXService;

EngineSession::EngineSession(const ZDXEngine::HostApplicationParam& host) {
  service::SetupHostApplication(host);
  service::ValidateHostApplication(kEnglish);
  service::InitHostApplication();
  service::InitializeEConvyEngine();
}

EngineSession::~EngineSession() {
  service::UnInitializeEConveyEngine();
  service::UnInitializeHostApplication();
}

}  // namespace zdx
