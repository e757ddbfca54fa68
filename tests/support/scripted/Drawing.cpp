#include "support/scripted/Drawing.h"

#include "support/scripted/CallLog.h"

namespace scripted {

Table::Table(TableKind tableKind, std::string tableLabel, std::string labelOfRecords)
    : kind(tableKind), recordLabel(std::move(labelOfRecords)) {
  label = std::move(tableLabel);
}

Record& Table::Add(std::wstring name, std::wstring comments) {
  Record& record = records.emplace_back();
  record.label = recordLabel + " " + Shown(name);
  record.kind = kind;
  record.name = std::move(name);
  record.comments = std::move(comments);
  return record;
}

PlainObject& Dictionary::Add(std::wstring name, std::wstring className) {
  Entry& entry = entries.emplace_back();
  entry.object.label = "object " + Shown(name);
  entry.object.className = std::move(className);
  entry.name = std::move(name);
  return entry.object;
}

}  // namespace scripted
