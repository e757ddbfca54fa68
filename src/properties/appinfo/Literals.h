// What files spell: the words by which the application-information block and the texts in it are
// recognised.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/os/PropVariant.h"
#include "properties/appinfo/DwgHeader.h"

namespace ZDXEngine {

// The version magics with a block that can be looked for, or known to have none.  They are compared
// in this order; the lower-case letter is the files' own.
struct HeaderMagic {
  std::string_view magic;
  DwgHeaderKind kind;
};
inline constexpr HeaderMagic kHeaderMagics[] = {
    {"AC1012", kDwgHeader1012}, {"AC1014", kDwgHeader1014}, {"AC1015", kDwgHeader1015},
    {"AC1018", kDwgHeader1018}, {"AC1021", kDwgHeader1021}, {"AC701a", kDwgHeader1021},
    {"AC1024", kDwgHeader1021},
};

// The mark at the block's begin.
inline constexpr std::size_t kSentinelSize = 32;
inline constexpr std::uint8_t kSentinel[kSentinelSize] = {
    0x53, 0xDE, 0x38, 0x1D, 0xEC, 0x43, 0x21, 0xCA, 0x96, 0x19, 0xE1, 0xE2, 0x17, 0x1A, 0x2A, 0x67,
    0x3B, 0xD9, 0x7F, 0xF7, 0x3C, 0xBB, 0xCE, 0x08, 0xA0, 0x53, 0xD8, 0xED, 0xD2, 0x8D, 0xC5, 0xC7};

// The shapes of a property set's text.  Between a Begin and its End stands a format id, a number or
// a name.
inline constexpr std::wstring_view kHeadBegin = L"<prop_set fmt_id=\"";
inline constexpr wchar_t kHeadEnd = L'"';
inline constexpr std::wstring_view kNumberedPropertyBegin = L"<prop id=\"";
inline constexpr std::wstring_view kNamedPropertyBegin = L"<prop id_str=\"";
inline constexpr std::wstring_view kPropertyTagEnd = L"\">";
inline constexpr std::wstring_view kPropertyEnd = L"</prop>";
inline constexpr wchar_t kTagBegin = L'<';
inline constexpr wchar_t kTagEnd = L'>';
inline constexpr std::wstring_view kClosingTagBegin = L"</";

// The tags of value elements, in the order in which they are tried, and the value's type.
struct ValueTag {
  std::wstring_view tag;
  VARTYPE type;
};
inline constexpr ValueTag kValueTags[] = {
    {L"string", VT_LPWSTR}, {L"double", VT_R8},         {L"int", VT_INT},
    {L"uint", VT_UINT},     {L"datetime", VT_FILETIME}, {L"boolval", VT_BOOL},
};
inline constexpr std::wstring_view kTrueText = L"true";

// The numbers of the properties that tell which program created a drawing.
inline constexpr PROPID kCreatorName = 0x102;
inline constexpr PROPID kCreatorVersion = 0x103;

}  // namespace ZDXEngine
