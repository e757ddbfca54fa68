#pragma once

#include <string>
#include <vector>

#include "support/drawing/Tags.h"

namespace dwg {

// The values of tags by their codes, the first where a code occurs more than once.
class TagValues {
 public:
  // The tags must outlive this.
  explicit TagValues(const std::vector<drawing::Tag>& tags) : tags_(tags) {}

  std::string Text(int code) const;
  // The pieces of a long text: those under `pieces` and the last one, under `last`.
  std::string Text(int pieces, int last) const;
  double Real(int code, double otherwise = 0.0) const;
  int Integer(int code, int otherwise = 0) const;
  bool Has(int code) const { return Find(code) != nullptr; }

 private:
  const drawing::Tag* Find(int code) const;

  const std::vector<drawing::Tag>& tags_;
};

double RealOf(const drawing::Tag& tag);
std::int64_t IntegerOf(const drawing::Tag& tag);
std::string TextOf(const drawing::Tag& tag);

}  // namespace dwg
