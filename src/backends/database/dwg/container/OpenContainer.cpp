#include "backends/database/dwg/container/CodedContainer.h"
#include "backends/database/dwg/container/Container.h"
#include "backends/database/dwg/container/FlatContainer.h"
#include "backends/database/dwg/container/PagedContainer.h"

namespace zdx::dwg {

std::variant<std::unique_ptr<Container>, model::Finding> OpenContainer(model::Version version,
                                                                       std::string_view bytes,
                                                                       model::Report& report) {
  if (version < model::kVersion1018) return OpenFlat(bytes, report);
  return version == model::kVersion1021 ? OpenCoded(bytes, report) : OpenPaged(bytes, report);
}

}  // namespace zdx::dwg
