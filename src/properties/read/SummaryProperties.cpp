#include "properties/read/SummaryProperties.h"

#include <memory>

#include "platform/zndb/ZnDbDatabaseSummaryInfo.h"
#include "properties/read/HeapText.h"
#include "properties/record/AddProperty.h"

namespace ZDXEngine {
namespace {

struct SummaryField {
  const wchar_t* name;
  unsigned long number;
  Zent::ErrorStatus (ZnDbDatabaseSummaryInfo::*get)(ZnString& text) const;
};

constexpr SummaryField kFields[] = {
    {L"Title", 2, &ZnDbDatabaseSummaryInfo::getTitle},
    {L"Subject", 3, &ZnDbDatabaseSummaryInfo::getSubject},
    {L"Author", 4, &ZnDbDatabaseSummaryInfo::getAuthor},
    {L"Keywords", 5, &ZnDbDatabaseSummaryInfo::getKeywords},
    {L"Comments", 6, &ZnDbDatabaseSummaryInfo::getComments},
    {L"LastSavedBy", 8, &ZnDbDatabaseSummaryInfo::getLastSavedBy},
    {L"RevisionNumber", 9, &ZnDbDatabaseSummaryInfo::getRevisionNumber},
};

// The summary of `database`, or null if it can't be had.
std::unique_ptr<ZnDbDatabaseSummaryInfo> GetSummary(ZnDbDatabase* database) {
  ZnDbDatabaseSummaryInfo* info = nullptr;
  if (zndbGetSummaryInfo(database, info) != Zent::kOk) return nullptr;
  return std::unique_ptr<ZnDbDatabaseSummaryInfo>(info);
}

// False if the field can't be read.  A field whose copy fails is read all the same, without a text.
bool ReadField(const ZnDbDatabaseSummaryInfo& info, const SummaryField& field, HeapText& value) {
  ZnString text;
  if ((info.*field.get)(text) != Zent::kOk) return false;
  value.Copy(text);
  return true;
}

// False if the entry can't be read; one whose key can't be copied counts as unreadable.
bool ReadEntry(const ZnDbDatabaseSummaryInfo& info, int index, HeapText& key, HeapText& value) {
  ZnString keyText;
  ZnString valueText;
  if (info.getCustomSummaryInfo(index, keyText, valueText) != Zent::kOk) return false;
  key.Copy(keyText);
  value.Copy(valueText);
  return key.Get() != nullptr;
}

}  // namespace

void CollectSummaryProperties(std::vector<_PropData>& properties, ZnDbDatabase* database) {
  const std::unique_ptr<ZnDbDatabaseSummaryInfo> info = GetSummary(database);
  if (info == nullptr) return;
  for (const SummaryField& field : kFields) {
    HeapText value;
    if (!ReadField(*info, field, value)) continue;
    AddText(properties, value.Get(), field.name, FMTID_SummaryInformation, field.number);
  }
}

void CollectCustomSummaryProperties(std::vector<_PropData>& properties, ZnDbDatabase* database) {
  const std::unique_ptr<ZnDbDatabaseSummaryInfo> info = GetSummary(database);
  if (info == nullptr) return;
  const int count = info->numCustomInfo();
  for (int index = 0; index < count; ++index) {
    HeapText key;
    HeapText value;
    if (!ReadEntry(*info, index, key, value)) continue;
    AddText(properties, value.Get(), key.Get(), FMTID_UserDefinedProperties, kNamedProperty);
  }
}

}  // namespace ZDXEngine
