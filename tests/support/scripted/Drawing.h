// What the one drawing of a scripted world holds.  A test fills it in before the engine looks.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace scripted {

// Something that can be opened.
struct Node {
  virtual ~Node() = default;
  // How calls on the object are told: "layer 0".
  std::string label;
  // False: the opened object has no object id, and whoever opened it deletes it.
  bool inDatabase = true;
};

enum class TableKind { kBlock, kLayer, kLinetype, kView };

struct Record : Node {
  TableKind kind = TableKind::kLayer;
  std::wstring name;
  std::wstring comments;
  bool erased = false;
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

struct Drawing {
  int lastSavedAsVersion = 0;
  int originalFileVersion = 0;
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
};

}  // namespace scripted
