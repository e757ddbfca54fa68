#include "support/scripted/ModelDocuments.h"

namespace scripted {

bool ModelDocuments::hasPartonicModelDocViews(ZnDbDatabase* database) {
  calls_.Record("", "hasPartonicModelDocViews", nameOf_(database));
  return hasViews;
}

Zent::ErrorStatus ModelDocuments::unpackPartonicDrawingFile(ZnDbDatabase* database,
                                                            ZnString& file) {
  const std::string before = file.length() == 0 ? "empty" : "not empty";
  const Outcome outcome =
      calls_.Record("", "unpackPartonicDrawingFile", Arguments(nameOf_(database), before));
  file = unpacked.c_str();
  return outcome.status;
}

Zent::ErrorStatus ModelDocuments::setRedirectionsInfo(ZnDbDatabase* database,
                                                      const ZnString& redirections) {
  const auto* const text = static_cast<const wchar_t*>(redirections);
  return calls_.Record("", "setRedirectionsInfo", Arguments(nameOf_(database), text)).status;
}

}  // namespace scripted
