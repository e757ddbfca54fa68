#include "backends/database/dxf/DxfDrawing.h"

#include <algorithm>
#include <array>
#include <utility>

#include "backends/database/dxf/Lines.h"
#include "backends/database/dxf/Tokens.h"
#include "backends/database/model/BuiltIns.h"
#include "base/CaseFold.h"
#include "base/CodePage.h"

namespace zdx::dxf {
namespace {

model::ObjectKey KeyOf(const ObjectStart& start) { return model::ObjectKey{start.at}; }

bool IsProxy(std::string_view type) { return type == kProxyObject || type == kProxyEntity; }

}  // namespace

DxfDrawing::DxfDrawing(file::MappedFile file, Form form, std::shared_ptr<model::Report> report)
    : file_(std::move(file)),
      stream_(file_.bytes(), form),
      report_(std::move(report)),
      sections_(stream_) {
  ReadHeader();
  ReportHeader();
}

DxfDrawing::~DxfDrawing() {
  if (stream_.form() == Form::kText) TellLines();
}

void DxfDrawing::ReadHeader() {
  if (const auto section = FindSection(kHeaderSection)) {
    header_ = HeaderVariables(stream_, section->begin, section->end);
  }
  if (const Tag* const magic = HeaderTag(kVersionVariable)) {
    if (const auto version = model::VersionByMagic(Trimmed(magic->value))) version_ = *version;
  }
  CodePageId page = kWestern;
  if (const Tag* const name = HeaderTag(kCodePageVariable)) {
    const auto known = CodePageByName(Trimmed(name->value));
    page = known.value_or(kWestern);
    if (!known && version_ < model::kVersion1021) {
      Warn(L"The code page isn't known; Western (1252) is used.", name->at);
    }
  }
  decoder_.emplace(version_, page, model::ControlCharacters::kCaret);
  extensionBytes_ = stream_.bytes().size();
}

void DxfDrawing::ReportHeader() {
  report_->format = stream_.form() == Form::kText ? L"DXF (text)" : L"DXF (binary)";
  if (const Tag* const magic = HeaderTag(kVersionVariable)) {
    report_->version = Text(*magic, model::TextUse::kValue);
    if (!model::VersionByMagic(Trimmed(magic->value))) {
      Warn(L"The version isn't known; the file is read as AC1009.", magic->at);
    } else if (version_ == model::kVersionUnknownNewer) {
      Warn(L"The version is newer than those that are known.", magic->at);
    }
  }
  if (const Tag* const page = HeaderTag(kCodePageVariable)) {
    report_->codePage = Text(*page, model::TextUse::kValue);
  }
  for (const std::size_t at : header_.damages()) WarnOfDamage(at);
}

std::optional<Section> DxfDrawing::FindSection(std::string_view name) {
  const std::optional<Section> section = sections_.Find(name);
  const std::vector<SectionMap::Flaw>& flaws = sections_.flaws();
  for (; toldFlaws_ < flaws.size(); ++toldFlaws_) {
    Warn(flaws[toldFlaws_].text, flaws[toldFlaws_].at);
  }
  return section;
}

const DxfDrawing::Tables& DxfDrawing::ReadTables() {
  if (!tables_) {
    Tables tables;
    CollectRecords(tables);
    constexpr auto kKind = model::TableKind::kLinetype;
    model::PutBuiltInsFirst(kKind, tables.linetypes,
                            [this](model::ObjectKey record) { return RecordName(kKind, record); });
    tables_ = std::move(tables);
  }
  return *tables_;
}

// Goes by the type of each record, not by the heads, ends and counts around them.
void DxfDrawing::CollectRecords(Tables& tables) {
  const auto section = FindSection(kTablesSection);
  if (!section) return;
  ObjectStart start = stream_.NextObject(section->begin);
  for (; start.Found() && start.at < section->end; start = stream_.NextObject(start.body)) {
    if (start.type == kLayerRecord) tables.layers.push_back(KeyOf(start));
    if (start.type == kLinetypeRecord) tables.linetypes.push_back(KeyOf(start));
    if (start.type == kViewRecord) tables.views.push_back(KeyOf(start));
    if (start.type == kStyleRecord) tables.styles.push_back(KeyOf(start));
    if (start.type == kBlockRecord) tables.blocks.push_back(KeyOf(start));
  }
}

const std::vector<model::ObjectKey>& DxfDrawing::TableRecords(model::TableKind table) {
  if (table == model::TableKind::kBlock) return Blocks().order();
  const Tables& tables = ReadTables();
  switch (table) {
    case model::TableKind::kLayer:
      return tables.layers;
    case model::TableKind::kLinetype:
      return tables.linetypes;
    default:
      return tables.views;
  }
}

std::optional<std::wstring> DxfDrawing::RecordName(model::TableKind table,
                                                   model::ObjectKey record) {
  if (table == model::TableKind::kBlock) {
    if (record == BlockTable::kMadeModelSpace) return std::wstring(kModelSpace);
    if (record == BlockTable::kMadePaperSpace) return std::wstring(kPaperSpace);
    if (const auto trueName = TrueNameOf(record)) return trueName;
  }
  const TagSearch name = FirstTag(record, kNameCode);
  if (name.tag) return Text(*name.tag, model::TextUse::kName);
  if (!name.lost) Warn(L"A record has no name.", static_cast<std::size_t>(record));
  return std::nullopt;
}

std::optional<std::wstring> DxfDrawing::LinetypeComments(model::ObjectKey record) {
  const TagSearch comments = FirstTag(record, kDescriptionCode);
  if (comments.tag) return Text(*comments.tag, model::TextUse::kValue);
  return comments.lost ? std::nullopt : std::optional<std::wstring>(L"");
}

std::optional<model::ObjectKey> DxfDrawing::RootDictionary() {
  if (!root_) root_ = FindRootDictionary();
  return *root_;
}

std::optional<model::ObjectKey> DxfDrawing::FindRootDictionary() {
  const auto section = FindSection(kObjectsSection);
  if (!section) return std::nullopt;
  ObjectStart start = stream_.NextObject(section->begin);
  for (; start.Found() && start.at < section->end; start = stream_.NextObject(start.body)) {
    if (IsDictionary(start.type)) return KeyOf(start);
  }
  return std::nullopt;
}

std::vector<model::DictionaryEntry> DxfDrawing::DictionaryEntries(model::ObjectKey dictionary) {
  std::vector<model::DictionaryEntry> entries;
  for (const StoredEntry& entry : StoredEntries(dictionary)) {
    entries.push_back({Text(entry.key, model::TextUse::kName), entry.target});
  }
  return entries;
}

std::vector<DxfDrawing::StoredEntry> DxfDrawing::StoredEntries(model::ObjectKey dictionary) {
  std::vector<StoredEntry> entries;
  ObjectTags tags(stream_, StartOf(dictionary).body);
  Tag tag;
  while (tags.Next(tag)) {
    if (tag.code == kKeyCode) {
      entries.push_back({tag, 0});
    } else if ((tag.code == kSoftValueCode || tag.code == kHardValueCode) && !entries.empty() &&
               entries.back().target == 0) {
      entries.back().target = ParseHandle(tag.value);
    }
  }
  WarnOfDamage(tags);
  return entries;
}

// The object under `key`, if the drawing has it.
std::optional<model::ObjectKey> DxfDrawing::EntryOf(model::ObjectKey dictionary,
                                                    std::wstring_view key) {
  for (const model::DictionaryEntry& entry : DictionaryEntries(dictionary)) {
    if (CompareIgnoringCase(entry.key, key) == 0) return Find(entry.target);
  }
  return std::nullopt;
}

// The object under `key` of the extension dictionary with that handle, if the drawing has both.
std::optional<ObjectStart> DxfDrawing::ExtensionEntry(model::Handle dictionary,
                                                      std::wstring_view key) {
  const std::optional<model::ObjectKey> found = Find(dictionary);
  if (!found) return std::nullopt;
  const ObjectStart start = StartOf(*found);
  if (!IsDictionary(start.type) || !TakeExtension(start)) return std::nullopt;
  const std::optional<model::ObjectKey> entry = EntryOf(*found, key);
  return entry ? std::optional(StartOf(*entry)) : std::nullopt;
}

// Whether the object, which belongs to another alone, may be read.
bool DxfDrawing::TakeExtension(const ObjectStart& start) {
  if (extensionBytes_ == 0) return false;
  const ObjectStart next = stream_.NextObject(start.body);
  const std::size_t end = next.Found() ? next.at : stream_.bytes().size();
  const std::size_t size = end - start.at;
  if (size > extensionBytes_) {
    Warn(L"Objects have one extension in common; that of some is passed over.", start.at);
    extensionBytes_ = 0;
    return false;
  }
  extensionBytes_ -= size;
  return true;
}

std::wstring DxfDrawing::DictionaryName(model::DictionaryKind kind) const {
  switch (kind) {
    case model::DictionaryKind::kGroup:
      return std::wstring(kGroupKey);
    case model::DictionaryKind::kMlineStyle:
      return std::wstring(kMlineStyleKey);
    case model::DictionaryKind::kLayout:
      return std::wstring(kLayoutKey);
    default:
      return std::wstring(kPlotSettingsKey);
  }
}

// Looks first where nearly everything is that other objects name, and only then at the rest.
std::optional<model::ObjectKey> DxfDrawing::Find(model::Handle handle) {
  if (handle == 0) return std::nullopt;
  std::optional<std::size_t> at = IndexOfObjects().Find(handle);
  if (!at) at = IndexOfEverything().Find(handle);
  return at ? std::optional(model::ObjectKey{*at}) : std::nullopt;
}

const ObjectIndex& DxfDrawing::IndexOfObjects() {
  if (!objectsIndex_) {
    const auto section = FindSection(kObjectsSection);
    objectsIndex_ =
        section ? ObjectIndex::Build(stream_, section->begin, section->end) : ObjectIndex();
  }
  return *objectsIndex_;
}

const ObjectIndex& DxfDrawing::IndexOfEverything() {
  if (!everythingIndex_) {
    const std::vector<Section>& sections = sections_.All();
    const std::size_t end = sections.empty() ? stream_.Begin() : sections.back().end;
    everythingIndex_ = ObjectIndex::Build(stream_, stream_.Begin(), end);
  }
  return *everythingIndex_;
}

const ClassTable& DxfDrawing::Classes() {
  if (!classes_) {
    const auto section = FindSection(kClassesSection);
    classes_ = section ? ClassTable(stream_, section->begin, section->end) : ClassTable();
    for (const std::size_t at : classes_->damages()) WarnOfDamage(at);
  }
  return *classes_;
}

model::ObjectDescription DxfDrawing::Describe(model::ObjectKey object) {
  using Kind = model::ObjectDescription::Kind;
  constexpr std::pair<std::string_view, Kind> kKinds[] = {
      {kInsert, Kind::kBlockReference},
      {kAttribute, Kind::kAttribute},
      {kAttributeDefinition, Kind::kAttributeDefinition},
      {kText, Kind::kText},
      {kMText, Kind::kMText},
      {kGeoData, Kind::kGeoData},
  };
  const ObjectStart start = StartOf(object);
  for (const auto& [type, kind] : kKinds) {
    if (start.type == type) return {kind, {}};
  }
  if (IsProxy(start.type)) return {Kind::kProxy, ProxiedClassName(start)};
  if (IsDictionary(start.type)) return {Kind::kDictionary, ClassName(start)};
  return {IsAmongEntities(start.at) ? Kind::kEntity : Kind::kObject, ClassName(start)};
}

std::wstring DxfDrawing::ProxiedClassName(const ObjectStart& start) {
  const std::optional<Tag> number = FirstTag(KeyOf(start), kProxyClassCode).tag;
  std::int64_t value = 0;
  if (!number || !ParseInteger(stream_.form(), number->value, value)) return {};
  const auto name = Classes().ClassOfNumber(value);
  return name ? TypeText(*name) : std::wstring();
}

// The declared class; without one the object's last subclass marker, which names its own class; the
// type where there is none either.  Behind the marker of a free record anything may stand.
std::wstring DxfDrawing::ClassName(const ObjectStart& start) {
  if (const auto declared = Classes().ClassOfType(start.type)) return TypeText(*declared);
  std::string_view name = start.type;
  ObjectTags tags(stream_, start.body);
  Tag tag;
  while (name != kXrecordMarker && tags.Next(tag)) {
    if (tag.code == kSubclassCode) name = Trimmed(tag.value);
  }
  WarnOfDamage(tags);
  return TypeText(name);
}

ObjectStart DxfDrawing::StartOf(model::ObjectKey object) const {
  return stream_.ObjectAt(static_cast<std::size_t>(object));
}

DxfDrawing::TagSearch DxfDrawing::FirstTag(model::ObjectKey object, int code) {
  ObjectTags tags(stream_, StartOf(object).body);
  Tag tag;
  std::optional<Tag> found;
  while (!found && tags.Next(tag)) {
    if (tag.code == code) found = tag;
  }
  WarnOfDamage(tags);
  return {found, tags.endedByDamage()};
}

// The value of a header variable; null if there is none or it can't be read.
const Tag* DxfDrawing::HeaderTag(std::string_view name) const {
  const HeaderVariables::Variable* const variable = header_.Find(name);
  return variable != nullptr && variable->value ? &*variable->value : nullptr;
}

std::wstring DxfDrawing::Text(const Tag& tag, model::TextUse use) {
  return Text(tag.value, tag.at, use);
}

std::wstring DxfDrawing::Text(std::string_view bytes, std::size_t at, model::TextUse use) {
  model::TextFlaws flaws;
  std::wstring text = decoder_->Decode(bytes, use, flaws);
  if (flaws.notInEncoding) Warn(L"A text isn't valid in the file's encoding.", at);
  if (flaws.hasNul) Warn(L"A text holds NUL characters, which are left out.", at);
  return text;
}

std::wstring DxfDrawing::TypeText(std::string_view type) {
  model::TextFlaws ignored;
  return decoder_->Decode(type, model::TextUse::kName, ignored);
}

void DxfDrawing::WarnOfDamage(const ObjectTags& tags) {
  if (tags.damagedAt() != kNowhere) WarnOfDamage(tags.damagedAt());
}

void DxfDrawing::WarnOfDamage(std::size_t at) {
  Warn(L"What stands here isn't a group code with its value; it is passed over.", at);
}

void DxfDrawing::Warn(std::wstring text, std::size_t at) {
  report_->Warn({std::move(text), at, {}, {}});
}

// Warnings of a text file tell lines, which are counted once for all of them.
void DxfDrawing::TellLines() {
  std::array<model::Finding*, model::Report::kMostWarnings> findings = {};
  auto end = findings.begin();
  for (model::Finding& warning : report_->warnings) *end++ = &warning;
  std::sort(findings.begin(), end,
            [](const auto* a, const auto* b) { return a->offset < b->offset; });
  std::size_t at = stream_.Begin();
  std::uint64_t line = 1;
  for (auto finding = findings.begin(); finding != end; ++finding) {
    for (; at < *(*finding)->offset && at < stream_.bytes().size(); ++line) {
      TakeLine(stream_.bytes(), at);
    }
    (*finding)->line = line;
    (*finding)->offset.reset();
  }
}

}  // namespace zdx::dxf
