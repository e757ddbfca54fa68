#pragma once

#include <map>
#include <string>
#include <vector>

#include "support/drawing/DrawingSpec.h"
#include "support/drawing/Handles.h"
#include "support/dwg/Fields.h"
#include "support/dwg/Record.h"
#include "support/dwg/Writing.h"

// Inner header of the maker: what its parts share while one drawing is written.
namespace dwg {

using drawing::AttributeSpec;
using drawing::DrawingSpec;
using drawing::EntitySpec;
using drawing::NamedObject;
using drawing::ObjectSpec;
using drawing::Tag;

// One entity of a block with its handle.  One of the three tells what it is.
struct PlannedEntity {
  Handle handle = 0;
  const EntitySpec* entity = nullptr;
  const AttributeSpec* definition = nullptr;
  const drawing::ImageSpec* image = nullptr;
};

enum class Space { None, Model, Paper };

struct PlannedBlock {
  // In full, as in the block's first entity.
  std::string name;
  Space space = Space::None;
  // Of a paper that isn't the first: its entities name it as their owner, as those of other blocks.
  bool isInactive = false;
  // Nothing for the spaces.
  const drawing::BlockSpec* spec = nullptr;
  // Of the record.
  std::vector<NamedObject> extension = {};
  std::vector<Tag> extendedData = {};
  Handle record = 0;
  Handle begin = 0;
  Handle end = 0;
  // 0 for blocks without a layout.
  Handle layout = 0;
  std::vector<PlannedEntity> entities = {};
  // The entities that insert the block, those that its record lists.
  std::vector<Handle> inserts = {};

  // Where its entities say that they stand.
  Space PlaceOfEntities() const { return isInactive ? Space::None : space; }
};

struct NamedHandle {
  std::string name;
  Handle handle = 0;
};

// What the header names.
struct Roots {
  Handle blocks = 0;
  Handle layers = 0;
  Handle styles = 0;
  Handle linetypes = 0;
  Handle views = 0;
  Handle ucs = 0;
  Handle viewports = 0;
  Handle applications = 0;
  Handle dimensionStyles = 0;
  Handle viewportHeaders = 0;
  Handle byBlock = 0;
  Handle byLayer = 0;
  Handle continuous = 0;
  Handle dimensionStyle = 0;
  Handle viewport = 0;
  Handle named = 0;
  Handle groups = 0;
  Handle mlineStyles = 0;
  Handle layouts = 0;
  Handle plotSettings = 0;
  Handle plotStyles = 0;
  Handle plotStyle = 0;
};

// A class with its number.
struct NumberedClass {
  drawing::ClassSpec spec;
  unsigned number = 0;
};

// The file's parts write their records into this.  Spec and writing must outlive it.
class Drawing {
 public:
  Drawing(const DrawingSpec& drawingSpec, const Writing& fileWriting);

  const DrawingSpec& spec;
  const Writing& writing;
  const Version version;
  const drawing::PageEncoder encoder;
  const unsigned codePage;

  bool IsSince(Version first) const { return version >= first; }

  // A handle that nothing else has, or the one that the spec chose.
  Handle NextHandle(const std::string& chosen = {});
  Handle HandleSeed() const;

  Fields NewFields(Handle own) const;
  Fields NewSection() const;
  // A text with its count, as free values hold it.
  std::string FreeText(std::string_view utf8, std::size_t countSize) const;

  void Add(const RecordHead& head, const Fields& fields);
  void Add(Type type, const Fields& fields);
  void AddEntity(Type type, const Fields& fields);

  // Throws std::invalid_argument if the drawing has no such class.
  unsigned ClassNumber(const std::string& type) const;

  Handle LayerHandle(const std::string& name) const;
  Handle LinetypeHandle(const std::string& name) const;
  Handle ApplicationHandle(const std::string& name) const;
  // Nothing for a name that no block has.  Capitals are the same as small letters.
  PlannedBlock* BlockNamed(std::string_view name);

