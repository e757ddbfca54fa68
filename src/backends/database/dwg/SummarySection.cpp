#include "backends/database/dwg/SummarySection.h"

#include <cstdint>

#include "backends/database/dwg/bits/ByteReader.h"

namespace zdx::dwg {
namespace {

constexpr std::size_t kTimesSize = std::size_t{3} * 8;

class SummaryReader : public ByteReader {
 public:
  SummaryReader(std::string_view bytes, Format format)
      : ByteReader(bytes), unit_(format.HasStringStream() ? 2 : 1) {}

  std::optional<std::string_view> Text() {
    const auto count = Number<std::uint16_t>();
    if (!count) return std::nullopt;
    auto text = Take(*count * unit_);
    const bool terminated = text && text->size() >= unit_ &&
                            text->substr(text->size() - unit_) == std::string_view("\0\0", unit_);
    if (terminated) text->remove_suffix(unit_);
    return text;
  }

 private:
  std::size_t unit_;
};

bool ReadCustom(SummaryReader& reader, StoredSummary& summary) {
  if (!reader.Skip(kTimesSize)) return false;
  const auto count = reader.Number<std::uint16_t>();
  if (!count) return false;
  for (std::size_t i = 0; i < *count; ++i) {
    const auto name = reader.Text();
    const auto value = reader.Text();
    if (!name || !value) return false;
    summary.custom.emplace_back(*name, *value);
  }
  return true;
}

}  // namespace

StoredSummary ReadSummarySection(std::string_view bytes, Format format) {
  StoredSummary summary;
  SummaryReader reader(bytes, format);
  for (auto& field : summary.fields) field = reader.Text();
  summary.damaged = !ReadCustom(reader, summary);
  return summary;
}

}  // namespace zdx::dwg
