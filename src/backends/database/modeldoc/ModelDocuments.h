// The model-documentation library's own implementation.
#pragma once

#include "platform/modeldoc/ZnModelDocObjUtil.h"

namespace zdx::database {

// Keeps what belongs to model documents in free records of the drawing.
class ModelDocuments : public modeldoc::Provider {
 public:
  bool hasPartonicModelDocViews(ZnDbDatabase* database) override;
  // The file stands in a new folder of its own.
  Zent::ErrorStatus unpackPartonicDrawingFile(ZnDbDatabase* database, ZnString& unpacked) override;
  Zent::ErrorStatus setRedirectionsInfo(ZnDbDatabase* database,
                                        const ZnString& redirections) override;
};

}  // namespace zdx::database
