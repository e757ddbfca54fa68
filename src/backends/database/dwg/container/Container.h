// The outermost form of a file: where its sections are.
//
// Files have three forms, by their version.  Each gives the bytes of a section as they are meant:
// joined from pages, decompressed, mended.  Pages are only touched when somebody asks for what is
// in them.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "backends/database/model/Report.h"
#include "backends/database/model/Version.h"

namespace zdx::dwg {

enum class SectionId { kHeader, kClasses, kObjectMap, kObjects, kSummary, kPreview, kFileList };

// What keeps alive the bytes that a section gave: it may have had to join them, and lets a page go
// that nobody holds.
struct Scratch {
  std::string joined;
  std::shared_ptr<const std::string> page;
};

class Section {
 public:
  virtual ~Section() = default;

  virtual std::uint64_t size() const = 0;
  // The `count` bytes from `at` on; nullopt if they aren't all there or can't be read.  The view is
  // valid until `scratch` is used for other bytes or goes, and no longer than the section.
  virtual std::optional<std::string_view> Bytes(std::uint64_t at, std::uint64_t count,
                                                Scratch& scratch) = 0;
  // Where in the file the byte at `at` stands or, in a compressed page, that page.
  virtual std::uint64_t PlaceOf(std::uint64_t at) const = 0;

 protected:
  Section() = default;
  Section(const Section&) = default;
  Section& operator=(const Section&) = default;
};

class Container {
 public:
  virtual ~Container() = default;
  // The section; null if the file has none.  In the oldest form the section of the objects is the
  // whole file.
  virtual Section* Find(SectionId id) = 0;

 protected:
  Container() = default;
  Container(const Container&) = default;
  Container& operator=(const Container&) = default;
};

// The container of a drawing of AC1014 or later, or why its sections can't be found.  `bytes` is
// the whole file; it and `report`, which is told of all damage, outlive the container.
std::variant<std::unique_ptr<Container>, model::Finding> OpenContainer(model::Version version,
                                                                       std::string_view bytes,
                                                                       model::Report& report);

}  // namespace zdx::dwg
