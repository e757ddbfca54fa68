// The checks of AC1021.  Like everything in that version they take the bytes in an order of their
// own, and what they begin with depends on how many there are.
#pragma once

#include <cstdint>
#include <string_view>

namespace zdx::dwg {

// Of a page's data before compression.
std::uint64_t CodedPageSum(std::string_view bytes);
// Of a page's data after compression, and of the two maps before and after it.
std::uint64_t CodedPageCrc(std::string_view bytes);
// Of the head page: its compressed bytes, and its fields.
std::uint64_t CodedHeadCrc(std::string_view bytes);

}  // namespace zdx::dwg
