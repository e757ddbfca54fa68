// Group codes: what kind of value follows, and what the codes read here mean.
#pragma once

namespace zdx::dxf {

enum class ValueKind { kUnknown, kText, kDouble, kInt16, kInt32, kInt64, kBool, kBytes };

// The kind of value that follows `code`.
//
//   CODES                                             VALUE     BYTES IN A BINARY FILE
//   0-9 100-102 105 300-309 320-369 390-399 410-419
//   430-439 470-481 999 1000-1003 1005                text      its bytes and a zero
//   10-59 110-149 210-239 460-469 1010-1059           double    8
//   60-79 170-179 270-289 370-389 400-409 1060-1070   integer   2
//   90-99 420-429 440-459 1071                        integer   4
//   160-169                                           integer   8
//   290-299                                           flag      1
//   310-319 1004                                      bytes     1 for the length, the bytes
//
// A handle is a text of hexadecimal digits in both forms.
ValueKind KindOf(int code);

// Whether a text behind `code` is an object's number.
bool IsHandle(int code);

// Codes that are read here, by their meaning.
inline constexpr int kTypeCode = 0;
inline constexpr int kTextCode = 1;
inline constexpr int kPathCode = 1;
inline constexpr int kNameCode = 2;
inline constexpr int kPrinterCode = 2;
inline constexpr int kKeyCode = 3;
inline constexpr int kMoreTextCode = 3;
inline constexpr int kPromptCode = 3;
inline constexpr int kFontCode = 3;
inline constexpr int kBigFontCode = 4;
inline constexpr int kDescriptionCode = 3;
inline constexpr int kHandleCode = 5;
inline constexpr int kPlotStyleTableCode = 7;
inline constexpr int kVariableCode = 9;
inline constexpr int kOnPaperCode = 67;
inline constexpr int kFlagsCode = 70;
inline constexpr int kLengthCode = 90;
inline constexpr int kProxyClassCode = 91;
inline constexpr int kSubclassCode = 100;
inline constexpr int kEmbeddedCode = 101;
inline constexpr int kGroupCode = 102;
inline constexpr int kDimensionStyleHandleCode = 105;
inline constexpr int kCloningCode = 280;
inline constexpr int kBackgroundCode = 300;
inline constexpr int kSystemCode = 301;
inline constexpr int kConnectionCode = 302;
inline constexpr int kGeoRssCode = 302;
inline constexpr int kMoreSystemCode = 303;
inline constexpr int kObservationFromCode = 305;
inline constexpr int kObservationToCode = 306;
inline constexpr int kObservationCoverageCode = 307;
inline constexpr int kChunkCode = 310;
inline constexpr int kOwnerCode = 330;
inline constexpr int kLayoutCode = 340;
inline constexpr int kSoftValueCode = 350;
inline constexpr int kHardValueCode = 360;
inline constexpr int kCommentCode = 999;
inline constexpr int kExtendedTextCode = 1000;
inline constexpr int kApplicationCode = 1001;
inline constexpr int kExtendedHandleCode = 1005;

}  // namespace zdx::dxf
