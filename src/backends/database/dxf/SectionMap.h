// Where the sections of a file lie.
#pragma once

#include <array>
#include <iterator>
#include <optional>
#include <string_view>
#include <vector>

#include "backends/database/dxf/TagStream.h"
#include "backends/database/dxf/Tokens.h"

namespace zdx::dxf {

// One section: its objects begin at `begin` and end before `end`.
struct Section {
  std::string_view name;
  std::size_t begin = 0;
  std::size_t end = 0;
};

// Finds sections in the order of the file, and no further than asked: a question that the header
// answers costs no look at the rest.
class SectionMap {
 public:
  explicit SectionMap(const TagStream& stream) : stream_(&stream), next_(stream.Begin()) {}

  // The first section of that name; nullopt if the file has none.
  std::optional<Section> Find(std::string_view name);
  // All sections of the file.
  const std::vector<Section>& All();

  // What was wrong with sections, in words, and where; grows as sections are found.
  struct Flaw {
    const wchar_t* text;
    std::size_t at;
  };
  const std::vector<Flaw>& flaws() const { return flaws_; }
  // Where references of blocks begin in the sections that were found, in order.  They are noted on
  // the way, since to look for them alone costs as much again.
  const std::vector<std::size_t>& references() const { return references_; }

 private:
  bool FindNext();
  std::size_t FindEnd(std::size_t from);
  bool ComesAgain(std::string_view name);

  const TagStream* stream_;
  std::size_t next_;
  bool complete_ = false;
  std::vector<Section> sections_;
  // Which of those that are read were found.
  std::array<bool, std::size(kReadSections)> isFound_ = {};
  std::vector<Flaw> flaws_;
  std::vector<std::size_t> references_;
};

}  // namespace zdx::dxf
