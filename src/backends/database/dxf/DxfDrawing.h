// A drawing that stands in a DXF file.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "backends/database/dxf/BlockTable.h"
#include "backends/database/dxf/ChunkedText.h"
#include "backends/database/dxf/ClassTable.h"
#include "backends/database/dxf/HeaderVariables.h"
#include "backends/database/dxf/ObjectIndex.h"
#include "backends/database/dxf/ReferenceIndex.h"
#include "backends/database/dxf/SectionMap.h"
#include "backends/database/dxf/TagStream.h"
#include "backends/database/file/MappedFile.h"
#include "backends/database/model/Drawing.h"
#include "backends/database/model/Report.h"
#include "backends/database/model/StoredText.h"

namespace zdx::dxf {

// Keeps the file mapped and finds things when they are asked for: the header at once, each other
// section at the first question that needs it.  An object's key is the place where it begins.
class DxfDrawing : public model::Drawing {
 public:
  // The drawing in `file`, whose bytes were recognised as `form`.  What is found goes to `report`.
  DxfDrawing(file::MappedFile file, Form form, std::shared_ptr<model::Report> report);
  ~DxfDrawing() override;
  DxfDrawing(const DxfDrawing&) = delete;
  DxfDrawing& operator=(const DxfDrawing&) = delete;

  model::Version version() const override { return version_; }
  const std::vector<model::ObjectKey>& TableRecords(model::TableKind table) override;
  std::optional<std::wstring> RecordName(model::TableKind table, model::ObjectKey record) override;
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
  struct Tables {
    // The records alone.
    std::vector<model::ObjectKey> blocks;
    std::vector<model::ObjectKey> layers;
    std::vector<model::ObjectKey> linetypes;
    std::vector<model::ObjectKey> views;
    std::vector<model::ObjectKey> styles;
  };
  // An entry of a dictionary as it stands there.
  struct StoredEntry {
    Tag key;
    model::Handle target = 0;
  };
  // The object at `at`, and its key in a dictionary.
  struct NamedObject {
    Tag key;
    std::size_t at = 0;
  };
  // What a search for a tag of an object gave.
  struct TagSearch {
    std::optional<Tag> tag;
    // Whether the object's tags ended because of damage, so that the tag may be lost.
    bool lost = false;
  };

  void ReadHeader();
  void ReportHeader();
  std::optional<Section> FindSection(std::string_view name);
  const Tables& ReadTables();
  void CollectRecords(Tables& tables);
  BlockTable& Blocks();
  std::optional<std::wstring> TrueNameOf(model::ObjectKey record);
  BlockSource SourceOfBlocks();
  const ReferenceIndex& References();
  const ClassTable& Classes();
  std::optional<model::ObjectKey> FindRootDictionary();
  std::vector<StoredEntry> StoredEntries(model::ObjectKey dictionary);
  std::optional<model::ObjectKey> EntryOf(model::ObjectKey dictionary, std::wstring_view key);
  std::optional<ObjectStart> ExtensionEntry(model::Handle dictionary, std::wstring_view key);
  bool TakeExtension(const ObjectStart& start);
  const ObjectIndex& IndexOfObjects();
  const ObjectIndex& IndexOfEverything();
  std::wstring ProxiedClassName(const ObjectStart& start);
  std::wstring ClassName(const ObjectStart& start);

  static bool GoToFreeValues(ObjectTags& tags);
  void TakeDrawings(std::vector<model::FileReference>& references);
  void TakeObjects(std::vector<model::FileReference>& references);
  std::vector<NamedObject> ObjectsOfRoot();
  void TakeObject(std::size_t at, const std::wstring& name,
                  std::vector<model::FileReference>& references);
  void TakeFonts(std::vector<model::FileReference>& references);
  void TakeSetting(model::FileUse use, model::Setting setting,
                   std::vector<model::FileReference>& references);

  void ReadMultiLineRecord(model::Handle extension, model::Attribute& attribute);
  // The text of a tag, or of pieces; empty if there is none, and nullopt if it may be lost.
  std::optional<std::wstring> TextOrEmpty(const std::optional<Tag>& tag, bool isLost);
  std::optional<std::wstring> TextOf(const ChunkedText& chunks, bool isLost);

  // The sections in which entities stand.
  struct EntitySections {
    std::optional<Section> blocks;
    std::optional<Section> entities;
  };
  const EntitySections& SectionsOfEntities();
  bool IsAmongEntities(std::size_t at);
  const Block* OwnerOf(const ObjectStart& entity);

  TagSearch FirstTag(model::ObjectKey object, int code);
  std::wstring TypeText(std::string_view type);
  void WarnOfDamage(const ObjectTags& tags);
  const Tag* HeaderTag(std::string_view name) const;
  std::optional<std::wstring> VariableText(std::string_view name);
  void ReadCustomEntries(model::Summary& summary);
  std::wstring BlockSpelling(const std::wstring& name);
  model::Summary SummaryOfHeader();
  model::Summary SummaryOfRecord();
  bool IsWhole(const std::optional<Tag>& length, std::size_t size);

  ObjectStart StartOf(model::ObjectKey object) const;
  std::wstring Text(const Tag& tag, model::TextUse use);
  std::wstring Text(std::string_view bytes, std::size_t at, model::TextUse use);
  void Warn(std::wstring text, std::size_t at);
  void WarnOfDamage(std::size_t at);
  void TellLines();

  file::MappedFile file_;
  TagStream stream_;
  std::shared_ptr<model::Report> report_;
  SectionMap sections_;
  std::size_t toldFlaws_ = 0;
  HeaderVariables header_;
  model::Version version_ = model::kVersion1009;
  std::optional<model::StoredTextDecoder> decoder_;

  // Filled at the first question that needs them.
  std::optional<Tables> tables_;
  std::optional<ClassTable> classes_;
  std::optional<std::optional<model::ObjectKey>> root_;
  std::optional<ObjectIndex> objectsIndex_;
  std::optional<ObjectIndex> everythingIndex_;
  std::optional<BlockTable> blocks_;
  std::optional<ReferenceIndex> references_;
  std::optional<EntitySections> entitySections_;
  // How many bytes of extension dictionaries and of what they hold may still be read: each belongs
  // to one object, so that all together are no larger than the file.
  std::size_t extensionBytes_ = 0;
};

}  // namespace zdx::dxf