  Roots roots;
  std::vector<PlannedBlock> blocks;
  std::vector<NamedHandle> layers;
  std::vector<NamedHandle> linetypes;
  std::vector<NamedHandle> styles;
  std::vector<NamedHandle> applications;
  std::vector<NumberedClass> classes;
  // Of the definitions of the pictures.
  std::vector<Handle> imageDefinitions;
  std::map<Handle, std::string> records;

 private:
  drawing::Handles handles_;
};

// Gives out the handles of what other records name.
void PlanRecords(Drawing& drawing);
std::vector<NumberedClass> NumberedClasses(const DrawingSpec& spec, Version version);

// The fields that each record of a table begins with: the name, and whether it came with an xref.
void PutRecordName(Drawing& drawing, Fields& fields, const std::string& name, int flags = 0);

// The records, part by part.
void WriteTables(Drawing& drawing);
// The style in use; `fields` hold what all records of tables begin with.
void WriteDimensionStyles(Drawing& drawing, Fields fields);
void WriteBlocks(Drawing& drawing);
void WriteRootDictionary(Drawing& drawing);
void WriteLayouts(Drawing& drawing);

// Whether, and how, blocks list the entities that insert them.
drawing::ReferenceLists ListsOf(const DrawingSpec& spec);
// The entities of one block; tells the blocks which entities insert them.
void WriteEntities(Drawing& drawing, const PlannedBlock& block);
// How an entity lies between those before and behind it; 0 for none.
struct Neighbours {
  Handle previous = 0;
  Handle next = 0;
};
struct EntityPlace {
  Handle owner = 0;
  Space space = Space::None;
  Neighbours neighbours = {};
  // Of an insert, which tells its owner even where the insert doesn't.
  bool isPart = false;
};
// One line of text; the angle in radians.
struct TextLine {
  std::string text;
  drawing::Point at;
  double height = 0.0;
  double angle = 0.0;
};
// The fields that all texts of one line have, but for the style's reference.
void PutText(Fields& fields, const TextLine& text);
// The fields that all texts of many lines have, but for the references.
void PutManyLines(Fields& fields, const TextLine& text);
// The fields that all entities begin with.
void BeginEntity(Drawing& drawing, Fields& fields, const EntitySpec& entity,
                 const EntityPlace& place, const std::vector<NamedObject>& extension);
void WriteAttributeDefinition(Drawing& drawing, Handle handle, const AttributeSpec& definition,
                              const EntityPlace& place);
void WriteAttribute(Drawing& drawing, Handle handle, const AttributeSpec& attribute,
                    const EntityPlace& place);
void WriteImage(Drawing& drawing, const PlannedEntity& planned, const EntityPlace& place);

// The fields that all other records begin with.
void BeginObject(Fields& fields, Handle owner, const std::vector<Handle>& reactors = {},
                 Handle extension = 0);

// Writes an extension dictionary and its entries.  Returns 0 and writes nothing for no entries.
Handle WriteExtension(Drawing& drawing, const std::vector<NamedObject>& entries, Handle owner);
// Writes the entries' objects where the spec has them.
std::vector<NamedHandle> WriteEntries(Drawing& drawing, const std::vector<NamedObject>& entries,
                                      Handle owner);
struct DictionaryKind {
  bool ownsEntries = false;
  // Of a dictionary with a default entry only.
  Handle defaultEntry = 0;
  // The dictionary's own extension dictionary.
  Handle extension = 0;
};
void WriteDictionary(Drawing& drawing, Handle handle, Handle owner,
                     const std::vector<NamedHandle>& entries, const DictionaryKind& kind = {});
void WriteObject(Drawing& drawing, const ObjectSpec& object, Handle handle, Handle owner);
// Puts the fields of an object that names files; nothing for others.
void PutFileObject(Fields& fields, const ObjectSpec& object);

// The values of a record of free values.
std::string FreeValues(const Drawing& drawing, const std::vector<Tag>& tags);
// Applications' data of a record.
std::vector<ApplicationData> DataOf(const Drawing& drawing, const std::vector<Tag>& tags);

// The record that holds the summary below AC1018.
ObjectSpec SummaryRecord(const DrawingSpec& spec);
// The base of addresses that the summary tells.
const std::string& SummaryBase(const DrawingSpec& spec);

}  // namespace dwg
