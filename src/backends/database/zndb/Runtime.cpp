#include "backends/database/zndb/Runtime.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "backends/System.h"

namespace zdx::database {
namespace {

constexpr std::wstring_view kCompiledIn[] = {L"znismobj24.zdx", L"znGeomentObj.zdx",
                                             L"znModelDocObj.zdx"};

bool IsCompiledIn(const wchar_t* name) {
  return std::find(std::begin(kCompiledIn), std::end(kCompiledIn), std::wstring_view(name)) !=
         std::end(kCompiledIn);
}

}  // namespace

bool DynamicLinker::loadModule(const wchar_t* name, bool /*printMessage*/, bool /*asCommand*/) {
  return IsCompiledIn(name) || LoadModule(name) != nullptr;
}

bool DynamicLinker::unloadModule(const wchar_t* name, bool /*asCommand*/) {
  return IsCompiledIn(name) || UnloadModule(name);
}

ZnRxObject* RuntimeRegistry::at(const wchar_t* name) const {
  return std::wstring_view(name) == L"DynamicLinker" ? &linker_ : nullptr;
}

}  // namespace zdx::database
