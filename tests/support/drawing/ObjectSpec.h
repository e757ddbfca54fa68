#pragma once

#include <string>
#include <utility>
#include <vector>

#include "support/drawing/Tags.h"

namespace drawing {

struct NamedObject;

// An object of the OBJECTS section.  Its owner and handle tags are written by the maker.
struct ObjectSpec {
  // As the file spells it.  Empty: nothing is written, and `handle` tells an object written
  // elsewhere.
  std::string type;
  // All that follows the owner, markers included.
  std::vector<Tag> body;
  // Of a dictionary only.
  std::vector<NamedObject> entries;
  // Of a dictionary only: entries hold their objects by code 360 instead of 350.
  bool ownsEntries = false;
  // Hexadecimal; empty for one of the maker's choice.
  std::string handle;
  // Entries of the object's extension dictionary; none: no such dictionary.
  std::vector<NamedObject> extension;
  // Of a proxy only: the C++ name of the class that it stands for.
  std::string proxiedClass;
};

struct NamedObject {
  NamedObject(std::string entryName, ObjectSpec entryObject)
      : name(std::move(entryName)), object(std::move(entryObject)) {}

  std::string name;
  ObjectSpec object;
};

ObjectSpec Dictionary(std::vector<NamedObject> entries = {});
// `tags` are the record's own, of any codes.
ObjectSpec Xrecord(std::vector<Tag> tags = {});
ObjectSpec Placeholder();
ObjectSpec CustomObject(std::string type, std::vector<Tag> body = {});
// An object of a class unknown to the program that wrote the file.  The maker registers the class.
ObjectSpec Proxy(std::string proxiedClass);
// An object that the spec or the maker writes elsewhere.
ObjectSpec ObjectAt(std::string handle);

}  // namespace drawing
