#include "malformed/DwgDamage.h"

#include <list>

#include "malformed/Damage.h"
#include "support/dwg/Containers.h"
#include "support/dwg/DwgMaker.h"
#include "support/handmade/HandMade.h"

namespace damage {
namespace {

constexpr std::uint32_t kPageSize = 0x7400;

void WriteRecords(dwg::Drawing& drawing) {
  dwg::WriteTables(drawing);
  dwg::WriteBlocks(drawing);
  dwg::WriteRootDictionary(drawing);
}

}  // namespace

std::string SoundDwg(const std::string& version) { return dwg::Make(Sound(version)); }

std::string DwgWith(const drawing::DrawingSpec& spec,
                    const std::function<void(dwg::Drawing& drawing)>& change) {
  const dwg::Writing writing;
  dwg::Drawing drawing(spec, writing);
  WriteRecords(drawing);
  change(drawing);
  if (!drawing.IsSince(dwg::Version::AC1018)) return dwg::FlatFile(drawing);
  return drawing.version == dwg::Version::AC1021 ? dwg::CodedFile(drawing)
                                                 : dwg::PagedFile(drawing);
}

dwg::Drawing& SoundRecords(const std::string& version) {
  static std::list<drawing::DrawingSpec> specs;
  static std::list<dwg::Drawing> drawings;
  static const dwg::Writing writing;
  specs.push_back(Sound(version));
  WriteRecords(drawings.emplace_back(specs.back(), writing));
  return drawings.back();
}

handmade::PagedSpec PagesOf(dwg::Drawing& drawing) {
  handmade::PagedSpec spec;
  spec.magic = drawing.spec.version;
  for (const dwg::PlainSection& section : dwg::RecordSections(drawing)) {
    handmade::PagedPart part = {section.name, section.bytes.size(), kPageSize};
    for (std::size_t at = 0; at < section.bytes.size(); at += kPageSize) {
      const std::string contents = section.bytes.substr(at, kPageSize);
      part.pages.push_back({handmade::OneRun(handmade::Padded(contents, kPageSize)), at});
    }
    spec.parts.push_back(part);
  }
  return spec;
}

std::string RecordOf(unsigned type, const dwg::Fields& fields) {
  return dwg::AssembleRecord({type, false, {}}, fields);
}

}  // namespace damage
