// One object's record, up to its own fields.
//
//   size (MS, from behind it and behind the next to the check)
//   size of the handles in bits (UMC, from AC1024 on)
//   type, place of the handles (AC1015 to AC1021), own handle
//   extended data: size, application, bytes; until a size of 0
//   an entity's picture
//   place of the handles (AC1014)
//   fields, texts, handles; a check (2 bytes)
#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "backends/database/dwg/container/Container.h"
#include "backends/database/dwg/records/Format.h"
#include "backends/database/dwg/records/ObjectTypes.h"
#include "backends/database/dwg/records/Streams.h"
#include "backends/database/model/Drawing.h"
#include "backends/database/model/Report.h"

namespace zdx::dwg {

// Holds the bytes that its streams read.
class Record {
 public:
  // How much of a record is read: all of it; of a long one the front, which has all fields but the
  // later ones of its handles, for a block's record may name a million entities; or nothing behind
  // its own handle.
  enum class Extent { kWhole, kFront, kHead };

  // The record at `at` in the section of the objects, if what is read of it has `most` bytes at
  // most.
  Record(Section& objects, std::uint64_t at, Format format, Extent extent = Extent::kWhole,
         std::uint64_t most = std::numeric_limits<std::uint64_t>::max());
  Record(const Record&) = delete;
  Record& operator=(const Record&) = delete;

  // Whether its head could be read; nothing else tells anything otherwise.
  bool Whole() const { return whole_; }
  // Whether its check is right, which takes a look at every byte.  That of a long record of which
  // only the front was read can't be told: its pages have sums of their own.
  bool CheckIsRight() const;
  // Of what was read, in bytes.
  std::uint64_t size() const { return bytes_.size(); }
  // Whether only the front was read.
  bool IsCut() const { return isCut_; }
  ObjectType type() const { return type_; }
  // Its own handle, from which others are counted.
  model::Handle handle() const { return handle_; }

  // What applications keep in it: the reference to the application's record, and its bytes.  Those
  // before damage if there is any.
  std::vector<std::pair<HandleReference, std::string>> ExtendedData() const;
  // Its fields, none if only its head was read.  `isEntity` tells whether a picture stands before
  // them, which the type alone doesn't tell.  nullopt if what stands before them runs past their
  // end.
  std::optional<Streams> Fields(bool isEntity);

 private:
  bool ReadHead(std::string_view bytes, std::uint64_t size, std::uint64_t handleBits);
  void SkipExtendedData(BitReader& reader) const;
  void SkipPicture(BitReader& reader) const;

  Format format_;
  Scratch scratch_;
  // What was read, and the part from its type to its check.
  std::string_view bytes_;
  std::string_view body_;
  bool whole_ = false;
  bool isCut_ = false;
  ObjectType type_ = 0;
  model::Handle handle_ = 0;
  // In bits of the body.
  std::uint64_t handlesAt_ = 0;
  std::uint64_t extendedDataAt_ = 0;
};

}  // namespace zdx::dwg
