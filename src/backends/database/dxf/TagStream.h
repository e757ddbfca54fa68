// The tags of a DXF file, in either form.
//
// A tag is a group code and a value.  A text file gives each a line of its own; a binary file gives
// the code in one byte (AC1009 and older) or two, and the value in as many as its kind needs.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "backends/database/dxf/GroupCodes.h"

namespace zdx::dxf {

enum class Form { kText, kBinaryOneByte, kBinaryTwoByte };

inline constexpr std::size_t kNowhere = std::string_view::npos;

struct Tag {
  int code = 0;
  // The bytes of the value as they stand, without line end or terminator.
  std::string_view value;
  // Where the tag begins.
  std::size_t at = 0;
};

// Where an object begins: the tag with code 0 that gives its type.
struct ObjectStart {
  std::size_t at = kNowhere;
  // Behind that tag.
  std::size_t body = kNowhere;
  std::string_view type;

  bool Found() const { return at != kNowhere; }
};

// Reads tags from the bytes of a file, which must outlive it.  Offsets count from the file's begin.
class TagStream {
 public:
  enum class Outcome {
    kTag,
    kEnd,      // no bytes are left
    kDamaged,  // what stands here isn't a tag
  };

  TagStream() = default;
  TagStream(std::string_view bytes, Form form) : bytes_(bytes), form_(form) {}

  Form form() const { return form_; }
  std::string_view bytes() const { return bytes_; }
  // Where the first tag stands.
  std::size_t Begin() const;

  // Reads the tag at `at` and moves `at` behind it; a damaged one leaves `at` in its place.  Blank
  // lines before a code are passed over: tag.at tells then where the tag really began.
  Outcome Read(std::size_t& at, Tag& tag) const;

  // The first object at or after `from`, which must be the place of a tag or, in a text file, the
  // begin of any line.  What isn't a tag is passed over: a type never is a number alone, as what
  // follows a value "0" is, so that the search finds its feet again by itself.
  ObjectStart NextObject(std::size_t from) const;
  // The object that begins at `at`, a place that NextObject gave.
  ObjectStart ObjectAt(std::size_t at) const;

 private:
  Outcome ReadText(std::size_t& at, Tag& tag) const;
  Outcome ReadBinary(std::size_t& at, Tag& tag) const;
  bool ReadBinaryCode(std::size_t& at, int& code) const;
  bool ReadBinaryValue(std::size_t& at, Tag& tag) const;
  ObjectStart NextTextObject(std::size_t from) const;
  ObjectStart NextBinaryObject(std::size_t from) const;
  std::size_t FindBinaryType(std::size_t from) const;

  std::string_view bytes_;
  Form form_ = Form::kText;
};

// The tags of one object, from behind its type to the next object.
class ObjectTags {
 public:
  ObjectTags(const TagStream& stream, std::size_t body) : stream_(&stream), at_(body) {}

  // Reads the next tag that isn't a comment; false at the end of the object or at damage.
  bool Next(Tag& tag);
  // Behind the last tag that was read.
  std::size_t at() const { return at_; }
  // Where the first damage stands, which ended the tags unless it was a blank line; kNowhere if
  // there was none.
  std::size_t damagedAt() const { return damagedAt_; }
  // Whether the tags ended because of damage, so that some may be missing.
  bool endedByDamage() const { return endedByDamage_; }

 private:
  const TagStream* stream_;
  std::size_t at_;
  std::size_t damagedAt_ = kNowhere;
  bool endedByDamage_ = false;
};

// The number in `value`, which is text or little-endian by the form; false if it isn't a number.
bool ParseInteger(Form form, std::string_view value, std::int64_t& number);

// The same of a number that isn't whole; false also if it isn't finite.
bool ParseReal(Form form, std::string_view value, double& number);

// The number of a handle; 0 if `value` isn't a hexadecimal number that fits.
std::uint64_t ParseHandle(std::string_view value);

}  // namespace zdx::dxf
