#include "backends/database/dwg/records/Streams.h"

#include <optional>

namespace zdx::dwg {
namespace {

constexpr std::uint64_t kLengthBits = 16;
// In the word nearest to the handles: another word before it has the high part of the length.
constexpr std::uint64_t kHasHighPart = 0x8000;

struct Run {
  std::uint64_t begin = 0;
  std::uint64_t end = 0;
};

// The run of texts that ends before `handles`: its length stands behind it, and behind that a bit
// that says whether it is there.
std::optional<Run> FindTexts(std::string_view bytes, std::uint64_t begin, std::uint64_t handles) {
  const auto word = [&](std::uint64_t at) {
    BitReader reader(bytes, at, handles);
    return std::uint64_t{reader.RS()};
  };
  if (handles <= begin || !BitReader(bytes, handles - 1, handles).B()) return std::nullopt;
  std::uint64_t end = handles - 1;
  if (end - begin < kLengthBits) return std::nullopt;
  end -= kLengthBits;
  std::uint64_t length = word(end);
  if ((length & kHasHighPart) != 0) {
    if (end - begin < kLengthBits) return std::nullopt;
    end -= kLengthBits;
    length = (length & (kHasHighPart - 1)) | word(end) << 15;
  }
  if (length > end - begin) return std::nullopt;
  return Run{end - length, end};
}

}  // namespace

Streams Streams::OfRecord(Format format, std::string_view bytes, std::uint64_t begin,
                          std::uint64_t handles, std::uint64_t end) {
  Streams streams;
  streams.handles_ = BitReader(bytes, handles, end);
  streams.handlesApart_ = true;
  std::uint64_t dataEnd = handles;
  if (format.HasStringStream()) {
    streams.texts_ = Texts::kNone;
    if (const std::optional<Run> texts = FindTexts(bytes, begin, handles)) {
      streams.strings_ = BitReader(bytes, texts->begin, texts->end);
      streams.texts_ = Texts::kApart;
      dataEnd = texts->begin;
    }
  }
  streams.data_ = BitReader(bytes, begin, dataEnd);
  return streams;
}

Streams Streams::OfSection(std::string_view bytes, std::uint64_t begin, std::uint64_t end) {
  Streams streams;
  streams.data_ = BitReader(bytes, begin, end);
  return streams;
}

bool Streams::Good() const { return !data_.failed() && !strings_.failed() && !handles_.failed(); }

std::string Streams::Text() {
  // Where there is no run of texts, all of them are empty.
  if (texts_ == Texts::kNone) return {};
  if (texts_ == Texts::kApart) return strings_.Bytes(std::uint64_t{strings_.BS()} * 2);
  std::string text = data_.Bytes(data_.BS());
  // Most writers store a terminator, and count it.
  if (!text.empty() && text.back() == '\0') text.pop_back();
  return text;
}

}  // namespace zdx::dwg
