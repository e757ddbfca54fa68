// What a loadable module needs to answer the engine's two questions.
#pragma once

#include <string>

#include "ZDXEngine/Export.h"

class ZnDbDatabase;

namespace ZDXEngine {

// The keys of the record that "GetDependencies" gives for each reference.
namespace VerticalKey {

// Required: what tells the reference from the others.
inline constexpr const wchar_t* kRefId = L"RefId";
// Required: the file's name.
inline constexpr const wchar_t* kFilePath = L"FilePath";
// Its full path, if it is known.
inline constexpr const wchar_t* kAbsolutePath = L"AbsolutePath";
// "false" makes the reference one that can be given another path, and every other value one that
// can't; without this key it can.
inline constexpr const wchar_t* kIsUpdateSupported = L"IsUpdateSupported";

}  // namespace VerticalKey

// The full path of the file from which the drawing was read; empty if there is none.
ZDXENGINE_API std::wstring DrawingPath(const ZnDbDatabase* database);

}  // namespace ZDXEngine

// Marks a function that a module exports: ZDX_MODULE_EXPORT std::vector<...> GetDependencies(...).
#if defined(_WIN32)
#define ZDX_MODULE_EXPORT extern "C" __declspec(dllexport)
#else
#define ZDX_MODULE_EXPORT extern "C" __attribute__((visibility("default")))
#endif
