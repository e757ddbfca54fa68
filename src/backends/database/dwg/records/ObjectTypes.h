// The types of records, by their numbers.
#pragma once

#include <cstdint>
#include <string_view>

namespace zdx::dwg {

using ObjectType = std::uint16_t;

inline constexpr ObjectType kBlockBeginType = 4;
inline constexpr ObjectType kDictionaryType = 42;
inline constexpr ObjectType kBlockTableType = 48;
inline constexpr ObjectType kBlockRecordType = 49;
inline constexpr ObjectType kLayerTableType = 50;
inline constexpr ObjectType kLayerType = 51;
inline constexpr ObjectType kLinetypeTableType = 56;
inline constexpr ObjectType kLinetypeType = 57;
inline constexpr ObjectType kViewTableType = 60;
inline constexpr ObjectType kViewType = 61;
inline constexpr ObjectType kFreeRecordType = 79;
inline constexpr ObjectType kProxyEntityType = 498;
inline constexpr ObjectType kProxyObjectType = 499;
// From here on a type is the number of a class.
inline constexpr ObjectType kFirstClassType = 500;

// Whether a type below kFirstClassType is that of an entity.
bool IsFixedEntity(ObjectType type);

// The class of a type below kFirstClassType that isn't one of an entity; empty if it has no name
// that anybody asks for.
std::wstring_view FixedClassName(ObjectType type);

}  // namespace zdx::dwg
