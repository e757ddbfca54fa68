// Files in the form of AC1021, made of whatever pages and maps a test wants.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace handmade {

struct CodedPage {
  // As it is meant; it is stored plain in words of the error-correcting code, or as it is.
  std::string contents;
  std::uint64_t start = 0;
  // If the section map tells other sizes.
  std::optional<std::uint64_t> size = {};
  std::optional<std::uint64_t> storedSize = {};
};

struct CodedPart {
  std::string name;
  std::uint64_t size = 0;
  bool withParity = true;
  std::vector<CodedPage> pages = {};
  std::optional<std::uint64_t> pageCount = {};
};

struct CodedSpec {
  std::vector<CodedPart> parts = {};
  // Changes the fields of the head page before they are checked.
  std::function<void(std::string& fields)> editHead = {};
};

struct CodedBytes {
  std::string bytes;
  // Where the pages of all parts begin, in their order.
  std::vector<std::size_t> pages;
  std::size_t pageMapAt = 0;
  std::size_t pageMapCopyAt = 0;
  std::size_t sectionMapAt = 0;
  std::size_t sectionMapCopyAt = 0;
};

// The pages of parts are numbered from 1; then come the two section maps and the two page maps.
CodedBytes MakeCoded(const CodedSpec& spec);

}  // namespace handmade
