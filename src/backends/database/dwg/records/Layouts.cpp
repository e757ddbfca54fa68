#include "backends/database/dwg/records/Layouts.h"

namespace zdx::dwg {
namespace {

using model::kVersion1014;
using model::kVersion1015;
using model::kVersion1018;
using model::kVersion1021;
using model::kVersion1024;
using model::kVersion1027;
using model::kVersion1032;

constexpr Field kEntity[] = {
    Named(Key::kOwnerMode, Code::kBB),
    Named(Key::kReactorCount, Code::kBL),
    Named(Key::kLinetypeOfLayer, Code::kB, Until(kVersion1014)),
    Named(Key::kNoExtension, Code::kB, Since(kVersion1018)),
    Named(Key::kNeighboursByNumber, Code::kB, Until(kVersion1015)),
    Unnamed(Code::kB, 1, Since(kVersion1027)),  // has data in another section
    Named(Key::kColourHandle, Code::kEntityColour),
    Unnamed(Code::kBD),  // scale of the line type
    Named(Key::kLinetypeKind, Code::kBB, Since(kVersion1015)),
    Named(Key::kPlotStyle, Code::kBB, Since(kVersion1015)),
    Named(Key::kMaterial, Code::kBB, Since(kVersion1021)),
    Named(Key::kShadow, Code::kRC, Since(kVersion1021)),
    Named(Key::kFullVisualStyle, Code::kB, Since(kVersion1024)),
    Named(Key::kFaceVisualStyle, Code::kB, Since(kVersion1024)),
    Named(Key::kEdgeVisualStyle, Code::kB, Since(kVersion1024)),
    Unnamed(Code::kBS),                          // invisible
    Unnamed(Code::kRC, 1, Since(kVersion1015)),  // line weight
};

// Of what comes from elsewhere, the value that says that a handle tells from where.
constexpr std::uint64_t kByHandle = 3;

constexpr Field kEntityHandles[] = {
    If(Key::kOwnerMode, 0, Named(Key::kOwner, Code::kHandle)),
    Repeated(Key::kNone, Code::kHandle, Key::kReactorCount),
    If(Key::kNoExtension, 0, Named(Key::kExtension, Code::kHandle)),
    If(Key::kColourHandle, 1, Unnamed(Code::kHandle)),
    // Layer and line type.
    Unnamed(Code::kHandle, 1, Until(kVersion1014)),
    If(Key::kLinetypeOfLayer, 0, Unnamed(Code::kHandle, 1, Until(kVersion1014))),
    If(Key::kNeighboursByNumber, 0, Named(Key::kPrevious, Code::kHandle, Until(kVersion1015))),
    If(Key::kNeighboursByNumber, 0, Named(Key::kNext, Code::kHandle, Until(kVersion1015))),
    Unnamed(Code::kHandle, 1, Since(kVersion1015)),
    If(Key::kLinetypeKind, kByHandle, Unnamed(Code::kHandle, 1, Since(kVersion1015))),
    If(Key::kMaterial, kByHandle, Unnamed(Code::kHandle, 1, Since(kVersion1021))),
    If(Key::kShadow, kByHandle, Unnamed(Code::kHandle, 1, Since(kVersion1021))),
    If(Key::kPlotStyle, kByHandle, Unnamed(Code::kHandle, 1, Since(kVersion1015))),
    If(Key::kFullVisualStyle, 1, Unnamed(Code::kHandle, 1, Since(kVersion1024))),
    If(Key::kFaceVisualStyle, 1, Unnamed(Code::kHandle, 1, Since(kVersion1024))),
    If(Key::kEdgeVisualStyle, 1, Unnamed(Code::kHandle, 1, Since(kVersion1024))),
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
constexpr Field kDependence[] = {
    Unnamed(Code::kB, 1, Until(kVersion1018)),
    Named(Key::kDependentIndex, Code::kBS),
    Named(Key::kDependent, Code::kB, Until(kVersion1018)),
};

constexpr Field kNamed[] = {
    Named(Key::kName, Code::kText),
};

constexpr Field kLinetype[] = {
    Named(Key::kName, Code::kText),
    Table(kDependence),
    Named(Key::kComments, Code::kText),
};

// Of a block that stands in this drawing.
constexpr Field kOwnedCountField[] = {
    If(Key::kIsOverlay, 0, Named(Key::kOwnedCount, Code::kBL, Since(kVersion1018))),
};
constexpr Field kEndsOfChain[] = {
    If(Key::kIsOverlay, 0, Named(Key::kFirst, Code::kHandle, Until(kVersion1015))),
    If(Key::kIsOverlay, 0, Named(Key::kLast, Code::kHandle, Until(kVersion1015))),
};

// The handles that are asked for most stand as early as they may.
constexpr Field kBlockRecord[] = {
    Named(Key::kName, Code::kText),
    Table(kDependence),
    Named(Key::kAnonymous, Code::kB),
    Unnamed(Code::kHandle),  // external reference
    Named(Key::kBlockBegin, Code::kHandle),
    Unnamed(Code::kB),  // has attributes
    Named(Key::kIsReference, Code::kB),
    Named(Key::kIsOverlay, Code::kB),
    Named(Key::kIsLoaded, Code::kB, Since(kVersion1015)),
    If(Key::kIsReference, 0, Table(kOwnedCountField)),
    Unnamed(Code::k3BD),  // base
    Named(Key::kPath, Code::kText),
    Named(Key::kInsertCount, Code::kRun, Since(kVersion1015)),
    // Description, preview, unit, what may be done with references.
    Unnamed(Code::kText, 1, Since(kVersion1015)),
    Named(Key::kByteCount, Code::kBL, Since(kVersion1015)),
    Repeated(Key::kNone, Code::kBytes, Key::kByteCount, Since(kVersion1015)),
    Unnamed(Code::kBS, 1, Since(kVersion1021)),
    Unnamed(Code::kB, 1, Since(kVersion1021)),
    Unnamed(Code::kRC, 1, Since(kVersion1021)),
    If(Key::kIsReference, 0, Table(kEndsOfChain)),
    OnRequest(Repeated(Key::kOwned, Code::kHandle, Key::kOwnedCount, Since(kVersion1018))),
    Unnamed(Code::kHandle),  // end
    OnRequest(Repeated(Key::kInserts, Code::kHandle, Key::kInsertCount, Since(kVersion1015))),
    Named(Key::kLayout, Code::kHandle, Since(kVersion1015)),
};

constexpr std::uint64_t kUnscaled = 3;
constexpr std::uint64_t kEquallyScaled = 2;
constexpr std::uint64_t kScaledButX = 1;

constexpr Field kScale[] = {
    Named(Key::kScaleKind, Code::kBB),
    If(Key::kScaleKind, kScaledButX, Unnamed(Code::kDD, 2)),
    If(Key::kScaleKind, kEquallyScaled, Unnamed(Code::kRD)),
    If(Key::kScaleKind, 0, Unnamed(Code::kRD)),
    If(Key::kScaleKind, 0, Unnamed(Code::kDD, 2)),
};

constexpr Field kReferenceBegin[] = {
    Named(Key::kBlock, Code::kHandle),
    Unnamed(Code::k3BD),  // place
    Unnamed(Code::k3BD, 1, Until(kVersion1014)),
    Table(kScale, Since(kVersion1015)),
    Unnamed(Code::kBD),   // rotation
    Unnamed(Code::k3BD),  // direction
    Named(Key::kHasAttributes, Code::kB),
    If(Key::kHasAttributes, 1, Named(Key::kAttributeCount, Code::kBL, Since(kVersion1018))),
};
constexpr Field kReferenceEnd[] = {
    If(Key::kHasAttributes, 1, Named(Key::kFirst, Code::kHandle, Until(kVersion1015))),
    If(Key::kHasAttributes, 1, Named(Key::kLast, Code::kHandle, Until(kVersion1015))),
    Repeated(Key::kAttributes, Code::kHandle, Key::kAttributeCount, Since(kVersion1018)),
};

// What stands between them in an array of references, rows and columns, nobody asks for.
constexpr Field kReference[] = {Table(kReferenceBegin), Table(kReferenceEnd)};

// Flags of a text: fields that it lacks, as they have the usual value.
constexpr std::uint64_t kNoElevation = 1;
constexpr std::uint64_t kNoAlignment = 2;
constexpr std::uint64_t kNoOblique = 4;
constexpr std::uint64_t kNoRotation = 8;
constexpr std::uint64_t kNoWidth = 16;
constexpr std::uint64_t kNoGeneration = 32;
constexpr std::uint64_t kNoHorizontal = 64;
constexpr std::uint64_t kNoVertical = 128;

constexpr Field kOldText[] = {
    Unnamed(Code::kBD),  // elevation
    Unnamed(Code::k2RD, 2),
    Unnamed(Code::kExtrusion),
    Unnamed(Code::kThickness),
    Unnamed(Code::kBD, 4),  // from the slant to the width
    Named(Key::kText, Code::kText),
    Unnamed(Code::kBS, 3),
};
constexpr Field kNewText[] = {
    Named(Key::kTextFlags, Code::kRC),
    IfNone(Key::kTextFlags, kNoElevation, Unnamed(Code::kRD)),
    Unnamed(Code::k2RD),
    IfNone(Key::kTextFlags, kNoAlignment, Unnamed(Code::kDD, 2)),
    Unnamed(Code::kExtrusion),
    Unnamed(Code::kThickness),
    IfNone(Key::kTextFlags, kNoOblique, Unnamed(Code::kRD)),
    IfNone(Key::kTextFlags, kNoRotation, Unnamed(Code::kRD)),
    Unnamed(Code::kRD),  // height
    IfNone(Key::kTextFlags, kNoWidth, Unnamed(Code::kRD)),
    Named(Key::kText, Code::kText),
    IfNone(Key::kTextFlags, kNoGeneration, Unnamed(Code::kBS)),
    IfNone(Key::kTextFlags, kNoHorizontal, Unnamed(Code::kBS)),
    IfNone(Key::kTextFlags, kNoVertical, Unnamed(Code::kBS)),
};
constexpr Field kTextFields[] = {Table(kOldText, Until(kVersion1014)),
                                 Table(kNewText, Since(kVersion1015))};

constexpr std::uint64_t kHasBackground = 1;
constexpr std::uint64_t kHasFrame = 16;
constexpr std::uint64_t kColumnsOfHeights = 2;

constexpr Field kBackgroundFields[] = {Unnamed(Code::kBD), Unnamed(Code::kColour),
                                       Unnamed(Code::kBL)};
constexpr Field kHeights[] = {
    If(Key::kColumns, kColumnsOfHeights, Repeated(Key::kNone, Code::kBD, Key::kColumnCount)),
};
constexpr Field kColumnFields[] = {
    Named(Key::kColumnCount, Code::kBL),      Unnamed(Code::kBD, 2),
    Named(Key::kAutoHeight, Code::kB),        Unnamed(Code::kB),
    If(Key::kAutoHeight, 0, Table(kHeights)),
};
constexpr Field kPlainMText[] = {
    Unnamed(Code::kBS),
    Unnamed(Code::kB),
    Unnamed(Code::kBL),
    Unnamed(Code::k3BD, 2),
    Unnamed(Code::kBD, 4),
    Named(Key::kColumns, Code::kBS),
    IfNot(Key::kColumns, 0, Table(kColumnFields)),
};
constexpr Field kMText[] = {
    // Place, direction, direction of the text; width, from AC1021 on height of the box.
    Unnamed(Code::k3BD, 3),
    Unnamed(Code::kBD),
    Unnamed(Code::kBD, 1, Since(kVersion1021)),
    // Height, attachment, flow, extents.
    Unnamed(Code::kBD),
    Unnamed(Code::kBS, 2),
    Unnamed(Code::kBD, 2),
    Named(Key::kText, Code::kText),
    // Distance of the lines.
    Unnamed(Code::kBS, 1, Since(kVersion1015)),
    Unnamed(Code::kBD, 1, Since(kVersion1015)),
    Unnamed(Code::kB, 1, Since(kVersion1015)),
    Named(Key::kBackground, Code::kBL, Since(kVersion1018)),
    IfAny(Key::kBackground, kHasBackground, Table(kBackgroundFields, {kVersion1018, kVersion1027})),
    IfAny(Key::kBackground, kHasBackground | kHasFrame,
          Table(kBackgroundFields, Since(kVersion1032))),
    Named(Key::kNotAnnotative, Code::kB, Since(kVersion1032)),
    If(Key::kNotAnnotative, 1, Table(kPlainMText, Since(kVersion1032))),
};

// An attribute with many lines holds an entity of its own, whose text counts.  Its handles stand
// behind the attribute's.
constexpr Field kAnnotation[] = {
    Repeated(Key::kNone, Code::kBytes, Key::kByteCount),
    Unnamed(Code::kBS),
};
constexpr Field kEmbeddedText[] = {
    Table(kEntity),
    Table(kMText),
    Named(Key::kByteCount, Code::kBS),
    IfNot(Key::kByteCount, 0, Table(kAnnotation)),
};

constexpr Field kAttribute[] = {
    Table(kTextFields),
    Unnamed(Code::kRC, 1, Since(kVersion1024)),  // version
    Named(Key::kAttributeKind, Code::kRC, Since(kVersion1032)),
    IfAny(Key::kAttributeKind, kMultiLineKinds, Table(kEmbeddedText)),
    Named(Key::kTag, Code::kText),
    Unnamed(Code::kBS),  // length
    Named(Key::kAttributeFlags, Code::kRC),
    Unnamed(Code::kB, 1, Since(kVersion1021)),  // keeps its place
};

constexpr Field kAttributeDefinition[] = {
    Table(kAttribute),
    Unnamed(Code::kRC, 1, Since(kVersion1024)),  // version
    Named(Key::kPrompt, Code::kText),
};

constexpr Field kFirstGeoData[] = {
    Named(Key::kReferencePoint, Code::k3BD),
    Named(Key::kHorizontalUnits, Code::kBL),
    Named(Key::kDesignPoint, Code::k3BD),
    Unnamed(Code::k3BD),
    Named(Key::kUpDirection, Code::k3BD),
    Named(Key::kNorthAngle, Code::kBD),
    Unnamed(Code::k3BD),
    Named(Key::kCoordinateSystem, Code::kText),
    Named(Key::kGeoTag, Code::kText),
    Named(Key::kHorizontalScale, Code::kBD),
    Unnamed(Code::kText, 2),
};
constexpr Field kLaterGeoData[] = {
    Named(Key::kDesignPoint, Code::k3BD),
    Named(Key::kReferencePoint, Code::k3BD),
    Named(Key::kHorizontalScale, Code::kBD),
    Named(Key::kHorizontalUnits, Code::kBL),
    Named(Key::kVerticalScale, Code::kBD),
    Named(Key::kVerticalUnits, Code::kBL),
    Named(Key::kUpDirection, Code::k3BD),
    Named(Key::kNorthVector, Code::k2RD),
    Unnamed(Code::kBL),  // how the scale is found
    Named(Key::kScaleFactor, Code::kBD),
    Named(Key::kSeaLevel, Code::kB),
    Named(Key::kSeaElevation, Code::kBD),
    Named(Key::kProjectionRadius, Code::kBD),
    Named(Key::kCoordinateSystem, Code::kText),
    Named(Key::kGeoTag, Code::kText),
};
constexpr Field kGeoData[] = {
    Named(Key::kGeoVersion, Code::kBL),
    Named(Key::kCoordinateType, Code::kBS),
    If(Key::kGeoVersion, 1, Table(kFirstGeoData)),
    IfNot(Key::kGeoVersion, 1, Table(kLaterGeoData)),
    Named(Key::kObservationFrom, Code::kText),
    Named(Key::kObservationTo, Code::kText),
    Named(Key::kObservationCoverage, Code::kText),
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

constexpr Field kTextStyle[] = {
    Named(Key::kName, Code::kText),
    Table(kDependence),
    Named(Key::kIsShapeFile, Code::kB),
    Unnamed(Code::kB),      // vertical
    Unnamed(Code::kBD, 3),  // height, width, slant
    Unnamed(Code::kRC),     // direction
    Unnamed(Code::kBD),     // the height last used
    Named(Key::kFont, Code::kText),
    Named(Key::kBigFont, Code::kText),
};

// A layout begins like plot settings of its own.
constexpr Field kPlotSettings[] = {
    Unnamed(Code::kText),  // name
    Named(Key::kPrinter, Code::kText),
    Unnamed(Code::kBS),                            // flags
    Unnamed(Code::kBD, 6),                         // margins, size of the paper
    Unnamed(Code::kText),                          // name of the paper
    Unnamed(Code::kBD, 2),                         // origin
    Unnamed(Code::kBS, 3),                         // unit, rotation, what is plotted
    Unnamed(Code::kBD, 4),                         // window
    Unnamed(Code::kText, 1, Until(kVersion1015)),  // view
    Unnamed(Code::kBD, 2),                         // scale
    Named(Key::kPlotStyleTable, Code::kText),
};

constexpr Field kImageDefinition[] = {
    Unnamed(Code::kBL),
    Unnamed(Code::k2RD),  // size
    Named(Key::kPath, Code::kText),
};

constexpr Field kUnderlayDefinition[] = {
    Named(Key::kPath, Code::kText),
};

// What these have among their data isn't known; their texts stand apart from it.
constexpr Field kPointCloudDefinition[] = {
    Named(Key::kPath, Code::kText, Since(kVersion1024)),
};
constexpr Field kDataLink[] = {
    Unnamed(Code::kText, 3, Since(kVersion1021)),  // what reads it, description, tooltip
    Named(Key::kConnection, Code::kText, Since(kVersion1021)),
};
constexpr Field kMaterialFields[] = {
    Unnamed(Code::kText, 2, Since(kVersion1021)),  // name, description
    Named(Key::kTextures, Code::kTexts, Since(kVersion1021)),
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
    Named(Key::kTextStyleTable, Code::kHandle),
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
std::span<const Field> EntityHandlesLayout() { return kEntityHandles; }
std::span<const Field> ObjectLayout() { return kObject; }
std::span<const Field> ObjectHandlesLayout() { return kObjectHandles; }

std::span<const Field> OwnLayout(ObjectType type) {
  switch (type) {
    case kTextType:
      return kTextFields;
    case kAttributeType:
      return kAttribute;
    case kAttributeDefinitionType:
      return kAttributeDefinition;
    case kReferenceType:
    case kReferenceArrayType:
      return kReference;
    case kMTextType:
      return kMText;
    case kGeoDataType:
      return kGeoData;
    case kApplicationType:
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
    case kTextStyleTableType:
    case kViewTableType:
      return kTable;
    case kTextStyleType:
      return kTextStyle;
    case kLayoutType:
    case kPlotSettingsType:
      return kPlotSettings;
    case kImageDefinitionType:
      return kImageDefinition;
    case kPdfDefinitionType:
    case kDwfDefinitionType:
    case kDgnDefinitionType:
      return kUnderlayDefinition;
    case kPointCloudDefinitionType:
      return kPointCloudDefinition;
    case kDataLinkType:
      return kDataLink;
    case kMaterialType:
      return kMaterialFields;
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
