// The engine, running.
#pragma once

namespace zdx {

// Starts the engine when made and stops it when destroyed; one at a time.
class EngineSession {
 public:
  EngineSession();
  ~EngineSession();
  EngineSession(const EngineSession&) = delete;
  EngineSession& operator=(const EngineSession&) = delete;
};

}  // namespace zdx
