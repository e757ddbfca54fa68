#include "backends/database/dwg/records/FieldReader.h"

#include <algorithm>
#include <utility>

namespace zdx::dwg {
namespace {

using Value = FieldValues::Value;

// Flags of a colour: which names of a colour book stand behind it.
constexpr unsigned kColourName = 1;
constexpr unsigned kBookName = 2;

// Flags in the high byte of an entity's colour.
constexpr unsigned kEntityTransparency = 0x2000;
constexpr unsigned kEntityColourHandle = 0x4000;
constexpr unsigned kEntityRgb = 0x8000;

void SkipNames(Streams& streams, unsigned flags) {
  if ((flags & kColourName) != 0) streams.Text();
  if ((flags & kBookName) != 0) streams.Text();
}

void SkipColour(model::Version version, Streams& streams) {
  streams.Data().BS();
  if (version < model::kVersion1018) return;
  streams.Data().BL();
  SkipNames(streams, streams.Data().RC());
}

// The colour's handle, where it has one, is left among the handles.
std::uint64_t ReadEntityColour(model::Version version, Streams& streams) {
  const unsigned colour = streams.Data().BS();
  if (version < model::kVersion1018) return colour;
  if ((colour & kEntityTransparency) != 0) streams.Data().BL();
  if ((colour & kEntityColourHandle) != 0) {
    SkipNames(streams, colour >> 8 & (kColourName | kBookName));
  } else if ((colour & kEntityRgb) != 0) {
    streams.Data().BL();
  }
  return colour;
}

void SkipReals(Streams& streams, unsigned count) {
  for (unsigned i = 0; i < count; ++i) streams.Data().BD();
}

Value ReadValue(Code code, model::Version version, Streams& streams) {
  Value value;
  switch (code) {
    case Code::kB:
      value.number = streams.Data().B() ? 1 : 0;
      break;
    case Code::kBB:
      value.number = streams.Data().BB();
      break;
    case Code::kRC:
      value.number = streams.Data().RC();
      break;
    case Code::kBS:
      value.number = streams.Data().BS();
      break;
    case Code::kBL:
      value.number = streams.Data().BL();
      break;
    case Code::kBLL:
      value.number = streams.Data().BLL();
      break;
    case Code::kBD:
      SkipReals(streams, 1);
      break;
    case Code::k3BD:
      SkipReals(streams, 3);
      break;
    case Code::k2RD:
      streams.Data().Skip(std::uint64_t{2} * 64);
      break;
    case Code::kText:
      value.bytes = streams.Text();
      break;
    case Code::kHandle:
      value.handle = streams.Handle();
      break;
    case Code::kDataHandle:
      value.handle = streams.Data().H();
      break;
    case Code::kColour:
      SkipColour(version, streams);
      break;
    case Code::kEntityColour:
      value.number = ReadEntityColour(version, streams);
      break;
    case Code::kBytes:
      break;
  }
  return value;
}

// The least that one of a field that comes as often as the file says can take: a text has a length
// and a character, a handle a byte.
std::uint64_t LeastBits(Code code) {
  switch (code) {
    case Code::kText:
      return 18;
    case Code::kHandle:
    case Code::kBytes:
      return 8;
    default:
      return 1;
  }
}

// More than any drawing has that is as small as this record.  What the list takes, and what is told
// of it, stays within some megabytes, or within some times the record.
std::uint64_t MostTimes(Code code, const Streams& streams) {
  constexpr std::uint64_t kBitsOfAnEntry = std::uint64_t{20} * 8;
  switch (code) {
    case Code::kText:
      return std::max<std::uint64_t>(100000, streams.BitsLeft() / kBitsOfAnEntry);
    case Code::kHandle:
      return 500000;
    default:
      return ~std::uint64_t{0};
  }
}

bool ReadCounted(const Field& field, model::Version version, Streams& streams,
                 FieldValues& values) {
  const std::uint64_t times = values.Number(field.times);
  if (times > streams.BitsLeft() / LeastBits(field.code)) return false;
  if (times > MostTimes(field.code, streams)) return false;
  if (field.code == Code::kBytes) {
    values.Add(field.key, {0, {}, streams.Data().Bytes(times)});
    return streams.Good();
  }
  if (field.key != Key::kNone) values.Reserve(field.key, field.code, times);
  for (std::uint64_t i = 0; i < times; ++i) {
    Value value = ReadValue(field.code, version, streams);
    if (!streams.Good()) return false;
    if (field.key == Key::kNone) continue;
    if (field.code == Code::kText) values.AppendText(field.key, std::move(value.bytes));
    if (field.code == Code::kHandle) values.AppendHandle(field.key, value.handle);
  }
  return true;
}

bool ReadField(const Field& field, model::Version version, Streams& streams, FieldValues& values) {
  if (field.times != Key::kNone) return ReadCounted(field, version, streams, values);
  for (unsigned i = 0; i < field.count; ++i) {
    Value value = ReadValue(field.code, version, streams);
    if (!streams.Good()) return false;
    if (field.key != Key::kNone) values.Add(field.key, std::move(value));
  }
  return true;
}

}  // namespace

void FieldValues::Reserve(Key key, Code code, std::uint64_t count) {
  List& list = lists_[key];
  if (code == Code::kText) list.texts.reserve(static_cast<std::size_t>(count));
  if (code == Code::kHandle) list.handles.reserve(static_cast<std::size_t>(count));
}

void FieldValues::AppendText(Key key, std::string text) {
  lists_[key].texts.push_back(std::move(text));
}

void FieldValues::AppendHandle(Key key, HandleReference handle) {
  lists_[key].handles.push_back(handle);
}

const FieldValues::Value* FieldValues::Find(Key key) const {
  for (const auto& [known, value] : values_) {
    if (known == key) return &value;
  }
  return nullptr;
}

std::uint64_t FieldValues::Number(Key key) const {
  const Value* const value = Find(key);
  return value == nullptr ? 0 : value->number;
}

const FieldValues::List& FieldValues::ListOf(Key key) const {
  static const List none;
  const auto found = lists_.find(key);
  return found == lists_.end() ? none : found->second;
}

bool ReadFields(std::span<const Field> layout, model::Version version, Streams& streams,
                FieldValues& values) {
  for (const Field& field : layout) {
    if (!field.versions.Include(version)) continue;
    if (field.when.key != Key::kNone && values.Number(field.when.key) != field.when.value) continue;
    if (!ReadField(field, version, streams, values)) return false;
  }
  return true;
}

}  // namespace zdx::dwg
