#include "backends/database/dwg/records/Layouts.h"

namespace zdx::dwg {
namespace {

using model::kVersion1014;
using model::kVersion1015;
using model::kVersion1018;
using model::kVersion1021;
using model::kVersion1024;
using model::kVersion1027;

constexpr Field kEntity[] = {
    Named(Key::kOwnerMode, Code::kBB),
    Named(Key::kReactorCount, Code::kBL),
    Unnamed(Code::kB, 1, Until(kVersion1014)),  // line type of the layer
    Named(Key::kNoExtension, Code::kB, Since(kVersion1018)),
    Unnamed(Code::kB, 1, Until(kVersion1015)),  // neighbours by number
    Unnamed(Code::kB, 1, Since(kVersion1027)),  // has data in another section
    Unnamed(Code::kEntityColour),
    Unnamed(Code::kBD),                          // scale of the line type
    Unnamed(Code::kBB, 2, Since(kVersion1015)),  // line type, plot style
    Unnamed(Code::kBB, 1, Since(kVersion1021)),  // material
    Unnamed(Code::kRC, 1, Since(kVersion1021)),  // shadows
    Unnamed(Code::kB, 3, Since(kVersion1024)),   // visual styles
    Unnamed(Code::kBS),                          // invisible
    Unnamed(Code::kRC, 1, Since(kVersion1015)),  // line weight
};

constexpr Field kObject[] = {
    Named(Key::kReactorCount, Code::kBL), Named(Key::kNoExtension, Code::kB, Since(kVersion1018)),
    Unnamed(Code::kB, 1, Since(kVersion1027)),  // has data in another section
};

constexpr Field kObjectHandles[] = {
    Named(Key::kOwner, Code::kHandle),
    Repeated(Key::kNone, Code::kHandle, Key::kReactorCount),
    If(Key::kNoExtension, 0, Named(Key::kExtension, Code::kHandle)),
};

constexpr Field kTable[] = {
    Named(Key::kCount, Code::kBL),
    Repeated(Key::kEntries, Code::kHandle, Key::kCount),
};

constexpr Field kBlockTable[] = {
    Named(Key::kCount, Code::kBL),
    Repeated(Key::kEntries, Code::kHandle, Key::kCount),
    Named(Key::kModelSpace, Code::kHandle),
    Named(Key::kPaperSpace, Code::kHandle),
};

constexpr Field kLinetypeTable[] = {
    Named(Key::kCount, Code::kBL),
    Repeated(Key::kEntries, Code::kHandle, Key::kCount),
    Named(Key::kByBlock, Code::kHandle),
    Named(Key::kByLayer, Code::kHandle),
};

// Behind the name: what the record has of an external reference.
constexpr Field kReferenceFlag = Unnamed(Code::kB, 1, Until(kVersion1018));
constexpr Field kReferenceIndex = Unnamed(Code::kBS);

constexpr Field kNamed[] = {
    Named(Key::kName, Code::kText),
};

constexpr Field kLinetype[] = {
    Named(Key::kName, Code::kText),     kReferenceFlag, kReferenceIndex, kReferenceFlag,
    Named(Key::kComments, Code::kText),
};

constexpr Field kBlockRecord[] = {
    Named(Key::kName, Code::kText),
    kReferenceFlag,
    kReferenceIndex,
    kReferenceFlag,
    Named(Key::kAnonymous, Code::kB),
    Unnamed(Code::kHandle),  // external reference
    Named(Key::kBlockBegin, Code::kHandle),
};

constexpr Field kDictionary[] = {
    Named(Key::kCount, Code::kBL),
    Unnamed(Code::kBS, 1, Since(kVersion1015)),  // what happens to copies
    Unnamed(Code::kRC),                          // owns its entries
    Repeated(Key::kKeys, Code::kText, Key::kCount),
    Repeated(Key::kEntries, Code::kHandle, Key::kCount),
};

constexpr Field kFreeRecord[] = {
    Named(Key::kByteCount, Code::kBL),
    Repeated(Key::kBytes, Code::kBytes, Key::kByteCount),
};

constexpr Field kProxy[] = {
    Named(Key::kClassNumber, Code::kBL),
};

constexpr Field kHeader[] = {
    Unnamed(Code::kBLL, 1, Since(kVersion1027)),
    // Unit factors and names.
    Unnamed(Code::kBD, 4),
    Unnamed(Code::kText, 4),
    Unnamed(Code::kBL, 2),
    Unnamed(Code::kBS, 1, Until(kVersion1014)),
    Unnamed(Code::kHandle, 1, Until(kVersion1015)),
    // Switches, from DIMASO to PELLIPSE.
    Unnamed(Code::kB, 2),
    Unnamed(Code::kB, 1, Until(kVersion1014)),
    Unnamed(Code::kB, 7),
    Unnamed(Code::kB, 1, Until(kVersion1014)),
    Unnamed(Code::kB, 1, Since(kVersion1018)),
    Unnamed(Code::kB, 4),
    Unnamed(Code::kB, 2, Until(kVersion1014)),
    Unnamed(Code::kB, 2),
    Unnamed(Code::kB, 1, Until(kVersion1014)),
    Unnamed(Code::kB, 3),
    Unnamed(Code::kB, 1, Until(kVersion1014)),
    Unnamed(Code::kB, 2),
    // Numbers, from PROXYGRAPHICS to TEXTQLTY.
    Unnamed(Code::kBS, 8),
    Unnamed(Code::kBS, 4, Until(kVersion1014)),
    Unnamed(Code::kBL, 3, Since(kVersion1018)),
    Unnamed(Code::kBS, 19),
    // Lengths, from LTSCALE to CELTSCALE.
    Unnamed(Code::kBD, 21),
    Named(Key::kMenu, Code::kText),
    // Times.
    Unnamed(Code::kBL, 4),
    Unnamed(Code::kBL, 3, Since(kVersion1018)),
    Unnamed(Code::kBL, 4),
    Unnamed(Code::kColour),
    // The next handle, then what new entities get.
    Unnamed(Code::kDataHandle),
    Unnamed(Code::kHandle, 3),
    Unnamed(Code::kHandle, 1, Since(kVersion1021)),
    Unnamed(Code::kHandle, 2),
    Unnamed(Code::kBD, 1, Since(kVersion1015)),
    // Paper space: base, extents, limits, elevation, coordinate system.
    Unnamed(Code::k3BD, 3),
    Unnamed(Code::k2RD, 2),
    Unnamed(Code::kBD),
    Unnamed(Code::k3BD, 3),
    Unnamed(Code::kHandle),
    Unnamed(Code::kHandle, 1, Since(kVersion1015)),
    Unnamed(Code::kBS, 1, Since(kVersion1015)),
    Unnamed(Code::kHandle, 1, Since(kVersion1015)),
    Unnamed(Code::k3BD, 6, Since(kVersion1015)),
    // Model space: the same.
    Unnamed(Code::k3BD, 3),
    Unnamed(Code::k2RD, 2),
    Unnamed(Code::kBD),
    Unnamed(Code::k3BD, 3),
    Unnamed(Code::kHandle),
    Unnamed(Code::kHandle, 1, Since(kVersion1015)),
    Unnamed(Code::kBS, 1, Since(kVersion1015)),
    Unnamed(Code::kHandle, 1, Since(kVersion1015)),
    Unnamed(Code::k3BD, 6, Since(kVersion1015)),
    // Dimensions.
    Named(Key::kDimpost, Code::kText, Since(kVersion1015)),
    Named(Key::kDimapost, Code::kText, Since(kVersion1015)),
    // From DIMTOL to DIMTXSTY, as the old versions have them.
    Unnamed(Code::kB, 11, Until(kVersion1014)),
    Unnamed(Code::kRC, 2, Until(kVersion1014)),
    Unnamed(Code::kB, 2, Until(kVersion1014)),
    Unnamed(Code::kRC, 3, Until(kVersion1014)),
    Unnamed(Code::kB, 1, Until(kVersion1014)),
    Unnamed(Code::kRC, 4, Until(kVersion1014)),
    Unnamed(Code::kBS, 6, Until(kVersion1014)),
    Unnamed(Code::kHandle, 1, Until(kVersion1014)),
    // From DIMSCALE to DIMTM.
    Unnamed(Code::kBD, 9),
    Unnamed(Code::kBD, 2, Since(kVersion1021)),
    Unnamed(Code::kBS, 1, Since(kVersion1021)),
    Unnamed(Code::kColour, 1, Since(kVersion1021)),
    // From DIMTOL to DIMARCSYM.
    Unnamed(Code::kB, 6, Since(kVersion1015)),
    Unnamed(Code::kBS, 3, Since(kVersion1015)),
    Unnamed(Code::kBS, 1, Since(kVersion1021)),
    // From DIMTXT to DIMGAP.
    Unnamed(Code::kBD, 8),
    Named(Key::kDimpost, Code::kText, Until(kVersion1014)),
    Named(Key::kDimapost, Code::kText, Until(kVersion1014)),
    Named(Key::kDimblk, Code::kText, Until(kVersion1014)),
    Named(Key::kDimblk1, Code::kText, Until(kVersion1014)),
    Named(Key::kDimblk2, Code::kText, Until(kVersion1014)),
    // From DIMALTRND to DIMSOXD.
    Unnamed(Code::kBD, 1, Since(kVersion1015)),
    Unnamed(Code::kB, 1, Since(kVersion1015)),
    Unnamed(Code::kBS, 1, Since(kVersion1015)),
    Unnamed(Code::kB, 4, Since(kVersion1015)),
    // DIMCLRD, DIMCLRE, DIMCLRT.
    Unnamed(Code::kColour, 3),
    // From DIMADEC to DIMATFIT.
    Unnamed(Code::kBS, 11, Since(kVersion1015)),
    Unnamed(Code::kB, 2, Since(kVersion1015)),
    Unnamed(Code::kBS, 4, Since(kVersion1015)),
    Unnamed(Code::kB, 1, Since(kVersion1015)),
    Unnamed(Code::kBS, 1, Since(kVersion1015)),
    // From DIMFXLON to DIMMZS.
    Unnamed(Code::kB, 1, Since(kVersion1021)),
    Unnamed(Code::kB, 1, Since(kVersion1024)),
    Unnamed(Code::kBD, 1, Since(kVersion1024)),
    Unnamed(Code::kText, 1, Since(kVersion1024)),
    Unnamed(Code::kBD, 1, Since(kVersion1024)),
    Unnamed(Code::kText, 1, Since(kVersion1024)),
    // DIMTXSTY, DIMLDRBLK, the arrows, line types and weights.
    Unnamed(Code::kHandle, 2, Since(kVersion1015)),
    Named(Key::kDimblk, Code::kHandle, Since(kVersion1015)),
    Named(Key::kDimblk1, Code::kHandle, Since(kVersion1015)),
    Named(Key::kDimblk2, Code::kHandle, Since(kVersion1015)),
    Unnamed(Code::kHandle, 3, Since(kVersion1021)),
    Unnamed(Code::kBS, 2, Since(kVersion1015)),
    // Tables.
    Named(Key::kBlockTable, Code::kHandle),
    Named(Key::kLayerTable, Code::kHandle),
    Unnamed(Code::kHandle),
    Named(Key::kLinetypeTable, Code::kHandle),
    Named(Key::kViewTable, Code::kHandle),
    Unnamed(Code::kHandle, 4),
    Unnamed(Code::kHandle, 1, Until(kVersion1015)),
    // Dictionaries of groups and multiline styles, and the root.
    Unnamed(Code::kHandle, 2),
    Named(Key::kRootDictionary, Code::kHandle),
    Unnamed(Code::kBS, 2, Since(kVersion1015)),
    Named(Key::kHyperlinkBase, Code::kText, Since(kVersion1015)),
    Named(Key::kStyleSheet, Code::kText, Since(kVersion1015)),
    Unnamed(Code::kHandle, 3, Since(kVersion1015)),
    Unnamed(Code::kHandle, 2, Since(kVersion1018)),
    Unnamed(Code::kHandle, 1, Since(kVersion1021)),
    Unnamed(Code::kHandle, 1, Since(kVersion1027)),
    Unnamed(Code::kBL, 1, Since(kVersion1015)),
    Unnamed(Code::kBS, 1, Since(kVersion1015)),
    Named(Key::kPlotStyleKind, Code::kBS, Since(kVersion1015)),
    If(Key::kPlotStyleKind, 3, Unnamed(Code::kHandle, 1, Since(kVersion1015))),
    Unnamed(Code::kText, 2, Since(kVersion1015)),
    // From SORTENTS to INTERSECTIONDISPLAY.
    Unnamed(Code::kRC, 6, Since(kVersion1018)),
    Unnamed(Code::kBS, 2, Since(kVersion1018)),
    Unnamed(Code::kRC, 2, Since(kVersion1018)),
    Named(Key::kProjectName, Code::kText, Since(kVersion1018)),
};

}  // namespace

std::span<const Field> EntityLayout() { return kEntity; }
std::span<const Field> ObjectLayout() { return kObject; }
std::span<const Field> ObjectHandlesLayout() { return kObjectHandles; }

std::span<const Field> OwnLayout(ObjectType type) {
  switch (type) {
    case kBlockBeginType:
    case kLayerType:
    case kViewType:
      return kNamed;
    case kLinetypeType:
      return kLinetype;
    case kBlockRecordType:
      return kBlockRecord;
    case kBlockTableType:
      return kBlockTable;
    case kLinetypeTableType:
      return kLinetypeTable;
    case kLayerTableType:
    case kViewTableType:
      return kTable;
    case kDictionaryType:
      return kDictionary;
    case kFreeRecordType:
      return kFreeRecord;
    case kProxyEntityType:
    case kProxyObjectType:
      return kProxy;
    default:
      return {};
  }
}

std::span<const Field> HeaderLayout() { return kHeader; }

}  // namespace zdx::dwg
