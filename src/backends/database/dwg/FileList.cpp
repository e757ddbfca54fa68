#include "backends/database/dwg/FileList.h"

#include <cstdint>
#include <optional>

#include "base/LittleEndian.h"

namespace zdx::dwg {
namespace {

constexpr std::size_t kMostListed = 100000;

// Purpose, time, size, a word, how often it is needed.
constexpr std::size_t kTailSize = 4 + 4 + 4 + 2 + 4;

constexpr std::size_t kWideSize = 4;

class ListReader {
 public:
  explicit ListReader(std::string_view bytes) : bytes_(bytes) {}

  std::optional<std::uint32_t> Number() {
    const auto bytes = Take(sizeof(std::uint32_t));
    return bytes ? std::optional(LittleEndian<std::uint32_t>(*bytes)) : std::nullopt;
  }

  std::optional<std::string_view> Text() {
    const auto size = Number();
    return size ? Take(*size) : std::nullopt;
  }

  bool Skip(std::size_t count) { return Take(count).has_value(); }

 private:
  std::optional<std::string_view> Take(std::size_t count) {
    if (count > bytes_.size()) {
      bytes_ = {};
      return std::nullopt;
    }
    const std::string_view taken = bytes_.substr(0, count);
    bytes_.remove_prefix(count);
    return taken;
  }

  std::string_view bytes_;
};

// Whether each character of a text has four bytes, of which the high ones are zero.
bool IsWide(std::string_view text) {
  if (text.empty() || text.size() % kWideSize != 0) return false;
  for (std::size_t i = 0; i < text.size(); i += kWideSize) {
    if (text[i + 2] != '\0' || text[i + 3] != '\0') return false;
  }
  return true;
}

// The first `kept` bytes of each character.
std::string Narrow(std::string_view text, std::size_t kept) {
  std::string narrow;
  narrow.reserve(text.size() / kWideSize * kept);
  for (std::size_t i = 0; i < text.size(); i += kWideSize) narrow += text.substr(i, kept);
  return narrow;
}

std::string AsStored(std::string_view text, Format format) {
  if (IsWide(text)) return Narrow(text, format.HasStringStream() ? 2 : 1);
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
