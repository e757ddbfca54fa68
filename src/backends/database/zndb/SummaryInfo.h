// A copy of a drawing's summary.
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "backends/database/model/Drawing.h"
#include "platform/zndb/ZnDbDatabaseSummaryInfo.h"

namespace zdx::database {

class SummaryInfo : public ZnDbDatabaseSummaryInfo {
 public:
  explicit SummaryInfo(model::Summary summary) : summary_(std::move(summary)) {}

  Zent::ErrorStatus getTitle(ZnString& text) const override { return Give(summary_.title, text); }
  Zent::ErrorStatus getSubject(ZnString& text) const override {
    return Give(summary_.subject, text);
  }
  Zent::ErrorStatus getAuthor(ZnString& text) const override { return Give(summary_.author, text); }
  Zent::ErrorStatus getKeywords(ZnString& text) const override {
    return Give(summary_.keywords, text);
  }
  Zent::ErrorStatus getComments(ZnString& text) const override {
    return Give(summary_.comments, text);
  }
  Zent::ErrorStatus getLastSavedBy(ZnString& text) const override {
    return Give(summary_.lastSavedBy, text);
  }
  Zent::ErrorStatus getRevisionNumber(ZnString& text) const override {
    return Give(summary_.revisionNumber, text);
  }

  int numCustomInfo() const override { return static_cast<int>(summary_.custom.size()); }

  Zent::ErrorStatus getCustomSummaryInfo(int index, ZnString& key, ZnString& value) const override {
    if (index < 0 || index >= numCustomInfo()) return Zent::kInvalidInput;
    const auto& entry = summary_.custom[static_cast<std::size_t>(index)];
    Give(entry.first, key);
    return Give(entry.second, value);
  }

 private:
  static Zent::ErrorStatus Give(const std::optional<std::wstring>& text, ZnString& out) {
    if (!text) return Zent::kNotApplicable;
    out = ZnString(text->c_str());
    return Zent::kOk;
  }

  model::Summary summary_;
};

}  // namespace zdx::database
