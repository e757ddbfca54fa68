#include "maker/Drawings.h"

#include <iterator>
#include <utility>

#include "maker/Plant.h"
#include "maker/Preview.h"
#include "support/dwg/DwgMaker.h"
#include "support/dxf/DxfMaker.h"

namespace examples {
namespace {

// What programs tell of themselves, as one of that name would.
drawing::AppInfoSpec Program() {
  const drawing::AppInfoEntry version = {"F348D81B-0ACC-4D3E-BAB1-CF81F7B450B3", "7.2.15.0"};
  const drawing::AppInfoEntry comment = {"25F0D0B8-D7A1-4993-B2FA-9BF9286FA1FD",
                                         "Saved by Example Drafter, a program that was made up."};
  const drawing::AppInfoEntry summary = {
      "F29F85E0-4FF9-1068-AB91-08002B27B3D9",
      "<prop_set fmt_id=\"{f29f85e0-4ff9-1068-ab91-08002b27b3d9}\">"
      "<prop id=\"8\"><string>drawing office</string></prop>"
      "<prop id=\"10\"><datetime>2024-05-17T09:30:00</datetime></prop>"
      "<prop id=\"258\"><string>Example Drafter</string></prop>"
      "<prop id=\"259\"><string>7.2.15.0</string></prop></prop_set>"};
  const drawing::AppInfoEntry product = {
      "5196E0E8-CEC5-44B2-A8BF-F6E83B859D44",
      "\"<ProductInformation name =\\\"Example Drafter\\\" "
      "build_version=\\\"7.2.15.0(x64)\\\" registry_version=\\\"7.2\\\" "
      "install_id_string=\\\"EXAMPLE-DRAFTER\\\" registry_localeID=\\\"1033\\\">\""};
  return {.entries = {version, comment, product}, .history = {version, comment, summary, product}};
}

// The drawing as a DWG file of `version`, with the preview that such files have.
std::string Dwg(drawing::DrawingSpec spec, const char* version) {
  spec.version = version;
  const bool hasPng = spec.version >= "AC1027";
  spec.previews = {hasPng ? drawing::PreviewSpec{drawing::PreviewKind::Png, PreviewPng()}
                          : drawing::PreviewSpec{drawing::PreviewKind::Bitmap, PreviewBitmap()}};
  spec.appInfo = Program();
  return dwg::Make(spec);
}

std::string SitePlanDwg(const char* version) { return Dwg(SitePlan(version), version); }

// What a vertical module of the examples reads beside the drawing.
constexpr const char* kPlantLinks = "operating-manual.txt\ninspection-2024.txt\n";
constexpr const char* kManual = "Alder Works: operating manual\n\nClose the gates at night.\n";

std::vector<ExampleFile> PlantFiles() {
  return {
      {"plant/plant.dwg", Dwg(Plant(), "AC1032")},   {"plant/halls.dwg", Dwg(Halls(), "AC1027")},
      {"plant/machines.dxf", dxf::Make(Machines())}, {"plant/pipes.dxf", dxf::Make(Pipes())},
      {"plant/flow-sheet.pdf", FlowSheet()},         {"plant/plant.links", kPlantLinks},
      {"plant/operating-manual.txt", kManual}};
}

}  // namespace

std::vector<ExampleFile> AllFiles() {
  std::vector<ExampleFile> files = {
      {"site-plan.dxf", dxf::Make(SitePlan("AC1032"))},
      {"grading.dxf", dxf::Make(Grading(), {.lineEnd = "\n"})},
      {"survey-r2000.dxf", dxf::Make(Survey())},
      {"legacy-r12.dxf", dxf::Make(LegacyPlan(), {.form = dxf::Form::Binary})},
      {"site-plan.dwg", SitePlanDwg("AC1032")},
      {"site-plan-2013.dwg", SitePlanDwg("AC1027")},
      {"site-plan-2010.dwg", SitePlanDwg("AC1024")},
      {"site-plan-2007.dwg", SitePlanDwg("AC1021")},
      {"grading-2004.dwg", Dwg(Grading(), "AC1018")},
      {"survey-r2000.dwg", Dwg(Survey(), "AC1015")},
      {"legacy-r14.dwg", Dwg(LegacyPlan(), "AC1014")}};
  std::vector<ExampleFile> plant = PlantFiles();
  std::move(plant.begin(), plant.end(), std::back_inserter(files));
  return files;
}

}  // namespace examples
