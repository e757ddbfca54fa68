// One drawing, whatever its format.
//
// This is all that the database's operations know of a drawing.  Each format fills it in its own
// folder: values are decoded when they are asked for, and a value that can't be read costs only
// itself and a warning in the drawing's report.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "backends/database/model/Entities.h"
#include "backends/database/model/Version.h"

namespace zdx::model {

// The number of an object in its drawing; 0 for none.
using Handle = std::uint64_t;

// Where a format keeps an object; only the format's reader knows what the number means.
enum class ObjectKey : std::uint64_t {};

enum class TableKind { kBlock, kLayer, kLinetype, kView };

// The standard dictionaries below the root.
enum class DictionaryKind { kGroup, kMlineStyle, kLayout, kPlotSettings };

enum class Setting {
  kMenu,
  kProjectName,
  kHyperlinkBase,
  kStyleSheet,
  kDimpost,
  kDimapost,
  kDimblk,
  kDimblk1,
  kDimblk2,
};

struct DictionaryEntry {
  std::wstring key;
  Handle target = 0;
};

// What an object is.
struct ObjectDescription {
  enum class Kind {
    kObject,
    kDictionary,
    kProxy,
    kGeoData,
    // Entities; the first stands for all that have no kind of their own.
    kEntity,
    kText,
    kMText,
    kAttribute,
    kAttributeDefinition,
    kBlockReference,
  };
  Kind kind = Kind::kObject;
  // The name of the object's class; of the class it stands for if it is a proxy.
  std::wstring className;
};

// What a drawing needs a file for.  The order is that in which FileReferences tells them.
enum class FileUse {
  kAttachedDrawing,
  kOverlaidDrawing,
  kImage,
  kPdfUnderlay,
  kDwfUnderlay,
  kDgnUnderlay,
  kPointCloud,
  kLinkedData,
  kTexture,
  kFont,
  kBigFont,
  kShapeFile,
  kPlotStyleTable,
  // What a layout is plotted on: the file of a printer's configuration or a printer's name.
  kPrinter,
  kStyleSheet,
  kMenu,
  // Told by the file's own list of what it needs, and by nothing else.
  kListed,
};

// A place where a drawing names a file.
struct FileReference {
  FileUse use = FileUse::kAttachedDrawing;
  // The record that stores the path: of drawings the block's; 0 for the header, and where records
  // have no handles.
  Handle handle = 0;
  // As stored; never empty.
  std::wstring path;
  // The block, layer or whatever else the record is for: its name, for people; may be empty.
  std::wstring name;
  // Whether the record came with a drawing that this one refers to.
  bool isDependent = false;
  // Whether the drawing is marked as put aside, or wasn't at hand when the file was saved; only
  // some versions tell.
  bool isUnloaded = false;
};

// One group of a free record: texts and bytes; of other groups only the code is told.
struct FreeValue {
  int code = 0;
  std::wstring text;
  std::string bytes;
};

// The summary, as the drawing's version keeps it.  What the file leaves out is empty; a field that
// can't be read is nullopt, and a custom entry that can't be read isn't there.
struct Summary {
  std::optional<std::wstring> title = L"";
  std::optional<std::wstring> subject = L"";
  std::optional<std::wstring> author = L"";
  std::optional<std::wstring> keywords = L"";
  std::optional<std::wstring> comments = L"";
  std::optional<std::wstring> lastSavedBy = L"";
  std::optional<std::wstring> revisionNumber = L"";
  // Names and values, in stored order.
  std::vector<std::pair<std::wstring, std::wstring>> custom;
};

// A preview picture as the file stores it.
struct StoredPicture {
  enum class Kind { kBitmap, kMetafile, kPng };
  Kind kind = Kind::kBitmap;
  // A bitmap begins with its 40-byte head, without that of a file of its own.
  std::string bytes;
  // Where it begins in the file.
  std::uint64_t at = 0;
};

class Drawing {
 public:
  virtual ~Drawing() = default;

  virtual Version version() const = 0;

