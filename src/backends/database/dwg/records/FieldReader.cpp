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

// Whether the colour has a handle, which is left among the handles.
bool ReadEntityColour(model::Version version, Streams& streams) {
  const unsigned colour = streams.Data().BS();
  if (version < model::kVersion1018) return false;
  if ((colour & kEntityTransparency) != 0) streams.Data().BL();
  if ((colour & kEntityColourHandle) != 0) {
    SkipNames(streams, colour >> 8 & (kColourName | kBookName));
  } else if ((colour & kEntityRgb) != 0) {
    streams.Data().BL();
  }
  return (colour & kEntityColourHandle) != 0;
}

// How many bytes of a number replace those of the number that it resembles, by the two bits before
// it.
constexpr std::uint64_t kReplacedBytes[] = {0, 4, 6, 8};

void SkipLike(BitReader& data) { data.Skip(kReplacedBytes[data.BB()] * 8); }

// From AC1015 on a bit stands for the usual value.
bool IsUsual(model::Version version, BitReader& data) {
  return version >= model::kVersion1015 && data.B();
}

std::uint64_t ReadRun(Streams& streams) {
  std::uint64_t length = 0;
  while (streams.Data().RC() != 0) ++length;
  return length;
}

FieldValues::Reals ReadReals(Code code, BitReader& data) {
  FieldValues::Reals reals = {};
  switch (code) {
    case Code::kBD:
      reals[0] = data.BD();
      break;
    case Code::kRD:
      reals[0] = data.RD();
      break;
    case Code::k2RD:
      for (int i = 0; i < 2; ++i) reals[static_cast<std::size_t>(i)] = data.RD();
      break;
    default:
      for (double& real : reals) real = data.BD();
  }
  return reals;
}

bool IsOfReals(Code code) {
  return code == Code::kBD || code == Code::kRD || code == Code::k2RD || code == Code::k3BD;
}

void SkipReals(Code code, BitReader& data) {
  constexpr std::uint64_t kRealBits = 64;
  if (code == Code::kRD || code == Code::k2RD) {
    data.Skip(code == Code::kRD ? kRealBits : 2 * kRealBits);
    return;
  }
  for (int i = code == Code::kBD ? 2 : 0; i < 3; ++i) data.BD();
}

class LayoutReader {
 public:
  LayoutReader(model::Version version, Streams& streams, FieldValues& values,
               const Question& question)
      : version_(version), streams_(streams), values_(values), question_(question) {}

  Progress Read(std::span<const Field> layout);

 private:
  Progress ReadField(const Field& field);
  bool ReadCounted(const Field& field);
  bool ReadHandles(const Field& field, std::uint64_t times);
  bool ReadTexts(const Field& field);
  void ReadReal(const Field& field);
  Value ReadValue(Code code);

  model::Version version_;
  Streams& streams_;
  FieldValues& values_;
  const Question& question_;
};

Value LayoutReader::ReadValue(Code code) {
  Value value;
  BitReader& data = streams_.Data();
  switch (code) {
    case Code::kB:
      value.number = data.B() ? 1 : 0;
      break;
    case Code::kBB:
      value.number = data.BB();
      break;
    case Code::kRC:
      value.number = data.RC();
      break;
    case Code::kBS:
      value.number = data.BS();
      break;
    case Code::kBL:
      value.number = data.BL();
      break;
    case Code::kBLL:
      value.number = data.BLL();
      break;
    case Code::kDD:
      SkipLike(data);
      break;
    case Code::kThickness:
      if (!IsUsual(version_, data)) data.BD();
      break;
    case Code::kExtrusion:
      if (!IsUsual(version_, data)) SkipReals(Code::k3BD, data);
      break;
    case Code::kText:
      value.bytes = streams_.Text();
      break;
    case Code::kHandle:
      value.number = values_.HandleOf(streams_.Handle());
      break;
    case Code::kDataHandle:
      value.number = values_.HandleOf(data.H());
      break;
    case Code::kColour:
      SkipColour(version_, streams_);
      break;
    case Code::kEntityColour:
      value.number = ReadEntityColour(version_, streams_) ? 1 : 0;
      break;
    case Code::kRun:
      value.number = ReadRun(streams_);
      break;
    default:
      break;
  }
  return value;
}

