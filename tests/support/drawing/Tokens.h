#pragma once

namespace drawing {

// The files' own words that both makers or more than one of their sources need.

inline constexpr const char* kInsert = "INSERT";
inline constexpr const char* kAttribute = "ATTRIB";
inline constexpr const char* kAttributeDefinition = "ATTDEF";
inline constexpr const char* kSequenceEnd = "SEQEND";
inline constexpr const char* kPolyline = "POLYLINE";
inline constexpr const char* kImage = "IMAGE";
inline constexpr const char* kMText = "MTEXT";

inline constexpr const char* kDictionary = "DICTIONARY";
inline constexpr const char* kDictionaryWithDefault = "ACDBDICTIONARYWDFLT";
inline constexpr const char* kXrecord = "XRECORD";
inline constexpr const char* kPlaceholder = "ACDBPLACEHOLDER";
inline constexpr const char* kProxyObject = "ACAD_PROXY_OBJECT";
inline constexpr const char* kLayout = "LAYOUT";
inline constexpr const char* kPlotSettings = "PLOTSETTINGS";
inline constexpr const char* kMlineStyle = "MLINESTYLE";
inline constexpr const char* kGroup = "GROUP";
inline constexpr const char* kImageDefinition = "IMAGEDEF";
inline constexpr const char* kImageReactor = "IMAGEDEF_REACTOR";
inline constexpr const char* kPdfDefinition = "PDFDEFINITION";
inline constexpr const char* kDwfDefinition = "DWFDEFINITION";
inline constexpr const char* kDgnDefinition = "DGNDEFINITION";
inline constexpr const char* kPointCloudDefinition = "ACDBPOINTCLOUDDEF";
inline constexpr const char* kSecondPointCloudDefinition = "ACDBPOINTCLOUDDEFEX";
inline constexpr const char* kDataLink = "DATALINK";
inline constexpr const char* kMaterial = "MATERIAL";

inline constexpr const char* kEntityMarker = "AcDbEntity";
inline constexpr const char* kTextMarker = "AcDbText";
inline constexpr const char* kAttributeMarker = "AcDbAttribute";
inline constexpr const char* kAttributeDefinitionMarker = "AcDbAttributeDefinition";
inline constexpr const char* kBlockBeginMarker = "AcDbBlockBegin";
inline constexpr const char* kBlockEndMarker = "AcDbBlockEnd";
inline constexpr const char* kTableMarker = "AcDbSymbolTable";
inline constexpr const char* kRecordMarker = "AcDbSymbolTableRecord";
inline constexpr const char* kDictionaryMarker = "AcDbDictionary";
inline constexpr const char* kDictionaryWithDefaultMarker = "AcDbDictionaryWithDefault";
inline constexpr const char* kXrecordMarker = "AcDbXrecord";
inline constexpr const char* kPlotSettingsMarker = "AcDbPlotSettings";
inline constexpr const char* kLayoutMarker = "AcDbLayout";
inline constexpr const char* kMlineStyleMarker = "AcDbMlineStyle";
inline constexpr const char* kGroupMarker = "AcDbGroup";
inline constexpr const char* kImageMarker = "AcDbRasterImage";
inline constexpr const char* kImageDefinitionMarker = "AcDbRasterImageDef";
inline constexpr const char* kImageReactorMarker = "AcDbRasterImageDefReactor";
inline constexpr const char* kProxyMarker = "AcDbProxyObject";
inline constexpr const char* kUnderlayDefinitionMarker = "AcDbUnderlayDefinition";
inline constexpr const char* kPdfDefinitionClass = "AcDbPdfDefinition";
inline constexpr const char* kDwfDefinitionClass = "AcDbDwfDefinition";
inline constexpr const char* kDgnDefinitionClass = "AcDbDgnDefinition";
inline constexpr const char* kPointCloudDefinitionClass = "AcDbPointCloudDef";
inline constexpr const char* kSecondPointCloudDefinitionClass = "AcDbPointCloudDefEx";
inline constexpr const char* kDataLinkClass = "AcDbDataLink";
inline constexpr const char* kMaterialClass = "AcDbMaterial";

inline constexpr const char* kGroupKey = "ACAD_GROUP";
inline constexpr const char* kImageKey = "ACAD_IMAGE_DICT";
inline constexpr const char* kLayoutKey = "ACAD_LAYOUT";
inline constexpr const char* kMlineStyleKey = "ACAD_MLINESTYLE";
inline constexpr const char* kPlotSettingsKey = "ACAD_PLOTSETTINGS";
inline constexpr const char* kPlotStyleKey = "ACAD_PLOTSTYLENAME";
inline constexpr const char* kPdfUnderlayKey = "ACAD_PDFDEFINITIONS";
inline constexpr const char* kDwfUnderlayKey = "ACAD_DWFDEFINITIONS";
inline constexpr const char* kDgnUnderlayKey = "ACAD_DGNDEFINITIONS";
inline constexpr const char* kPointCloudKey = "ACAD_POINTCLOUD_DICT";
inline constexpr const char* kSecondPointCloudKey = "ACAD_POINTCLOUD_EX_DICT";
inline constexpr const char* kDataLinkKey = "ACAD_DATALINK";
inline constexpr const char* kMaterialKey = "ACAD_MATERIAL";
inline constexpr const char* kSummaryKey = "DWGPROPS";
inline constexpr const char* kSummaryCookie = "DWGPROPS COOKIE";
inline constexpr const char* kMultiLineKey = "ACAD_MLATT";
inline constexpr const char* kEmbeddedObject = "Embedded Object";
inline constexpr const char* kDynamicBlockKey = "ACAD_ENHANCEDBLOCK";
inline constexpr const char* kTrueNameApplication = "AcDbDynamicBlockTrueName";
inline constexpr const char* kCopyApplication = "AcDbBlockRepBTag";

inline constexpr const char* kApplication = "ACAD";
inline constexpr const char* kGeoKey = "ACAD_GEOGRAPHICDATA";
inline constexpr const char* k2dPolylineMarker = "AcDb2dPolyline";
inline constexpr const char* k2dVertexMarker = "AcDb2dVertex";
inline constexpr const char* kArcMarker = "AcDbArc";
inline constexpr const char* kBlockReferenceMarker = "AcDbBlockReference";
inline constexpr const char* kBlockTableRecordMarker = "AcDbBlockTableRecord";
inline constexpr const char* kCircleMarker = "AcDbCircle";
inline constexpr const char* kDimStyleTableMarker = "AcDbDimStyleTable";
inline constexpr const char* kDimStyleTableRecordMarker = "AcDbDimStyleTableRecord";
inline constexpr const char* kGeoClass = "AcDbGeoData";
inline constexpr const char* kLayerTableRecordMarker = "AcDbLayerTableRecord";
inline constexpr const char* kLineMarker = "AcDbLine";
inline constexpr const char* kMTextMarker = "AcDbMText";
inline constexpr const char* kLinetypeTableRecordMarker = "AcDbLinetypeTableRecord";
inline constexpr const char* kPlaceHolderMarker = "AcDbPlaceHolder";
inline constexpr const char* kPointMarker = "AcDbPoint";
inline constexpr const char* kPolylineMarker = "AcDbPolyline";
inline constexpr const char* kRegAppTableRecordMarker = "AcDbRegAppTableRecord";
inline constexpr const char* kTextStyleTableRecordMarker = "AcDbTextStyleTableRecord";
inline constexpr const char* kUCSTableRecordMarker = "AcDbUCSTableRecord";
inline constexpr const char* kVertexMarker = "AcDbVertex";
inline constexpr const char* kViewTableRecordMarker = "AcDbViewTableRecord";
inline constexpr const char* kViewportTableRecordMarker = "AcDbViewportTableRecord";

}  // namespace drawing
