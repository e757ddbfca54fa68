#pragma once

#include <string>
#include <vector>

#include "support/dwg/Fields.h"
#include "support/dwg/Types.h"

namespace dwg {

// One application's data on a record.
struct ApplicationData {
  Handle application;
  std::string bytes;
};

// What stands before the fields of a record.
struct RecordHead {
  unsigned type = 0;
  bool isEntity = false;
  std::vector<ApplicationData> data = {};
};

// The bytes of a record, from its size to its check.
std::string AssembleRecord(const RecordHead& head, const Fields& fields);

}  // namespace dwg
