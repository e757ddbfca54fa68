// Writes a DWG drawing with a chosen number of entities, and beside it the list of what a reader
// must tell of it.

#include <charconv>
#include <cstdio>
#include <exception>
#include <fstream>
#include <iostream>
#include <random>
#include <string>
#include <string_view>

#include "support/dwg/DwgMaker.h"

namespace {

constexpr int kLayers = 50;
constexpr int kNamedObjects = 300;
constexpr int kGroups = 40;

bool ReadCount(std::string_view text, int& count) {
  const char* const end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, count);
  return result.ec == std::errc() && result.ptr == end && count > 0;
}

std::string LayerName(int number) { return "PLAN-" + std::to_string(number); }

// Lines, circles and texts all over the layers, with coordinates that don't compress well.
drawing::EntitySpec Entity(int number, std::mt19937& random) {
  const auto coordinate = [&random] { return static_cast<double>(random()) / 1e5; };
  const std::string layer = LayerName(number % kLayers);
  const drawing::Point at = {coordinate(), coordinate()};
  if (number % 10 == 0) return drawing::Text(layer, at, 2.5, "Room " + std::to_string(number));
  if (number % 5 == 0) return drawing::Circle(layer, at, coordinate());
  return drawing::Line(layer, at, {coordinate(), coordinate()});
}

drawing::DrawingSpec LargeDrawing(const std::string& version, int entities) {
  drawing::DrawingSpec spec;
  spec.version = version;
  spec.summary.title = "Large plan";
  spec.summary.author = "A. Drafter";
  spec.customProperties = {{"Project", "Measured"}};
  for (int i = 0; i < kLayers; ++i) spec.layers.emplace_back(LayerName(i));
  for (int i = 0; i < kGroups; ++i) {
    spec.groups.emplace_back(("Group " + std::to_string(i)).c_str());
  }
  for (int i = 0; i < kNamedObjects; ++i) {
    spec.rootEntries.emplace_back("RECORD_" + std::to_string(i), drawing::Xrecord());
  }
  std::mt19937 random(1);
  spec.entities.reserve(static_cast<std::size_t>(entities));
  for (int i = 0; i < entities; ++i) spec.entities.push_back(Entity(i, random));
  return spec;
}

bool WriteExpected(const std::string& path, const drawing::DrawingSpec& spec) {
  std::ofstream file(path, std::ios::binary);
  file << "2\t" << spec.summary.title << "\n4\t" << spec.summary.author << '\n';
  for (const auto& entry : spec.customProperties) file << entry.name << '\t' << entry.value << '\n';
  for (const auto& layer : spec.layers) file << "Layer Name\t" << layer.name << '\n';
  for (const auto& group : spec.groups) file << "Group Name\t" << group.name << '\n';
  return static_cast<bool>(file.flush());
}

bool WriteDrawing(const std::string& path, const drawing::DrawingSpec& spec) {
  const std::string bytes = dwg::Make(spec);
  std::ofstream file(path, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return static_cast<bool>(file.flush());
}

}  // namespace

int main(int argc, char** argv) {
  int entities = 0;
  if (argc != 4 || !ReadCount(argv[3], entities)) {
    std::cerr << "usage: generate_dwg FILE VERSION ENTITIES\n"
                 "Writes FILE, a drawing of the version (AC1032), and FILE.expected.\n";
    return 2;
  }
  try {
    const drawing::DrawingSpec spec = LargeDrawing(argv[2], entities);
    const std::string path = argv[1];
    if (WriteDrawing(path, spec) && WriteExpected(path + ".expected", spec)) return 0;
    std::cerr << "generate_dwg: can't write " << path << '\n';
  } catch (const std::exception& error) {
    std::cerr << "generate_dwg: " << error.what() << '\n';
  }
  return 1;
}
