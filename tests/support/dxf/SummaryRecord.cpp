#include <stdexcept>

#include "support/dxf/Drawing.h"
#include "support/dxf/Tokens.h"

namespace dxf {
namespace {

constexpr std::size_t kMostProperties = 10;
constexpr int kFirstProperty = 300;

// The sign between a property's name and its value; alone it stands for a place not in use.
constexpr const char* kNameEnd = "=";

}  // namespace

bool HasSummaryRecord(const DrawingSpec& spec, Version version) {
  if (!HasObjects(version) || HasHeaderSummary(version)) return false;
  const SummarySpec& summary = spec.summary;
  for (const std::string* text :
       {&summary.title, &summary.subject, &summary.author, &summary.keywords, &summary.comments,
        &summary.lastSavedBy, &summary.revisionNumber}) {
    if (!text->empty()) return true;
  }
  return !spec.customProperties.empty();
}

ObjectSpec SummaryRecord(const DrawingSpec& spec) {
  if (spec.customProperties.size() > kMostProperties) {
    throw std::invalid_argument("the summary record has room for ten custom properties");
  }
  const SummarySpec& summary = spec.summary;
  std::vector<Tag> tags = {{1, kSummaryCookie},      {2, summary.title},
                           {3, summary.subject},     {4, summary.author},
                           {6, summary.comments},    {7, summary.keywords},
                           {8, summary.lastSavedBy}, {9, summary.revisionNumber}};
  for (std::size_t i = 0; i < kMostProperties; ++i) {
    std::string entry = kNameEnd;
    if (i < spec.customProperties.size()) {
      entry = spec.customProperties[i].name + kNameEnd + spec.customProperties[i].value;
    }
    tags.emplace_back(kFirstProperty + static_cast<int>(i), entry);
  }
  tags.insert(tags.end(), {Tag(40, 0.0), Tag(41, 0.0), Tag(42, 0.0),
                           Tag(1, spec.settings.hyperlinkBase), Tag(90, 0)});
  return Xrecord(tags);
}

}  // namespace dxf
