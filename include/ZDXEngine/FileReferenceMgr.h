// The files that a drawing depends on.
//
// Texts, lists and exceptions cross the library's edge: client and library must be built with the
// same C++ runtime.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "ZDXEngine/DwgDependentFile.h"
#include "ZDXEngine/ErrorInfo.h"
#include "ZDXEngine/Export.h"
#include "ZDXEngine/FilePropertyMgr.h"
#include "ZDXEngine/FileReferenceService.h"

class ZnDbDatabase;

namespace ZDXEngine {

// What a walk does beyond finding every file that the drawings name; docs/references.md tells more.
struct DependencySettings {
  // Overlays of drawings that are referred to are followed, too.
  bool WalkBit10 = false;
  // Files that a drawing's own list of files alone tells are listed, too.
  bool WalkBit20 = false;
  // Fonts, plot style tables and printers are told once for each record that names them.
  bool WalkBit400 = false;
  // Menus are listed, too.
  bool WalkBit40 = false;
  // DwgDependentFile::GetIsOverlay is told.
  bool DetectOverlays = false;
  // What records of drawings that are referred to name in the drawing that refers is listed, too.
  bool WalkBit1000 = false;
};

// Version texts and module names of vertical services.
using ServiceModules = std::map<std::wstring, std::wstring>;

// The one object through which references are listed.  The client makes one call at a time, after
// the engine was started through ZDXService.
class ZDXENGINE_API FileReferenceMgr {
 public:
  using Services = std::map<std::pair<std::wstring, std::wstring>, FileReferenceService*>;

  static FileReferenceMgr& Instance();

  // Copies share the services, which die with the first of them.
  FileReferenceMgr(const FileReferenceMgr& other);
  FileReferenceMgr& operator=(const FileReferenceMgr& other);

  // Who owns what a walk finds out: false, as at first, each record its own; true, the walked
  // drawing's record all.  Not to be changed between a walk and the last Dispose of its records.
  // Gives the previous value.
  bool SetUseNewDwgUpdateApproachFeatureFlag(bool value);
  bool GetUseNewDwgUpdateApproachFeatureFlag();

  // Walks the drawing at `path`: the records of its references and, unless `directDependentsOnly`,
  // of those below, then those that each service tells of the drawing.  `root` is the record of the
  // drawing itself, which isn't in the list, null if there is none; the client owns all records.
  // `statusFlag` is always false afterwards.  A file that can't be followed is listed all the same.
  // Throws a FileError if the drawing itself can't be read, and GetVerticalDependenciesError if a
  // module fails.
  std::vector<DwgDependentFile*> GetDependencies(const std::wstring& path,
                                                 const DependencySettings& settings,
                                                 bool& statusFlag, DwgDependentFile*& root,
                                                 DwgFileType& drawingType,
                                                 bool directDependentsOnly,
                                                 const ServiceModules& services);
  // The same without services.  `database` is the drawing, which belongs to `root`.
  std::vector<DwgDependentFile*> GetZnDependencies(ZnDbDatabase*& database,
                                                   const std::wstring& path,
                                                   const DependencySettings& settings,
                                                   bool& statusFlag, DwgDependentFile*& root,
                                                   DwgFileType& drawingType,
                                                   bool directDependentsOnly);
  // Whether the block of the handle `refId` stands for an overlaid drawing.
  bool IsOverlay(ZnDbDatabase*& database, const std::uint64_t& refId);

  // Loads the modules that aren't loaded yet, unless as many are held as are requested.  One that
  // can't be used is left out.
  Services& GetExternalVerticalReferenceServices(const ServiceModules& requested);
  // Asks a module.  Throws GetVerticalDependenciesError if it throws a std::exception.
  std::vector<DwgDependentFile*> GetVerticalDependencies(const ZnDbDatabase* database,
                                                         const GetDependenciesFunc& function);
  // Tells a module the destinations of `records`.  The result is always empty.  Throws
  // UpdateVerticalDependenciesError if it throws a std::exception.
  std::vector<ErrorInfo> UpdateVerticalDependencies(ZnDbDatabase* database,
                                                    std::vector<DwgDependentFile*>& records,
                                                    const UpdateDependenciesFunc& function);

  // The version that this engine writes, as "kDHL_1032".
  std::wstring GetCurrentVersion();
  // The version as which the drawing at `path` was last saved.  Throws a FileError if it can't be
  // opened.
  std::wstring GetLastSavedAsFileVersion(const std::wstring& path);
  // The version that the first six bytes of the file at `path` tell: AC1015, AC1021, AC1024, AC1027
  // or AC1032; "kDHL_Unknown" for all others.  Never throws.
  std::wstring GetTerrane3DVersion(const std::wstring& path);

  // Writes the drawing that is embedded in the one at `path` to a file of its own, whose full path
  // goes to `unpacked`.  False, and `unpacked` as it was, if there is none.  Throws a FileError if
  // the drawing can't be opened.
  bool UnpackPartonicDrawingFile(const std::wstring& path, std::wstring& unpacked);
  // Stores `redirectionsInfo` in the drawing at `path` and saves it; false if that fails.  Throws
  // as above.
  bool SetPartonicRedirectionsInfo(const std::wstring& path, const std::wstring& redirectionsInfo);
  // A regular expression for the RefIds that stand for an embedded drawing.
  std::wstring GetTandemixPartonicRefIdPattern();

 private:
  FileReferenceMgr();
  ~FileReferenceMgr();

  bool UseNewDwgUpdateApproach = false;
  Services ExternalVerticalReferenceServices;
};

}  // namespace ZDXEngine
