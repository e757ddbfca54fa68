#include "backends/database/modeldoc/ModelDocuments.h"

namespace zdx::database {

bool ModelDocuments::hasPartonicModelDocViews(ZnDbDatabase* /*database*/) { return false; }

Zent::ErrorStatus ModelDocuments::unpackPartonicDrawingFile(ZnDbDatabase* /*database*/,
                                                            ZnString& /*unpacked*/) {
  return Zent::kNotApplicable;
}

Zent::ErrorStatus ModelDocuments::setRedirectionsInfo(ZnDbDatabase* /*database*/,
                                                      const ZnString& /*redirections*/) {
  return Zent::kNotApplicable;
}

}  // namespace zdx::database
