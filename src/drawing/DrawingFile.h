// The one door through which a drawing is opened and saved.
//
// The database belongs to the caller, who builds it as ZnDbDatabase(false, true) on its stack.
#pragma once

#include <string>

#include "platform/zndb/ZnDbDatabase.h"

namespace ZDXEngine {

// The status of a file that can't be written back in the form it came in.
inline constexpr Zent::ErrorStatus kStatusCannotWriteBack = 434;

// What follows the last dot of `path`, dot included, if the dot isn't its first character;
// otherwise empty.  Nothing looks at separators: "C:\a.b\c" has the extension ".b\c".
std::wstring GetExtension(const std::wstring& path);
// True for .DWG, .DWS and .DWT, without regard to case.
bool IsDwgExtension(const std::wstring& extension);
// True for .DXF, without regard to case.
bool IsDxfExtension(const std::wstring& extension);

// Reads the file at `path` into `database`.  `readOnly` picks the open mode of a drawing file.
// Throws the exception for the library's status, and ReadError for a name that is neither a drawing
// nor a DXF file.
void OpenDrawing(const std::wstring& path, ZnDbDatabase* database, bool readOnly);

// The save class, 0 to 8, which stands for the one version in which `database` is written back; 0
// if there is none.  `path` is the target; null for the database's own file.
int GetSaveClass(ZnDbDatabase* database, const std::wstring* path);

// Writes `database` to `path` in the format and version generation it came in.  Returns the
// library's status, or kStatusCannotWriteBack.  The working database of the process is what it was
// when this returns.
Zent::ErrorStatus SaveDrawing(ZnDbDatabase* database, const std::wstring& path);
// Writes a drawing file of save class 2 to 7; returns 0 and writes nothing for any other class.
Zent::ErrorStatus SaveDwgAs(ZnDbDatabase* database, const std::wstring& path, int saveClass);
// Writes a DXF file; kStatusCannotWriteBack if its save class is 0 or 2.
Zent::ErrorStatus SaveDxf(ZnDbDatabase* database, const std::wstring& path);

}  // namespace ZDXEngine
