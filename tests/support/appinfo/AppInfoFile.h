// DWG files of nothing but a header and an application-information block, byte by byte.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ZDXEngine/Automation.h"

namespace appinfo {

// What the file's first 128 bytes tell.
struct Header {
  std::string magic = "AC1024";
  std::uint8_t release = 0;
  std::uint32_t first = 0;
  std::uint32_t second = 0;
  std::uint32_t third = 0;
};

// A format id in the order of its fields, and the set's text.
struct Entry {
  GUID formatId;
  std::u16string text;
};

struct Block {
  std::uint32_t word = 3;
  std::u16string label = u"AppInfoDataList";
  std::vector<Entry> entries;
};

inline constexpr GUID kSummaryId = {
    0xF29F85E0, 0x4FF9, 0x1068, {0xAB, 0x91, 0x08, 0x00, 0x2B, 0x27, 0xB3, 0xD9}};
inline constexpr GUID kOtherId = {
    0x01020304, 0x0506, 0x0708, {0x09, 0x0A, 0x0B, 0x0C, 0x0D, 0x0E, 0x0F, 0x10}};
inline constexpr char16_t kSummaryHead[] =
    u"<prop_set fmt_id=\"{F29F85E0-4FF9-1068-AB91-08002B27B3D9}\">";

// Little-endian integers.
std::string Bytes16(std::uint32_t value);
std::string Bytes32(std::uint32_t value);

std::string Bytes(const Header& header);
std::string Sentinel();
std::string IdBytes(const GUID& id);
// The number of units, then the units, without anything added.
std::string RawText(std::u16string_view units);
// The same with a terminator, which the number counts.
std::string StoredText(std::u16string_view text);
std::string Bytes(const Entry& entry);
// The whole block; `count` is the number of entries that it announces.
std::string Bytes(const Block& block, std::uint32_t count);
std::string Bytes(const Block& block);

// `file` with `bytes` at `offset`, and zeros in a gap between.
std::string WithBytesAt(std::string file, std::size_t offset, const std::string& bytes);

// A file whose header leads to the block, which stands right behind it.
std::string File(const Block& block);
// The same with one entry: the summary set with `properties` behind a good head.
std::string FileWithSummary(const std::u16string& properties);

}  // namespace appinfo
