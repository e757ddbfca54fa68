#include "support/dwg/HeaderVariables.h"

#include <initializer_list>
#include <numbers>

#include "support/dwg/DimensionFields.h"
#include "support/dwg/Times.h"
#include "support/dwg/Tokens.h"

namespace dwg {
namespace {

constexpr double kQuarter = std::numbers::pi / 2;
// Of metres.
constexpr int kInsertUnits = 6;
constexpr int kFlags = 10781;
constexpr const char* kFingerprint = "{6B0E4A52-51D3-4C7B-9A0F-1D2C3B4A5968}";
constexpr const char* kVersionId = "{0C9B8A79-6857-4645-B423-122334455667}";
constexpr std::string_view kFiller = "\x5A\x13\xC7\x88\x2E\x91\x4D\x06\xB3";

// The variables in the order of the file, a part of them a function.
class HeaderWriter {
 public:
  explicit HeaderWriter(Drawing& drawing)
      : drawing_(drawing),
        out_(drawing.NewSection()),
        is14_(!drawing.IsSince(Version::AC1015)),
        is15_(!is14_),
        is18_(drawing.IsSince(Version::AC1018)),
        is21_(drawing.IsSince(Version::AC1021)),
        is27_(drawing.IsSince(Version::AC1027)) {}

  Fields Write() {
    PutUnits();
    PutModes();
    PutCounts();
    PutSizes();
    PutTimes();
    PutCurrent();
    PutSpace();
    PutSpace();
    if (is14_) {
      PutOldDimensions();
    } else {
      PutDimensions();
    }
    PutRoots();
    if (is15_) PutTexts();
    if (is18_) PutSorting();
    PutBasicRecords();
    if (is21_) PutScene();
    out_.Filler(kFiller);
    return out_;
  }

 private:
  void Bits(std::initializer_list<int> values) {
    for (const int value : values) out_.B(value != 0);
  }
  void Shorts(std::initializer_list<int> values) {
    for (const int value : values) out_.BS(value);
  }
  void Longs(std::initializer_list<std::int64_t> values) {
    for (const std::int64_t value : values) out_.BL(value);
  }
  void Reals(std::initializer_list<double> values) {
    for (const double value : values) out_.BD(value);
  }
  void Bytes(std::initializer_list<unsigned> values) {
    for (const unsigned value : values) out_.RC(value);
  }
  void Hard(std::initializer_list<Handle> handles) {
    for (const Handle handle : handles) out_.H(Link::HardPointer, handle);
  }
  void Owned(std::initializer_list<Handle> handles) {
    for (const Handle handle : handles) out_.H(Link::HardOwner, handle);
  }

  void PutUnits() {
    if (is27_) out_.BLL(0);
    Reals({412148564080.0, 1.0, 1.0, 1.0});
    for (const char* unit : {"m", "", "", ""}) out_.T(unit);
    Longs({0, 0});
    if (is14_) Shorts({0});
    if (!is18_) Hard({0});
  }

  // DIMASO to PELLIPSE.
  void PutModes() {
    Bits({1, 1});
    if (is14_) Bits({0});
    Bits({0, 0, 1, 1, 0, 1, 0});
    if (is14_) Bits({0});
    if (is18_) Bits({0});
    Bits({1, 0, 0, 0});
    if (is14_) Bits({1, 0});
    Bits({0, 1});
    if (is14_) Bits({0});
    Bits({1, 0, 1});
    if (is14_) Bits({1});
    Bits({0, 0});
  }

  // PROXYGRAPHICS to TEXTQLTY.
  void PutCounts() {
    Shorts({1});
    if (is14_) Shorts({2});
    Shorts({3020, 2, 4, 0, 0});
    if (is14_) Shorts({37});
    Shorts({1});
    if (is14_) Shorts({1});
    Shorts({0});
    if (is14_) Shorts({1});
    if (is18_) Longs({0, 0, 0});
    Shorts({0, 0, 0, 0, 0, 8, 6, 6, 6, 6, 6, 6, 3, 70, 0, 64, 4, 0, 50});
  }

  // LTSCALE to CELTSCALE, MENU.
  void PutSizes() {
    Reals({1.0, 2.5, 1.0, 0.1, 0.0, 0.0, 0.0, 0.0, 0.0});
    Reals({0.0, 0.0, 0.0, 0.0, 0.0});
    Reals({0.0, 0.0, 0.0, 0.0, 0.5, 20.0, 1.0});
    out_.T(drawing_.spec.settings.menu);
  }

  void PutTime(const Moment& moment) { Longs({moment.day, moment.millisecond}); }

  void PutTimes() {
    PutTime(kCreated);
    PutTime(kUpdated);
    if (is18_) Longs({0, 0, 0});
    PutTime(kEditingTime);
    PutTime({0, 0});
    out_.CMC(kByLayer);
    // Among the numbers in every version.
    out_.Reference(0, drawing_.HandleSeed());
  }

  // CLAYER to PSVPSCALE.
  void PutCurrent() {
    const Handle style = drawing_.styles.empty() ? 0 : drawing_.styles.front().handle;
    Hard({drawing_.LayerHandle(""), style, drawing_.roots.byLayer});
    if (is21_) Hard({0});
    Hard({drawing_.roots.dimensionStyle, 0});
    if (is15_) Reals({0.0});
  }

