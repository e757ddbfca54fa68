// A drawing that stands in a DWG file.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <variant>
#include <vector>

#include "backends/database/dwg/Recognition.h"
#include "backends/database/dwg/container/Budget.h"
#include "backends/database/dwg/container/Container.h"
#include "backends/database/dwg/container/FileHead.h"
#include "backends/database/dwg/records/ClassTable.h"
#include "backends/database/dwg/records/FieldReader.h"
#include "backends/database/dwg/records/ObjectMap.h"
#include "backends/database/dwg/records/Record.h"
#include "backends/database/file/MappedFile.h"
#include "backends/database/model/Drawing.h"
#include "backends/database/model/Report.h"
#include "backends/database/model/StoredText.h"
#include "base/CodePage.h"

namespace zdx::dwg {

// Takes out of `keys` what stands in it again.
void KeepFirstOfEach(std::vector<model::ObjectKey>& keys);

// Keeps the file mapped and reads sections and records when they are asked for.  An object's key is
// its handle.
class DwgDrawing : public model::Drawing {
 public:
  // The drawing in `file`, or why it can't be read.  What is found goes to `report`.
  static std::variant<std::unique_ptr<model::Drawing>, Refusal> Open(
      file::MappedFile file, std::shared_ptr<model::Report> report);

  DwgDrawing(const DwgDrawing&) = delete;
  DwgDrawing& operator=(const DwgDrawing&) = delete;

  model::Version version() const override { return format_.version; }
  const std::vector<model::ObjectKey>& TableRecords(model::TableKind table) override;
  std::optional<std::wstring> RecordName(model::TableKind table, model::ObjectKey record) override;
  bool HasName(model::TableKind table, model::ObjectKey record, const std::wstring& name) override;
  std::optional<std::wstring> LinetypeComments(model::ObjectKey record) override;
  std::optional<model::ObjectKey> RootDictionary() override;
  std::vector<model::DictionaryEntry> DictionaryEntries(model::ObjectKey dictionary) override;
  std::wstring DictionaryName(model::DictionaryKind kind) const override;
  std::optional<model::ObjectKey> Find(model::Handle handle) override;
  model::ObjectDescription Describe(model::ObjectKey object) override;
  model::Handle HandleOf(model::ObjectKey object) override;
  std::vector<model::FreeValue> FreeValues(model::ObjectKey record) override;
  std::vector<model::FileReference> FileReferences() override;
  bool IsOverlayBlock(model::ObjectKey block) override;
  bool IsLayoutBlock(model::ObjectKey block) override;
  std::vector<model::ObjectKey> BlockEntities(model::ObjectKey block) override;
  std::vector<model::ObjectKey> BlockReferences(model::ObjectKey block) override;
  bool IsDynamicBlock(model::ObjectKey block) override;
  std::vector<model::ObjectKey> AnonymousCopies(model::ObjectKey block) override;
  std::optional<model::ObjectKey> OwnerBlock(model::ObjectKey entity) override;
  std::optional<std::wstring> EntityText(model::ObjectKey entity) override;
  model::Attribute ReadAttribute(model::ObjectKey entity) override;
  model::BlockReference ReadBlockReference(model::ObjectKey entity) override;
  std::optional<model::ObjectKey> GeoDataObject() override;
  std::optional<model::GeoData> ReadGeoData(model::ObjectKey object) override;
  std::optional<std::wstring> SettingText(model::Setting setting) override;
  std::optional<model::Summary> ReadSummary() override;
  std::vector<model::StoredPicture> PreviewPictures() override;

 private:
  // What an object is.
  struct Kind {
    ObjectType type = 0;
    // The type whose layout it has, which is another if its class is like one.
    ObjectType like = 0;
    // Set if the type is the number of a class.
    const DeclaredClass* declared = nullptr;
    bool isEntity = false;
  };
  // What was read of an object.
  struct Object : Kind {
    FieldValues fields;
    // Whether the fields asked for are all there.
    bool whole = false;
  };

  // For what blocks list: no object stands in two lists of a kind.  Each block pays once.
  struct ListBudget {
    Budget left;
    std::unordered_set<model::Handle> paid = {};

    bool Take(model::Handle block, std::uint64_t count) {
      return paid.contains(block) || (left.Take(count) && paid.insert(block).second);
    }
  };

  DwgDrawing(file::MappedFile file, Format format, std::shared_ptr<model::Report> report);

  void ReportHead(const FileHead& head);
  const FieldValues& Header();
  ObjectMap& Map();
  const ClassTable& Classes();

