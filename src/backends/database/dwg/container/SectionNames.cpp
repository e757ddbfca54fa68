#include "backends/database/dwg/container/SectionNames.h"

#include <algorithm>
#include <iterator>

#include "backends/database/dwg/Tokens.h"

namespace zdx::dwg {
namespace {

struct NamedSection {
  std::string_view name;
  SectionId id;
};

constexpr NamedSection kSections[] = {
    {kHeaderSection, SectionId::kHeader},     {kClassesSection, SectionId::kClasses},
    {kHandlesSection, SectionId::kObjectMap}, {kObjectsSection, SectionId::kObjects},
    {kSummarySection, SectionId::kSummary},   {kPreviewSection, SectionId::kPreview},
    {kFileListSection, SectionId::kFileList}};

}  // namespace

std::optional<SectionId> SectionByName(std::string_view name) {
  const auto* const row = std::find_if(std::begin(kSections), std::end(kSections),
                                       [name](const NamedSection& s) { return s.name == name; });
  return row == std::end(kSections) ? std::nullopt : std::optional(row->id);
}

}  // namespace zdx::dwg
