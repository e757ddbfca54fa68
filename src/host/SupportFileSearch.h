// Where a file is that the drawing library asks its host for.
#pragma once

#include <string>

#include "ZDXEngine/ZDXService.h"
#include "platform/zndb/Status.h"

class ZnDbDatabase;

namespace ZDXEngine {

// ZnDbHostApplicationServices::findFile for a host with these parameters.  What lies beside the
// drawing is written to `fileOut` as if it had 260 characters, whatever `bufferLength` says.
Zent::ErrorStatus FindSupportFile(const HostApplicationParam& param, wchar_t* fileOut,
                                  int bufferLength, const wchar_t* fileName, ZnDbDatabase* database,
                                  int hint);

// The folder of the file from which `database`, which isn't null, was read.
std::wstring DatabaseFolder(ZnDbDatabase* database);

// What follows the last backslash of `name`; all of it if there is none.
std::wstring LeafName(const std::wstring& name);

}  // namespace ZDXEngine
