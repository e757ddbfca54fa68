// Containers opened from bytes, and sections that are just bytes.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "backends/database/dwg/container/Container.h"

namespace zdx::dwg {

// Keeps the bytes and the report of what it opens.
class Opened {
 public:
  using Open = std::variant<std::unique_ptr<Container>, model::Finding> (*)(std::string_view,
                                                                            model::Report&);
  Opened(Open open, std::string bytes);

  // Throws if the file was refused.
  Container& container() { return *std::get<std::unique_ptr<Container>>(result_); }
  const model::Report& report() const { return *report_; }
  // Why the file was refused; empty if it wasn't.
  std::wstring Refusal() const;
  std::vector<std::wstring> Warnings() const;

  std::optional<std::string> Part(SectionId id, std::uint64_t at, std::uint64_t count);
  std::optional<std::string> All(SectionId id);

 private:
  std::unique_ptr<std::string> bytes_;
  std::unique_ptr<model::Report> report_;
  std::variant<std::unique_ptr<Container>, model::Finding> result_;
};

// A section whose first byte stands at `place` in the file.
class PlainSection : public Section {
 public:
  explicit PlainSection(std::string bytes, std::uint64_t place = 0)
      : bytes_(std::move(bytes)), place_(place) {}

  std::uint64_t size() const override { return bytes_.size(); }
  std::optional<std::string_view> Bytes(std::uint64_t at, std::uint64_t count,
                                        Scratch& scratch) override;
  std::uint64_t PlaceOf(std::uint64_t at) const override { return place_ + at; }

 private:
  std::string bytes_;
  std::uint64_t place_;
};

std::vector<std::wstring> TextsOf(const model::Report& report);

}  // namespace zdx::dwg
