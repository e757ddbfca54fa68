// Reading the properties of a drawing.
//
// Texts, lists and exceptions cross the library's edge: client and library must be built with the
// same C++ runtime.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "ZDXEngine/Export.h"
#include "ZDXEngine/FormatIds.h"
#include "ZDXEngine/PropData.h"

namespace ZDXEngine {

// Which product of the family made a drawing.
enum class DwgFileType : std::int32_t {
  Unrecognized = 0,
  Zent = 1,
  ZentVariant = 2,
  Zne = 3,
  Partonic = 4,
  Znm = 5,
  Zmt = 6,
  Terrane3D = 7,
};

// Names a block whose attribute values are wanted: those of its constant definitions and of one of
// its references, the first in a layout that stands before the block in the drawing's table (model
// space does), or else the first of all; of a dynamic block without any, the first of its first
// variation.
struct BlockFilterParam {
  // Compared without regard to case; of two filters with one name the first counts.  Layouts can't
  // be asked for.
  std::wstring blockName;
  // The property set under which this block's values are published; each is published under
  // FMTID_Storage, too.  Of two filters with one set the first decides about the prompt.
  GUID formatId = {};
  // Set by the engine where it looks blocks up by name; GetProperties leaves it alone.
  bool matched = false;
  // True: a value is named after the attribute definition's prompt, or its tag if the prompt is
  // empty.  False: after its tag.
  bool usePrompt = true;
};

// The one object through which properties are read.  Holds nothing between calls; the client makes
// one call at a time, after the engine was started through ZDXService.
class ZDXENGINE_API FilePropertyMgr {
 public:
  // What GetProperties is to collect: a bit set, in which 0 means everything.
  enum FilePropertiesSet : std::int32_t {
    AllProperties = 0,
    BlockAttributes = 0x001,
    NamedObjects = 0x002,
    CreatorInfo = 0x004,
    DrawingFlavour = 0x008,
    DatabaseSettings = 0x010,
    GeoLocation = 0x020,
    SummaryInfo = 0x040,
    Thumbnail = 0x080,
    SymbolTables = 0x100,
    CustomSummary = 0x200,
  };

  static FilePropertyMgr& Instance();

  // Opens the drawing at `path` and tells which product made it.  Throws a FileError if the drawing
  // can't be opened, or with an empty file name in its sentence if the block table can't.
  DwgFileType GetFileType(const std::wstring& path);

  // Opens the drawing at `path` and collects what `selection` names, in a fixed order; of blocks,
  // which come last, what `filters` name.  Throws a FileError as GetFileType does, and _com_error
  // if a value can't be allocated; there is no partial result.  A value that can't be read is left
  // out, but for an attribute's: its text is null then.
  std::vector<_PropData> GetProperties(const std::wstring& path,
                                       std::vector<BlockFilterParam>& filters,
                                       FilePropertiesSet selection);

  FilePropertyMgr(const FilePropertyMgr&) = delete;
  // There is nothing to copy; gives the object itself.
  FilePropertyMgr& operator=(const FilePropertyMgr&);

 private:
  FilePropertyMgr() = default;
  ~FilePropertyMgr() = default;
};

// The selection of what either of the two names.
constexpr FilePropertyMgr::FilePropertiesSet operator|(FilePropertyMgr::FilePropertiesSet a,
                                                       FilePropertyMgr::FilePropertiesSet b) {
  return static_cast<FilePropertyMgr::FilePropertiesSet>(static_cast<std::int32_t>(a) |
                                                         static_cast<std::int32_t>(b));
}

}  // namespace ZDXEngine
