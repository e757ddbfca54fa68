#include "support/dwg/Containers.h"

#include "support/dwg/Bytes.h"
#include "support/dwg/HeaderVariables.h"
#include "support/dwg/ObjectMap.h"
#include "support/dwg/PlainSections.h"
#include "support/dwg/Tokens.h"

namespace dwg {
namespace {

constexpr std::uint64_t kObjectsMark = 0x0DCA;
constexpr std::size_t kObjectsMarkSize = 4;
constexpr unsigned kWriterVersion = 33;
constexpr std::size_t kPagedHeadSize = 0x80;

}  // namespace

std::string FileHead(const Drawing& drawing, std::size_t previewAddress) {
  std::string head = drawing.spec.version + std::string(5, '\0');
  const auto maintenance = static_cast<std::uint64_t>(MaintenanceOf(drawing));
  AppendNumber(head, maintenance, 1);
  AppendNumber(head, drawing.IsSince(Version::AC1018) ? 3 : 1, 1);
  AppendNumber(head, previewAddress, 4);
  AppendNumber(head, kWriterVersion, 1);
  AppendNumber(head, maintenance, 1);
  AppendNumber(head, drawing.codePage, 2);
  return head;
}

void PutPagedHead(std::string& head, std::size_t summaryAddress, std::size_t appInfoAddress,
                  std::size_t appInfoHistoryAddress) {
  const char maintenance = head[0x12];
  head.resize(kPagedHeadSize, '\0');
  PutNumber(head, 0x16, kWriterVersion, 1);
  head[0x17] = maintenance;
  PutNumber(head, 0x20, summaryAddress, 4);
  PutNumber(head, 0x28, kPagedHeadSize, 4);
  PutNumber(head, 0x2C, appInfoAddress, 4);
  PutNumber(head, 0x30, appInfoHistoryAddress, 4);
}

std::vector<PlainSection> RecordSections(Drawing& drawing) {
  const RecordArea area = LayOut(drawing.records, kObjectsMarkSize);
  return {{kHeaderSection, HeaderSection(drawing)},
          {kAuxHeaderSection, AuxHeaderSection(drawing)},
          {kClassesSection, ClassesSection(drawing)},
          {kHandlesSection, ObjectMap(area.offsets, drawing.writing.mapPageSize)},
          {kTemplateSection, TemplateSection(drawing.version)},
          {kObjectsSection, NumberBytes(kObjectsMark, kObjectsMarkSize) + area.bytes},
          {kRevisionsSection, RevisionsSection()}};
}

}  // namespace dwg
