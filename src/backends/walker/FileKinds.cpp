#include "backends/walker/FileKinds.h"

#include <string_view>

#include "base/CaseFold.h"

namespace zdx::walker {
namespace {

using model::FileUse;

constexpr ZnDwgDepends::DwgDependsSettings kDrawings = 0x1;
constexpr ZnDwgDepends::DwgDependsSettings kImages = 0x4;
constexpr ZnDwgDepends::DwgDependsSettings kUnderlays = 0x8;
constexpr ZnDwgDepends::DwgDependsSettings kListedFiles = 0x20;
constexpr ZnDwgDepends::DwgDependsSettings kMenus = 0x40;
constexpr ZnDwgDepends::DwgDependsSettings kFonts = 0x80;
constexpr ZnDwgDepends::DwgDependsSettings kPlotting = 0x100;
constexpr ZnDwgDepends::DwgDependsSettings kPointClouds = 0x200;
constexpr ZnDwgDepends::DwgDependsSettings kLinkedFiles = 0x800;

constexpr int kHintNone = 0;
constexpr int kHintFont = 2;
constexpr int kHintDrawing = 5;

// In the order of model::FileUse.
constexpr FileKind kKinds[] = {
    {0, kDrawings, kHintDrawing, false},   // kAttachedDrawing
    {1, kDrawings, kHintDrawing, false},   // kOverlaidDrawing
    {2, kImages, kHintNone, false},        // kImage
    {7, kUnderlays, kHintNone, false},     // kPdfUnderlay
    {8, kUnderlays, kHintNone, false},     // kDwfUnderlay
    {8, kUnderlays, kHintNone, false},     // kDgnUnderlay
    {12, kPointClouds, kHintNone, false},  // kPointCloud
    {14, kLinkedFiles, kHintNone, false},  // kLinkedData
    {2, kImages, kHintNone, false},        // kTexture
    {9, kFonts, kHintFont, true},          // kFont
    {9, kFonts, kHintFont, true},          // kBigFont
    {9, kFonts, kHintFont, true},          // kShapeFile
    {3, kPlotting, kHintNone, true},       // kPlotStyleTable
    {4, kPlotting, kHintNone, true},       // kPrinter
    {5, kPlotting, kHintNone, false},      // kStyleSheet
    {6, kMenus, kHintNone, false},         // kMenu
    {10, kListedFiles, kHintNone, false},  // kListed
};
static_assert(sizeof kKinds / sizeof *kKinds == static_cast<std::size_t>(FileUse::kListed) + 1);

constexpr std::wstring_view kPrinterExtension = L".pc3";
constexpr std::wstring_view kNoMenu = L".";

// Any other name is that of one of the system's printers.
bool IsPrinterFile(const std::wstring& path) {
  const std::size_t length = kPrinterExtension.size();
  return path.size() >= length &&
         CompareIgnoringCase(std::wstring_view(path).substr(path.size() - length),
                             kPrinterExtension) == 0;
}

bool IsFile(const model::FileReference& reference) {
  if (reference.path.empty()) return false;
  if (reference.use == FileUse::kPrinter) return IsPrinterFile(reference.path);
  return reference.use != FileUse::kMenu || reference.path != kNoMenu;
}

}  // namespace

const FileKind& KindOf(FileUse use) { return kKinds[static_cast<std::size_t>(use)]; }

bool IsDrawing(FileUse use) {
  return use == FileUse::kAttachedDrawing || use == FileUse::kOverlaidDrawing;
}

bool IsListed(const model::FileReference& reference, ZnDwgDepends::DwgDependsSettings settings) {
  if ((settings & KindOf(reference.use).bit) == 0) return false;
  if (reference.isDependent && (settings & kDependentRecords) == 0) return false;
  return IsFile(reference);
}

}  // namespace zdx::walker
