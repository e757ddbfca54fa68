#pragma once

#include <optional>
#include <string>
#include <vector>

#include "support/drawing/ObjectSpec.h"
#include "support/drawing/Tags.h"

namespace drawing {

struct Point {
  double x = 0.0;
  double y = 0.0;
};

// Bits of an attribute's flags.
inline constexpr int kInvisible = 1;
inline constexpr int kConstant = 2;
inline constexpr int kVerified = 4;
inline constexpr int kPreset = 8;

// An attribute definition of a block, or an attribute of an insert, which has no prompt.
struct AttributeSpec {
  std::string tag = {};
  std::string value = {};
  std::string prompt = {};
  int flags = 0;
  // Written as its version keeps such texts: in AC1032 within the attribute; below in a record
  // beside a plain one, whose tag has a suffix if it isn't a definition's.  Not in AC1009, where it
  // is a plain one.
  bool multiLine = false;
  // Of a multi-line one that has such a record: what the plain one holds; nothing for the value.
  std::optional<std::string> plainValue = {};
  Point at = {};
  double height = 2.5;
  std::string layer = "0";
  std::string handle = {};
};

// An entity of a space or a block.  Make one with the functions below, or fill in `type` and
// `body` for any other kind.
struct EntitySpec {
  // As the file spells it.
  std::string type;
  std::string layer = "0";
  // Tags common to all entities: line type, colour and the like.
  std::vector<Tag> common = {};
  // All that follows, markers included.
  std::vector<Tag> body = {};
  // Of a polyline only, which is written as its version knows it.
  std::vector<Point> vertices = {};
  bool closed = false;
  // Of an insert only.
  std::vector<AttributeSpec> attributes = {};
  // Hexadecimal; empty for one of the maker's choice.
  std::string handle = {};
  // Entries of the entity's extension dictionary; none: no such dictionary.
  std::vector<NamedObject> extension = {};
  // Applications' data: groups that each begin with code 1001.
  std::vector<Tag> extendedData = {};
};

EntitySpec Line(std::string layer, Point from, Point to);
EntitySpec Circle(std::string layer, Point centre, double radius);
// Angles in degrees, against the clock.
EntitySpec Arc(std::string layer, Point centre, double radius, double from, double to);
EntitySpec Dot(std::string layer, Point at);
EntitySpec Text(std::string layer, Point at, double height, std::string text, double angle = 0.0);
EntitySpec Polyline(std::string layer, std::vector<Point> vertices, bool closed = false);

// Left out of AC1009.
EntitySpec MText(std::string layer, Point at, double height, std::string text);

struct Placement {
  Point at = {};
  double scale = 1.0;
  double angle = 0.0;
  // More than one of either: the block is shown in an array.
  int columns = 1;
  int rows = 1;
  double columnSpacing = 0.0;
  double rowSpacing = 0.0;
};

// The name of the block that an insert shows.
std::string InsertedBlock(const EntitySpec& insert);

EntitySpec Insert(std::string block, std::vector<AttributeSpec> attributes = {},
                  Placement placement = {}, std::string layer = "0");

}  // namespace drawing
