// Reads fields by their layout.
#pragma once

#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "backends/database/dwg/records/Field.h"
#include "backends/database/dwg/records/Streams.h"

namespace zdx::dwg {

// The fields that have a key.
class FieldValues {
 public:
  struct Value {
    std::uint64_t number = 0;
    HandleReference handle;
    // A text or bytes, as stored.
    std::string bytes;
  };

  void Add(Key key, Value value) { values_.emplace_back(key, std::move(value)); }
  // Makes room in the list of a repeated field.
  void Reserve(Key key, Code code, std::uint64_t count);
  // Append to the list of a repeated field.
  void AppendText(Key key, std::string text);
  void AppendHandle(Key key, HandleReference handle);

  // The value of a field that comes once; null if it isn't there.
  const Value* Find(Key key) const;
  std::uint64_t Number(Key key) const;
  // What a repeated field told: texts as stored, or handles.
  const std::vector<std::string>& Texts(Key key) const { return ListOf(key).texts; }
  const std::vector<HandleReference>& Handles(Key key) const { return ListOf(key).handles; }

 private:
  struct List {
    std::vector<std::string> texts;
    std::vector<HandleReference> handles;
  };

  const List& ListOf(Key key) const;

  std::vector<std::pair<Key, Value>> values_;
  std::map<Key, List> lists_;
};

// Reads the fields of `layout` that `version` has and adds those with a key to `values`.  False if
// the record ended before they did: the fields up to there are in `values` then.
bool ReadFields(std::span<const Field> layout, model::Version version, Streams& streams,
                FieldValues& values);

}  // namespace zdx::dwg
