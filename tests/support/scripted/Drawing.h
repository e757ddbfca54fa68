// What the one drawing of a scripted world holds.  A test fills it in before the engine looks.
#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/zndb/ZnGe.h"
#include "support/scripted/Entity.h"
#include "support/scripted/Node.h"

namespace scripted {

enum class TableKind { kBlock, kLayer, kLinetype, kView };

struct Record : Node {
  // These make sense in the block table.  An entity of this block, whose label is "KIND N of BLOCK"
  // as "text 2 of Door", counted over all entities.
  Entity& Add(EntityKind entityKind);
  // A definition; its label is "definition TAG of BLOCK".
  Entity& AddDefinition(std::wstring tag, std::wstring prompt = {}, std::wstring text = {});
  Entity& AddConstant(std::wstring tag, std::wstring prompt, std::wstring text);
  // A reference to this block, whose label is "reference N of BLOCK".  It is among the entities of
  // no block: where it stands is told by its owner alone.
  Entity& AddReference(const Record* standsIn);

  TableKind kind = TableKind::kLayer;
  std::wstring name;
  std::wstring comments;
  bool erased = false;

  bool layout = false;
  bool overlay = false;
  std::uint64_t handle = 0;
  std::deque<Entity> entities;
  std::deque<Entity> references;
  bool dynamic = false;
  std::vector<const Record*> copies;
};

struct Table : Node {
  Table(TableKind tableKind, std::string tableLabel, std::string labelOfRecords);
  Record& Add(std::wstring name, std::wstring comments = {});

  TableKind kind;
  std::string recordLabel;
  std::deque<Record> records;
};

// An object of any class to which a dictionary entry leads.
struct PlainObject : Node {
  std::wstring className;
  // True: the object is a proxy that stands for `className`.
  bool proxy = false;
  // False: the object's class isn't known, `isA` gives null.
  bool hasClass = true;
};

struct Dictionary : Node {
  struct Entry {
    std::wstring name;
    PlainObject object;
  };

  explicit Dictionary(std::string dictionaryLabel) { label = std::move(dictionaryLabel); }
  // An entry that leads to an object of class `className`; its label is "object NAME".
  PlainObject& Add(std::wstring name, std::wstring className = L"ZnDbXrecord");

  std::deque<Entry> entries;
};

struct Summary {
  std::wstring title, subject, author, keywords, comments, lastSavedBy, revisionNumber;
  std::vector<std::pair<std::wstring, std::wstring>> custom;
  // What numCustomInfo tells instead of the number of entries.
  std::optional<int> customCount;
};

struct Settings {
  std::wstring menu, projectName, hyperlinkBase, styleSheet, dimpost, dimapost;
  std::wstring dimblk, dimblk1, dimblk2;
};

struct Location : Node {
  Location() { label = "location"; }

  int coordinateType = 0;
  ZnGePoint3d designPoint, referencePoint;
  ZnGeVector2d northDirectionVector;
  ZnGeVector3d upDirection;
  double northDirection = 0;
  int horizontalUnits = 0, verticalUnits = 0;
  double horizontalUnitScale = 0, verticalUnitScale = 0, scaleFactor = 0;
  bool doSeaLevelCorrection = false;
  double seaLevelElevation = 0, coordinateProjectionRadius = 0;
  // Null texts if nullopt.
  std::optional<std::wstring> coordinateSystem, geoRSSTag;
  std::optional<std::wstring> observationFrom, observationTo, observationCoverage;
};

struct Drawing {
  int lastSavedAsVersion = 0;
  int originalFileVersion = 0;
  std::wstring originalFileName;
  // Null if the library has no name for it.
  std::optional<std::wstring> filename;

  Table blocks{TableKind::kBlock, "blocks", "block"};
  Table layers{TableKind::kLayer, "layers", "layer"};
  Table linetypes{TableKind::kLinetype, "linetypes", "linetype"};
  Table views{TableKind::kView, "views", "view"};

  Dictionary groups{"groups"};
  Dictionary mlineStyles{"mline styles"};
  Dictionary layouts{"layouts"};
  Dictionary namedObjects{"named objects"};
  Dictionary plotSettings{"plot settings"};

  Summary summary;
  Settings settings;
  // The location object; nullopt if the drawing has none.
  std::optional<Location> location;
};

}  // namespace scripted
