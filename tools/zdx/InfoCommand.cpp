#include "InfoCommand.h"

#include "EngineSession.h"
#include "JsonOutput.h"
#include "TellFiles.h"
#include "TextOutput.h"

namespace zdx {

int RunInfo(const InfoOptions& options) {
  const EngineSession session;
  return TellFiles(options.files, options.format,
                   [&](const std::wstring& path) { return ReadDrawing(path, options.wanted); });
}

}  // namespace zdx
