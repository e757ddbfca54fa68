#include "formats/dwg/Containers.h"

namespace zdx::dwg {

Opened::Opened(Open open, std::string bytes)
    : bytes_(std::make_unique<std::string>(std::move(bytes))),
      report_(std::make_unique<model::Report>()),
      result_(open(*bytes_, *report_)) {}

std::wstring Opened::Refusal() const {
  const auto* const finding = std::get_if<model::Finding>(&result_);
  return finding == nullptr ? L"" : finding->text;
}

std::vector<std::wstring> Opened::Warnings() const { return TextsOf(*report_); }

std::optional<std::string> Opened::Part(SectionId id, std::uint64_t at, std::uint64_t count) {
  Section* const section = container().Find(id);
  Scratch scratch;
  const auto bytes = section == nullptr ? std::nullopt : section->Bytes(at, count, scratch);
  return bytes ? std::optional<std::string>(*bytes) : std::nullopt;
}

std::optional<std::string> Opened::All(SectionId id) {
  Section* const section = container().Find(id);
  return section == nullptr ? std::nullopt : Part(id, 0, section->size());
}

// Bytes that are asked for come in the scratch, so that a caller who keeps a view of an old scratch
// is found out.
std::optional<std::string_view> PlainSection::Bytes(std::uint64_t at, std::uint64_t count,
                                                    Scratch& scratch) {
  if (at > bytes_.size() || count > bytes_.size() - at) return std::nullopt;
  scratch.joined = bytes_.substr(static_cast<std::size_t>(at), static_cast<std::size_t>(count));
  return scratch.joined;
}

std::vector<std::wstring> TextsOf(const model::Report& report) {
  std::vector<std::wstring> texts;
  for (const model::Finding& finding : report.warnings) texts.push_back(finding.text);
  return texts;
}

}  // namespace zdx::dwg
