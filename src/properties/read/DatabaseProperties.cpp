#include "properties/read/DatabaseProperties.h"

#include "properties/read/HeapText.h"
#include "properties/record/AddProperty.h"

namespace ZDXEngine {
namespace {

// A setting has either a getter with a status or one that gives the text itself.
struct DatabaseSetting {
  const wchar_t* name;
  Zent::ErrorStatus (ZnDbDatabase::*get)(ZnString& text) const;
  const wchar_t* (ZnDbDatabase::*text)() const;
};

constexpr DatabaseSetting kSettings[] = {
    {L"Menu", &ZnDbDatabase::getMenu, nullptr},
    {L"ProjectName", &ZnDbDatabase::getProjectName, nullptr},
    {L"HyperlinkBase", &ZnDbDatabase::getHyperlinkBase, nullptr},
    {L"StyleSheet", &ZnDbDatabase::getStyleSheet, nullptr},
    {L"Dimpost", nullptr, &ZnDbDatabase::dimpost},
    {L"Dimapost", nullptr, &ZnDbDatabase::dimapost},
    {L"Dimblk", &ZnDbDatabase::getDimblk, nullptr},
    {L"Dimblk1", &ZnDbDatabase::getDimblk1, nullptr},
    {L"Dimblk2", &ZnDbDatabase::getDimblk2, nullptr},
};

// Unlike a summary field, a setting whose copy fails is not read.
bool ReadSetting(const ZnDbDatabase& database, const DatabaseSetting& setting, HeapText& value) {
  if (setting.get == nullptr) return value.Copy((database.*setting.text)()) == Zent::kOk;
  ZnString text;
  return (database.*setting.get)(text) == Zent::kOk && value.Copy(text) == Zent::kOk;
}

}  // namespace

void CollectDatabaseProperties(std::vector<_PropData>& properties, ZnDbDatabase* database) {
  for (const DatabaseSetting& setting : kSettings) {
    HeapText value;
    if (!ReadSetting(*database, setting, value)) continue;
    AddText(properties, value.Get(), setting.name, FMTID_Storage, kNamedProperty);
  }
}

}  // namespace ZDXEngine
