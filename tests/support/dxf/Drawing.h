#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "support/drawing/DrawingSpec.h"
#include "support/drawing/Handles.h"
#include "support/dxf/TagWriter.h"

// Inner header of the maker: what its sections share while one drawing is written.
namespace dxf {

using namespace drawing;

// One block with what its record, its BLOCKS entry and its layout need to know of each other.
struct PlannedBlock {
  // Of the record, by which inserts name the block.
  std::string name;
  int flags = 0;
  std::string path;
  std::string description;
  bool isPaper = false;
  // Its entities stand in the ENTITIES section.
  bool isActiveSpace = false;
  const std::vector<AttributeSpec>* definitions = nullptr;
  const std::vector<EntitySpec>* entities = nullptr;
  // Of the record.
  std::vector<NamedObject> extension;
  std::vector<Tag> extendedData;
  // Those that the record lists.
  std::vector<std::string> inserts;
  std::string recordHandle;
  std::string beginHandle;
  std::string endHandle;
  // Empty for blocks without a layout.
  std::string layoutHandle;
};

// An object whose handle was told to others before it was written.
struct PendingObject {
  ObjectSpec object;
  std::string handle;
  std::string owner;
  // Its owner asked to hear of its changes.
  bool tellsReactor = true;
};

// The files' sections write themselves through one of these.
struct Drawing {
  Drawing(const DrawingSpec& drawingSpec, TagWriter& writer);

  // Tags that only some versions have.  In AC1009 entities alone tell their handles.
  void PutHandle(const std::string& handle, int code = 5);
  void PutEntityHandle(const std::string& handle);
  void PutOwner(const std::string& owner);

  // Writes the group that names an extension dictionary of `entries` and leaves the dictionary for
  // the OBJECTS section.  Writes nothing for no entries.
  void PutExtension(const std::vector<NamedObject>& entries, const std::string& host);

  // The handle that the entity was given before it is written, or one that it gets now.
  std::string HandleFor(const EntitySpec& entity);

  // The block that the spec calls `name`; null for a name that no block has.
  PlannedBlock* BlockNamed(std::string_view name);

  void BeginSection(const char* name);
  void EndSection();

  const DrawingSpec& spec;
  Version version;
  TagWriter& out;
  Handles handles;
  std::vector<PlannedBlock> blocks;
  // Of the inserts that block records list.
  std::map<const EntitySpec*, std::string> insertHandles;
  std::vector<PendingObject> pending;
  std::vector<ClassSpec> classes;
  // Of the dictionary and the definitions of the pictures.
  std::string imageDictionary;
  std::vector<std::string> imageDefinitions;
  // Of the object that all layers name as their plot style.
  std::string plotStyle;
};

// Needs to know the handles of all other sections, so it goes to a writer of its own.
void WriteHeader(const DrawingSpec& spec, TagWriter& out, const std::string& handleSeed);
void WriteClasses(Drawing& drawing);
void WriteTables(Drawing& drawing);
void WriteBlocks(Drawing& drawing);
void WriteEntities(Drawing& drawing);
void WriteObjects(Drawing& drawing);
void WriteThumbnail(Drawing& drawing);

// Entities of one block or space.
void WriteEntity(Drawing& drawing, const EntitySpec& entity, const PlannedBlock& block);
void WriteAttributeDefinition(Drawing& drawing, const AttributeSpec& definition,
                              const PlannedBlock& block);
// An attribute of the insert with the handle `insert`.
void WriteAttribute(Drawing& drawing, const AttributeSpec& attribute, const std::string& insert,
                    bool onPaper);
// The tags that every entity begins with; returns its handle.
std::string BeginEntity(Drawing& drawing, const EntitySpec& entity, const std::string& owner,
                        bool onPaper);
// Pictures: entities in model space, and their definitions as entries of the root dictionary.
void WriteImages(Drawing& drawing, const PlannedBlock& modelSpace);
NamedObject ImageDictionary(const Drawing& drawing);

// The classes that the file's own objects need, in the order of their numbers, from 500 up.
std::vector<ClassSpec> ClassesOf(const DrawingSpec& spec, Version version);

// The blocks of the file in the order of their records.
std::vector<PlannedBlock> PlanBlocks(const DrawingSpec& spec, Version version, Handles& handles);

// Gives handles to the inserts that block records list.
void PlanReferences(Drawing& drawing);

// The record that holds the summary where the header can't.
ObjectSpec SummaryRecord(const DrawingSpec& spec);
bool HasSummaryRecord(const DrawingSpec& spec, Version version);

}  // namespace dxf