  // The records of a table in the drawing's order, the built-in ones first.  A drawing that lacks
  // the table has an empty one.
  virtual const std::vector<ObjectKey>& TableRecords(TableKind table) = 0;
  // The name of such a record; nullopt if it can't be read.
  virtual std::optional<std::wstring> RecordName(TableKind table, ObjectKey record) = 0;
  // Whether such a record is called `name`, in any case.  A record may have more than one name.
  virtual bool HasName(TableKind table, ObjectKey record, const std::wstring& name);
  // The comments of a line type, empty if it has none; nullopt if they can't be read.
  virtual std::optional<std::wstring> LinetypeComments(ObjectKey record) = 0;

  // The root dictionary; nullopt if the drawing has none.
  virtual std::optional<ObjectKey> RootDictionary() = 0;
  // The entries of a dictionary in stored order.
  virtual std::vector<DictionaryEntry> DictionaryEntries(ObjectKey dictionary) = 0;
  // The key under which a standard dictionary stands in the root.
  virtual std::wstring DictionaryName(DictionaryKind kind) const = 0;

  // The object of that handle; nullopt if the drawing has none.
  virtual std::optional<ObjectKey> Find(Handle handle) = 0;
  // kObject without a name for one that can't be read.  The name of a table's record is told by
  // RecordName.
  virtual ObjectDescription Describe(ObjectKey object) = 0;

  // The handle of an object that has one; 0 for one that hasn't.
  virtual Handle HandleOf(ObjectKey object) = 0;
  // The groups of a free record in stored order; those up to the damage if it is damaged.
  virtual std::vector<FreeValue> FreeValues(ObjectKey record) = 0;

  // Every place where the drawing names a file: by use, then in the order of the table or of the
  // dictionary that keeps the records.  One whose path can't be read or is empty isn't told.
  virtual std::vector<FileReference> FileReferences() = 0;
  // Whether a block's record stands for an overlaid drawing.
  virtual bool IsOverlayBlock(ObjectKey block) = 0;

  // Whether a block's record is that of model space or of a layout's paper.
  virtual bool IsLayoutBlock(ObjectKey block) = 0;
  // The entities of a block in stored order.  Attributes of references aren't among them, nor what
  // begins and ends blocks and sequences.
  virtual std::vector<ObjectKey> BlockEntities(ObjectKey block) = 0;
  // The references that name this very record, wherever they stand: by their handles, then those
  // without one as they stand in the file.  Lists that some formats keep of them have other orders,
  // which two files of one drawing needn't share.
  virtual std::vector<ObjectKey> BlockReferences(ObjectKey block) = 0;
  virtual bool IsDynamicBlock(ObjectKey block) = 0;
  // The records of the anonymous blocks that carry the variations of a dynamic block, in table
  // order.
  virtual std::vector<ObjectKey> AnonymousCopies(ObjectKey block) = 0;
  // The record of the block in which an entity stands; nullopt if it isn't known.  Attributes stand
  // in their reference, so that theirs isn't told.
  virtual std::optional<ObjectKey> OwnerBlock(ObjectKey entity) = 0;
  // The text of an entity of kind kText or kMText; nullopt if it can't be read.
  virtual std::optional<std::wstring> EntityText(ObjectKey entity) = 0;
  // Of an entity of kind kAttribute or kAttributeDefinition.
  virtual Attribute ReadAttribute(ObjectKey entity) = 0;
  // Of an entity of kind kBlockReference.
  virtual BlockReference ReadBlockReference(ObjectKey entity) = 0;

  // The location object, of kind kGeoData; nullopt if the drawing has none.
  virtual std::optional<ObjectKey> GeoDataObject() = 0;
  // nullopt if it can't be read.
  virtual std::optional<GeoData> ReadGeoData(ObjectKey object) = 0;

  // A text setting; nullopt if the drawing's version can't hold it or it can't be read.  An arrow's
  // name is that of its block.
  virtual std::optional<std::wstring> SettingText(Setting setting) = 0;
  // nullopt if the drawing's version has no summary.
  virtual std::optional<Summary> ReadSummary() = 0;
  // The preview pictures in stored order, those whose bytes are all there.
  virtual std::vector<StoredPicture> PreviewPictures() = 0;

 protected:
  Drawing() = default;
  Drawing(const Drawing&) = default;
  Drawing& operator=(const Drawing&) = default;
};

}  // namespace zdx::model
