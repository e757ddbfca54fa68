// Writes a folder of drawings that refer to each other, each to several others, and beside it the
// list of what a walk from the first must tell.

#include <exception>
#include <filesystem>
#include <iostream>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "generate/Arguments.h"
#include "generate/PlanEntities.h"
#include "support/dwg/DwgMaker.h"
#include "support/dxf/DxfMaker.h"

namespace {

constexpr int kPhotos = 50;
constexpr const char* kFont = "txt";

// What makes a drawing of about 100 KB.
constexpr int kDwgEntities = 2100;
constexpr int kDxfEntities = 490;

std::string Numbered(const char* name, int number, const std::string& extension) {
  const std::string digits = std::to_string(number);
  return name + std::string(4 - std::min<std::size_t>(4, digits.size()), '0') + digits + extension;
}

// All are reached by the first two, in a tree; the others lead across it and back.
std::set<int> TargetsOf(int number, int count) {
  std::set<int> targets = {(number * 7 + 3) % count, (number * 11 + 5) % count, number / 3};
  for (const int below : {2 * number + 1, 2 * number + 2}) {
    if (below < count) targets.insert(below);
  }
  return targets;
}

drawing::DrawingSpec DrawingOf(int number, int count, const std::string& extension) {
  drawing::DrawingSpec spec;
  spec.textStyles = {{"Standard", kFont}};
  for (int i = 0; i < bench::kPlanLayers; ++i) spec.layers.emplace_back(bench::PlanLayer(i));
  for (const int target : TargetsOf(number, count)) {
    const std::string path = Numbered("plan-", target, extension);
    spec.blocks.push_back(drawing::XrefBlock("PLAN" + std::to_string(target), path));
    spec.entities.push_back(drawing::Insert(spec.blocks.back().name));
  }
  spec.images = {{"PHOTO", Numbered("photo-", number % kPhotos, ".png")}};
  std::mt19937 random(static_cast<unsigned>(number) + 1);
  const int entities = extension == ".dwg" ? kDwgEntities : kDxfEntities;
  for (int i = 0; i < entities; ++i) spec.entities.push_back(bench::PlanEntity(i, random));
  return spec;
}

// By the name of the drawing that refers: the paths as they are stored.
void AddExpected(const std::string& name, const drawing::DrawingSpec& spec,
                 bench::Expected& expected) {
  for (const drawing::BlockSpec& block : spec.blocks) expected.emplace_back(name, block.path);
  for (const drawing::ImageSpec& image : spec.images) expected.emplace_back(name, image.path);
  expected.emplace_back(name, kFont);
}

void WriteProject(const std::filesystem::path& folder, const std::string& format, int count) {
  std::filesystem::create_directories(folder);
  const std::string extension = "." + format;
  bench::Expected expected;
  for (int number = 0; number < count; ++number) {
    const std::string name = Numbered("plan-", number, extension);
    const drawing::DrawingSpec spec = DrawingOf(number, count, extension);
    bench::WriteBytes((folder / name).string(),
                      format == "dwg" ? dwg::Make(spec) : dxf::Make(spec));
    AddExpected(name, spec, expected);
  }
  for (int photo = 0; photo < kPhotos; ++photo) {
    bench::WriteBytes((folder / Numbered("photo-", photo, ".png")).string(), "");
  }
  bench::WriteExpected(folder.string(), expected);
}

}  // namespace

int main(int argc, char** argv) {
  int count = 0;
  const std::string_view format = argc == 4 ? argv[2] : "";
  if ((format != "dwg" && format != "dxf") || !bench::ReadCount(argv[3], count)) {
    std::cerr
        << "usage: generate_project FOLDER dwg|dxf COUNT\n"
           "Writes COUNT drawings of AC1032 of about 100 KB to FOLDER, the first of which is\n"
           "plan-0000, and FOLDER.expected.\n";
    return 2;
  }
  try {
    WriteProject(argv[1], argv[2], count);
  } catch (const std::exception& error) {
    std::cerr << "generate_project: " << error.what() << '\n';
    return 1;
  }
}
