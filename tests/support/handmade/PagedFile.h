// Files in the form of AC1018, AC1024 and later, made of whatever pages and maps a test wants.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace handmade {

// The compressed form of `bytes`: one run of literals.
std::string OneRun(const std::string& bytes);
// That of `pattern`, at most 16384 bytes, over and over up to `size` bytes.
std::string Repeating(const std::string& pattern, std::size_t size);

struct PagedPage {
  // As it stands in the file.
  std::string stored;
  std::uint64_t start = 0;
  // The number in the section map, if it isn't the page's own.
  std::optional<std::uint32_t> id = {};
  // Changes the unmasked head, before its sum is made.
  std::function<void(std::string& head)> edit = {};
};

struct PagedPart {
  std::string name;
  std::uint64_t size = 0;
  std::uint32_t pageSize = 0;
  bool compressed = true;
  std::vector<PagedPage> pages = {};
  // If the section map tells another number of pages than there are.
  std::optional<std::uint32_t> pageCount = {};
};

struct PagedSpec {
  std::string magic = "AC1024";
  std::vector<PagedPart> parts = {};
  // Change the maps before they are compressed.
  std::function<void(std::string& map)> editPageMap = {};
  std::function<void(std::string& map)> editSectionMap = {};
  // Instead of the section map: its compressed form, and its size.
  std::optional<std::pair<std::string, std::uint32_t>> sectionMap = {};
  // Instead of that of the page map's page.
  std::optional<std::uint32_t> sectionMapId = {};
  std::optional<std::uint64_t> pageMapAt = {};
};

struct PagedBytes {
  std::string bytes;
  // Where the pages of all parts begin, in their order.
  std::vector<std::size_t> pages;
  std::size_t sectionMapAt = 0;
  std::size_t pageMapAt = 0;
};

// The numbers of pages count from 1, those of sections from 1; then come the section map's page and
// the page map's.
PagedBytes MakePaged(const PagedSpec& spec);

}  // namespace handmade
