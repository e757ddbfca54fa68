// The types of records, by their numbers.
#pragma once

#include <cstdint>
#include <string_view>

namespace zdx::dwg {

using ObjectType = std::uint16_t;

inline constexpr ObjectType kTextType = 1;
inline constexpr ObjectType kAttributeType = 2;
inline constexpr ObjectType kAttributeDefinitionType = 3;
inline constexpr ObjectType kBlockBeginType = 4;
inline constexpr ObjectType kBlockEndType = 5;
inline constexpr ObjectType kSequenceEndType = 6;
inline constexpr ObjectType kReferenceType = 7;
inline constexpr ObjectType kReferenceArrayType = 8;
inline constexpr ObjectType kFirstVertexType = 10;
inline constexpr ObjectType kLastVertexType = 14;
inline constexpr ObjectType kDictionaryType = 42;
inline constexpr ObjectType kMTextType = 44;
inline constexpr ObjectType kBlockTableType = 48;
inline constexpr ObjectType kBlockRecordType = 49;
inline constexpr ObjectType kLayerTableType = 50;
inline constexpr ObjectType kLayerType = 51;
inline constexpr ObjectType kTextStyleTableType = 52;
inline constexpr ObjectType kTextStyleType = 53;
inline constexpr ObjectType kLinetypeTableType = 56;
inline constexpr ObjectType kLinetypeType = 57;
inline constexpr ObjectType kViewTableType = 60;
inline constexpr ObjectType kViewType = 61;
inline constexpr ObjectType kApplicationType = 67;
inline constexpr ObjectType kFreeRecordType = 79;
inline constexpr ObjectType kLayoutType = 82;
inline constexpr ObjectType kProxyEntityType = 498;
inline constexpr ObjectType kProxyObjectType = 499;
// From here on a type is the number of a class.
inline constexpr ObjectType kFirstClassType = 500;
// These stand for classes that have no type: no record has such a number.
inline constexpr ObjectType kGeoDataType = 9;
inline constexpr ObjectType kPlotSettingsType = 401;
inline constexpr ObjectType kImageDefinitionType = 402;
inline constexpr ObjectType kPdfDefinitionType = 403;
inline constexpr ObjectType kDwfDefinitionType = 404;
inline constexpr ObjectType kDgnDefinitionType = 405;
inline constexpr ObjectType kPointCloudDefinitionType = 406;
inline constexpr ObjectType kDataLinkType = 407;
inline constexpr ObjectType kMaterialType = 408;

// Whether a type below kFirstClassType is that of an entity.
bool IsFixedEntity(ObjectType type);

// Whether an entity of that type is a part of another, or begins or ends something.
bool IsPartOfEntity(ObjectType type);

// The class of a type below kFirstClassType; empty if it has no name that anybody asks for.
std::wstring_view FixedClassName(ObjectType type);

}  // namespace zdx::dwg
