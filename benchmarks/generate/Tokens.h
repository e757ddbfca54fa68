// The words of the format that name markers, keys and applications, spelled as files spell them.
#pragma once

namespace bench {

inline constexpr const char* kAttributeMarker = "AcDbAttribute";
inline constexpr const char* kAttributeDefinitionMarker = "AcDbAttributeDefinition";
inline constexpr const char* kBlockBeginMarker = "AcDbBlockBegin";
inline constexpr const char* kBlockEndMarker = "AcDbBlockEnd";
inline constexpr const char* kBlockReferenceMarker = "AcDbBlockReference";
inline constexpr const char* kBlockTableRecordMarker = "AcDbBlockTableRecord";
inline constexpr const char* kCircleMarker = "AcDbCircle";
inline constexpr const char* kDictionaryMarker = "AcDbDictionary";
inline constexpr const char* kEntityMarker = "AcDbEntity";
inline constexpr const char* kGroupMarker = "AcDbGroup";
inline constexpr const char* kLayerTableRecordMarker = "AcDbLayerTableRecord";
inline constexpr const char* kLayoutMarker = "AcDbLayout";
inline constexpr const char* kLineMarker = "AcDbLine";
inline constexpr const char* kLinetypeTableRecordMarker = "AcDbLinetypeTableRecord";
inline constexpr const char* kMlineStyleMarker = "AcDbMlineStyle";
inline constexpr const char* kPlotSettingsMarker = "AcDbPlotSettings";
inline constexpr const char* kPolylineMarker = "AcDbPolyline";
inline constexpr const char* kRegAppTableRecordMarker = "AcDbRegAppTableRecord";
inline constexpr const char* kSymbolTableMarker = "AcDbSymbolTable";
inline constexpr const char* kSymbolTableRecordMarker = "AcDbSymbolTableRecord";
inline constexpr const char* kTextMarker = "AcDbText";
inline constexpr const char* kTextStyleTableRecordMarker = "AcDbTextStyleTableRecord";
inline constexpr const char* kViewTableRecordMarker = "AcDbViewTableRecord";
inline constexpr const char* kXrecordMarker = "AcDbXrecord";
inline constexpr const char* kVersionVariable = "$ACADVER";
inline constexpr const char* kApplication = "ACAD";
inline constexpr const char* kGroupKey = "ACAD_GROUP";
inline constexpr const char* kLayoutKey = "ACAD_LAYOUT";
inline constexpr const char* kMlineStyleKey = "ACAD_MLINESTYLE";
inline constexpr const char* kPlotSettingsKey = "ACAD_PLOTSETTINGS";
inline constexpr const char* kReactorGroup = "{ACAD_REACTORS";

}  // namespace bench
