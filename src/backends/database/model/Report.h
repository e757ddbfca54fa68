// What the last opening of a drawing in this process found.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace zdx::model {

// Something wrong with a file, and where: a line counted from 1 in a text, an offset counted from 0
// elsewhere.
struct Finding {
  std::wstring text;
  std::optional<std::uint64_t> offset;
  std::optional<std::uint64_t> line;
  std::optional<std::uint64_t> handle;
};

struct Report {
  // How many warnings are kept; a damaged file can have one for every line.
  static constexpr std::size_t kMostWarnings = 100;

  std::wstring path;
  std::wstring format;
  std::wstring version;
  std::wstring codePage;
  std::vector<Finding> errors;
  std::vector<Finding> warnings;
  // All of them, kept or not.  One that isn't kept counts each time that it is found.
  std::uint64_t warningCount = 0;

  // Counts a warning that isn't kept yet, and keeps it if there is room.
  void Warn(Finding finding);

  // Starts the report of a new opening, which becomes the last one.  The reader of the drawing
  // keeps it as long as it may add to it.
  static std::shared_ptr<Report> Begin(std::wstring path);
  // A copy of the last report; empty if nothing was opened yet.
  static Report Last();
};

// Lets what is the last report now be the last one again when it goes: for openings of other
// drawings that belong to one that the client asked for.
class KeptReport {
 public:
  KeptReport();
  ~KeptReport();
  KeptReport(const KeptReport&) = delete;
  KeptReport& operator=(const KeptReport&) = delete;

 private:
  std::shared_ptr<Report> kept_;
};

}  // namespace zdx::model
