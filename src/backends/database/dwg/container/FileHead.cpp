#include "backends/database/dwg/container/FileHead.h"

#include <algorithm>
#include <iterator>

#include "base/LittleEndian.h"

namespace zdx::dwg {
namespace {

constexpr NumberedCodePage kCodePages[] = {
    {1, kWestern, L"ascii"},   {2, 28591, L"iso8859-1"},  {3, 28592, L"iso8859-2"},
    {4, 28593, L"iso8859-3"},  {5, 28594, L"iso8859-4"},  {6, 28595, L"iso8859-5"},
    {7, 28596, L"iso8859-6"},  {8, 28597, L"iso8859-7"},  {9, 28598, L"iso8859-8"},
    {10, 28599, L"iso8859-9"}, {11, 437, L"dos437"},      {12, 850, L"dos850"},
    {13, 852, L"dos852"},      {14, 855, L"dos855"},      {15, 857, L"dos857"},
    {16, 860, L"dos860"},      {17, 861, L"dos861"},      {18, 863, L"dos863"},
    {19, 864, L"dos864"},      {20, 865, L"dos865"},      {21, 869, L"dos869"},
    {22, 932, L"dos932"},      {23, 10000, L"mac-roman"}, {24, 950, L"big5"},
    {25, 949, L"ksc5601"},     {26, 1361, L"johab"},      {27, 866, L"dos866"},
    {28, 1250, L"ANSI_1250"},  {29, 1251, L"ANSI_1251"},  {30, kWestern, L"ANSI_1252"},
    {31, 936, L"gb2312"},      {32, 1253, L"ANSI_1253"},  {33, 1254, L"ANSI_1254"},
    {34, 1255, L"ANSI_1255"},  {35, 1256, L"ANSI_1256"},  {36, 1257, L"ANSI_1257"},
    {37, 874, L"ANSI_874"},    {38, 932, L"ANSI_932"},    {39, 936, L"ANSI_936"},
    {40, 949, L"ANSI_949"},    {41, 950, L"ANSI_950"},    {42, 1361, L"ANSI_1361"},
    {44, 1258, L"ANSI_1258"},
};

}  // namespace

std::optional<FileHead> ReadFileHead(std::string_view bytes) {
  if (bytes.size() < kFileHeadSize) return std::nullopt;
  FileHead head;
  head.maintenance = LittleEndianAt<std::uint8_t>(bytes, kMaintenanceAt);
  head.previewAddress = LittleEndianAt<std::uint32_t>(bytes, kPreviewAddressAt);
  head.codePage = LittleEndianAt<std::uint16_t>(bytes, kCodePageAt);
  head.protection = LittleEndianAt<std::uint32_t>(bytes, kProtectionAt);
  return head;
}

const NumberedCodePage* CodePageByNumber(std::uint16_t number) {
  const auto* const row = std::find_if(std::begin(kCodePages), std::end(kCodePages),
                                       [number](const auto& r) { return r.number == number; });
  return row == std::end(kCodePages) ? nullptr : row;
}

}  // namespace zdx::dwg
