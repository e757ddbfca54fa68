// The model-documentation library of a scripted world.
#pragma once

#include <functional>
#include <string>

#include "platform/modeldoc/ZnModelDocObjUtil.h"
#include "support/scripted/CallLog.h"

namespace scripted {

class ModelDocuments : public modeldoc::Provider {
 public:
  // `nameOf` tells a database in words.
  using NameOf = std::function<std::string(const ZnDbDatabase*)>;
  ModelDocuments(CallLog& calls, NameOf nameOf) : calls_(calls), nameOf_(std::move(nameOf)) {}

  bool hasViews = false;
  // The file that the embedded drawing is unpacked to.
  std::wstring unpacked;

  bool hasPartonicModelDocViews(ZnDbDatabase* database) override;
  // The text is there even where the status says failure: nobody may take it then.
  Zent::ErrorStatus unpackPartonicDrawingFile(ZnDbDatabase* database, ZnString& file) override;
  Zent::ErrorStatus setRedirectionsInfo(ZnDbDatabase* database,
                                        const ZnString& redirections) override;

 private:
  CallLog& calls_;
  NameOf nameOf_;
};

}  // namespace scripted
