// Layouts: what a record holds, as tables of fields.
#pragma once

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
  k2RD,
  k3BD,
  kText,
  kHandle,
  kDataHandle,    // a handle that stays among the other data in every version
  kColour,        // of an object
  kEntityColour,  // of an entity
  kBytes,         // as many bytes as `times` says, as one value
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
  // Of table records, and of the blocks' begins.
  kName,
  kComments,
  kAnonymous,
  kBlockBegin,
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

// A field is there if an earlier one has this value; kNone is always fulfilled.
struct Condition {
  Key key = Key::kNone;
  std::uint64_t value = 0;
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
};

constexpr Field Unnamed(Code code, unsigned count = 1, Versions versions = kAlways) {
  return {code, count, versions, Key::kNone, Key::kNone, {}};
}
constexpr Field Named(Key key, Code code, Versions versions = kAlways) {
  return {code, 1, versions, key, Key::kNone, {}};
}
constexpr Field Repeated(Key key, Code code, Key times, Versions versions = kAlways) {
  return {code, 1, versions, key, times, {}};
}
constexpr Field If(Key key, std::uint64_t value, Field field) {
  field.when = {key, value};
  return field;
}

}  // namespace zdx::dwg
