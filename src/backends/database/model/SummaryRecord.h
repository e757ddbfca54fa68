// The summary of AC1012 to AC1015, which stands in a free record of the root dictionary.
#pragma once

#include <string>

#include "backends/database/model/Drawing.h"

namespace zdx::model {

// Gathers the record's groups, whichever format they stand in.
class SummaryRecord {
 public:
  // Whether a group of that code tells something.
  static bool Wants(int code);
  // Takes a text group.  The last one of a field counts; custom entries keep their order.
  void Take(int code, const std::wstring& text);
  // The summary.  If groups may be lost, a field that wasn't told isn't known to be empty.
  Summary Finish(bool lost);

 private:
  Summary summary_;
  unsigned told_ = 0;
};

}  // namespace zdx::model
