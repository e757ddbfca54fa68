#include <stdexcept>

#include "support/dwg/Drawing.h"
#include "support/dwg/Times.h"
#include "support/dwg/Tokens.h"

namespace dwg {
namespace {

constexpr std::size_t kMostProperties = 10;
constexpr int kFirstProperty = 300;

// Between a property's name and its value; alone it stands for a place not in use.
constexpr const char* kNameEnd = "=";

}  // namespace

const std::string& SummaryBase(const DrawingSpec& spec) {
  const std::string& own = spec.summary.hyperlinkBase;
  return own.empty() ? spec.settings.hyperlinkBase : own;
}

ObjectSpec SummaryRecord(const DrawingSpec& spec) {
  if (spec.customProperties.size() > kMostProperties) {
    throw std::invalid_argument("the summary record has room for ten custom properties");
  }
  const drawing::SummarySpec& summary = spec.summary;
  std::vector<Tag> tags = {{1, drawing::kSummaryCookie}, {2, summary.title},
                           {3, summary.subject},         {4, summary.author},
                           {6, summary.comments},        {7, summary.keywords},
                           {8, summary.lastSavedBy},     {9, summary.revisionNumber}};
  for (std::size_t i = 0; i < kMostProperties; ++i) {
    std::string entry = kNameEnd;
    if (i < spec.customProperties.size()) {
      entry = spec.customProperties[i].name + kNameEnd + spec.customProperties[i].value;
    }
    tags.emplace_back(kFirstProperty + static_cast<int>(i), entry);
  }
  tags.insert(tags.end(), {Tag(40, kEditingTime.Days()), Tag(41, kCreated.Days()),
                           Tag(42, kUpdated.Days()), Tag(1, SummaryBase(spec)), Tag(90, 0)});
  return drawing::Xrecord(tags);
}

}  // namespace dwg
