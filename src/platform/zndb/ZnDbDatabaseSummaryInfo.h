// The summary of a drawing.
#pragma once

#include "platform/zndb/Status.h"
#include "platform/zndb/ZnString.h"

class ZnDbDatabase;

// A copy of a drawing's summary, owned by whoever asked for it.
class ZnDbDatabaseSummaryInfo {
 public:
  virtual ~ZnDbDatabaseSummaryInfo() = default;
  virtual Zent::ErrorStatus getTitle(ZnString& text) const = 0;
  virtual Zent::ErrorStatus getSubject(ZnString& text) const = 0;
  virtual Zent::ErrorStatus getAuthor(ZnString& text) const = 0;
  virtual Zent::ErrorStatus getKeywords(ZnString& text) const = 0;
  virtual Zent::ErrorStatus getComments(ZnString& text) const = 0;
  virtual Zent::ErrorStatus getLastSavedBy(ZnString& text) const = 0;
  virtual Zent::ErrorStatus getRevisionNumber(ZnString& text) const = 0;
  // The number of custom entries.
  virtual int numCustomInfo() const = 0;
  // The entry `index`, counted from 0.
  virtual Zent::ErrorStatus getCustomSummaryInfo(int index, ZnString& key,
                                                 ZnString& value) const = 0;

 protected:
  ZnDbDatabaseSummaryInfo() = default;
  ZnDbDatabaseSummaryInfo(const ZnDbDatabaseSummaryInfo&) = default;
  ZnDbDatabaseSummaryInfo& operator=(const ZnDbDatabaseSummaryInfo&) = default;
};

// On success `info` is a summary that the caller deletes.  Fails if the drawing's version has none.
Zent::ErrorStatus zndbGetSummaryInfo(ZnDbDatabase* database, ZnDbDatabaseSummaryInfo*& info);
