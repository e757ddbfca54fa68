// The files that a drawing depends on, as records.
#pragma once

#include <cstdint>
#include <string>

#include "ZDXEngine/Export.h"

namespace ZnDwgDepends {
class DwgFile;
}  // namespace ZnDwgDepends

namespace ZDXEngine {

// What kind of file a record stands for; docs/references.md tells the numbers, of which 0, 1, 2, 3,
// 4 and 10 are in use.
enum class FileType : std::int32_t {};

// One file that a drawing depends on.  The client owns the records that it gets: it calls Dispose
// on each, and then deletes it as the class that it is.
class ZDXENGINE_API DwgDependentFile {
 public:
  // Four empty texts; the rest isn't set.
  DwgDependentFile();
  // The record supports repathing unless `fileType` is 0.
  DwgDependentFile(const std::wstring& sourcePath, const std::wstring& destinationPath,
                   const std::wstring& refId, const ZDXEngine::FileType& fileType, bool isRootFile);
  // The texts of a moved-from record are empty, its other fields stay.
  DwgDependentFile(const DwgDependentFile& other);
  DwgDependentFile(DwgDependentFile&& other) noexcept;
  DwgDependentFile& operator=(const DwgDependentFile& other);
  DwgDependentFile& operator=(DwgDependentFile&& other) noexcept;
  ~DwgDependentFile();

  // The file's full path if it was found, otherwise the path as the drawing stores it.
  const std::wstring& GetSourcePath();
  // Told by vertical services alone, or set by the client.
  const std::wstring& GetAbsolutePath();
  // Where the file is to go: empty until the client sets it.
  const std::wstring& GetDestinationPath();
  const ZDXEngine::FileType& GetFileType();
  // Whether the reference may be given another path.
  const bool& GetSupportRePath();
  // Whether the drawing is overlaid; told only if DependencySettings ask for it.
  const bool& GetIsOverlay();
  // What tells the reference from the others: "0" for the walked drawing.
  const std::wstring& GetRefId() const;

  void SetAbsolutePath(const std::wstring& absolutePath);
  void SetDestinationPath(const std::wstring& destinationPath);
  void SetSupportRePath(bool supportRePath);
  void SetIsOverlay(bool isOverlay);

  // Releases what the record stands for; nothing here.
  virtual void Dispose();

 protected:
  void SetRefId(const std::wstring& refId);

  std::wstring SourcePath;
  std::wstring AbsolutePath;
  std::wstring DestinationPath;
  ZDXEngine::FileType FileType;
  bool SupportRePath;
  bool IsRootFile;
  bool IsOverlay;
  std::wstring RefId;
};

// A record of the drawing's own references, bound to what the walk found.
class ZDXENGINE_API ZnDwgDependentFile : public DwgDependentFile {
 public:
  // `dwgFile` isn't null.
  ZnDwgDependentFile(ZnDwgDepends::DwgFile* dwgFile, const std::wstring& refId, bool isRootFile);
  // Both records stand for the same file afterwards, also after a move: Dispose one of them alone.
  ZnDwgDependentFile(const ZnDwgDependentFile& other);
  ZnDwgDependentFile(ZnDwgDependentFile&& other) noexcept;
  ZnDwgDependentFile& operator=(const ZnDwgDependentFile& other);
  ZnDwgDependentFile& operator=(ZnDwgDependentFile&& other) noexcept;
  ~ZnDwgDependentFile();

  ZnDwgDepends::DwgFile* GetDwgFile();

  // Releases what the walk found out about the file: that of this record, or, under the feature
  // flag of FileReferenceMgr, that of the whole walk if this is the walked drawing's record and
  // else nothing.  The walked drawing's comes last, and under the flag once only.
  void Dispose() override;

 private:
  friend class FileReferenceMgr;

  void SetDwgFile(ZnDwgDepends::DwgFile* dwgFile);

  ZnDwgDepends::DwgFile* DwgFile;
};

}  // namespace ZDXEngine
