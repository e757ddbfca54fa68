// Writes a text drawing of a chosen size, and beside it the list of what a reader must tell of it.

#include <charconv>
#include <exception>
#include <iostream>
#include <string_view>

#include "generate/Arguments.h"
#include "generate/LargeDrawing.h"
#include "support/dxf/DxfMaker.h"

namespace {

constexpr double kDefaultMegabytes = 200.0;
constexpr double kBytesInMegabyte = 1e6;

bool ReadSize(std::string_view text, double& megabytes) {
  const char* end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, megabytes);
  return result.ec == std::errc() && result.ptr == end && megabytes > 0 && megabytes < 1e6;
}

void Print(const bench::Counts& counts) {
  std::cout << "bytes " << counts.bytes << "\nlines " << counts.lines << "\npolylines "
            << counts.polylines << "\nvertices " << counts.vertices << "\ncircles "
            << counts.circles << "\ntexts " << counts.texts << "\ninserts " << counts.inserts
            << "\nattributes " << counts.attributes << "\nlayers " << counts.layers << "\nblocks "
            << counts.blocks << "\nnamed objects " << counts.namedObjects << '\n';
}

void WritePlan(const std::string& path, double megabytes) {
  const auto bytes = static_cast<std::uint64_t>(megabytes * kBytesInMegabyte);
  const bench::Generated generated = bench::WriteLargeDrawing(path, bytes);
  bench::WriteExpected(path, generated.expected);
  Print(generated.counts);
}

void WriteTitled(const std::string& path, int entities, bench::Place place) {
  const bench::TitledDrawing titled = bench::MakeTitledDrawing("AC1032", entities, place);
  bench::WriteBytes(path, dxf::Make(titled.spec));
  bench::WriteExpected(path, titled.expected);
}

}  // namespace

int main(int argc, char** argv) {
  double megabytes = kDefaultMegabytes;
  int entities = 0;
  bench::Place place = bench::Place::ModelSpace;
  const bool isTitled =
      argc == 4 && bench::ReadPlace(argv[3], place) && bench::ReadCount(argv[2], entities);
  const bool isPlan = argc == 2 || (argc == 3 && ReadSize(argv[2], megabytes));
  if (!isTitled && !isPlan) {
    std::cerr
        << "usage: generate_dxf FILE [MEGABYTES]\n"
           "       generate_dxf FILE ENTITIES titles | nested-titles\n"
           "Writes FILE, of 200 megabytes by default, and FILE.expected.  With titles every\n"
           "tenth entity is a reference of the block TITLE, with attributes; nested ones all\n"
           "stand in another block.\n";
    return 2;
  }
  try {
    if (isTitled) {
      WriteTitled(argv[1], entities, place);
    } else {
      WritePlan(argv[1], megabytes);
    }
  } catch (const std::exception& error) {
    std::cerr << "generate_dxf: " << error.what() << '\n';
    return 1;
  }
}
