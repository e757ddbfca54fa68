#include "BlocksCommand.h"

#include "BlockReport.h"
#include "DrawingFile.h"
#include "EngineSession.h"
#include "TellFiles.h"

namespace zdx {

int RunBlocks(const BlocksOptions& options) {
  const EngineSession session;
  return TellFiles(options.files, options.format, [](const std::wstring& path) {
    return ReadFile(path, [](const std::wstring& name) {
      BlockReport report;
      report.blocks = ZDXEngine::ListBlocksWithAttributes(name);
      return report;
    });
  });
}

}  // namespace zdx
