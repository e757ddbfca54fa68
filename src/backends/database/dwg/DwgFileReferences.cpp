// The files that the drawing names.
#include <algorithm>
#include <iterator>
#include <utility>

#include "backends/database/dwg/DwgDrawing.h"
#include "backends/database/dwg/FileList.h"
#include "backends/database/dwg/Tokens.h"
#include "backends/database/dwg/records/FreeRecord.h"
#include "backends/database/model/ReferenceNames.h"
#include "base/CaseFold.h"

namespace zdx::dwg {
namespace {

using model::FileReference;
using model::FileUse;

// Far more than any drawing names, and what their names and paths have together.
constexpr std::size_t kMostFiles = 100000;
constexpr std::size_t kMostCharacters = std::size_t{4} << 20;

// What a free record may hold, and what one group of it takes at least in a record of that size.
constexpr std::size_t kMostGroups = 100000;
constexpr std::size_t kUsualGroupSize = 20;

// Of a record that came with another drawing.
constexpr std::uint64_t kDependentIndex = 256;

// The keys of the root's dictionaries that keep what names files.
constexpr std::wstring_view kFileKeys[] = {
    kImageKey, kPdfKey, kDwfKey, kDgnKey, kMaterialKey, kLayoutKey, kPlotSettingsKey,
};

// Objects whose dictionaries have keys that aren't known.
constexpr ObjectType kTypesAnywhere[] = {kPointCloudDefinitionType, kDataLinkType};

// What an object of that type names in that field.
struct NamingField {
  ObjectType type;
  Key key;
  FileUse use;
};
constexpr NamingField kNamingFields[] = {
    {kImageDefinitionType, Key::kPath, FileUse::kImage},
    {kPdfDefinitionType, Key::kPath, FileUse::kPdfUnderlay},
    {kDwfDefinitionType, Key::kPath, FileUse::kDwfUnderlay},
    {kDgnDefinitionType, Key::kPath, FileUse::kDgnUnderlay},
    {kPointCloudDefinitionType, Key::kPath, FileUse::kPointCloud},
    {kDataLinkType, Key::kConnection, FileUse::kLinkedData},
    {kLayoutType, Key::kPlotStyleTable, FileUse::kPlotStyleTable},
    {kLayoutType, Key::kPrinter, FileUse::kPrinter},
    {kPlotSettingsType, Key::kPlotStyleTable, FileUse::kPlotStyleTable},
    {kPlotSettingsType, Key::kPrinter, FileUse::kPrinter},
};

bool KeepsFiles(std::wstring_view key) {
  return std::any_of(std::begin(kFileKeys), std::end(kFileKeys), [key](std::wstring_view known) {
    return CompareIgnoringCase(key, known) == 0;
  });
}

bool IsDependent(const FieldValues& record, std::wstring_view name) {
  return (record.Number(Key::kDependentIndex) & kDependentIndex) != 0 ||
         record.Number(Key::kDependent) != 0 || model::IsDependentName(name);
}

// Whether the record of a block stands for a drawing: one bit, the other or both say so.
bool IsDrawing(const FieldValues& block) {
  return block.Number(Key::kIsReference) != 0 || block.Number(Key::kIsOverlay) != 0;
}

// The names under which a file may be known that is told already: its whole path and its leaf, with
// the extension that paths may leave out.
class KnownNames {
 public:
  void Add(const FileReference& file) {
    names_.insert(FoldCase(file.path));
    std::wstring leaf = FoldCase(model::LeafOf(file.path));
    const bool hasExtension = leaf.find(L'.') != std::wstring::npos;
    if (!hasExtension) names_.insert(leaf + std::wstring(Extension(file.use)));
    names_.insert(std::move(leaf));
  }

  bool Has(const std::wstring& path) const {
    if (path.empty()) return false;
    return names_.contains(FoldCase(path)) || names_.contains(FoldCase(model::LeafOf(path)));
  }

 private:
  static std::wstring_view Extension(FileUse use) {
    switch (use) {
      case FileUse::kAttachedDrawing:
      case FileUse::kOverlaidDrawing:
        return L".dwg";
      case FileUse::kFont:
      case FileUse::kBigFont:
      case FileUse::kShapeFile:
        return L".shx";
      default:
        return L"";
    }
  }

