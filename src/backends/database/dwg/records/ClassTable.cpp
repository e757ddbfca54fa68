#include "backends/database/dwg/records/ClassTable.h"

#include <algorithm>
#include <utility>

#include "backends/database/dwg/Tokens.h"
#include "backends/database/dwg/records/SectionBlock.h"

namespace zdx::dwg {
namespace {

constexpr unsigned kEntityItem = 0x1F2;
// A table without a count may end with this many bits that fill its last byte.
constexpr std::uint64_t kFiller = 7;

// Whether `stored` ends in `text`, which is plain ASCII, or says just that.
bool EndsIn(std::string_view stored, std::string_view text, bool isWhole, Format format) {
  const std::size_t size = format.HasStringStream() ? 2 * text.size() : text.size();
  if (stored.size() < size || (isWhole && stored.size() != size)) return false;
  stored.remove_prefix(stored.size() - size);
  if (!format.HasStringStream()) return stored == text;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (stored[2 * i] != text[i] || stored[2 * i + 1] != '\0') return false;
  }
  return true;
}

std::optional<ObjectType> TypeLike(std::string_view storedName, Format format) {
  for (const LikeClass& row : kLikeClasses) {
    if (EndsIn(storedName, row.dxfName, !row.isEnding, format)) return row.type;
  }
  return std::nullopt;
}

// The fields of one class; false if they aren't all there.
bool ReadClass(Format format, Streams& streams, ObjectType& number, DeclaredClass& declared) {
  number = streams.Data().BS();
  streams.Data().BS();
  streams.Text();
  declared.className = streams.Text();
  declared.like = TypeLike(streams.Text(), format);
  streams.Data().B();
  declared.isEntity = streams.Data().BS() == kEntityItem;
  // Instances, version, maintenance, and two words more.
  if (format.version >= model::kVersion1018) {
    for (int i = 0; i < 5; ++i) streams.Data().BL();
  }
  return streams.Good();
}

}  // namespace

ClassTable::ClassTable(Section& section, Format format, model::Report& report) {
  SectionBlock block(section, format, kClassesMark, L"classes", report);
  Streams* const streams = block.Fields();
  if (streams == nullptr) return;
  std::uint64_t left = ~std::uint64_t{0};
  if (format.version >= model::kVersion1018) {
    const std::uint64_t highest = streams->Data().BS();
    streams->Data().RC();
    streams->Data().RC();
    streams->Data().B();
    left = highest < kFirstClassType ? 0 : highest - kFirstClassType + 1;
  }
  for (; left > 0; --left) {
    if (format.version < model::kVersion1018 && streams->Data().Left() <= kFiller) return;
    ObjectType number = 0;
    DeclaredClass declared;
    if (!ReadClass(format, *streams, number, declared)) {
      report.Warn({L"The list of classes ends early.", block.place(), {}, {}});
      return;
    }
    classes_.emplace(number, std::move(declared));
  }
}

const DeclaredClass* ClassTable::Find(ObjectType number) const {
  const auto found = classes_.find(number);
  return found == classes_.end() ? nullptr : &found->second;
}

bool ClassTable::HasLike(ObjectType type) const {
  return std::any_of(classes_.begin(), classes_.end(),
                     [type](const auto& entry) { return entry.second.like == type; });
}

}  // namespace zdx::dwg
