#include "backends/database/dwg/FileList.h"

#include <cstdint>
#include <optional>

#include "backends/database/dwg/bits/ByteReader.h"
#include "base/LittleEndian.h"

namespace zdx::dwg {
namespace {

constexpr std::size_t kMostListed = 100000;

// Purpose, time, size, a word, how often it is needed.
constexpr std::size_t kTailSize = 4 + 4 + 4 + 2 + 4;

constexpr std::size_t kWideSize = 4;
constexpr std::uint32_t kLastCharacter = 0x10FFFF;
constexpr std::uint32_t kFirstOfPairs = 0x10000;

class ListReader : public ByteReader {
 public:
  using ByteReader::ByteReader;

  std::optional<std::uint32_t> Number() { return ByteReader::Number<std::uint32_t>(); }

  std::optional<std::string_view> Text() {
    const auto size = Number();
    return size ? Take(*size) : std::nullopt;
  }
};

// Whether each character of a text has four bytes.  Two of UTF-16 would make no character, for the
// second one would have to be a control character.
bool IsWide(std::string_view text) {
  if (text.size() % kWideSize != 0) return false;
  for (std::size_t i = 0; i < text.size(); i += kWideSize) {
    if (LittleEndianAt<std::uint32_t>(text, i) > kLastCharacter) return false;
  }
  return true;
}

void AppendUnit(std::string& text, std::uint32_t unit) {
  text += static_cast<char>(unit & 0xFF);
  text += static_cast<char>(unit >> 8);
}

std::string Utf16FromWide(std::string_view wide) {
  std::string text;
  text.reserve(wide.size() / 2);
  for (std::size_t i = 0; i < wide.size(); i += kWideSize) {
    const auto point = LittleEndianAt<std::uint32_t>(wide, i);
    if (point < kFirstOfPairs) {
      AppendUnit(text, point);
      continue;
    }
    const std::uint32_t rest = point - kFirstOfPairs;
    AppendUnit(text, 0xD800 + (rest >> 10));
    AppendUnit(text, 0xDC00 + (rest & 0x3FF));
  }
  return text;
}

std::string AsStored(std::string_view text, Format format) {
  if (format.HasStringStream() && IsWide(text)) return Utf16FromWide(text);
  return std::string(text);
}

bool SkipPurposes(ListReader& reader) {
  const auto count = reader.Number();
  if (!count) return false;
  for (std::uint32_t i = 0; i < *count; ++i) {
    if (!reader.Text()) return false;
  }
  return true;
}

std::optional<ListedFile> ReadFile(ListReader& reader, Format format) {
  const auto name = reader.Text();
  const auto path = reader.Text();
  const auto fingerprint = reader.Text();
  const auto version = reader.Text();
  if (!name || !path || !fingerprint || !version || !reader.Skip(kTailSize)) return std::nullopt;
  return ListedFile{AsStored(*name, format), AsStored(*path, format)};
}

}  // namespace

FileList ReadFileList(std::string_view bytes, Format format) {
  FileList list;
  if (bytes.empty()) return list;
  ListReader reader(bytes);
  list.damaged = true;
  if (!SkipPurposes(reader)) return list;
  const auto count = reader.Number();
  if (!count) return list;
  for (std::uint32_t i = 0; i < *count; ++i) {
    if (list.files.size() == kMostListed) return list;
    std::optional<ListedFile> file = ReadFile(reader, format);
    if (!file) return list;
    list.files.push_back(*std::move(file));
  }
  list.damaged = false;
  return list;
}

}  // namespace zdx::dwg
