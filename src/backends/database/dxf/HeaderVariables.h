// The variables of the header section.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "backends/database/dxf/TagStream.h"

namespace zdx::dxf {

// The variables that are read here, in the order of the file, each with its first value; points
// have more, which nobody asks for.  A header may hold any number of others.
class HeaderVariables {
 public:
  struct Variable {
    std::string_view name;
    // nullopt if it couldn't be read.
    std::optional<Tag> value;
  };

  HeaderVariables() = default;
  // Reads the variables that begin between `begin` and `end`.
  HeaderVariables(const TagStream& stream, std::size_t begin, std::size_t end);

  // The first variable of that name; null if there is none.
  const Variable* Find(std::string_view name) const;
  const std::vector<Variable>& all() const { return variables_; }
  // Where the variables were damaged, in order.
  const std::vector<std::size_t>& damages() const { return damages_; }

 private:
  std::vector<Variable> variables_;
  std::vector<std::size_t> damages_;
};

}  // namespace zdx::dxf
