// Layouts: what a record holds, as tables of fields.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>

#include "backends/database/model/Version.h"

namespace zdx::dwg {

// How a field is written; the letters are those of BitReader's operations.
enum class Code : std::uint8_t {
  kB,
  kBB,
  kRC,
  kBS,
  kBL,
  kBLL,
  kBD,
  kDD,
  kRD,
  k2RD,
  k3BD,
  kThickness,
  kExtrusion,
  kText,
  kTexts,  // all texts that are left
  kHandle,
  kDataHandle,    // a handle that stays among the other data in every version
  kColour,        // of an object
  kEntityColour,  // of an entity; its value says whether it has a handle
  kRun,           // bytes up to the first that is zero; its value is their number
  kBytes,         // as many bytes as `times` says, as one value
  kTable,         // the fields of another table
};

// The fields that somebody asks for, or on which others depend.
enum class Key : std::uint8_t {
  kNone,
  // Of all records.
  kOwnerMode,
  kReactorCount,
  kNoExtension,
  kExtension,
  kOwner,
  // Of entities.
  kLinetypeOfLayer,
  kNeighboursByNumber,
  kColourHandle,
  kLinetypeKind,
  kPlotStyle,
  kMaterial,
  kShadow,
  kFullVisualStyle,
  kFaceVisualStyle,
  kEdgeVisualStyle,
  kPrevious,
  kNext,
  // Of table records, and of the blocks' begins.
  kName,
  kDependentIndex,
  kDependent,
  kComments,
  kAnonymous,
  kBlockBegin,
  // Of the records of blocks.
  kIsReference,
  kIsOverlay,
  kIsLoaded,
  kOwnedCount,
  kInsertCount,
  kFirst,
  kLast,
  kOwned,
  kInserts,
  kLayout,
  // Of block references, which have kFirst and kLast, too.
  kBlock,
  kScaleKind,
  kHasAttributes,
  kAttributeCount,
  kAttributes,
  // Of texts and attributes.
  kTextFlags,
  kText,
  kBackground,
  kNotAnnotative,
  kColumns,
  kColumnCount,
  kAutoHeight,
  kAttributeKind,
  kTag,
  kAttributeFlags,
  kPrompt,
  // Of what names a file; kPath of the records of blocks, too.
  kPath,
  kIsShapeFile,
  kFont,
  kBigFont,
  kPrinter,
  kPlotStyleTable,
  kConnection,
  kTextures,
  // Of the location.
  kGeoVersion,
  kCoordinateType,
  kDesignPoint,
  kReferencePoint,
  kHorizontalScale,
  kHorizontalUnits,
  kVerticalScale,
  kVerticalUnits,
  kUpDirection,
  kNorthVector,
  kNorthAngle,
  kScaleFactor,
  kSeaLevel,
  kSeaElevation,
  kProjectionRadius,
  kCoordinateSystem,
  kGeoTag,
  kObservationFrom,
  kObservationTo,
  kObservationCoverage,
  // Of dictionaries, tables and free records.
  kCount,
  kKeys,
  kEntries,
  kByteCount,
  kBytes,
  // Of the two kinds of blocks and of line types that a table names apart from its entries.
  kModelSpace,
  kPaperSpace,
  kByBlock,
  kByLayer,
  // Of proxies.
  kClassNumber,
  // Of the header.
  kMenu,
  kDimpost,
  kDimapost,
  kDimblk,
  kDimblk1,
  kDimblk2,
  kBlockTable,
  kLayerTable,
  kTextStyleTable,
  kLinetypeTable,
  kViewTable,
  kRootDictionary,
  kHyperlinkBase,
  kStyleSheet,
  kPlotStyleKind,
  kProjectName,
};

// The versions that have a field.
struct Versions {
  model::Version first = 0;
  model::Version last = std::numeric_limits<model::Version>::max();

  constexpr bool Include(model::Version version) const {
    return version >= first && version <= last;
  }
};

inline constexpr Versions kAlways = {};
constexpr Versions Since(model::Version first) { return {first, kAlways.last}; }
constexpr Versions Until(model::Version last) { return {kAlways.first, last}; }

// A field is there if these bits of an earlier one have this value, or haven't; kNone is always
// fulfilled.
struct Condition {
  Key key = Key::kNone;
  std::uint64_t value = 0;
  std::uint64_t bits = ~std::uint64_t{0};
  bool isEqual = true;

  constexpr bool Holds(std::uint64_t number) const { return ((number & bits) == value) == isEqual; }
};

struct Field {
  Code code;
  // How often it comes in a row.
  unsigned count = 1;
  Versions versions = kAlways;
  Key key = Key::kNone;
  // It comes as often as this earlier field says, instead of `count`.
  Key times = Key::kNone;
  Condition when = {};
  // A list that may be long and is only kept for who asks for it, without null handles.
  bool isOnRequest = false;
  // Of kTable.
  const Field* table = nullptr;
  std::size_t tableSize = 0;
};

constexpr Field Unnamed(Code code, unsigned count = 1, Versions versions = kAlways) {
  Field field = {code};
  field.count = count;
  field.versions = versions;
  return field;
}
constexpr Field Named(Key key, Code code, Versions versions = kAlways) {
  Field field = Unnamed(code, 1, versions);
  field.key = key;
  return field;
}
constexpr Field Repeated(Key key, Code code, Key times, Versions versions = kAlways) {
  Field field = Named(key, code, versions);
  field.times = times;
  return field;
}
constexpr Field OnRequest(Field list) {
  list.isOnRequest = true;
  return list;
}
template <std::size_t kSize>
constexpr Field Table(const Field (&fields)[kSize], Versions versions = kAlways) {
  Field field = Unnamed(Code::kTable, 1, versions);
  field.table = fields;
  field.tableSize = kSize;
  return field;
}
constexpr Field If(Key key, std::uint64_t value, Field field) {
  field.when = {key, value};
  return field;
}
constexpr Field IfNot(Key key, std::uint64_t value, Field field) {
  field.when = {key, value};
  field.when.isEqual = false;
  return field;
}
// If any of these bits is set, or none.
constexpr Field IfAny(Key key, std::uint64_t bits, Field field) {
  field.when = {key, 0, bits, false};
  return field;
}
constexpr Field IfNone(Key key, std::uint64_t bits, Field field) {
  field.when = {key, 0, bits, true};
  return field;
}

}  // namespace zdx::dwg
