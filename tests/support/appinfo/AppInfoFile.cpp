#include "support/appinfo/AppInfoFile.h"

#include <algorithm>

namespace appinfo {
namespace {

constexpr std::size_t kHeaderSize = 128;

}  // namespace

std::string Bytes16(std::uint32_t value) {
  return {static_cast<char>(value & 0xFF), static_cast<char>((value >> 8) & 0xFF)};
}

std::string Bytes32(std::uint32_t value) { return Bytes16(value & 0xFFFF) + Bytes16(value >> 16); }

std::string Bytes(const Header& header) {
  std::string bytes(kHeaderSize, '\0');
  bytes.replace(0, header.magic.size(), header.magic);
  bytes[0x0B] = static_cast<char>(header.release);
  bytes.replace(0x0D, 4, Bytes32(header.first));
  bytes.replace(0x2C, 4, Bytes32(header.second));
  bytes.replace(0x30, 4, Bytes32(header.third));
  return bytes;
}

std::string Sentinel() {
  return std::string(
      "\x53\xDE\x38\x1D\xEC\x43\x21\xCA\x96\x19\xE1\xE2\x17\x1A\x2A\x67"
      "\x3B\xD9\x7F\xF7\x3C\xBB\xCE\x08\xA0\x53\xD8\xED\xD2\x8D\xC5\xC7",
      32);
}

std::string IdBytes(const GUID& id) {
  std::string bytes = Bytes32(id.Data1) + Bytes16(id.Data2) + Bytes16(id.Data3);
  for (const std::uint8_t byte : id.Data4) bytes += static_cast<char>(byte);
  return bytes;
}

std::string RawText(std::u16string_view units) {
  std::string bytes = Bytes16(static_cast<std::uint32_t>(units.size()));
  for (const char16_t unit : units) bytes += Bytes16(unit);
  return bytes;
}

std::string StoredText(std::u16string_view text) { return RawText(std::u16string(text) + u'\0'); }

std::string Bytes(const Entry& entry) { return IdBytes(entry.formatId) + StoredText(entry.text); }

std::string Bytes(const Block& block, std::uint32_t count) {
  std::string bytes = Sentinel() + Bytes32(block.word) + StoredText(block.label) + Bytes32(count);
  for (const Entry& entry : block.entries) bytes += Bytes(entry);
  return bytes;
}

std::string Bytes(const Block& block) {
  return Bytes(block, static_cast<std::uint32_t>(block.entries.size()));
}

std::string WithBytesAt(std::string file, std::size_t offset, const std::string& bytes) {
  file.resize(std::max(file.size(), offset + bytes.size()), '\0');
  file.replace(offset, bytes.size(), bytes);
  return file;
}

std::string File(const Block& block) { return Bytes(Header{.first = kHeaderSize}) + Bytes(block); }

std::string FileWithSummary(const std::u16string& properties) {
  return File({.entries = {{kSummaryId, kSummaryHead + properties + u"</prop_set>"}}});
}

}  // namespace appinfo
