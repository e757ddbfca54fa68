// The classes that a file declares.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "backends/database/dxf/TagStream.h"

namespace zdx::dxf {

// From the type that stands at an object, or the number that stands in a proxy, to a class name.
class ClassTable {
 public:
  ClassTable() = default;
  // Reads the declarations between `begin` and `end`.
  ClassTable(const TagStream& stream, std::size_t begin, std::size_t end);

  // The class of objects of `type`, as the file spells it.
  std::optional<std::string_view> ClassOfType(std::string_view type) const;
  // The class that a proxy means by `number`; the first declared class has the number 500.
  std::optional<std::string_view> ClassOfNumber(std::int64_t number) const;
  // Where declarations were damaged, in order.
  const std::vector<std::size_t>& damages() const { return damages_; }

 private:
  struct Row {
    std::string_view type;
    std::string_view className;
  };

  std::vector<Row> rows_;
  std::vector<std::size_t> damages_;
};

}  // namespace zdx::dxf