  Section* Objects();
  // Reads an object and its fields by the layout of its type; nullopt if its record can't be found.
  std::optional<Object> Read(model::Handle handle, const Question& question = {},
                             Record::Extent extent = Record::Extent::kWhole);
  bool Load(std::optional<Record>& record, model::Handle handle, std::uint64_t place,
            Record::Extent extent);
  std::optional<Object> ReadAt(model::Handle handle, std::uint64_t place, const Question& question,
                               Record::Extent extent);
  // What an object is, of which no more is read.
  std::optional<Kind> KindOf(model::Handle handle);
  std::optional<Kind> KindAt(model::Handle handle, std::uint64_t place);
  Kind KindOfType(ObjectType type);
  // The handle that the extension dictionary of an object, if it has one, holds under `key`.
  std::optional<model::Handle> ExtensionEntry(model::Handle owner, const FieldValues& fields,
                                              std::wstring_view key);
  // Whether nobody asked for `part` as one of another object.
  bool IsPartOf(model::Handle owner, model::Handle part);
  // A symbol table.
  struct Table;
  std::vector<model::ObjectKey> CollectRecords(const Table& table);
  std::vector<model::ObjectKey> TextStyles();
  // The files that were found so far, and the records that were looked at for them.
  struct Files {
    std::vector<model::FileReference> found;
    std::unordered_set<model::Handle> known = {};
    // Of all names and paths.
    std::size_t characters = 0;
    bool isFull = false;
  };
  void AddFile(Files& files, model::FileReference file);
  void FindDrawings(Files& files);
  void FindInDictionaries(Files& files);
  bool KeepsObjectsOfFiles(const std::vector<model::DictionaryEntry>& entries);
  void TakeObject(Files& files, const model::DictionaryEntry& entry);
  void FindFonts(Files& files);
  void FindInHeader(Files& files);
  void FindListed(Files& files);
  std::optional<Object> ReadBlock(model::Handle handle, const Question& question,
                                  Record::Extent extent = Record::Extent::kWhole);
  bool IsBlockRecord(model::Handle handle);
  // The records of model and paper space.
  struct Spaces {
    model::Handle model = 0;
    model::Handle paper = 0;
  };
  const Spaces& SpaceRecords();
  model::Handle OwnerOf(const Object& entity);
  // The objects in the list of a block; none, which is told, if they are too many.
  const std::vector<model::Handle>& Listed(ListBudget& budget, model::Handle block,
                                           const FieldValues& fields, Key list);
  std::vector<model::ObjectKey> Chain(model::Handle owner, const FieldValues& fields);
  bool AnyBlockListsReferences();
  void FindReferences();
  void TakeReference(model::Handle handle, std::uint64_t place);
  bool ReadMultiLine(model::Handle handle, const FieldValues& fields, model::Attribute& attribute);
  std::optional<std::wstring> TextOf(const FieldValues& fields, Key key, model::Handle handle);
  // What the application of that name keeps in an object.
  std::optional<std::string> DataOf(model::Handle handle, std::wstring_view application);
  const std::wstring& ApplicationName(model::Handle handle);
  void FindVariations();
  std::wstring FullBlockName(std::wstring cut, const FieldValues& block, model::Handle handle);
  std::optional<std::wstring> TrueSpelling(model::Handle handle);
  std::optional<std::wstring> ArrowName(const FieldValues::Value& value);
  std::wstring BlockSpelling(const std::wstring& name);
  std::optional<model::Handle> EntryOf(model::Handle dictionary, std::wstring_view key);
  model::Summary SummaryOfSection();
  model::Summary SummaryOfRecord();

  std::wstring Text(std::string_view stored, model::TextUse use, model::Handle handle = 0);
  std::wstring GroupText(std::string_view text, std::uint16_t codePage, model::TextUse use,
                         model::Handle handle);
  void WarnOfFlaws(const model::TextFlaws& flaws, model::Handle handle);
  void Warn(std::wstring text, model::Handle handle);
  void WarnAt(std::wstring text, std::uint64_t at);

  file::MappedFile file_;
  Format format_;
  std::shared_ptr<model::Report> report_;
  std::unique_ptr<Container> container_;
  std::optional<model::StoredTextDecoder> decoder_;
  CodePageId page_ = kWestern;
  // Of texts that tell a page of their own.
  std::map<CodePageId, model::StoredTextDecoder> otherDecoders_;

  // Of the records, which a damaged file may let overlap each other.
  std::optional<Budget> recordBytes_;
  ListBudget entityLists_;
  ListBudget referenceLists_;
  // The objects whose records were read, and whose the parts of others are.
  std::unordered_set<model::Handle> read_;
  std::unordered_map<model::Handle, model::Handle> owners_;

  // Filled at the first question that needs them.
  std::optional<FieldValues> header_;
  std::optional<ObjectMap> map_;
  std::optional<ClassTable> classes_;
  std::map<model::TableKind, std::vector<model::ObjectKey>> tables_;
  std::optional<Spaces> spaces_;
  std::optional<std::unordered_set<model::Handle>> blockRecords_;
  std::optional<bool> anyBlockListsReferences_;
  // By their block, then by their own handle.
  struct Reference {
    model::Handle block = 0;
    model::Handle handle = 0;
  };
  std::optional<std::vector<Reference>> references_;
  std::map<model::Handle, std::wstring> applicationNames_;
  // The blocks that carry variations, by the dynamic block of each, then in table order.
  struct Variation {
    model::ObjectKey block{};
    model::Handle dynamicBlock = 0;
  };
  std::optional<std::vector<Variation>> variations_;
};

}  // namespace zdx::dwg
