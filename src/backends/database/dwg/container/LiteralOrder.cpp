#include "backends/database/dwg/container/LiteralOrder.h"

#include <array>
#include <cstdint>

namespace zdx::dwg {
namespace {

constexpr std::size_t kBlock = 32;

// `count` bytes from `from` on; two and three are reversed, sixteen are two halves, the later
// first.
struct Piece {
  std::uint8_t count = 0;
  std::uint8_t from = 0;
};

// The pieces that make a rest of as many bytes as the row's number.
constexpr std::array<std::array<Piece, 5>, kBlock> kRests = {{
    {},
    {{{1, 0}}},
    {{{2, 0}}},
    {{{3, 0}}},
    {{{4, 0}}},
    {{{1, 4}, {4, 0}}},
    {{{1, 5}, {4, 1}, {1, 0}}},
    {{{2, 5}, {4, 1}, {1, 0}}},
    {{{8, 0}}},
    {{{1, 8}, {8, 0}}},
    {{{1, 9}, {8, 1}, {1, 0}}},
    {{{2, 9}, {8, 1}, {1, 0}}},
    {{{4, 8}, {8, 0}}},
    {{{1, 12}, {4, 8}, {8, 0}}},
    {{{1, 13}, {4, 9}, {8, 1}, {1, 0}}},
    {{{2, 13}, {4, 9}, {8, 1}, {1, 0}}},
    {{{16, 0}}},
    {{{8, 9}, {1, 8}, {8, 0}}},
    {{{1, 17}, {16, 1}, {1, 0}}},
    {{{3, 16}, {16, 0}}},
    {{{4, 16}, {16, 0}}},
    {{{1, 20}, {4, 16}, {16, 0}}},
    {{{2, 20}, {4, 16}, {16, 0}}},
    {{{3, 20}, {4, 16}, {16, 0}}},
    {{{8, 16}, {16, 0}}},
    {{{8, 17}, {1, 16}, {16, 0}}},
    {{{1, 25}, {8, 17}, {1, 16}, {16, 0}}},
    {{{2, 25}, {8, 17}, {1, 16}, {16, 0}}},
    {{{4, 24}, {8, 16}, {16, 0}}},
    {{{1, 28}, {4, 24}, {8, 16}, {16, 0}}},
    {{{2, 28}, {4, 24}, {8, 16}, {16, 0}}},
    {{{1, 30}, {4, 26}, {8, 18}, {16, 2}, {2, 0}}},
}};

// Every row moves as many bytes as its number says.
consteval bool RowsAreWhole() {
  for (std::size_t row = 0; row < kRests.size(); ++row) {
    std::size_t sum = 0;
    for (const Piece piece : kRests[row]) sum += piece.count;
    if (sum != row) return false;
  }
  return true;
}
static_assert(RowsAreWhole());

void AppendPiece(std::string_view run, Piece piece, std::string& ordered) {
  const std::string_view bytes = run.substr(piece.from, piece.count);
  if (piece.count == 2 || piece.count == 3) {
    ordered.append(bytes.rbegin(), bytes.rend());
  } else if (piece.count == 16) {
    ordered.append(bytes.substr(8)).append(bytes.substr(0, 8));
  } else {
    ordered.append(bytes);
  }
}

}  // namespace

bool AppendLiterals(std::string_view run, OutputWindow& out) {
  std::string ordered;
  ordered.reserve(run.size());
  while (run.size() >= kBlock) {
    for (const std::size_t from : {24u, 16u, 8u, 0u}) ordered.append(run.substr(from, 8));
    run.remove_prefix(kBlock);
  }
  for (const Piece piece : kRests[run.size()]) AppendPiece(run, piece, ordered);
  return out.Append(ordered);
}

}  // namespace zdx::dwg
