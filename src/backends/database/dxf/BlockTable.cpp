#include "backends/database/dxf/BlockTable.h"

#include <algorithm>
#include <iterator>

#include "backends/database/dxf/GroupedTags.h"
#include "backends/database/dxf/Lines.h"
#include "backends/database/dxf/Tokens.h"
#include "backends/database/model/BuiltIns.h"
#include "base/CaseFold.h"

namespace zdx::dxf {
namespace {

// Anonymous names begin with it.
constexpr wchar_t kAnonymous = L'*';

template <class Key, class Number>
auto FirstOf(const std::vector<std::pair<Key, Number>>& entries, const Key& key) {
  return std::lower_bound(entries.begin(), entries.end(), key,
                          [](const auto& entry, const Key& k) { return entry.first < k; });
}

// The number under `key`; `none` if there isn't any.
template <class Key, class Number>
Number NumberOf(const std::vector<std::pair<Key, Number>>& entries, const Key& key, Number none) {
  const auto found = FirstOf(entries, key);
  return found != entries.end() && found->first == key ? found->second : none;
}

constexpr auto kSameName = [](const auto& a, const auto& b) { return a.first == b.first; };
constexpr auto kNameOrder = [](const auto& a, const auto& b) { return a.first < b.first; };

// What the extended data of a record tells of dynamic blocks.
class DynamicData {
 public:
  explicit DynamicData(const BlockSource& source) : source_(source) {}

  void Take(const Tag& tag) {
    if (tag.code == kApplicationCode) {
      const std::wstring application = source_.nameOf(tag.value);
      isTrueName_ = CompareIgnoringCase(application, kTrueNameApplication) == 0;
      isVariation_ = CompareIgnoringCase(application, kVariationApplication) == 0;
      isDynamic_ = isDynamic_ || isTrueName_;
    } else if (isTrueName_ && tag.code == kExtendedTextCode && trueName_.value.empty()) {
      trueName_ = tag;
    } else if (isVariation_ && tag.code == kExtendedHandleCode && original_ == 0) {
      original_ = ParseHandle(tag.value);
    }
  }

  bool isDynamic() const { return isDynamic_; }
  // Empty if there is none.
  const Tag& trueName() const { return trueName_; }
  std::uint64_t original() const { return original_; }

