#include "backends/database/dxf/SectionMap.h"

#include <algorithm>
#include <utility>

#include "backends/database/dxf/Lines.h"
#include "backends/database/dxf/Tokens.h"

namespace zdx::dxf {

std::optional<Section> SectionMap::Find(std::string_view name) {
  std::size_t i = 0;
  do {
    for (; i < sections_.size(); ++i) {
      if (sections_[i].name == name) return sections_[i];
    }
  } while (FindNext());
  return std::nullopt;
}

const std::vector<Section>& SectionMap::All() {
  while (FindNext()) {
  }
  return sections_;
}

// Adds the next section; false if there is none.
bool SectionMap::FindNext() {
  while (!complete_) {
    const ObjectStart start = stream_->NextObject(next_);
    if (!start.Found() || start.type == kEndOfFile) break;
    next_ = start.body;
    if (start.type != kSection) continue;
    Tag name;
    ObjectTags tags(*stream_, start.body);
    if (!tags.Next(name) || name.code != kNameCode) {
      flaws_.push_back({L"A section has no name and is passed over.", start.at});
      continue;
    }
    next_ = FindEnd(tags.at());
    sections_.push_back({Trimmed(name.value), tags.at(), next_});
    if (ComesAgain(sections_.back().name)) {
      flaws_.push_back({L"A section comes twice; the second is passed over.", start.at});
    }
    return true;
  }
  complete_ = true;
  return false;
}

// Whether a section that is read has a name that another had before.
bool SectionMap::ComesAgain(std::string_view name) {
  const auto* const found = std::find(std::begin(kReadSections), std::end(kReadSections), name);
  if (found == std::end(kReadSections)) return false;
  return std::exchange(isFound_[static_cast<std::size_t>(found - std::begin(kReadSections))], true);
}

// The place of the section's end mark, or of whatever ends it for want of one.
std::size_t SectionMap::FindEnd(std::size_t from) {
  while (true) {
    const ObjectStart start = stream_->NextObject(from);
    if (start.type == kEndOfSection) return start.at;
    const bool another = start.type == kSection || start.type == kEndOfFile;
    if (!start.Found() || another) {
      const std::size_t end = start.Found() ? start.at : stream_->bytes().size();
      flaws_.push_back({L"A section lacks its end; the file may have been cut.", end});
      return end;
    }
    if (start.type == kInsert) references_.push_back(start.at);
    from = start.body;
  }
}

}  // namespace zdx::dxf
