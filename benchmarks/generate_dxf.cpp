// Writes a text drawing of a chosen size, and beside it the list of what a reader must tell of it.

#include <charconv>
#include <cstdio>
#include <exception>
#include <fstream>
#include <iostream>
#include <string_view>

#include "generate/LargeDrawing.h"

namespace {

constexpr double kDefaultMegabytes = 200.0;
constexpr double kBytesInMegabyte = 1e6;

bool ReadSize(std::string_view text, double& megabytes) {
  const char* end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, megabytes);
  return result.ec == std::errc() && result.ptr == end && megabytes > 0 && megabytes < 1e6;
}

void WriteExpected(const std::string& path, const bench::Expected& expected) {
  std::ofstream file(path, std::ios::binary);
  for (const auto& [name, value] : expected) file << name << '\t' << value << '\n';
  if (!file.flush()) throw std::runtime_error("can't write " + path);
}

void Print(const bench::Counts& counts) {
  std::cout << "bytes " << counts.bytes << "\nlines " << counts.lines << "\npolylines "
            << counts.polylines << "\nvertices " << counts.vertices << "\ncircles "
            << counts.circles << "\ntexts " << counts.texts << "\ninserts " << counts.inserts
            << "\nattributes " << counts.attributes << "\nlayers " << counts.layers << "\nblocks "
            << counts.blocks << "\nnamed objects " << counts.namedObjects << '\n';
}

}  // namespace

int main(int argc, char** argv) {
  double megabytes = kDefaultMegabytes;
  if (argc < 2 || argc > 3 || (argc == 3 && !ReadSize(argv[2], megabytes))) {
    std::cerr << "usage: generate_dxf FILE [MEGABYTES]\n"
                 "Writes FILE, of 200 megabytes by default, and FILE.expected.\n";
    return 2;
  }
  try {
    const auto bytes = static_cast<std::uint64_t>(megabytes * kBytesInMegabyte);
    const bench::Generated generated = bench::WriteLargeDrawing(argv[1], bytes);
    WriteExpected(std::string(argv[1]) + ".expected", generated.expected);
    Print(generated.counts);
  } catch (const std::exception& error) {
    std::cerr << "generate_dxf: " << error.what() << '\n';
    return 1;
  }
}
