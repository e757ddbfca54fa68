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
};
inline constexpr LikeClass kLikeClasses[] = {
    {"ACDBDICTIONARYWDFLT", 42}, {"XRECORD", 79},  // in AC1014
};

// The classes of the objects that have a type of their own.
struct FixedClass {
  std::uint16_t type;
  std::wstring_view name;
};
inline constexpr FixedClass kFixedClasses[] = {
    {42, L"AcDbDictionary"},           {48, L"AcDbBlockTable"},
    {49, L"AcDbBlockTableRecord"},     {50, L"AcDbLayerTable"},
    {51, L"AcDbLayerTableRecord"},     {52, L"AcDbTextStyleTable"},
    {53, L"AcDbTextStyleTableRecord"}, {56, L"AcDbLinetypeTable"},
    {57, L"AcDbLinetypeTableRecord"},  {60, L"AcDbViewTable"},
    {61, L"AcDbViewTableRecord"},      {62, L"AcDbUCSTable"},
    {63, L"AcDbUCSTableRecord"},       {64, L"AcDbViewportTable"},
    {65, L"AcDbViewportTableRecord"},  {66, L"AcDbRegAppTable"},
    {67, L"AcDbRegAppTableRecord"},    {68, L"AcDbDimStyleTable"},
    {69, L"AcDbDimStyleTableRecord"},  {72, L"AcDbGroup"},
    {73, L"AcDbMlineStyle"},           {79, L"AcDbXrecord"},
    {80, L"AcDbPlaceHolder"},          {82, L"AcDbLayout"},
};

// Keys of the root dictionary.
inline constexpr std::wstring_view kGroupKey = L"ACAD_GROUP";
inline constexpr std::wstring_view kMlineStyleKey = L"ACAD_MLINESTYLE";
inline constexpr std::wstring_view kLayoutKey = L"ACAD_LAYOUT";
inline constexpr std::wstring_view kPlotSettingsKey = L"ACAD_PLOTSETTINGS";
inline constexpr std::wstring_view kSummaryKey = L"DWGPROPS";

// Where AC1014 keeps the true spelling of a name that it stores in capitals: the key of the record
// in the extension dictionary, and the group that begins the spellings in it.
inline constexpr std::wstring_view kSpellingKey = L"ACAD_XREC_ROUNDTRIP";
inline constexpr std::wstring_view kSpellingGroup = L"EXTNAMES";

}  // namespace zdx::dwg
