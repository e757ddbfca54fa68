#include <algorithm>
#include <utility>

#include "support/dxf/Drawing.h"
#include "support/dxf/Tokens.h"

namespace dxf {
namespace {

constexpr double kCreated = 2460310.375;
constexpr double kUpdated = 2460431.68125;
constexpr double kDaysOfEditing = 1.28125;
constexpr double kFarAway = 1e20;

// A variable of the maker's, with the versions that know it.
struct KnownVariable {
  HeaderVariable variable;
  Version first = Version::AC1009;
  Version last = Version::AC1032;
};

std::vector<Tag> PointTags(double x, double y, double z) { return {{10, x}, {20, y}, {30, z}}; }

// Version, code page and what the drawing tells about itself.
std::vector<KnownVariable> Identity(const DrawingSpec& spec, Version version) {
  std::vector<KnownVariable> list = {{{kVersionVariable, {{1, spec.version}}}}};
  const Tag maintenance(version >= Version::AC1032 ? 90 : 70, 0);
  list.push_back({{kMaintenanceVariable, {maintenance}}, Version::AC1014});
  if (spec.statesCodePage) list.push_back({{"$DWGCODEPAGE", {{3, spec.codePage}}}});
  const SummarySpec& summary = spec.summary;
  const std::pair<const char*, const std::string&> fields[] = {
      {"$TITLE", summary.title},
      {"$SUBJECT", summary.subject},
      {"$AUTHOR", summary.author},
      {"$KEYWORDS", summary.keywords},
      {"$COMMENTS", summary.comments},
      {"$LASTSAVEDBY", summary.lastSavedBy},
      {"$REVISIONNUMBER", summary.revisionNumber}};
  for (const auto& [name, text] : fields) {
    if (!text.empty()) list.push_back({{name, {{1, text}}}, Version::AC1018});
  }
  for (const CustomProperty& property : spec.customProperties) {
    list.push_back({{"$CUSTOMPROPERTYTAG", {{1, property.name}}}, Version::AC1018});
    list.push_back({{"$CUSTOMPROPERTY", {{1, property.value}}}, Version::AC1018});
  }
  return list;
}

std::vector<KnownVariable> Drafting() {
  return {
      {{"$INSBASE", PointTags(0, 0, 0)}},
      {{"$EXTMIN", PointTags(kFarAway, kFarAway, kFarAway)}},
      {{"$EXTMAX", PointTags(-kFarAway, -kFarAway, -kFarAway)}},
      {{"$LIMMIN", {{10, 0}, {20, 0}}}},
      {{"$LIMMAX", {{10, 420}, {20, 297}}}},
      {{"$ORTHOMODE", {{70, 0}}}},
      {{"$REGENMODE", {{70, 1}}}},
      {{"$FILLMODE", {{70, 1}}}},
      {{"$MIRRTEXT", {{70, 0}}}},
      {{"$LTSCALE", {{40, 1}}}},
      {{"$ATTMODE", {{70, 1}}}},
      {{"$TEXTSIZE", {{40, 2.5}}}},
      {{"$CLAYER", {{8, "0"}}}},
      {{"$CELTYPE", {{6, "ByLayer"}}}},
      {{"$CECOLOR", {{62, 256}}}},
  };
}

std::vector<KnownVariable> Dimensioning(const SettingsSpec& settings) {
  return {
      {{"$DIMSCALE", {{40, 1}}}},
      {{"$DIMASZ", {{40, 2.5}}}},
      {{"$DIMTXT", {{40, 2.5}}}},
      {{"$DIMBLK", {{1, settings.dimblk}}}},
      {{"$DIMPOST", {{1, settings.dimpost}}}},
      {{"$DIMAPOST", {{1, settings.dimapost}}}},
      {{"$DIMLFAC", {{40, 1}}}},
      {{"$DIMBLK1", {{1, settings.dimblk1}}}},
      {{"$DIMBLK2", {{1, settings.dimblk2}}}},
      {{"$DIMSTYLE", {{2, "Standard"}}}},
  };
}

std::vector<KnownVariable> Rest(const DrawingSpec& spec, const std::string& handleSeed) {
  const SettingsSpec& settings = spec.settings;
  const bool hasHandleSeed = spec.hasHandles || HasObjects(VersionOf(spec.version));
  std::vector<KnownVariable> list = {
      {{"$LUNITS", {{70, 2}}}},
      {{"$LUPREC", {{70, 4}}}},
      {{"$AUNITS", {{70, 0}}}},
      {{"$MENU", {{1, settings.menu}}}},
      {{"$TDCREATE", {{40, kCreated}}}},
      {{"$TDUPDATE", {{40, kUpdated}}}},
      {{"$TDINDWG", {{40, kDaysOfEditing}}}},
      {{"$TDUSRTIMER", {{40, 0}}}},
      {{"$ANGBASE", {{50, 0}}}},
      {{"$PDMODE", {{70, 0}}}},
      {{"$HANDLING", {{70, spec.hasHandles}}}, Version::AC1009, Version::AC1009},
  };
  if (hasHandleSeed) list.push_back({{"$HANDSEED", {{5, handleSeed}}}});
  const std::vector<KnownVariable> behind = {
      {{"$TILEMODE", {{70, 1}}}},
      {{"$MAXACTVP", {{70, 64}}}},
      {{"$PSLTSCALE", {{70, 1}}}},
      {{"$MEASUREMENT", {{70, 1}}}, Version::AC1014},
      {{"$INSUNITS", {{70, 6}}}, Version::AC1015},
      {{"$HYPERLINKBASE", {{1, settings.hyperlinkBase}}}, Version::AC1015},
      {{"$STYLESHEET", {{1, settings.styleSheet}}}, Version::AC1015},
      {{"$PSTYLEMODE", {{290, 1}}}, Version::AC1015},
      {{"$EXTNAMES", {{290, 1}}}, Version::AC1015},
      {{"$SORTENTS", {{280, 127}}}, Version::AC1018},
      {{"$PROJECTNAME", {{1, settings.projectName}}}, Version::AC1018},
      {{"$CAMERADISPLAY", {{290, 0}}}, Version::AC1021},
  };
  list.insert(list.end(), behind.begin(), behind.end());
  return list;
}

void Write(TagWriter& out, const HeaderVariable& variable) {
  out.Put({9, variable.name});
  out.Put(variable.values);
}

void Write(TagWriter& out, const std::vector<KnownVariable>& list,
           std::vector<HeaderVariable>& replacements) {
  for (const auto& [variable, first, last] : list) {
    if (out.TargetVersion() < first || out.TargetVersion() > last) continue;
    const auto found = std::find_if(
        replacements.begin(), replacements.end(),
        [&name = variable.name](const HeaderVariable& other) { return other.name == name; });
    if (found == replacements.end()) {
      Write(out, variable);
    } else {
      Write(out, *found);
      replacements.erase(found);
    }
  }
}

}  // namespace

void WriteHeader(const DrawingSpec& spec, TagWriter& out, const std::string& handleSeed) {
  std::vector<HeaderVariable> replacements = spec.headerVariables;
  out.Put({{0, "SECTION"}, {2, "HEADER"}});
  Write(out, Identity(spec, out.TargetVersion()), replacements);
  Write(out, Drafting(), replacements);
  Write(out, Dimensioning(spec.settings), replacements);
  Write(out, Rest(spec, handleSeed), replacements);
  for (const HeaderVariable& variable : replacements) Write(out, variable);
  out.Put({0, "ENDSEC"});
}

}  // namespace dxf