 private:
  const BlockSource& source_;
  bool isTrueName_ = false;
  bool isVariation_ = false;
  bool isDynamic_ = false;
  Tag trueName_;
  std::uint64_t original_ = 0;
};

}  // namespace

BlockTable::BlockTable(const BlockSource& source, const std::vector<model::ObjectKey>& records,
                       const std::optional<Section>& section) {
  blocks_.reserve(records.size());
  std::vector<Name> trueNames;
  for (const model::ObjectKey key : records) ReadRecord(source, key, trueNames);
  std::move(trueNames.begin(), trueNames.end(), std::back_inserter(names_));
  SortHandles();
  Place(source, section ? ReadSection(source, *section) : std::vector<Begin>());
  // What refers to blocks needs a space to stand in, which such a drawing doesn't tell of.
  if (records.empty() && !blocks_.empty()) {
    if (NumberOfSpace(kModelSpace, kOldModelSpace) == kNone) Make(kModelSpace, kMadeModelSpace);
    if (NumberOfSpace(kPaperSpace, kOldPaperSpace) == kNone) Make(kPaperSpace, kMadePaperSpace);
  }
  modelSpace_ = NumberOfSpace(kModelSpace, kOldModelSpace);
  paperSpace_ = NumberOfSpace(kPaperSpace, kOldPaperSpace);
  SortHandles();
  SortPlaces();
  SortOrder();
}

void BlockTable::ReadRecord(const BlockSource& source, model::ObjectKey key,
                            std::vector<Name>& trueNames) {
  const auto number = static_cast<Number>(blocks_.size());
  Block& block = blocks_.emplace_back();
  block.key = key;
  const ObjectStart start = source.stream->ObjectAt(static_cast<std::size_t>(key));
  GroupedTags tags(*source.stream, start.body);
  HeadReader head(source.stream->form());
  DynamicData data(source);
  std::wstring name;
  Tag tag;
  while (tags.Next(tag)) {
    head.Take(tags, tag);
    if (!tags.IsOwn()) continue;
    data.Take(tag);
    if (tag.code == kNameCode && name.empty()) name = source.nameOf(tag.value);
    if (tag.code == kLayoutCode) block.isLayout = block.isLayout || ParseHandle(tag.value) != 0;
  }
  source.warnOfDamage(tags.tags().damagedAt());
  block.handle = head.head().handle;
  block.extension = head.head().extension;
  block.original = data.original();
  block.isLayout = block.isLayout || IsSpaceName(name);
  if (data.isDynamic()) block.isDynamic = true;
  // Later versions keep the true name in the record, where it may have been changed.
  if (source.version < model::kVersion1024 && name.starts_with(kAnonymous) &&
      !data.trueName().value.empty()) {
    block.trueNameAt = data.trueName().at;
    trueNames.emplace_back(FoldCase(source.nameOf(data.trueName().value)), number);
  }
  if (!name.empty()) names_.emplace_back(FoldCase(name), number);
}

std::vector<BlockTable::Begin> BlockTable::ReadSection(const BlockSource& source,
                                                       const Section& section) {
  const TagStream& stream = *source.stream;
  std::vector<Begin> begins;
  bool isOpen = false;
  ObjectStart start = stream.NextObject(section.begin);
  for (; start.Found() && start.at < section.end; start = stream.NextObject(start.body)) {
    const bool isBegin = start.type == kBlock;
    if (!isBegin && start.type != kEndOfBlock) continue;
    if (isOpen) begins.back().end = start.at;
    isOpen = isBegin;
    if (!isBegin) continue;
    Begin& begin = begins.emplace_back();
    begin.at = start.at;
    begin.body = start.body;
    GroupedTags tags(stream, start.body);
    Tag tag;
    while (begin.name.empty() && tags.Next(tag)) {
      if (!tags.IsOwn()) continue;
      if (tag.code == kOwnerCode) begin.owner = ParseHandle(tag.value);
      if (tag.code == kNameCode) begin.name = tag.value;
    }
    source.warnOfDamage(tags.tags().damagedAt());
  }
  if (isOpen) begins.back().end = section.end;
  return begins;
}

// Gives each block of the section to the record of its name, or, if it tells none, of its owner.
// What has no record is appended.
void BlockTable::Place(const BlockSource& source, const std::vector<Begin>& begins) {
  const auto records = static_cast<Number>(blocks_.size());
  for (std::size_t i = 0; i < begins.size(); ++i) {
    if (begins[i].name.empty()) continue;
    names_.emplace_back(FoldCase(source.nameOf(begins[i].name)), records + static_cast<Number>(i));
  }
  std::stable_sort(names_.begin(), names_.end(), kNameOrder);
  // The first of each name, a record if there is one.
  std::vector<Number> holders(begins.size(), kNone);
  for (std::size_t first = 0, i = 0; i < names_.size(); ++i) {
    if (names_[i].first != names_[first].first) first = i;
    if (names_[i].second >= records) holders[names_[i].second - records] = names_[first].second;
  }
  for (std::size_t i = 0; i < begins.size(); ++i) {
    const bool isNamed = holders[i] != kNone;
    const bool isFirst = isNamed && holders[i] == records + i;
    if (isFirst) {
      holders[i] = Append(begins[i]);
    } else if (isNamed && holders[i] >= records) {
      PlaceIn(source, holders[holders[i] - records], begins[i]);
    } else {
      PlaceIn(source, isNamed ? holders[i] : NumberOfHandle(begins[i].owner), begins[i]);
    }
  }
  for (auto& [name, number] : names_) {
    if (number >= records) number = holders[number - records];
  }
  names_.erase(std::unique(names_.begin(), names_.end(), kSameName), names_.end());
  for (const auto& [name, number] : names_) {
    blocks_[number].isLayout = blocks_[number].isLayout || IsSpaceName(name);
  }
}

void BlockTable::PlaceIn(const BlockSource& source, Number number, const Begin& begin) {
  if (number == kNone) {
    source.warn(L"A block has neither a name nor a record; what stands in it is passed over.",
                begin.at);
  } else if (blocks_[number].end != 0) {
    source.warn(L"A block comes twice; what stands in the second is passed over.", begin.at);
  } else {
    blocks_[number].begin = begin.body;
    blocks_[number].end = begin.end;
  }
}

BlockTable::Number BlockTable::Append(const Begin& begin) {
  Block& block = blocks_.emplace_back();
  block.key = model::ObjectKey{begin.at};
  // What stands in it names this as its owner, though there is no such record.
  block.handle = begin.owner;
  block.begin = begin.body;
  block.end = begin.end;
  return static_cast<Number>(blocks_.size() - 1);
}

void BlockTable::Make(std::wstring_view name, model::ObjectKey key) {
  const auto number = static_cast<Number>(blocks_.size());
  Block& block = blocks_.emplace_back();
  block.key = key;
  block.isLayout = true;
  std::wstring folded = FoldCase(name);
  const auto place = FirstOf(names_, folded);
  names_.emplace(place, std::move(folded), number);
}

void BlockTable::SortHandles() {
  handles_.clear();
  for (std::size_t i = 0; i < blocks_.size(); ++i) {
    if (blocks_[i].handle == 0) continue;
    handles_.emplace_back(blocks_[i].handle, static_cast<Number>(i));
  }
  std::sort(handles_.begin(), handles_.end());
}

void BlockTable::SortPlaces() {
  for (std::size_t i = 0; i < blocks_.size(); ++i) {
    keys_.emplace_back(blocks_[i].key, static_cast<Number>(i));
    if (blocks_[i].end != 0) places_.emplace_back(blocks_[i].begin, static_cast<Number>(i));
  }
  std::sort(keys_.begin(), keys_.end());
  std::sort(places_.begin(), places_.end());
}

void BlockTable::SortOrder() {
  order_.reserve(blocks_.size());
  for (const Block& block : blocks_) order_.push_back(block.key);
  std::vector<std::pair<model::ObjectKey, std::wstring>> spaces;
  for (const std::wstring_view name : {kModelSpace, kOldModelSpace, kPaperSpace, kOldPaperSpace}) {
    const Block* const space = At(NumberOfName(FoldCase(name)));
    if (space != nullptr) spaces.emplace_back(space->key, name);
  }
  model::PutBuiltInsFirst(model::TableKind::kBlock, order_, [&](model::ObjectKey key) {
    const auto space = std::find_if(spaces.begin(), spaces.end(),
                                    [key](const auto& entry) { return entry.first == key; });
    return space == spaces.end() ? std::nullopt : std::optional(space->second);
  });
  for (std::size_t i = 0; i < order_.size(); ++i) {
    const Block& block = *Find(order_[i]);
    if (block.original == 0 || block.original == block.handle) continue;
    variations_.emplace_back(block.original, static_cast<Number>(i));
  }
  std::sort(variations_.begin(), variations_.end());
}

BlockTable::Number BlockTable::NumberOfName(const std::wstring& folded) const {
  return NumberOf(names_, folded, kNone);
}

BlockTable::Number BlockTable::NumberOfHandle(std::uint64_t handle) const {
  return NumberOf(handles_, handle, kNone);
}

BlockTable::Number BlockTable::NumberOfSpace(std::wstring_view name,
                                             std::wstring_view oldName) const {
  const Number number = NumberOfName(FoldCase(name));
  return number != kNone ? number : NumberOfName(FoldCase(oldName));
}

Block* BlockTable::Find(model::ObjectKey key) {
  const Number number = NumberOf(keys_, key, kNone);
  return number == kNone ? nullptr : &blocks_[number];
}

const Block* BlockTable::OfName(const std::wstring& name) const {
  return At(NumberOfName(FoldCase(name)));
}

const Block* BlockTable::OfHandle(std::uint64_t handle) const { return At(NumberOfHandle(handle)); }

const Block* BlockTable::Containing(std::size_t at) const {
  auto next = std::upper_bound(places_.begin(), places_.end(), at,
                               [](std::size_t a, const auto& place) { return a < place.first; });
  if (next == places_.begin()) return nullptr;
  const Block& block = blocks_[std::prev(next)->second];
  return at < block.end ? &block : nullptr;
}

std::vector<model::ObjectKey> BlockTable::Variations(std::uint64_t handle) const {
  std::vector<model::ObjectKey> keys;
  if (handle == 0) return keys;
  for (auto entry = FirstOf(variations_, handle);
       entry != variations_.end() && entry->first == handle; ++entry) {
    keys.push_back(order_[entry->second]);
  }
  return keys;
}

bool BlockTable::IsSpaceName(std::wstring_view name) {
  for (const std::wstring_view space : {kModelSpace, kOldModelSpace, kOldPaperSpace}) {
    if (CompareIgnoringCase(name, space) == 0) return true;
  }
  const std::wstring_view number = name.substr(std::min(name.size(), kPaperSpace.size()));
  return CompareIgnoringCase(name.substr(0, kPaperSpace.size()), kPaperSpace) == 0 &&
         std::all_of(number.begin(), number.end(), [](wchar_t c) { return c >= '0' && c <= '9'; });
}

}  // namespace zdx::dxf