  std::unordered_set<std::wstring> names_;
};

}  // namespace

model::Handle DwgDrawing::HandleOf(model::ObjectKey object) {
  return static_cast<model::Handle>(object);
}

std::vector<model::FreeValue> DwgDrawing::FreeValues(model::ObjectKey key) {
  const auto handle = static_cast<model::Handle>(key);
  const std::optional<Object> record = Read(handle);
  const FieldValues::Value* const content =
      record && record->like == kFreeRecordType ? record->fields.Find(Key::kBytes) : nullptr;
  if (content == nullptr) return {};
  const std::size_t most = std::max(kMostGroups, content->bytes.size() / kUsualGroupSize);
  std::vector<model::FreeValue> values;
  GroupReader groups(content->bytes, format_);
  while (const std::optional<Group> group = groups.Next()) {
    if (values.size() == most) {
      Warn(L"A record has too many groups.", handle);
      return values;
    }
    model::FreeValue value = {group->code, {}, std::string(group->bytes)};
    if (group->isText) {
      value.text = GroupText(group->text, group->codePage, model::TextUse::kValue, handle);
    }
    values.push_back(std::move(value));
  }
  if (groups.endedByDamage()) Warn(L"A free record is damaged.", handle);
  return values;
}

bool DwgDrawing::IsOverlayBlock(model::ObjectKey block) {
  const auto record =
      ReadBlock(static_cast<model::Handle>(block), {Key::kIsOverlay}, Record::Extent::kFront);
  return record && record->fields.Number(Key::kIsOverlay) != 0;
}

std::vector<FileReference> DwgDrawing::FileReferences() {
  Files files;
  FindDrawings(files);
  FindInDictionaries(files);
  FindFonts(files);
  FindInHeader(files);
  std::stable_sort(
      files.found.begin(), files.found.end(),
      [](const FileReference& left, const FileReference& right) { return left.use < right.use; });
  FindListed(files);
  return std::move(files.found);
}

void DwgDrawing::AddFile(Files& files, FileReference file) {
  if (file.path.empty() || files.isFull) return;
  files.characters += file.path.size() + file.name.size();
  files.isFull = files.found.size() == kMostFiles || files.characters > kMostCharacters;
  if (files.isFull) {
    Warn(L"The drawing names too many files.", file.handle);
  } else {
    files.found.push_back(std::move(file));
  }
}

void DwgDrawing::FindDrawings(Files& files) {
  for (const model::ObjectKey key : TableRecords(model::TableKind::kBlock)) {
    const auto handle = static_cast<model::Handle>(key);
    const auto block = ReadBlock(handle, {Key::kPath}, Record::Extent::kFront);
    if (!block || !IsDrawing(block->fields)) continue;
    const FieldValues& fields = block->fields;
    FileReference file;
    file.use =
        fields.Number(Key::kIsOverlay) != 0 ? FileUse::kOverlaidDrawing : FileUse::kAttachedDrawing;
    file.handle = handle;
    file.path = TextOf(fields, Key::kPath, handle).value_or(std::wstring());
    file.name = TextOf(fields, Key::kName, handle).value_or(std::wstring());
    file.isDependent = IsDependent(fields, file.name);
    const FieldValues::Value* const loaded = fields.Find(Key::kIsLoaded);
    file.isUnloaded = loaded != nullptr && loaded->number == 0;
    AddFile(files, std::move(file));
  }
}

void DwgDrawing::FindInDictionaries(Files& files) {
  const std::optional<model::ObjectKey> root = RootDictionary();
  if (!root) return;
  const bool looksEverywhere =
      std::any_of(std::begin(kTypesAnywhere), std::end(kTypesAnywhere),
                  [this](ObjectType type) { return Classes().HasLike(type); });
  files.known.insert(static_cast<model::Handle>(*root));
  for (const model::DictionaryEntry& entry : DictionaryEntries(*root)) {
    const bool isKnownKey = KeepsFiles(entry.key);
    if (!isKnownKey && !looksEverywhere) continue;
    if (entry.target == 0 || !files.known.insert(entry.target).second) continue;
    const auto objects = DictionaryEntries(model::ObjectKey{entry.target});
    if (!isKnownKey && !KeepsObjectsOfFiles(objects)) continue;
    for (const model::DictionaryEntry& object : objects) {
      if (object.target != 0 && files.known.insert(object.target).second) {
        TakeObject(files, object);
      }
    }
  }
}

// Whether these are the entries of a dictionary that is told by its objects: by the first.
bool DwgDrawing::KeepsObjectsOfFiles(const std::vector<model::DictionaryEntry>& entries) {
  const auto first = std::find_if(entries.begin(), entries.end(),
                                  [](const auto& entry) { return entry.target != 0; });
  const std::optional<Kind> kind = first != entries.end() ? KindOf(first->target) : std::nullopt;
  return kind && std::find(std::begin(kTypesAnywhere), std::end(kTypesAnywhere), kind->like) !=
                     std::end(kTypesAnywhere);
}

void DwgDrawing::TakeObject(Files& files, const model::DictionaryEntry& entry) {
  // In layouts most stands behind the style table.
  const std::optional<Object> object = Read(entry.target, {Key::kPlotStyleTable});
  if (!object) return;
  const FieldValues& fields = object->fields;
  const bool isDependent = model::IsDependentName(entry.key);
  const auto add = [&](FileUse use, std::wstring path) {
    AddFile(files, {use, entry.target, std::move(path), entry.key, isDependent, false});
  };
  for (const NamingField& row : kNamingFields) {
    if (row.type != object->like) continue;
    std::wstring path = TextOf(fields, row.key, entry.target).value_or(std::wstring());
    if (row.use == FileUse::kLinkedData) path = model::FileOfConnection(path);
    add(row.use, std::move(path));
  }
  if (object->like != kMaterialType) return;
  for (const std::string& stored : fields.Texts(Key::kTextures)) {
    std::wstring text = Text(stored, model::TextUse::kValue, entry.target);
    if (model::HasExtension(text)) add(FileUse::kTexture, std::move(text));
  }
}

void DwgDrawing::FindFonts(Files& files) {
  for (const model::ObjectKey key : TextStyles()) {
    const auto handle = static_cast<model::Handle>(key);
    const std::optional<Object> style = Read(handle);
    if (!style || style->type != kTextStyleType) continue;
    const FieldValues& fields = style->fields;
    const std::wstring name = TextOf(fields, Key::kName, handle).value_or(std::wstring());
    const bool isDependent = IsDependent(fields, name);
    const auto add = [&](FileUse use, Key field) {
      std::wstring path = TextOf(fields, field, handle).value_or(std::wstring());
      AddFile(files, {use, handle, std::move(path), name, isDependent, false});
    };
    const bool isShapeFile = fields.Number(Key::kIsShapeFile) != 0;
    add(isShapeFile ? FileUse::kShapeFile : FileUse::kFont, Key::kFont);
    add(FileUse::kBigFont, Key::kBigFont);
  }
}

void DwgDrawing::FindInHeader(Files& files) {
  const auto add = [&](FileUse use, model::Setting setting) {
    AddFile(files, {use, 0, SettingText(setting).value_or(std::wstring()), {}, false, false});
  };
  add(FileUse::kStyleSheet, model::Setting::kStyleSheet);
  add(FileUse::kMenu, model::Setting::kMenu);
}

// Most of what is listed is named elsewhere, too.
void DwgDrawing::FindListed(Files& files) {
  Section* const section = container_->Find(SectionId::kFileList);
  if (section == nullptr) return;
  Scratch scratch;
  const auto bytes = section->Bytes(0, section->size(), scratch);
  const FileList list = ReadFileList(bytes.value_or(std::string_view()), format_);
  if (!bytes || list.damaged) WarnAt(L"The list of files can't be read.", section->PlaceOf(0));
  if (list.files.empty()) return;
  KnownNames known;
  for (const FileReference& file : files.found) known.Add(file);
  for (const ListedFile& listed : list.files) {
    FileReference file;
    file.use = FileUse::kListed;
    file.path = Text(listed.name, model::TextUse::kValue);
    const std::wstring found = Text(listed.path, model::TextUse::kValue);
    if (file.path.empty()) file.path = found;
    if (known.Has(file.path) || known.Has(found)) continue;
    known.Add(file);
    AddFile(files, std::move(file));
  }
}

}  // namespace zdx::dwg