void LayoutReader::ReadReal(const Field& field) {
  if (field.key == Key::kNone) return SkipReals(field.code, streams_.Data());
  const FieldValues::Reals reals = ReadReals(field.code, streams_.Data());
  if (streams_.Good()) values_.Add(field.key, reals);
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

// More than any drawing has that is as small as this record: objects as many as that have handles
// of three bytes and more.  What the list takes, and what is told of it, stays within some
// megabytes, or within some times the record.
std::uint64_t MostTimes(Code code, const Streams& streams) {
  constexpr std::uint64_t kBitsOfAnEntry = std::uint64_t{20} * 8;
  constexpr std::uint64_t kBitsOfAHandle = std::uint64_t{3} * 8;
  switch (code) {
    case Code::kText:
      return std::max<std::uint64_t>(100000, streams.BitsLeft() / kBitsOfAnEntry);
    case Code::kHandle:
      return std::max<std::uint64_t>(500000, streams.BitsLeft() / kBitsOfAHandle);
    default:
      return ~std::uint64_t{0};
  }
}

bool LayoutReader::ReadHandles(const Field& field, std::uint64_t times) {
  const bool isKept =
      field.key != Key::kNone && (!field.isOnRequest || field.key == question_.list);
  if (isKept) values_.Reserve(field.key, field.code, times);
  for (std::uint64_t i = 0; i < times; ++i) {
    const HandleReference reference = streams_.Handle();
    if (!streams_.Good()) return false;
    if (!isKept) continue;
    const std::uint64_t handle = values_.HandleOf(reference);
    if (handle != 0 || !field.isOnRequest) values_.AppendHandle(field.key, handle);
  }
  return true;
}

// Empty ones take next to nothing, and nobody asks for them.
bool LayoutReader::ReadTexts(const Field& field) {
  std::uint64_t left = MostTimes(Code::kText, streams_);
  while (streams_.HasTextsLeft()) {
    std::string text = streams_.Text();
    if (!streams_.Good()) return false;
    if (text.empty()) continue;
    if (left-- == 0) return false;
    values_.AppendText(field.key, std::move(text));
  }
  return true;
}

bool LayoutReader::ReadCounted(const Field& field) {
  const std::uint64_t times = values_.Number(field.times);
  if (times > streams_.BitsLeft() / LeastBits(field.code)) return false;
  if (times > MostTimes(field.code, streams_)) return false;
  if (field.code == Code::kHandle) return ReadHandles(field, times);
  if (field.code == Code::kBytes) {
    if (field.key == Key::kNone) {
      streams_.Data().Skip(times * 8);
    } else {
      values_.Add(field.key, {0, streams_.Data().Bytes(times)});
    }
    return streams_.Good();
  }
  if (field.code == Code::kText) values_.Reserve(field.key, field.code, times);
  for (std::uint64_t i = 0; i < times; ++i) {
    if (IsOfReals(field.code)) {
      SkipReals(field.code, streams_.Data());
    } else if (Value value = ReadValue(field.code); field.code == Code::kText) {
      if (streams_.Good()) values_.AppendText(field.key, std::move(value.bytes));
    }
    if (!streams_.Good()) return false;
  }
  return true;
}

Progress LayoutReader::ReadField(const Field& field) {
  if (field.code == Code::kTable) return Read({field.table, field.tableSize});
  if (field.code == Code::kTexts) return ReadTexts(field) ? Progress::kGoesOn : Progress::kEnded;
  if (field.times != Key::kNone) {
    return ReadCounted(field) ? Progress::kGoesOn : Progress::kEnded;
  }
  for (unsigned i = 0; i < field.count; ++i) {
    if (IsOfReals(field.code)) {
      ReadReal(field);
    } else if (Value value = ReadValue(field.code); field.key != Key::kNone && streams_.Good()) {
      values_.Add(field.key, std::move(value));
    }
    if (!streams_.Good()) return Progress::kEnded;
  }
  return Progress::kGoesOn;
}

Progress LayoutReader::Read(std::span<const Field> layout) {
  for (const Field& field : layout) {
    if (!field.versions.Include(version_)) continue;
    const Condition& when = field.when;
    if (when.key == Key::kNone || when.Holds(values_.Number(when.key))) {
      const Progress progress = ReadField(field);
      if (progress != Progress::kGoesOn) return progress;
    }
    if (field.key != Key::kNone && field.key == question_.last) return Progress::kAnswered;
  }
  return Progress::kGoesOn;
}

}  // namespace

void FieldValues::Add(Key key, Value value) {
  // As many as most records have.
  constexpr std::size_t kUsual = 16;
  if (values_.empty()) values_.reserve(kUsual);
  values_.emplace_back(key, std::move(value));
}

void FieldValues::Reserve(Key key, Code code, std::uint64_t count) {
  List& list = lists_[key];
  if (code == Code::kText) list.texts.reserve(static_cast<std::size_t>(count));
  if (code == Code::kHandle) list.handles.reserve(static_cast<std::size_t>(count));
}

void FieldValues::AppendText(Key key, std::string text) {
  lists_[key].texts.push_back(std::move(text));
}

void FieldValues::AppendHandle(Key key, std::uint64_t handle) {
  lists_[key].handles.push_back(handle);
}

const FieldValues::Value* FieldValues::Find(Key key) const {
  const auto found = std::find_if(values_.rbegin(), values_.rend(),
                                  [key](const auto& entry) { return entry.first == key; });
  return found == values_.rend() ? nullptr : &found->second;
}

std::uint64_t FieldValues::Number(Key key) const {
  const Value* const value = Find(key);
  return value == nullptr ? 0 : value->number;
}

FieldValues::Reals FieldValues::RealsOf(Key key) const {
  const auto found = std::find_if(reals_.begin(), reals_.end(),
                                  [key](const auto& entry) { return entry.first == key; });
  return found == reals_.end() ? Reals() : found->second;
}

const FieldValues::List& FieldValues::ListOf(Key key) const {
  static const List none;
  const auto found = lists_.find(key);
  return found == lists_.end() ? none : found->second;
}

Progress ReadFields(std::span<const Field> layout, model::Version version, Streams& streams,
                    FieldValues& values, const Question& question) {
  return LayoutReader(version, streams, values, question).Read(layout);
}

}  // namespace zdx::dwg
