#include "support/dwg/DwgMaker.h"

#include "support/dwg/Containers.h"

namespace dwg {

std::string Make(const drawing::DrawingSpec& spec, const Writing& writing) {
  Drawing drawing(spec, writing);
  WriteTables(drawing);
  WriteBlocks(drawing);
  WriteRootDictionary(drawing);
  if (!drawing.IsSince(Version::AC1018)) return FlatFile(drawing);
  return drawing.version == Version::AC1021 ? CodedFile(drawing) : PagedFile(drawing);
}

}  // namespace dwg
