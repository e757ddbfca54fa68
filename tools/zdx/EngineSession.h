// The engine, running.
#pragma once

#include "ZDXEngine/ZDXService.h"

namespace zdx {

// Starts the engine when made and stops it when destroyed; one at a time.
class EngineSession {
 public:
  // `host` counts for the first session of a process alone.
  explicit EngineSession(const ZDXEngine::HostApplicationParam& host = {});
  ~EngineSession();
  EngineSession(const EngineSession&) = delete;
  EngineSession& operator=(const EngineSession&) = delete;
};

}  // namespace zdx
