// The words of the format, spelled as files spell them.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace zdx::dwg {

// The versions that can be read.
inline constexpr std::array<std::string_view, 7> kMagics = {"AC1014", "AC1015", "AC1018", "AC1021",
                                                            "AC1024", "AC1027", "AC1032"};

// Sections.
inline constexpr std::string_view kHeaderSection = "AcDb:Header";
inline constexpr std::string_view kClassesSection = "AcDb:Classes";
inline constexpr std::string_view kHandlesSection = "AcDb:Handles";
inline constexpr std::string_view kObjectsSection = "AcDb:AcDbObjects";
inline constexpr std::string_view kSummarySection = "AcDb:SummaryInfo";
inline constexpr std::string_view kPreviewSection = "AcDb:Preview";
inline constexpr std::string_view kFileListSection = "AcDb:FileDepList";

// Marks of 16 bytes.  The one at the end of a part is the one at its start with all bits inverted.
inline constexpr std::string_view kHeadEndMark(
    "\x95\xA0\x4E\x28\x99\x82\x1A\xE5\x5E\x41\xE0\x5F\x9D\x3A\x4D\x00", 16);
inline constexpr std::string_view kSecondHeadMark(
    "\xD4\x7B\x21\xCE\x28\x93\x9F\xBF\x53\x24\x40\x09\x12\x3C\xAA\x01", 16);
inline constexpr std::string_view kHeaderMark(
    "\xCF\x7B\x1F\x23\xFD\xDE\x38\xA9\x5F\x7C\x68\xB8\x4E\x6D\x33\x5F", 16);
inline constexpr std::string_view kClassesMark(
    "\x8D\xA1\xC4\xB8\xC4\xA9\xF8\xC5\xC0\xDC\xF4\x5F\xE7\xCF\xB6\x8A", 16);
inline constexpr std::string_view kPreviewMark(
    "\x1F\x25\x6D\x07\xD4\x36\x28\x28\x9D\x57\xCA\x3F\x9D\x44\x10\x2B", 16);

// Classes whose records are like those of a type, by the names that they have in DXF.
struct LikeClass {
  std::string_view dxfName;
  std::uint16_t type;
  // Whether other words may stand before the name.
  bool isEnding = false;
};
inline constexpr LikeClass kLikeClasses[] = {
    {"ACDBDICTIONARYWDFLT", 42},
    {"XRECORD", 79},  // in AC1014
    {"GEODATA", 9},
    {"LAYOUT", 82},
    // By the numbers that ObjectTypes.h gives those without a type.
    {"PLOTSETTINGS", 401},
    {"IMAGEDEF", 402},
    {"PDFDEFINITION", 403},
    {"DWFDEFINITION", 404},
    {"DGNDEFINITION", 405},
    {"POINTCLOUDDEF", 406, true},
    {"POINTCLOUDDEFEX", 406, true},
    {"DATALINK", 407},
    {"MATERIAL", 408},
};

