#include "resources/StringTable.h"

#include <algorithm>
#include <iterator>

namespace ZDXEngine {
namespace {

// 101 has two blanks behind "file"; texts that end a line have a blank before the line feed.
constexpr StringTableEntry kTexts[] = {
    {101, L"Unable to read file  '%1!s!' \n"},
    {102, L"Unable to find file '%1!s!' \n"},
    {103, L"'%1!s!' is not a valid Zentrace drawing file \n"},
    {104, L"Security related errors encountered on file '%1!s!' \n"},
    {106, L"Child file is not found \n"},
    {107, L"Unable to access file '%1!s!' \n"},
    {108, L"File path to be updated is empty"},
    {109, L"Unable to convert digitally signed file '%1!s!' \n"},
    {110, L"Sharing violation on file '%1!s!' \n"},
    {111, L"File '%1!s!' has too large data \n"},
    {112, L"Unable to convert file '%1!s!' to Zentrace R14 \n"},
    {113, L"Unable to convert file '%1!s!' to Zentrace 2000 \n"},
    {114, L"Unable to save file '%1!s!' \n"},
    {115, L"Unable to convert file '%1!s!' to Zentrace 2004 \n"},
    {116, L"Unable to convert file '%1!s!' to Zentrace 2007 \n"},
    {117, L"Unable to convert file '%1!s!' to Zentrace 2010 \n"},
    {118, L"Unable to convert file '%1!s!' to Zentrace 2013 \n"},
    {148, L"Unable to convert file '%1!s!' to Zentrace 2017 \n"},
    {149, L"The header of the file '%1!s!' is not valid \n"},
    {150, L"Unable to get vertical dependencies \n"},
    {151, L"Unable to update vertical dependencies \n"},
};

// Look-ups search by halves.
static_assert(std::is_sorted(std::begin(kTexts), std::end(kTexts),
                             [](const StringTableEntry& a, const StringTableEntry& b) {
                               return a.id < b.id;
                             }));

}  // namespace

std::span<const StringTableEntry> StringTable() { return kTexts; }

}  // namespace ZDXEngine
