// Reads fields by their layout.
#pragma once

#include <array>
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
    // A number, or the handle that a reference means; 0 for none.
    std::uint64_t number = 0;
    // A text or bytes, as stored.
    std::string bytes;
  };
  using Reals = std::array<double, 3>;

  // `own` is the handle of the record, from which references may be counted.
  explicit FieldValues(std::uint64_t own = 0) : own_(own) {}

  std::uint64_t HandleOf(HandleReference reference) const { return reference.From(own_); }
  void Add(Key key, Value value);
  void Add(Key key, const Reals& reals) { reals_.emplace_back(key, reals); }
  // Makes room in the list of a repeated field.
  void Reserve(Key key, Code code, std::uint64_t count);
  // Append to the list of a repeated field.
  void AppendText(Key key, std::string text);
  void AppendHandle(Key key, std::uint64_t handle);

  // The value of a field that comes once, of several the last; null if it isn't there.
  const Value* Find(Key key) const;
  // 0 if it isn't there.
  std::uint64_t Number(Key key) const;
  std::uint64_t Handle(Key key) const { return Number(key); }
  // The numbers of a field of such, zeros if it has fewer or isn't there.
  Reals RealsOf(Key key) const;
  double Real(Key key) const { return RealsOf(key)[0]; }
  // What a repeated field told: texts as stored, or handles.
  const std::vector<std::string>& Texts(Key key) const { return ListOf(key).texts; }
  const std::vector<std::uint64_t>& Handles(Key key) const { return ListOf(key).handles; }

 private:
  struct List {
    std::vector<std::string> texts;
    std::vector<std::uint64_t> handles;
  };

  const List& ListOf(Key key) const;

  std::uint64_t own_;
  std::vector<std::pair<Key, Value>> values_;
  std::vector<std::pair<Key, Reals>> reals_;
  std::map<Key, List> lists_;
};

// What somebody asks for.
struct Question {
  // The last field that is read, whether or not the record has it; kNone for all.
  Key last = Key::kNone;
  // The list on request that is kept.
  Key list = Key::kNone;
};

enum class Progress { kGoesOn, kAnswered, kEnded };

// Reads the fields of `layout` that `version` has and adds those with a key to `values`.  kAnswered
// behind the last field that was asked for; kEnded if the record ended before the fields did: those
// up to there are in `values` then.
Progress ReadFields(std::span<const Field> layout, model::Version version, Streams& streams,
                    FieldValues& values, const Question& question = {});

}  // namespace zdx::dwg
