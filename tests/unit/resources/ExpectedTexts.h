// The texts as clients know them, letter by letter.
#pragma once

#include <map>
#include <string>

namespace expected {

inline const std::map<unsigned int, std::wstring>& FailureTexts() {
  static const std::map<unsigned int, std::wstring> texts = {
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
  return texts;
}

// The words of locations, "Mils" among them though it is used nowhere.
inline const std::map<unsigned int, std::wstring>& LocationTexts() {
  static const std::map<unsigned int, std::wstring> texts = {
      {119, L"Unknown"},        {120, L"Local"},       {121, L"Grid"},         {122, L"Geographic"},
      {123, L"Undefined Unit"}, {124, L"Inches"},      {125, L"Feet"},         {126, L"Miles"},
      {127, L"Millimeters"},    {128, L"Centimeters"}, {129, L"Meters"},       {130, L"Kilometers"},
      {131, L"MicroInches"},    {132, L"Mils"},        {133, L"Yards"},        {134, L"Angstroms"},
      {135, L"Nanometers"},     {136, L"Microns"},     {137, L"Decimeters"},   {138, L"Dekameters"},
      {139, L"Hectometers"},    {140, L"Gigameters"},  {141, L"Astronomical"}, {142, L"Lightyears"},
      {143, L"Parsecs"},        {144, L"Parsecs"},
  };
  return texts;
}

}  // namespace expected
