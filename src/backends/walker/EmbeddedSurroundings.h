// Drawings and files as the embedded database, the host and the system tell of them.
#pragma once

#include "backends/walker/Surroundings.h"

namespace zdx::walker {

class EmbeddedSurroundings : public Surroundings {
 public:
  Reading Read(const std::wstring& path) override;
  std::wstring Find(const std::wstring& name, ZnDbDatabase* asking, int hint) override;
  std::wstring Identity(const std::wstring& path) override;
};

}  // namespace zdx::walker
