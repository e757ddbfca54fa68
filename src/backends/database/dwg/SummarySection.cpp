#include "backends/database/dwg/SummarySection.h"

#include "base/LittleEndian.h"

namespace zdx::dwg {
namespace {

constexpr std::size_t kTimesSize = std::size_t{3} * 8;

class SummaryReader {
 public:
  SummaryReader(std::string_view bytes, Format format)
      : bytes_(bytes), unit_(format.HasStringStream() ? 2 : 1) {}

  std::optional<std::string_view> Text() {
    const auto count = Number();
    if (!count) return std::nullopt;
    auto text = Take(*count * unit_);
    const bool terminated = text && text->size() >= unit_ &&
                            text->substr(text->size() - unit_) == std::string_view("\0\0", unit_);
    if (terminated) text->remove_suffix(unit_);
    return text;
  }

  std::optional<std::size_t> Number() {
    const auto bytes = Take(2);
    return bytes ? std::optional<std::size_t>(LittleEndian<std::uint16_t>(*bytes)) : std::nullopt;
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
  std::size_t unit_;
};

bool ReadCustom(SummaryReader& reader, StoredSummary& summary) {
  if (!reader.Skip(kTimesSize)) return false;
  const auto count = reader.Number();
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
