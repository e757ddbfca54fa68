// The words of the format, spelled as files spell them.
#pragma once

#include <string_view>

namespace zdx::dxf {

// Structure.
inline constexpr std::string_view kSection = "SECTION";
inline constexpr std::string_view kEndOfSection = "ENDSEC";
inline constexpr std::string_view kTable = "TABLE";
inline constexpr std::string_view kEndOfTable = "ENDTAB";
inline constexpr std::string_view kEndOfFile = "EOF";
inline constexpr std::string_view kBlock = "BLOCK";
inline constexpr std::string_view kEndOfBlock = "ENDBLK";
inline constexpr std::string_view kEndOfSequence = "SEQEND";
inline constexpr std::string_view kClass = "CLASS";

// A binary file begins with this product name, kBinaryMark and the bytes after it.
inline constexpr std::string_view kBinaryProduct = "AutoCAD";
inline constexpr std::string_view kBinaryMark = " Binary DXF";
inline constexpr std::string_view kBinaryTail("\r\n\x1A\0", 4);
inline constexpr std::size_t kBinarySentinelSize =
    kBinaryProduct.size() + kBinaryMark.size() + kBinaryTail.size();
static_assert(kBinarySentinelSize == 22);

// A text in UTF-8 may begin with this mark.
inline constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

// Sections.
inline constexpr std::string_view kHeaderSection = "HEADER";
inline constexpr std::string_view kClassesSection = "CLASSES";
inline constexpr std::string_view kTablesSection = "TABLES";
inline constexpr std::string_view kBlocksSection = "BLOCKS";
inline constexpr std::string_view kEntitiesSection = "ENTITIES";
inline constexpr std::string_view kObjectsSection = "OBJECTS";
inline constexpr std::string_view kThumbnailSection = "THUMBNAILIMAGE";

// All of them.
inline constexpr std::string_view kReadSections[] = {
    kHeaderSection,   kClassesSection, kTablesSection,   kBlocksSection,
    kEntitiesSection, kObjectsSection, kThumbnailSection};

// Records of the symbol tables.
inline constexpr std::string_view kLayerRecord = "LAYER";
inline constexpr std::string_view kLinetypeRecord = "LTYPE";
inline constexpr std::string_view kViewRecord = "VIEW";
inline constexpr std::string_view kStyleRecord = "STYLE";
inline constexpr std::string_view kBlockRecord = "BLOCK_RECORD";
inline constexpr std::string_view kDimensionStyleRecord = "DIMSTYLE";

// Entities.
inline constexpr std::string_view kInsert = "INSERT";
inline constexpr std::string_view kAttribute = "ATTRIB";
inline constexpr std::string_view kAttributeDefinition = "ATTDEF";
inline constexpr std::string_view kText = "TEXT";
inline constexpr std::string_view kMText = "MTEXT";
inline constexpr std::string_view kVertex = "VERTEX";
inline constexpr std::string_view kAttributeMarker = "AcDbAttribute";
inline constexpr std::string_view kAttributeDefinitionMarker = "AcDbAttributeDefinition";

// Groups of applications, by their first tag; they all begin with a brace.
inline constexpr char kGroupBegin = '{';
inline constexpr std::string_view kExtensionGroup = "{ACAD_XDICTIONARY";

// Objects.
inline constexpr std::string_view kDictionary = "DICTIONARY";
inline constexpr std::string_view kDictionaryWithDefault = "ACDBDICTIONARYWDFLT";
constexpr bool IsDictionary(std::string_view type) {
  return type == kDictionary || type == kDictionaryWithDefault;
}
inline constexpr std::string_view kXrecord = "XRECORD";
inline constexpr std::string_view kXrecordMarker = "AcDbXrecord";
inline constexpr std::string_view kProxyObject = "ACAD_PROXY_OBJECT";
inline constexpr std::string_view kProxyEntity = "ACAD_PROXY_ENTITY";

inline constexpr std::string_view kGeoData = "GEODATA";
inline constexpr std::string_view kGeoDataMarker = "AcDbGeoData";
// Objects that name files.
inline constexpr std::string_view kImageDefinition = "IMAGEDEF";
inline constexpr std::string_view kImageBackground = "IMAGEBACKGROUND";
inline constexpr std::string_view kPdfDefinition = "PDFDEFINITION";
inline constexpr std::string_view kDwfDefinition = "DWFDEFINITION";
inline constexpr std::string_view kDgnDefinition = "DGNDEFINITION";
inline constexpr std::string_view kDataLink = "DATALINK";
inline constexpr std::string_view kMaterial = "MATERIAL";
inline constexpr std::string_view kLayout = "LAYOUT";
inline constexpr std::string_view kPlotSettings = "PLOTSETTINGS";
inline constexpr std::string_view kPlotSettingsMarker = "AcDbPlotSettings";
// The types of point clouds end so.
inline constexpr std::string_view kPointCloudDefinition = "POINTCLOUDDEF";
inline constexpr std::string_view kPointCloudDefinitionEx = "POINTCLOUDDEFEX";

// The free record of a multi-line attribute holds this before the text.
inline constexpr std::string_view kEmbeddedMark = "Embedded Object";

// Keys of extension dictionaries.
inline constexpr std::wstring_view kDynamicBlockKey = L"ACAD_ENHANCEDBLOCK";
inline constexpr std::wstring_view kMultiLineKey = L"ACAD_MLATT";
inline constexpr std::wstring_view kGeoDataKey = L"ACAD_GEOGRAPHICDATA";

// Applications of extended data; AC1014 has them in capitals.
inline constexpr std::wstring_view kTrueNameApplication = L"AcDbDynamicBlockTrueName";
inline constexpr std::wstring_view kVariationApplication = L"AcDbBlockRepBTag";

// Blocks of spaces; a number may follow the first name of papers.
inline constexpr std::wstring_view kModelSpace = L"*Model_Space";
inline constexpr std::wstring_view kPaperSpace = L"*Paper_Space";
inline constexpr std::wstring_view kOldModelSpace = L"$MODEL_SPACE";
inline constexpr std::wstring_view kOldPaperSpace = L"$PAPER_SPACE";

// Keys of the root dictionary.
inline constexpr std::wstring_view kGroupKey = L"ACAD_GROUP";
inline constexpr std::wstring_view kMlineStyleKey = L"ACAD_MLINESTYLE";
inline constexpr std::wstring_view kLayoutKey = L"ACAD_LAYOUT";
inline constexpr std::wstring_view kPlotSettingsKey = L"ACAD_PLOTSETTINGS";
inline constexpr std::wstring_view kSummaryKey = L"DWGPROPS";

// Header variables.
inline constexpr std::string_view kVersionVariable = "$ACADVER";
inline constexpr std::string_view kCodePageVariable = "$DWGCODEPAGE";
inline constexpr std::string_view kTitleVariable = "$TITLE";
inline constexpr std::string_view kSubjectVariable = "$SUBJECT";
inline constexpr std::string_view kAuthorVariable = "$AUTHOR";
inline constexpr std::string_view kKeywordsVariable = "$KEYWORDS";
inline constexpr std::string_view kCommentsVariable = "$COMMENTS";
inline constexpr std::string_view kLastSavedByVariable = "$LASTSAVEDBY";
inline constexpr std::string_view kRevisionNumberVariable = "$REVISIONNUMBER";
inline constexpr std::string_view kCustomNameVariable = "$CUSTOMPROPERTYTAG";
inline constexpr std::string_view kCustomValueVariable = "$CUSTOMPROPERTY";
inline constexpr std::string_view kMenuVariable = "$MENU";
inline constexpr std::string_view kProjectNameVariable = "$PROJECTNAME";
inline constexpr std::string_view kHyperlinkBaseVariable = "$HYPERLINKBASE";
inline constexpr std::string_view kStyleSheetVariable = "$STYLESHEET";
inline constexpr std::string_view kDimpostVariable = "$DIMPOST";
inline constexpr std::string_view kDimapostVariable = "$DIMAPOST";
inline constexpr std::string_view kDimblkVariable = "$DIMBLK";
inline constexpr std::string_view kDimblk1Variable = "$DIMBLK1";
inline constexpr std::string_view kDimblk2Variable = "$DIMBLK2";

// All of them.
inline constexpr std::string_view kReadVariables[] = {
    kVersionVariable,        kCodePageVariable,      kTitleVariable,       kSubjectVariable,
    kAuthorVariable,         kKeywordsVariable,      kCommentsVariable,    kLastSavedByVariable,
    kRevisionNumberVariable, kCustomNameVariable,    kCustomValueVariable, kMenuVariable,
    kProjectNameVariable,    kHyperlinkBaseVariable, kStyleSheetVariable,  kDimpostVariable,
    kDimapostVariable,       kDimblkVariable,        kDimblk1Variable,     kDimblk2Variable};

}  // namespace zdx::dxf
