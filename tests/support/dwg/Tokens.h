#pragma once

#include <cstddef>
#include <string_view>

#include "support/drawing/Tokens.h"

namespace dwg {

// The words and marks that only these files have.

// What parts of the file begin with, as hexadecimal digits.
inline constexpr std::string_view kHeadMark = "95A04E2899821AE55E41E05F9D3A4D00";
inline constexpr std::string_view kHeaderMark = "CF7B1F23FDDE38A95F7C68B84E6D335F";
inline constexpr std::string_view kClassesMark = "8DA1C4B8C4A9F8C5C0DCF45FE7CFB68A";
inline constexpr std::string_view kPreviewMark = "1F256D07D43628289D57CA3F9D44102B";
inline constexpr std::string_view kSecondHeaderMark = "D47B21CE28939FBF53244009123CAA01";

// Of the encrypted header, its last byte a zero.
inline constexpr std::string_view kPagedHeaderId("AcFssFcAJMB\0", 12);

inline constexpr const char* kHeaderSection = "AcDb:Header";
inline constexpr const char* kAuxHeaderSection = "AcDb:AuxHeader";
inline constexpr const char* kClassesSection = "AcDb:Classes";
inline constexpr const char* kHandlesSection = "AcDb:Handles";
inline constexpr const char* kTemplateSection = "AcDb:Template";
inline constexpr const char* kObjectsSection = "AcDb:AcDbObjects";
inline constexpr const char* kRevisionsSection = "AcDb:RevHistory";
inline constexpr const char* kSummarySection = "AcDb:SummaryInfo";
inline constexpr const char* kPreviewSection = "AcDb:Preview";
inline constexpr const char* kAppInfoSection = "AcDb:AppInfo";
inline constexpr const char* kAppInfoHistorySection = "AcDb:AppInfoHistory";
inline constexpr const char* kFileListSection = "AcDb:FileDepList";

// Keys and words of records.
inline constexpr const char* kRoundTripKey = "ACAD_XREC_ROUNDTRIP";
inline constexpr const char* kTrueNames = "EXTNAMES";
inline constexpr const char* kLightPolyline = "LWPOLYLINE";
inline constexpr const char* kGeoLocation = "GEODATA";
inline constexpr const char* kLine = "LINE";
inline constexpr const char* kCircle = "CIRCLE";
inline constexpr const char* kArc = "ARC";
inline constexpr const char* kPoint = "POINT";
inline constexpr const char* kText = "TEXT";

inline constexpr const char* kModelSpaceName = "*Model_Space";
inline constexpr const char* kPaperSpaceName = "*Paper_Space";

}  // namespace dwg