// The classes of the objects that have a type of their own.
struct FixedClass {
  std::uint16_t type;
  std::wstring_view name;
};
inline constexpr FixedClass kFixedClasses[] = {
    {1, L"AcDbText"},
    {2, L"AcDbAttribute"},
    {3, L"AcDbAttributeDefinition"},
    {4, L"AcDbBlockBegin"},
    {5, L"AcDbBlockEnd"},
    {6, L"AcDbSequenceEnd"},
    {7, L"AcDbBlockReference"},
    {8, L"AcDbMInsertBlock"},
    {10, L"AcDb2dVertex"},
    {11, L"AcDb3dPolylineVertex"},
    {12, L"AcDbPolygonMeshVertex"},
    {13, L"AcDbPolyFaceMeshVertex"},
    {14, L"AcDbFaceRecord"},
    {15, L"AcDb2dPolyline"},
    {16, L"AcDb3dPolyline"},
    {17, L"AcDbArc"},
    {18, L"AcDbCircle"},
    {19, L"AcDbLine"},
    {20, L"AcDbOrdinateDimension"},
    {21, L"AcDbRotatedDimension"},
    {22, L"AcDbAlignedDimension"},
    {23, L"AcDb3PointAngularDimension"},
    {24, L"AcDb2LineAngularDimension"},
    {25, L"AcDbRadialDimension"},
    {26, L"AcDbDiametricDimension"},
    {27, L"AcDbPoint"},
    {28, L"AcDbFace"},
    {29, L"AcDbPolyFaceMesh"},
    {30, L"AcDbPolygonMesh"},
    {31, L"AcDbSolid"},
    {32, L"AcDbTrace"},
    {33, L"AcDbShape"},
    {34, L"AcDbViewport"},
    {35, L"AcDbEllipse"},
    {36, L"AcDbSpline"},
    {37, L"AcDbRegion"},
    {38, L"AcDb3dSolid"},
    {39, L"AcDbBody"},
    {40, L"AcDbRay"},
    {41, L"AcDbXline"},
    {43, L"AcDbOleFrame"},
    {44, L"AcDbMText"},
    {45, L"AcDbLeader"},
    {46, L"AcDbFcf"},
    {47, L"AcDbMline"},
    {74, L"AcDbOle2Frame"},
    {77, L"AcDbPolyline"},
    {78, L"AcDbHatch"},
    {42, L"AcDbDictionary"},
    {48, L"AcDbBlockTable"},
    {49, L"AcDbBlockTableRecord"},
    {50, L"AcDbLayerTable"},
    {51, L"AcDbLayerTableRecord"},
    {52, L"AcDbTextStyleTable"},
    {53, L"AcDbTextStyleTableRecord"},
    {56, L"AcDbLinetypeTable"},
    {57, L"AcDbLinetypeTableRecord"},
    {60, L"AcDbViewTable"},
    {61, L"AcDbViewTableRecord"},
    {62, L"AcDbUCSTable"},
    {63, L"AcDbUCSTableRecord"},
    {64, L"AcDbViewportTable"},
    {65, L"AcDbViewportTableRecord"},
    {66, L"AcDbRegAppTable"},
    {67, L"AcDbRegAppTableRecord"},
    {68, L"AcDbDimStyleTable"},
    {69, L"AcDbDimStyleTableRecord"},
    {72, L"AcDbGroup"},
    {73, L"AcDbMlineStyle"},
    {79, L"AcDbXrecord"},
    {80, L"AcDbPlaceHolder"},
    {82, L"AcDbLayout"},
};

// Keys of the root dictionary.
inline constexpr std::wstring_view kGroupKey = L"ACAD_GROUP";
inline constexpr std::wstring_view kMlineStyleKey = L"ACAD_MLINESTYLE";
inline constexpr std::wstring_view kLayoutKey = L"ACAD_LAYOUT";
inline constexpr std::wstring_view kPlotSettingsKey = L"ACAD_PLOTSETTINGS";
inline constexpr std::wstring_view kImageKey = L"ACAD_IMAGE_DICT";
inline constexpr std::wstring_view kPdfKey = L"ACAD_PDFDEFINITIONS";
inline constexpr std::wstring_view kDwfKey = L"ACAD_DWFDEFINITIONS";
inline constexpr std::wstring_view kDgnKey = L"ACAD_DGNDEFINITIONS";
inline constexpr std::wstring_view kMaterialKey = L"ACAD_MATERIAL";
inline constexpr std::wstring_view kSummaryKey = L"DWGPROPS";

// Keys of extension dictionaries: of model space the location; of a block what makes it dynamic; of
// an attribute its many lines, and the group that stands before them.
inline constexpr std::wstring_view kGeoDataKey = L"ACAD_GEOGRAPHICDATA";
inline constexpr std::wstring_view kDynamicBlockKey = L"ACAD_ENHANCEDBLOCK";
inline constexpr std::wstring_view kMultiLineKey = L"ACAD_MLATT";
inline constexpr std::wstring_view kMultiLineGroup = L"Embedded Object";

// Applications with data at the record of a block: the name of a dynamic one, and the block whose
// variation another is.
inline constexpr std::wstring_view kTrueNameApplication = L"AcDbDynamicBlockTrueName";
inline constexpr std::wstring_view kVariationApplication = L"AcDbBlockRepBTag";

// Blocks that are layouts', whatever their records say; the second has a number behind it.
inline constexpr std::wstring_view kModelSpaceName = L"*Model_Space";
inline constexpr std::wstring_view kPaperSpaceName = L"*Paper_Space";

// Where AC1014 keeps the true spelling of a name that it stores in capitals: the key of the record
// in the extension dictionary, and the group that begins the spellings in it.
inline constexpr std::wstring_view kSpellingKey = L"ACAD_XREC_ROUNDTRIP";
inline constexpr std::wstring_view kSpellingGroup = L"EXTNAMES";

}  // namespace zdx::dwg
