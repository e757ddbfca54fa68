#include "backends/database/dwg/DwgDrawing.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "backends/database/dwg/Tokens.h"
#include "backends/database/dwg/records/Layouts.h"
#include "backends/database/dwg/records/SectionBlock.h"
#include "base/CaseFold.h"

namespace zdx::dwg {
namespace {

model::ObjectDescription::Kind ToldEntity(ObjectType type) {
  using Told = model::ObjectDescription::Kind;
  switch (type) {
    case kTextType:
      return Told::kText;
    case kAttributeType:
      return Told::kAttribute;
    case kAttributeDefinitionType:
      return Told::kAttributeDefinition;
    case kReferenceType:
    case kReferenceArrayType:
      return Told::kBlockReference;
    case kMTextType:
      return Told::kMText;
    default:
      return Told::kEntity;
  }
}

}  // namespace

std::variant<std::unique_ptr<model::Drawing>, Refusal> DwgDrawing::Open(
    file::MappedFile file, std::shared_ptr<model::Report> report) {
  Recognition recognition = Recognise(file.bytes());
  if (!recognition.version) return std::move(recognition.refusal);
  const FileHead head = *ReadFileHead(file.bytes());
  const Format format = {*recognition.version, head.maintenance};
  std::unique_ptr<DwgDrawing> drawing(new DwgDrawing(std::move(file), format, std::move(report)));
  drawing->ReportHead(head);
  auto container = OpenContainer(format.version, drawing->file_.bytes(), *drawing->report_);
  if (auto* const reason = std::get_if<model::Finding>(&container)) {
    return Refusal{RefusalKind::kDamaged, std::move(*reason)};
  }
  drawing->container_ = std::move(std::get<std::unique_ptr<Container>>(container));
  return drawing;
}

DwgDrawing::DwgDrawing(file::MappedFile file, Format format, std::shared_ptr<model::Report> report)
    : file_(std::move(file)),
      format_(format),
      report_(std::move(report)),
      entityLists_{Budget::OfObjects(file_.bytes().size())},
      referenceLists_{Budget::OfObjects(file_.bytes().size())} {}

void DwgDrawing::ReportHead(const FileHead& head) {
  const std::string_view magic = file_.bytes().substr(0, kMagicSize);
  report_->format = L"DWG";
  report_->version.assign(magic.begin(), magic.end());
  const NumberedCodePage* const page = CodePageByNumber(head.codePage);
  if (page != nullptr) {
    page_ = page->page;
    report_->codePage = page->name;
  } else if (!format_.HasStringStream()) {
    WarnAt(L"The code page isn't known; Western (1252) is used.", kCodePageAt);
  }
  decoder_.emplace(format_.version, page_, model::ControlCharacters::kPlain);
}

const FieldValues& DwgDrawing::Header() {
  if (header_) return *header_;
  header_.emplace();
  Section* const section = container_->Find(SectionId::kHeader);
  if (section == nullptr) {
    Warn(L"The file has no header variables.", 0);
    return *header_;
  }
  SectionBlock block(*section, format_, kHeaderMark, L"header variables", *report_);
  Streams* const streams = block.Fields();
  if (streams != nullptr &&
      ReadFields(HeaderLayout(), format_.version, *streams, *header_) == Progress::kEnded) {
    WarnAt(L"The header variables end early.", block.place());
  }
  return *header_;
}

ObjectMap& DwgDrawing::Map() {
  if (!map_) {
    Section* const section = container_->Find(SectionId::kObjectMap);
    if (section == nullptr) Warn(L"The file has no object map.", 0);
    map_ = section != nullptr ? ObjectMap(*section, *report_) : ObjectMap();
  }
  return *map_;
}

const ClassTable& DwgDrawing::Classes() {
  if (!classes_) {
    Section* const section = container_->Find(SectionId::kClasses);
    classes_ = section != nullptr ? ClassTable(*section, format_, *report_) : ClassTable();
  }
  return *classes_;
}

std::optional<model::ObjectKey> DwgDrawing::Find(model::Handle handle) {
  if (handle == 0 || !Map().Find(handle)) return std::nullopt;
  return model::ObjectKey{handle};
}

Section* DwgDrawing::Objects() {
  Section* const objects = container_->Find(SectionId::kObjects);
  if (objects == nullptr) {
    Warn(L"The file has no objects.", 0);
  } else if (!recordBytes_) {
    recordBytes_ = Budget::OfRecords(file_.bytes().size(), objects->size());
  }
  return objects;
}

DwgDrawing::Kind DwgDrawing::KindOfType(ObjectType type) {
  Kind kind = {type, type, nullptr, false};
  if (type >= kFirstClassType) kind.declared = Classes().Find(type);
  if (kind.declared != nullptr) kind.like = kind.declared->like.value_or(type);
  kind.isEntity = kind.declared != nullptr ? kind.declared->isEntity : IsFixedEntity(type);
  return kind;
}

std::optional<DwgDrawing::Kind> DwgDrawing::KindOf(model::Handle handle) {
  const std::optional<std::uint64_t> at = Map().Find(handle);
  return at ? KindAt(handle, *at) : std::nullopt;
}

std::optional<DwgDrawing::Kind> DwgDrawing::KindAt(model::Handle handle, std::uint64_t place) {
  Section* const objects = Objects();
  if (objects == nullptr) return std::nullopt;
  const Record record(*objects, place, format_, Record::Extent::kHead);
  if (!record.Whole() || record.handle() != handle) {
    Warn(L"The record of an object is damaged.", handle);
    return std::nullopt;
  }
  return KindOfType(record.type());
}

std::optional<DwgDrawing::Object> DwgDrawing::Read(model::Handle handle, const Question& question,
                                                   Record::Extent extent) {
  const std::optional<std::uint64_t> at = Map().Find(handle);
  return at ? ReadAt(handle, *at, question, extent) : std::nullopt;
}

// Gives the record of an object; false, which is told, if it can't be read.
bool DwgDrawing::Load(std::optional<Record>& record, model::Handle handle, std::uint64_t place,
                      Record::Extent extent) {
  Section* const objects = Objects();
  if (objects == nullptr) return false;
  const bool again = read_.contains(handle);
  record.emplace(*objects, place, format_, extent, again ? objects->size() : recordBytes_->left());
  if (!again) recordBytes_->Take(record->size());
  if (!record->Whole() || record->handle() != handle) {
    Warn(L"The record of an object is damaged.", handle);
    return false;
  }
  if (!record->IsCut() && read_.insert(handle).second && !record->CheckIsRight()) {
    Warn(L"The checksum of a record is wrong.", handle);
  }
  return true;
}

std::optional<DwgDrawing::Object> DwgDrawing::ReadAt(model::Handle handle, std::uint64_t place,
                                                     const Question& question,
                                                     Record::Extent extent) {
  std::optional<Record> record;
  if (!Load(record, handle, place, extent)) return std::nullopt;
  Object object = {KindOfType(record->type()), FieldValues(handle), false};
  std::optional<Streams> streams = record->Fields(object.isEntity);
  Progress progress = streams ? Progress::kGoesOn : Progress::kEnded;
  const auto read = [&](std::span<const Field> layout) {
    if (progress != Progress::kGoesOn) return;
    progress = ReadFields(layout, format_.version, *streams, object.fields, question);
  };
  read(object.isEntity ? EntityLayout() : ObjectLayout());
  read(object.isEntity ? EntityHandlesLayout() : ObjectHandlesLayout());
  read(OwnLayout(object.like));
  object.whole = progress != Progress::kEnded;
  // What is asked for may stand behind the front after all.
  if (!object.whole && record->IsCut()) {
    return ReadAt(handle, place, question, Record::Extent::kWhole);
  }
  if (!object.whole) Warn(L"The record of an object ends early.", handle);
  return object;
}

// A part that thousands share would be read as often.
bool DwgDrawing::IsPartOf(model::Handle owner, model::Handle part) {
  if (owners_.try_emplace(part, owner).first->second == owner) return true;
  Warn(L"Two objects have a part in common.", part);
  return false;
}

std::optional<model::Handle> DwgDrawing::ExtensionEntry(model::Handle owner,
                                                        const FieldValues& fields,
                                                        std::wstring_view key) {
  const model::Handle dictionary = fields.Handle(Key::kExtension);
  if (dictionary == 0 || !IsPartOf(owner, dictionary)) return std::nullopt;
  return EntryOf(dictionary, key);
}

// Of an entity no more than the head of its record is looked at: there may be millions.
model::ObjectDescription DwgDrawing::Describe(model::ObjectKey key) {
  using Told = model::ObjectDescription::Kind;
  const auto handle = static_cast<model::Handle>(key);
  const auto className = [&](const Kind& kind) {
    if (kind.declared != nullptr) return Text(kind.declared->className, model::TextUse::kName);
    return std::wstring(FixedClassName(kind.type));
  };
  const std::optional<Kind> kind = KindOf(handle);
  if (!kind) return {};
  if (kind->isEntity && kind->type != kProxyEntityType) {
    return {ToldEntity(kind->type), className(*kind)};
  }
  const std::optional<Object> object = Read(handle);
  if (!object) return {};
  if (object->type == kProxyObjectType || object->type == kProxyEntityType) {
    const auto number = static_cast<ObjectType>(object->fields.Number(Key::kClassNumber));
    return {Told::kProxy, className(KindOfType(number))};
  }
  if (object->like == kGeoDataType) return {Told::kGeoData, className(*object)};
  return {object->like == kDictionaryType ? Told::kDictionary : Told::kObject, className(*object)};
}

std::optional<model::ObjectKey> DwgDrawing::RootDictionary() {
  const FieldValues::Value* const variable = Header().Find(Key::kRootDictionary);
  if (variable == nullptr) return std::nullopt;
  const model::Handle handle = variable->number;
  const std::optional<model::ObjectKey> root = Find(handle);
  if (!root) Warn(L"The root dictionary isn't there.", handle);
  return root;
}

std::vector<model::DictionaryEntry> DwgDrawing::DictionaryEntries(model::ObjectKey dictionary) {
  const auto handle = static_cast<model::Handle>(dictionary);
  const std::optional<Object> object = Read(handle);
  if (!object || object->like != kDictionaryType) return {};
  const std::vector<std::string>& keys = object->fields.Texts(Key::kKeys);
  const std::vector<model::Handle>& values = object->fields.Handles(Key::kEntries);
  std::vector<model::DictionaryEntry> entries;
  entries.reserve(keys.size());
  for (std::size_t i = 0; i < keys.size(); ++i) {
    const model::Handle target = i < values.size() ? values[i] : 0;
    entries.push_back({Text(keys[i], model::TextUse::kName, handle), target});
  }
  return entries;
}

std::wstring DwgDrawing::DictionaryName(model::DictionaryKind kind) const {
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

// What `dictionary` holds under `key`; nullopt if it has no such entry.
std::optional<model::Handle> DwgDrawing::EntryOf(model::Handle dictionary, std::wstring_view key) {
  for (const model::DictionaryEntry& entry : DictionaryEntries(model::ObjectKey{dictionary})) {
    if (CompareIgnoringCase(entry.key, key) == 0) return entry.target;
  }
  return std::nullopt;
}

std::wstring DwgDrawing::Text(std::string_view stored, model::TextUse use, model::Handle handle) {
  model::TextFlaws flaws;
  std::wstring text = format_.HasStringStream() ? decoder_->DecodeUtf16(stored, use, flaws)
                                                : decoder_->Decode(stored, use, flaws);
  WarnOfFlaws(flaws, handle);
  return text;
}

// The text of a group, which may be of another code page than the drawing's.
std::wstring DwgDrawing::GroupText(std::string_view text, std::uint16_t codePage,
                                   model::TextUse use, model::Handle handle) {
  const NumberedCodePage* const page = CodePageByNumber(codePage);
  if (format_.HasStringStream() || page == nullptr || page->page == page_) {
    return Text(text, use, handle);
  }
  const auto decoder = otherDecoders_.try_emplace(page->page, format_.version, page->page,
                                                  model::ControlCharacters::kPlain);
  model::TextFlaws flaws;
  std::wstring decoded = decoder.first->second.Decode(text, use, flaws);
  WarnOfFlaws(flaws, handle);
  return decoded;
}

void DwgDrawing::WarnOfFlaws(const model::TextFlaws& flaws, model::Handle handle) {
  if (flaws.notInEncoding) Warn(L"A text isn't valid in the file's encoding.", handle);
  if (flaws.hasNul) Warn(L"A text holds NUL characters, which are left out.", handle);
}

// Tells the place where the object's record is said to be.
void DwgDrawing::Warn(std::wstring text, model::Handle handle) {
  model::Finding finding = {std::move(text), {}, {}, {}};
  if (handle != 0) {
    finding.handle = handle;
    Section* const objects = container_->Find(SectionId::kObjects);
    const std::optional<std::uint64_t> at = Map().Find(handle);
    if (objects != nullptr && at) finding.offset = objects->PlaceOf(*at);
  }
  report_->Warn(std::move(finding));
}

void DwgDrawing::WarnAt(std::wstring text, std::uint64_t at) {
  report_->Warn({std::move(text), at, {}, {}});
}

}  // namespace zdx::dwg