  // INSBASE to the origins of a space's coordinates.
  void PutSpace() {
    out_.Point3(0.0, 0.0);
    out_.Point3(kFarAway, kFarAway, kFarAway);
    out_.Point3(-kFarAway, -kFarAway, -kFarAway);
    out_.Point2(0.0, 0.0);
    out_.Point2(420.0, 297.0);
    Reals({0.0});
    out_.Point3(0.0, 0.0);
    out_.Point3(1.0, 0.0);
    out_.Point3(0.0, 1.0);
    Hard({0});
    if (is14_) return;
    Hard({0});
    Shorts({0});
    Hard({0});
    for (int side = 0; side < 6; ++side) out_.Point3(0.0, 0.0);
  }

  // The block that a setting names, which it tells without the underscore.
  const PlannedBlock* Arrow(const std::string& name) {
    if (name.empty()) return nullptr;
    const PlannedBlock* block = drawing_.BlockNamed("_" + name);
    return block != nullptr ? block : drawing_.BlockNamed(name);
  }

  Handle ArrowHandle(const std::string& name) {
    const PlannedBlock* block = Arrow(name);
    return block == nullptr ? 0 : block->record;
  }

  std::string ArrowName(const std::string& name) {
    const PlannedBlock* block = Arrow(name);
    return StoredName(block == nullptr ? name : block->name, drawing_.version);
  }

  void PutOldDimensions() {
    const drawing::SettingsSpec& settings = drawing_.spec.settings;
    PutOldDimensionModes(out_);
    Hard({drawing_.styles.empty() ? 0 : drawing_.styles.front().handle});
    PutDimensionSizes(out_);
    out_.T(settings.dimpost);
    out_.T(settings.dimapost);
    for (const std::string* arrow : {&settings.dimblk, &settings.dimblk1, &settings.dimblk2}) {
      out_.T(ArrowName(*arrow));
    }
    PutDimensionRest(out_);
  }

  void PutDimensions() {
    const drawing::SettingsSpec& settings = drawing_.spec.settings;
    out_.T(settings.dimpost);
    out_.T(settings.dimapost);
    PutDimensionSizes(out_);
    PutDimensionRest(out_);
    Hard({drawing_.styles.empty() ? 0 : drawing_.styles.front().handle, 0});
    Hard({ArrowHandle(settings.dimblk), ArrowHandle(settings.dimblk1),
          ArrowHandle(settings.dimblk2)});
    if (is21_) Hard({0, 0, 0});
    Shorts({kLineWeightByBlock, kLineWeightByBlock});
  }

  // The tables' controls and the dictionaries.
  void PutRoots() {
    const Roots& roots = drawing_.roots;
    Owned({roots.blocks, roots.layers, roots.styles, roots.linetypes, roots.views, roots.ucs,
           roots.viewports, roots.applications, roots.dimensionStyles});
    if (!is18_) Owned({roots.viewportHeaders});
    Hard({roots.groups, roots.mlineStyles});
    Owned({roots.named});
  }

  // TSTACKALIGN to VERSIONGUID.
  void PutTexts() {
    const drawing::SettingsSpec& settings = drawing_.spec.settings;
    const Roots& roots = drawing_.roots;
    Shorts({1, 70});
    out_.T(settings.hyperlinkBase);
    out_.T(settings.styleSheet);
    Hard({roots.layouts, roots.plotSettings, roots.plotStyles});
    if (is18_) Hard({0, 0});
    if (is21_) Hard({0});
    if (is27_) Hard({0});
    Longs({kFlags});
    Shorts({kInsertUnits, 0});
    out_.T(kFingerprint);
    out_.T(kVersionId);
  }

  // SORTENTS to PROJECTNAME.
  void PutSorting() {
    Bytes({127, 0, 1, 2, 2, 0});
    Shorts({257, 257});
    Bytes({0, 0});
    out_.T(drawing_.spec.settings.projectName);
  }

  void PutBasicRecords() {
    Handle paper = 0;
    for (const PlannedBlock& block : drawing_.blocks) {
      if (block.space == Space::Paper && paper == 0) paper = block.record;
    }
    const Roots& roots = drawing_.roots;
    Hard({paper, drawing_.blocks[0].record, roots.byLayer, roots.byBlock, roots.continuous});
  }

  // CAMERADISPLAY to SHADOWPLANELOCATION.
  void PutScene() {
    Bits({0});
    Longs({0, 0});
    Reals({0.0, 2.0, 6.0, 2.0, 50.0, 0.0});
    Bytes({0, 1});
    Reals({0.25, 4.0, kQuarter, kQuarter, 0.0, 0.0});
    Shorts({7});
    Bytes({1});
    Reals({37.795, -122.394, 0.0});
    Longs({-8000});
    Bytes({1, 1, 2, 2});
    Bits({1});
    out_.CMC(1);
    Hard({0, 0, 0});
    Bytes({0});
    Reals({0.0});
  }

  Drawing& drawing_;
  Fields out_;
  // The first version of each step, and that of AC1014, whose variables went away.
  bool is14_;
  bool is15_;
  bool is18_;
  bool is21_;
  bool is27_;
};

}  // namespace

std::string HeaderSection(Drawing& drawing) {
  return MarkedSection(HeaderWriter(drawing).Write(), kHeaderMark, MaintenanceOf(drawing));
}

}  // namespace dwg
