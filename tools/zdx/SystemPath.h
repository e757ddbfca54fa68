// The names of files as the standard library spells them.
#pragma once

#include <filesystem>
#include <string>
#include <type_traits>

#include "ZDXEngine/Utf8.h"

namespace zdx {

inline constexpr bool kPathsAreWide = std::is_same_v<std::filesystem::path::value_type, wchar_t>;

// The path that a name of the engine's stands for, and back.
inline std::filesystem::path PathOfName(const std::wstring& name) {
  if constexpr (kPathsAreWide) return std::filesystem::path(name);
  return std::filesystem::path(ZDXEngine::BytesFromWide(name));
}

inline std::wstring NameOfPath(const std::filesystem::path& path) {
  if constexpr (kPathsAreWide) return path.wstring();
  return ZDXEngine::WideFromUtf8(path.string());
}

}  // namespace zdx
